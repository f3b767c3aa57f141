#include "lornfd/catalog.h"

#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/tfile.h"
#include "lornfd/lornfd.h"
#include "sample/random.h"
#include "sample/samplegame.h"

#include <array>
#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <unordered_map>

namespace bench {

namespace {

constexpr int readsARound = 20000;

struct PlainEntry {
    std::int64_t offset = 0;
    std::int64_t size = 0;
    std::uint32_t crc = 0;
};
using PlainIndex = std::unordered_map<std::string, PlainEntry>;

/// One line of an index, "offset size crc name".
void addLine(PlainIndex& index, const char* at, const char* end) {
    PlainEntry entry;
    at = std::from_chars(at, end, entry.offset).ptr + 1;
    at = std::from_chars(at, end, entry.size).ptr + 1;
    at = std::from_chars(at, end, entry.crc, 16).ptr + 1;
    index.emplace(std::string(at, end), entry);
}

PlainIndex readIndex(const std::string& path, std::size_t expected) {
    const Bytes bytes = readPlain(path);
    PlainIndex index;
    index.reserve(expected);
    const char* const end = bytes.view().data() + bytes.size;
    const char* at =
        static_cast<const char*>(std::memchr(bytes.view().data(), '\n', bytes.size)) + 1;
    while (const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
        addLine(index, at, static_cast<const char*>(found));
        at = static_cast<const char*>(found) + 1;
    }
    return index;
}

/// An index is kept until its file changes: a new time makes the driver read it again.
std::shared_ptr<const lornfd::CatalogIndex> openAnew(const std::string& catalog) {
    std::filesystem::last_write_time(catalog, std::filesystem::last_write_time(catalog) +
                                                  std::chrono::seconds(1));
    return lornfd::CatalogIndex::open(catalog);
}

std::vector<std::string> namesToRead(int files) {
    sample::Random random(7);
    std::vector<std::string> names;
    for (int i = 0; i < readsARound; ++i)
        names.push_back(sample::largeEntryName(random.below(files)));
    return names;
}

std::int64_t readEntries(const std::vector<std::string>& paths) {
    std::int64_t total = 0;
    std::array<char, 4096> buffer;
    for (const std::string& path : paths) {
        const std::int32_t file =
            LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        total += LornFD_ReadFile(file, buffer.data(), static_cast<std::int64_t>(buffer.size()));
        LornFD_CloseFile(file);
    }
    return total;
}

/// The same bytes at places already found, the data file opened for each as an entry's handle is.
std::int64_t readPlaces(const std::vector<PlainEntry>& places, const std::string& data) {
    std::int64_t total = 0;
    std::array<char, 4096> buffer;
    for (const PlainEntry& place : places) {
        const int file = ::open(data.c_str(), O_RDONLY | O_CLOEXEC);
        total += ::pread(file, buffer.data(), static_cast<std::size_t>(place.size), place.offset);
        ::close(file);
    }
    return total;
}

/// The same through a descriptor that stays open.
std::int64_t readPlacesOpen(const std::vector<PlainEntry>& places, int file) {
    std::int64_t total = 0;
    std::array<char, 4096> buffer;
    for (const PlainEntry& place : places)
        total += ::pread(file, buffer.data(), static_cast<std::size_t>(place.size), place.offset);
    return total;
}

} // namespace

std::vector<Row> catalogRows(const Options& options) {
    const std::string catalog = options.directory / "large.cat";
    std::string error;
    if (!sample::writeLargeCatalog(catalog, options.files, error))
        fail(error);
    const std::string data = lornfd::CatalogIndex::open(catalog)->dataPath();
    const auto expected = static_cast<std::size_t>(options.files);
    const PlainIndex index = readIndex(catalog, expected);
    std::vector<std::string> paths;
    std::vector<PlainEntry> places;
    for (const std::string& name : namesToRead(options.files)) {
        paths.push_back(catalog + "::" + name);
        places.push_back(index.at(name));
    }
    const int file = ::open(data.c_str(), O_RDONLY | O_CLOEXEC);
    if (readEntries(paths) != readPlaces(places, data))
        fail("the entries differ");

    const auto ours = [&] { return readEntries(paths); };
    const auto eachOf = [](const Times& times) {
        return Times{times.ours / readsARound, times.reference / readsARound};
    };
    std::vector<Row> rows;
    rows.push_back(withinRow(
        "read one entry of a catalog", "pread from the open data file",
        eachOf(bestOf(options.rounds, ours, [&] { return readPlacesOpen(places, file); })), 2));
    rows.push_back(besides(withinRow(
        "", "open, pread, close of the data file",
        eachOf(bestOf(options.rounds, ours, [&] { return readPlaces(places, data); })), 2)));
    rows.push_back(fasterRow("read the catalog's index",
                             "into a std::unordered_map<std::string, ...>",
                             bestOf(
                                 options.rounds, [&] { return openAnew(catalog); },
                                 [&] { return readIndex(catalog, expected); }),
                             3));
    ::close(file);
    return rows;
}

} // namespace bench
