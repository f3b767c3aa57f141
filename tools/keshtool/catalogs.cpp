#include "commands.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"
#include "lornfd/packing.h"
#include "lornfd/paths.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void failByDriver() {
    throw Failure(LornFDErrorText());
}

std::shared_ptr<const lornfd::CatalogIndex> openIndex(const std::string& catalog) {
    auto index = lornfd::CatalogIndex::open(catalog);
    if (!index)
        failByDriver();
    return index;
}

/// Index and data file of a catalog that exists, so that it is not packed into itself.
std::set<fs::path> filesOf(const std::string& catalog) {
    if (!LornFD_FileExists(catalog))
        return {};
    const auto index = openIndex(catalog);
    return {fs::weakly_canonical(index->path()), fs::weakly_canonical(index->dataPath())};
}

/// All files below a directory by their entry names.
std::map<std::string, fs::path> filesBelow(const fs::path& directory,
                                           const std::set<fs::path>& leftOut) {
    std::map<std::string, fs::path> files;
    std::map<std::string, std::string> byFolded;
    for (const auto& file : fs::recursive_directory_iterator(directory)) {
        if (file.is_directory() && !file.is_symlink())
            continue;
        if (!file.is_regular_file())
            throw Failure("\"" + file.path().string() +
                          "\" is a link to a directory or no file, so it cannot be packed.");
        if (leftOut.contains(fs::weakly_canonical(file.path())))
            continue;
        const std::string relative = file.path().lexically_relative(directory).generic_string();
        if (relative.find('\\') != std::string::npos)
            throw Failure("\"" + file.path().string() + "\" has a name with \"\\\" in it.");
        const std::string name = FromPlatform(relative);
        const auto [known, isNew] = byFolded.emplace(lornfd::foldCase(name), name);
        if (!isNew)
            throw Failure("\"" + name + "\" and \"" + known->second + "\" differ only in case.");
        files.emplace(name, file.path());
    }
    return files;
}

std::string storedBytes(const fs::path& path) {
    QFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure("\"" + path.string() +
                      "\" could not be read: " + file.errorString().toStdString() + '.');
    return file.readAll().toStdString();
}

std::string packedBytes(const fs::path& path, std::int32_t fileType) {
    const InputFile file(FromPlatform(path.string()));
    const auto packed = lornfd::pack(file.content(), fileType, path.string());
    if (!packed)
        failByDriver();
    return std::string(packed->view());
}

bool contains(const fs::path& outer, const fs::path& inner) {
    return std::ranges::mismatch(outer, inner).in1 == outer.end();
}

/// Where an entry goes below a directory; a link in there must not lead it out.
std::string placeOf(const fs::path& directory, std::string_view entry) {
    if (!lornfd::isSafeEntryName(entry))
        throw Failure("\"" + std::string(entry) + "\" is no name that may be written.");
    const std::string target =
        lornfd::resolvePath(FromPlatform(directory.string()) + '\\' + std::string(entry));
    if (fs::is_symlink(target) || !contains(directory, fs::weakly_canonical(target)))
        throw Failure("\"" + target + "\" is a link that may lead out of \"" + directory.string() +
                      "\".");
    fs::create_directories(fs::path(target).parent_path());
    return FromPlatform(target);
}

void copyFile(const std::string& from, const std::string& to, std::int32_t fileType) {
    const InputFile in(from);
    OutputFile out(to, fileType);
    in.read([&](std::string_view block) { out.write(block); });
    out.commit();
}

} // namespace

ExitCode pack(GameView& view, const Arguments& arguments) {
    const fs::path directory = lornfd::resolvePath(view.realPath(arguments.paths[0]));
    const std::string catalog = view.realPath(arguments.paths[1]);
    if (!fs::is_directory(directory))
        throw Failure("\"" + directory.string() + "\" is no directory.");
    const auto files = filesBelow(directory, filesOf(catalog));
    const auto update = lornfd::CatalogUpdate::begin(catalog, true);
    if (!update)
        failByDriver();
    for (const auto& [name, path] : files)
        if (!update->put(name, arguments.fileType ? packedBytes(path, *arguments.fileType)
                                                  : storedBytes(path)))
            failByDriver();
    if (!update->commit())
        failByDriver();
    return Done;
}

ExitCode unpack(GameView& view, const Arguments& arguments) {
    const std::string catalog = view.realPath(arguments.paths[0]);
    const auto index = openIndex(catalog);
    const std::string to = lornfd::resolvePath(view.realPath(arguments.paths[1]));
    fs::create_directories(to);
    const fs::path directory = fs::canonical(to);
    const std::string prefix = catalog + "::";
    ExitCode code = Done;
    for (std::size_t i = 0; i < index->size(); ++i) {
        const std::string name(index->entry(i).name);
        try {
            copyFile(prefix + name, placeOf(directory, name), LORNFD_PLAIN);
        } catch (const std::exception& failure) {
            complain(failure.what());
            code = Failed;
        }
    }
    return code;
}

ExitCode put(GameView& view, const Arguments& arguments) {
    const std::string from = view.realPath(arguments.paths[0]);
    const std::string to = view.realPath(arguments.paths[1]);
    const InputFile in(from);
    if (arguments.create && IsCatalogPath(to)) {
        const std::int32_t catalog = LornFD_OpenCatalog(CatalogPart(to), LORNFD_CREATE);
        if (!catalog)
            failByDriver();
        LornFD_CloseCatalog(catalog);
    }
    copyFile(from, to, arguments.fileType.value_or(LORNFD_AS_IS));
    return Done;
}

ExitCode rm(GameView& view, const Arguments& arguments) {
    const std::string path = view.realPath(arguments.paths[0]);
    if (!IsCatalogPath(path))
        throw Failure(ShownPath(path) + " is no entry of a catalog.", WrongUsage);
    if (!LornFD_DeleteFile(path))
        failByDriver();
    return Done;
}
