#include "commands.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/catalog.h"
#include "lornfd/paths.h"
#include "tdata/mdlKeshConst.h"
#include "tfile.h"

#include <algorithm>

namespace {

bool isCatalog(const std::string& path) {
    return !IsCatalogPath(path) && lornfd::foldCase(path).ends_with(".cat");
}

/// Reads a file whole; a T file is loaded as well. Gives a finding, or nothing; throws Failure for
/// what cannot be read.
std::string readWhole(const std::string& path) {
    if (IsTFileName(path)) {
        clsTxtParser parser;
        loadTFile(parser, path);
        return parser.LeftOut();
    }
    InputFile(path).read([](std::string_view) {});
    return {};
}

ExitCode report(const std::string& path, std::string_view finding) {
    if (finding.empty())
        return Done;
    print(ShownPath(path) + '\t' + oneLine(finding) + '\n');
    return Findings;
}

ExitCode verifyCatalog(const std::string& catalog) {
    const auto index = lornfd::CatalogIndex::open(catalog);
    if (!index)
        throw Failure(LornFDErrorText());
    ExitCode code = Done;
    for (std::size_t i = 0; i < index->size(); ++i) {
        const std::string path = catalog + "::" + std::string(index->entry(i).name);
        std::string finding;
        try {
            finding = readWhole(path);
        } catch (const Failure& failure) {
            finding = failure.what();
        }
        code = std::max(code, report(path, finding));
    }
    return code;
}

ExitCode verifyPath(const std::string& path) {
    return isCatalog(path) ? verifyCatalog(path) : report(path, readWhole(path));
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
