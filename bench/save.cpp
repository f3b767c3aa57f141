#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/tfile.h"
#include "lornfd/lornfd.h"
#include "sample/samplegame.h"

#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

bool saveWithLibrary(clsTxtParser& parser, const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFileConvert(path, LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_PLAIN);
    if (file == 0 || !parser.Save(file) || LornFD_CloseFile(file) == 0)
        fail("cannot save " + path);
    return true;
}

bool saveByHand(std::string_view content, const std::string& path, const std::string& directory) {
    const std::string beside = path + ".new";
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    for (std::size_t done = 0; file >= 0 && done < content.size();) {
        const ssize_t count = ::write(file, content.data() + done, content.size() - done);
        if (count < 0)
            fail("cannot write " + beside);
        done += static_cast<std::size_t>(count);
    }
    const int parent = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool good = ::fsync(file) == 0 && ::close(file) == 0 &&
                      ::rename(beside.c_str(), path.c_str()) == 0 && ::fsync(parent) == 0;
    ::close(parent);
    if (!good)
        fail("cannot replace " + path);
    return good;
}

} // namespace

std::vector<Row> saveRows(const Options& options) {
    const std::string path = options.directory / "TWareT_save.txt";
    const std::string byHand = options.directory / "byhand.txt";
    writePlain(path, sample::largeWareText(std::int64_t{options.megabytes} * 1000000));
    const auto parser = loadFile(path);
    saveWithLibrary(*parser, path);
    const Bytes written = readPlain(path);
    writePlain(byHand, written.view());
    const RecordPtr record = parser->FindIndex(static_cast<int>(parser->ByIndex().size() / 2));
    int price = 1;
    const Times times = bestOf(
        options.rounds * 3, // a disk's times vary more than a processor's
        [&] {
            record->SetValue(9, ++price);
            return saveWithLibrary(*parser, path);
        },
        [&] { return saveByHand(written.view(), byHand, options.directory); });
    return {withinRow("save with one value changed", "write, fsync, rename, fsync of the directory",
                      times, 1.2)};
}

} // namespace bench
