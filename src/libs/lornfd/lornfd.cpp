#include "lornfd/lornfd.h"

#include "lornfd/catalogcache.h"
#include "lornfd/errors.h"
#include "lornfd/handle.h"
#include "lornfd/handletable.h"
#include "lornfd/lockfile.h"
#include "lornfd/packing.h"
#include "lornfd/paths.h"
#include "lornfd/platform.h"
#include "lornfd/reader.h"
#include "lornfd/writer.h"

#include <filesystem>
#include <libdeflate.h>
#include <new>

using namespace lornfd;

namespace {

/// Runs one operation: the last error starts empty, and what the standard library throws becomes
/// one.
template <typename Result, typename Operation>
Result guarded(std::string_view name, Result failure, Operation operation) noexcept {
    lastError().clear();
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        fail(LORNFD_E_TOO_BIG,
             {.file = nativePath(name), .place = {}, .reason = "there is no memory for it"});
    } catch (const std::exception& error) {
        fail(LORNFD_E_OPEN, {.file = nativePath(name), .place = {}, .reason = error.what()});
    }
    return failure;
}

/// Runs an operation on what stands behind a handle, if that is of the kind asked for.
template <typename Kind, typename Result, typename Operation>
Result withHandle(std::int32_t handle, Result failure, Operation operation) {
    Kind* object = dynamic_cast<Kind*>(HandleTable::instance().find(handle));
    return guarded(object ? object->givenName() : "", failure, [&]() -> Result {
        return object ? operation(*object) : (failHandle(handle), failure);
    });
}

bool isUsableName(std::string_view name) {
    const bool usable = !name.empty() && name.find('\0') == std::string_view::npos;
    return usable || fail(LORNFD_E_NAME, {.file = std::string(name.substr(0, name.find('\0'))),
                                          .place = {},
                                          .reason = "it is empty or holds a NUL character"});
}

bool areKnown(std::string_view name, std::int32_t access, std::int32_t create,
              std::int32_t fileType) {
    const bool known = (access == LORNFD_READ || access == LORNFD_WRITE) &&
                       (create == LORNFD_OPEN_EXISTING || create == LORNFD_CREATE) &&
                       (fileType == LORNFD_AS_IS || isKnownForm(fileType));
    return known || fail(LORNFD_E_ARGUMENT, {.file = FileName::parse(name).shown(),
                                             .place = {},
                                             .reason = "unknown access, create or file type"});
}

std::int32_t openFile(std::string_view name, std::int32_t access, std::int32_t create,
                      std::int32_t fileType) {
    return guarded(name, 0, [&]() -> std::int32_t {
        if (!isUsableName(name) || !areKnown(name, access, create, fileType))
            return 0;
        if (access == LORNFD_READ)
            return HandleTable::instance().add(Reader::open(name));
        return HandleTable::instance().add(
            Writer::open(name, create == LORNFD_OPEN_EXISTING, fileType));
    });
}

bool deletePlain(std::string_view name) {
    const std::string path = resolvePath(name);
    std::error_code error;
    if (!std::filesystem::exists(std::filesystem::symlink_status(path, error)))
        return fail(LORNFD_E_NOT_FOUND, {.file = path, .place = {}, .reason = {}});
    const auto lock = TargetLock::take(path);
    if (!lock)
        return false;
    error = platform::remove(path);
    expectCatalogChange();
    if (!error)
        error = platform::flushDirectoryOf(path);
    return !error || fail(LORNFD_E_WRITE, path, error);
}

bool deleteEntry(const FileName& name) {
    const auto update = CatalogUpdate::begin(name.path, false);
    return update && update->remove(name.entry) && update->commit();
}

bool createCatalog(std::string_view name) {
    std::error_code error;
    if (std::filesystem::exists(resolvePath(name), error))
        return true;
    const auto update = CatalogUpdate::begin(name, true);
    return update && update->commit();
}

} // namespace

std::int32_t LornFD_OpenFile(std::string_view Name, std::int32_t Access, std::int32_t Create,
                             std::int32_t FileType) {
    return openFile(Name, Access, Create, FileType);
}

std::int32_t LornFD_OpenFileConvert(std::string_view Name, std::int32_t Access,
                                    std::int32_t /*Create*/, std::int32_t FileType) {
    return openFile(Name, Access, LORNFD_CREATE, FileType);
}

std::int32_t LornFD_CloseFile(std::int32_t File) {
    const auto file = HandleTable::instance().take<OpenFile>(File);
    return guarded(file ? file->givenName() : "", 0, [&]() -> std::int32_t {
        if (!file)
            return failHandle(File);
        Writer* writer = dynamic_cast<Writer*>(file.get());
        return !writer || writer->commit() ? 1 : 0;
    });
}

std::int32_t LornFD_AbandonFile(std::int32_t File) {
    return guarded("", 0, [&]() -> std::int32_t {
        return HandleTable::instance().take<OpenFile>(File) ? 1 : failHandle(File);
    });
}

std::int64_t LornFD_ReadFile(std::int32_t File, void* Buffer, std::int64_t Count) {
    return withHandle<Reader>(File, std::int64_t{-1}, [&](Reader& reader) {
        return reader.read(static_cast<char*>(Buffer), std::max<std::int64_t>(Count, 0));
    });
}

std::int32_t LornFD_WriteFile(std::int32_t File, const void* Buffer, std::int64_t Count) {
    return withHandle<Writer>(File, 0, [&](Writer& writer) {
        const auto size = static_cast<std::size_t>(std::max<std::int64_t>(Count, 0));
        return writer.write({static_cast<const char*>(Buffer), size}) ? 1 : 0;
    });
}

std::int64_t LornFD_FileSize(std::int32_t File) {
    return withHandle<Reader>(File, std::int64_t{-1}, [](Reader& reader) { return reader.size(); });
}

std::string_view LornFD_ViewFile(std::int32_t File) {
    return withHandle<Reader>(File, std::string_view(),
                              [](Reader& reader) { return reader.view(); });
}

std::int32_t LornFD_Checksum(std::int32_t File, std::int64_t* Size, std::uint32_t* Checksum) {
    return withHandle<OpenFile>(File, 0, [&](OpenFile& file) {
        const auto mark = file.contentMark();
        *Size = mark ? mark->size : 0;
        *Checksum = mark ? mark->crc : 0;
        return mark ? 1 : 0;
    });
}

std::uint32_t LornFD_ChecksumOf(std::string_view Content) {
    return libdeflate_crc32(0, Content.data(), Content.size());
}

// What is written is collected in order, so it ends at the write position anyway.
std::int32_t LornFD_SetEndOfFile(std::int32_t File) {
    return withHandle<Writer>(File, 0, [](Writer&) { return 1; });
}

std::int32_t LornFD_FileType(std::int32_t File) {
    return withHandle<Reader>(File, 0, [](Reader& reader) { return reader.form(); });
}

std::string LornFD_FileName(std::int32_t File) {
    return withHandle<OpenFile>(File, std::string(), [](OpenFile& file) { return file.name(); });
}

std::int32_t LornFD_FileExists(std::string_view Name) {
    return guarded(Name, 0, [&]() -> std::int32_t {
        return isUsableName(Name) && Reader::open(Name) ? 1 : 0;
    });
}

std::int32_t LornFD_DeleteFile(std::string_view Name) {
    return guarded(Name, 0, [&]() -> std::int32_t {
        const FileName name = FileName::parse(Name);
        return isUsableName(Name) && (name.inCatalog ? deleteEntry(name) : deletePlain(Name));
    });
}

std::int32_t LornFD_OpenCatalog(std::string_view Name, std::int32_t Create) {
    return guarded(Name, 0, [&]() -> std::int32_t {
        if (!isUsableName(Name) || !areKnown(Name, LORNFD_READ, Create, LORNFD_AS_IS) ||
            (Create == LORNFD_CREATE && !createCatalog(Name)))
            return 0;
        auto index = CatalogIndex::open(Name);
        return index
                   ? HandleTable::instance().add(std::make_unique<CatalogHandle>(std::move(index)))
                   : 0;
    });
}

std::int32_t LornFD_CloseCatalog(std::int32_t Catalog) {
    return guarded("", 0, [&]() -> std::int32_t {
        return HandleTable::instance().take<CatalogHandle>(Catalog) ? 1 : failHandle(Catalog);
    });
}

std::int32_t LornFD_GetLastError() {
    return lastError().code();
}

std::int32_t LornFD_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                   std::int32_t* Needed) {
    return lastError().translate(Code, Buffer, Size, Needed);
}

std::shared_ptr<const CatalogIndex> lornfd::catalogOfHandle(std::int32_t handle) {
    const auto* catalog = dynamic_cast<CatalogHandle*>(HandleTable::instance().find(handle));
    return catalog ? catalog->index : nullptr;
}
