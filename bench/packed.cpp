#include "bench/groups.h"
#include "bench/plainread.h"
#include "bench/tfile.h"
#include "lornfd/lornfd.h"
#include "lornfd/packing.h"
#include "sample/samplegame.h"

#include <algorithm>
#include <libdeflate.h>
#include <zstd.h>

namespace bench {

namespace {

/// Unpacks into new memory of the size known, by the library alone.
using Unpack = Bytes (*)(std::string_view packed, std::size_t size);

Bytes newBytes(std::size_t size) {
    return {std::unique_ptr<char[]>(new char[size]), size};
}

Bytes unpackGzip(std::string_view packed, std::size_t size) {
    Bytes bytes = newBytes(size);
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    std::size_t written = 0;
    const auto result = libdeflate_gzip_decompress(decompressor, packed.data(), packed.size(),
                                                   bytes.data.get(), size, &written);
    libdeflate_free_decompressor(decompressor);
    if (result != LIBDEFLATE_SUCCESS || written != size)
        fail("libdeflate does not unpack");
    return bytes;
}

Bytes unpackZstd(std::string_view packed, std::size_t size) {
    Bytes bytes = newBytes(size);
    if (ZSTD_decompress(bytes.data.get(), size, packed.data(), packed.size()) != size)
        fail("libzstd does not unpack");
    return bytes;
}

Row packedRow(const Options& options, const std::string& text, std::int32_t form, const char* name,
              Unpack unpack) {
    const std::string path = options.directory / "TWareT_packed.pck";
    {
        const auto packed = lornfd::pack(text, form, path);
        if (!packed)
            fail("cannot pack");
        writePlain(path, *packed);
    }
    const Bytes packed = readPlain(path);
    double best = 1e9;
    double bestUnpack = 1e9;
    double bestLoad = 1e9;
    for (int round = 0; round < options.rounds; ++round) {
        best = std::min(best, secondsOf([&] { return loadFile(path); }));
        bestUnpack =
            std::min(bestUnpack, secondsOf([&] { return unpack(packed.view(), text.size()); }));
        bestLoad = std::min(bestLoad, secondsOf([&] { return loadMemory(text); }));
    }
    return withinRow(std::string("T file, packed, ") + name,
                     std::string(name == std::string_view("gzip") ? "libdeflate" : "libzstd") +
                         " alone + loading the text from memory",
                     {best, bestUnpack + bestLoad}, 1.1);
}

} // namespace

std::vector<Row> packedRows(const Options& options) {
    const std::string text = sample::largeWareText(std::int64_t{options.megabytes} * 1000000);
    return {packedRow(options, text, LORNFD_GZIP, "gzip", unpackGzip),
            packedRow(options, text, LORNFD_ZSTD, "zstd", unpackZstd)};
}

} // namespace bench
