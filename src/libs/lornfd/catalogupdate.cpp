#include "lornfd/catalog.h"
#include "lornfd/catalogcache.h"
#include "lornfd/datafile.h"
#include "lornfd/errors.h"
#include "lornfd/lockfile.h"
#include "lornfd/newcontent.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <libdeflate.h>
#include <optional>
#include <unordered_map>
#include <utility>

namespace lornfd {

namespace {

namespace fs = std::filesystem;

struct Change {
    std::string name = {};
    std::int64_t offset = 0;
    std::int64_t size = 0;
    std::uint32_t crc = 0;
    bool living = true;
};

void appendNumber(std::string& text, std::int64_t number) {
    char digits[24];
    text.append(digits, std::to_chars(digits, std::end(digits), number).ptr);
}

void appendChecksum(std::string& text, std::uint32_t crc) {
    constexpr std::string_view digits = "0123456789abcdef";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += digits[(crc >> shift) & 0xf];
}

std::string indexText(std::string_view dataName, const std::vector<CatalogEntry>& entries) {
    std::string text = "KESHCAT 1 ";
    text += dataName;
    text += '\n';
    for (const CatalogEntry& entry : entries) {
        appendNumber(text, entry.offset);
        text += ' ';
        appendNumber(text, entry.size);
        text += ' ';
        appendChecksum(text, entry.crc);
        text += ' ';
        text += entry.name;
        text += '\n';
    }
    return text;
}

std::int64_t sizeOf(const std::vector<CatalogEntry>& entries) {
    std::int64_t size = 0;
    for (const CatalogEntry& entry : entries)
        size += entry.size;
    return size;
}

bool copyBytes(const platform::File& from, const std::string& name, const CatalogEntry& entry,
               BlockWriter& to) {
    std::string block;
    for (std::int64_t done = 0; done < entry.size;) {
        block.resize(static_cast<std::size_t>(
            std::min<std::int64_t>(entry.size - done, std::int64_t{1} << 20)));
        std::size_t got = 0;
        const std::error_code error =
            from.read(entry.offset + done, block.data(), block.size(), got);
        if (error || got != block.size())
            return fail(LORNFD_E_READ, {.file = name,
                                        .place = offsetPlace(entry.offset + done),
                                        .reason = error ? error.message() : "the file ends there"});
        if (!to.write(block))
            return false;
        done += static_cast<std::int64_t>(got);
    }
    return true;
}

} // namespace

struct CatalogUpdate::Data {
    std::string path; ///< of the index
    std::unique_ptr<TargetLock> lock;
    std::shared_ptr<const OpenCatalog> old; ///< null for a catalog that is to be made
    std::unique_ptr<NewDataFile> fresh;     ///< where that one's bytes go
    std::optional<BlockWriter> appended;    ///< where new bytes of an old one go, from the first on
    std::int64_t oldEnd = 0;                ///< of the data file, before the first new byte
    std::vector<Change> changes;
    std::unordered_map<std::string, std::size_t> latest; ///< folded name to its last change
    bool failed = false;
    bool named = false; ///< the index on the disk names what was appended

    ~Data();
    [[nodiscard]] std::string dataPath() const;
    BlockWriter* writer();
    bool openToAppend();
    [[nodiscard]] std::vector<CatalogEntry> living() const;
    [[nodiscard]] bool isThere(const std::string& folded) const;
    void change(std::string folded, Change change);
    bool writeIndex(std::string_view dataName, const std::vector<CatalogEntry>& entries,
                    NewDataFile* newData);
    bool compact(std::vector<CatalogEntry> entries);
    [[nodiscard]] bool failEarlier() const;
};

CatalogUpdate::Data::~Data() {
    // Bytes that no index names may stay, they count as dead; but they need not.
    if (appended && !named)
        appended->file().truncate(oldEnd);
}

std::string CatalogUpdate::Data::dataPath() const {
    return realPath(old->index->dataPath());
}

bool CatalogUpdate::Data::openToAppend() {
    platform::File file;
    platform::FileStamp stamp;
    const std::string name = dataPath();
    std::error_code error = file.openForWriting(name);
    if (!error)
        error = file.stamp(stamp);
    if (error)
        return fail(LORNFD_E_WRITE, name, error);
    oldEnd = stamp.size;
    appended.emplace(std::move(file), oldEnd, name);
    return true;
}

BlockWriter* CatalogUpdate::Data::writer() {
    if (!old && !fresh)
        fresh = NewDataFile::create(path, {});
    if (fresh)
        return &fresh->writer();
    return old && (appended || openToAppend()) ? &*appended : nullptr;
}

std::vector<CatalogEntry> CatalogUpdate::Data::living() const {
    std::vector<CatalogEntry> entries;
    const std::size_t before = old ? old->index->size() : 0;
    entries.reserve(before + changes.size());
    for (std::size_t i = 0; i < before; ++i) {
        const CatalogEntry entry = old->index->entry(i);
        if (changes.empty() || !latest.contains(foldCase(entry.name)))
            entries.push_back(entry);
    }
    for (const Change& change : changes)
        if (change.living)
            entries.push_back({change.offset, change.size, change.crc, change.name});
    return entries;
}

bool CatalogUpdate::Data::isThere(const std::string& folded) const {
    const auto changed = latest.find(folded);
    if (changed != latest.end())
        return changes[changed->second].living;
    return old && old->index->find(folded) != CatalogIndex::npos;
}

void CatalogUpdate::Data::change(std::string folded, Change change) {
    const auto [former, isFirst] = latest.try_emplace(std::move(folded), changes.size());
    if (!isFirst)
        changes[std::exchange(former->second, changes.size())].living = false;
    changes.push_back(std::move(change));
}

bool CatalogUpdate::Data::writeIndex(std::string_view dataName,
                                     const std::vector<CatalogEntry>& entries,
                                     NewDataFile* newData) {
    const auto content = NewContent::begin(path);
    if (!content || !content->write(indexText(dataName, entries)))
        return false;
    const bool done = content->commit();
    named = content->replaced();
    if (newData && named)
        newData->setNamed();
    if (newData && done)
        newData->removeOld();
    return done;
}

/// Puts what lives into a new data file, which the new index names.
bool CatalogUpdate::Data::compact(std::vector<CatalogEntry> entries) {
    const auto target =
        NewDataFile::create(path, fs::path(old->index->dataPath()).filename().string());
    if (!target)
        return false;
    for (CatalogEntry& entry : entries) {
        const std::int64_t offset = target->writer().position();
        if (!copyBytes(appended->file(), dataPath(), entry, target->writer()))
            return false;
        entry.offset = offset;
    }
    return target->writer().flush() && writeIndex(target->name(), entries, target.get());
}

bool CatalogUpdate::Data::failEarlier() const {
    return fail(LORNFD_E_WRITE,
                {.file = path, .place = {}, .reason = "an earlier entry could not be written"});
}

CatalogUpdate::CatalogUpdate(std::unique_ptr<Data> data) : m(std::move(data)) {}

CatalogUpdate::~CatalogUpdate() = default;

std::unique_ptr<CatalogUpdate> CatalogUpdate::begin(std::string_view catalog, bool create) {
    auto data = std::make_unique<Data>();
    data->path = realPath(catalog);
    std::error_code error;
    const bool exists = fs::exists(data->path, error);
    if (!exists && !create) {
        fail(LORNFD_E_NOT_FOUND, {.file = data->path, .place = {}, .reason = {}});
        return nullptr;
    }
    data->lock = TargetLock::take(data->path);
    if (!data->lock)
        return nullptr;
    if (fs::exists(data->path, error)) {
        data->old = openCatalog(data->path, Look::Always);
        if (!data->old)
            return nullptr;
    }
    NewDataFile::recover(data->path,
                         data->old ? fs::path(data->old->index->dataPath()).filename().string()
                                   : std::string());
    return std::unique_ptr<CatalogUpdate>(new CatalogUpdate(std::move(data)));
}

bool CatalogUpdate::put(std::string_view name, std::string_view storedBytes) {
    if (!isSafeEntryName(name))
        return fail(LORNFD_E_NAME,
                    {.file = m->path + "::" + std::string(name),
                     .place = {},
                     .reason = "an entry has a relative name of 1 to 255 bytes without "
                               "\"..\", drive or control character"});
    if (m->failed)
        return m->failEarlier();
    m->failed = true; // also where something below throws
    BlockWriter* writer = m->writer();
    const std::int64_t offset = writer ? writer->position() : 0;
    if (!writer || !writer->write(storedBytes))
        return false;
    Change change{.name = std::string(name),
                  .offset = offset,
                  .size = static_cast<std::int64_t>(storedBytes.size()),
                  .crc = libdeflate_crc32(0, storedBytes.data(), storedBytes.size())};
    std::ranges::replace(change.name, '/', '\\');
    std::string folded = foldCase(change.name);
    m->change(std::move(folded), std::move(change));
    m->failed = false;
    return true;
}

bool CatalogUpdate::remove(std::string_view name) {
    std::string folded = foldCase(name);
    std::ranges::replace(folded, '/', '\\');
    if (!m->isThere(folded))
        return fail(LORNFD_E_NOT_FOUND,
                    {.file = m->path + "::" + std::string(name), .place = {}, .reason = {}});
    m->change(std::move(folded), {.living = false});
    return true;
}

bool CatalogUpdate::commit() {
    if (m->failed)
        return m->failEarlier();
    BlockWriter* writer = m->writer();
    if (!writer || !writer->flush())
        return false;
    const std::vector<CatalogEntry> entries = m->living();
    if (m->fresh)
        return m->writeIndex(m->fresh->name(), entries, m->fresh.get());
    const std::int64_t living = sizeOf(entries);
    // Where there is no room for a second data file, the change itself can still be made.
    if (writer->position() - living > living && m->compact(entries))
        return true;
    if (m->named)
        return false;
    lastError().clear();
    return m->writeIndex(fs::path(m->old->index->dataPath()).filename().string(), entries, nullptr);
}

} // namespace lornfd
