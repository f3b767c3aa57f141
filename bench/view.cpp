#include "bench/groups.h"
#include "bench/tfile.h"
#include "keshvfs/keshvfs.h"
#include "sample/samplegame.h"

#include <filesystem>

namespace bench {

namespace {

struct Counts {
    int files = 0;
    int directories = 0;
};

Counts walk(const std::filesystem::path& root) {
    Counts counts;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_directory())
            ++counts.directories;
        else if (entry.is_regular_file())
            ++counts.files;
    }
    return counts;
}

} // namespace

std::vector<Row> viewRows(const Options& options) {
    const std::filesystem::path root = options.directory / "tree";
    std::string error;
    if (!sample::writeLargeTree(root.string(), options.files, error))
        fail(error);
    for (const char* mask : {"types\\*", "t\\*", "dds\\*", "textures\\*", "objects\\*", "maps\\*"})
        KeshVFS_AddVFSFilter(mask);
    if (walk(root).files != options.files)
        fail("files are missing");
    const Times times = bestOf(
        options.rounds, [&] { return KeshVFS_CreateVFS(root.string()); },
        [&] { return walk(root); });
    KeshVFS_CreateVFS("");
    KeshVFS_ClearFilters();
    return {withinRow("view over loose files, cached", "recursive_directory_iterator, types only",
                      times, 2)};
}

} // namespace bench
