#include "bench/groups.h"
#include "bench/tfile.h"
#include "files/ViewFiles.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshtexts.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "sample/samplegame.h"
#include "tdata/CheckRun.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "textres/clsDescServer.h"

#include <cmath>
#include <utility>

namespace bench {

namespace {

/// How many times the sample game has to grow for a megabyte of unpacked files.
constexpr double scaleAMegabyte = 4.5;

/// Loads a file as what it is, records or texts, or reads it. Gives its unpacked size.
std::int64_t loadFile(const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const auto size = static_cast<std::int64_t>(LornFD_ViewFile(file).size());
    if (IsTFileName(path)) {
        clsTxtParser parser;
        keep(parser.Load(file, ObjectTypeFromFile(path)));
    } else if (path.find("-L0") != path.npos) {
        keep(Kesh_TREDescServerLoadFile(file));
    }
    LornFD_CloseFile(file);
    return size;
}

std::int64_t loadAll() {
    std::int64_t size = 0;
    ForEachViewFile([&size](const ViewFile& file) { size += loadFile(file.RealName); });
    Kesh_TREDescServerUnload();
    return size;
}

std::size_t checkAll() {
    Archive = std::make_unique<clsArchive>();
    DescServer = std::make_unique<clsDescServer>();
    CheckRun run;
    run.AddView();
    std::size_t count = 0;
    run.Run(
        true, 44, [&count](const std::vector<Finding>& findings) { count += findings.size(); },
        [](const std::string& error) { fail(error); });
    Archive.reset();
    DescServer.reset();
    Kesh_TREDescServerUnload();
    return count;
}

} // namespace

std::vector<Row> checkRows(const Options& options) {
    const std::filesystem::path root = options.directory / "game";
    const int megabytes = 2 * options.megabytes;
    std::string error;
    if (!sample::writeSampleGame(root.string(),
                                 static_cast<int>(std::lround(megabytes * scaleAMegabyte)), error))
        fail(error);
    KeshVFS_ClearFilters();
    KeshVFS_CreateVFS(FromPlatform(root.string()));
    const std::int64_t size = loadAll() / 1000000;
    const Times times = bestOf((options.rounds + 1) / 2, checkAll, loadAll);
    KeshVFS_CreateVFS("");
    return {withinRow("check of a game of " + std::to_string(size) + " MB",
                      "reading and loading every file once", times, 5)};
}

} // namespace bench
