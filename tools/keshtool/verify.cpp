#include "commands.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/catalog.h"
#include "lornfd/paths.h"
#include "tfile.h"

#include <algorithm>

namespace {

bool isCatalog(const std::string& path) {
    return !IsCatalogPath(path) && lornfd::foldCase(path).ends_with(".cat");
}

/// Reads a file whole; a T file is loaded as well. Throws Failure for what is wrong with it.
void readWhole(const std::string& path) {
    if (isTFile(path)) {
        clsTxtParser parser;
        loadTFile(parser, path);
    } else {
        InputFile(path).read([](std::string_view) {});
    }
}

ExitCode verifyCatalog(const std::string& catalog) {
    const auto index = lornfd::CatalogIndex::open(catalog);
    if (!index)
        throw Failure(LornFDErrorText());
    ExitCode code = Done;
    for (std::size_t i = 0; i < index->size(); ++i) {
        const std::string path = catalog + "::" + std::string(index->entry(i).name);
        try {
            readWhole(path);
        } catch (const Failure& failure) {
            print(ShownPath(path) + '\t' + oneLine(failure.what()) + '\n');
            code = Findings;
        }
    }
    return code;
}

ExitCode verifyPath(const std::string& path) {
    if (isCatalog(path))
        return verifyCatalog(path);
    readWhole(path);
    return Done;
}

} // namespace

ExitCode verify(GameView& view, const Arguments& arguments) {
    ExitCode code = Done;
    for (const auto& path : arguments.paths) {
        try {
            code = std::max(code, verifyPath(view.realPath(path)));
        } catch (const Failure& failure) {
            complain(failure.what());
            code = Failed;
        }
    }
    return code;
}
