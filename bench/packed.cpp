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

/// Unpacks by the library alone, into memory of the right size that was touched before.
using Unpack = bool (*)(std::string_view packed, Bytes& bytes);

bool unpackGzip(std::string_view packed, Bytes& bytes) {
    libdeflate_decompressor* const decompressor = libdeflate_alloc_decompressor();
    std::size_t written = 0;
    const auto result = libdeflate_gzip_decompress(decompressor, packed.data(), packed.size(),
                                                   bytes.data.get(), bytes.size, &written);
    libdeflate_free_decompressor(decompressor);
    return result == LIBDEFLATE_SUCCESS && written == bytes.size;
}

bool unpackZstd(std::string_view packed, Bytes& bytes) {
    return ZSTD_decompress(bytes.data.get(), bytes.size, packed.data(), packed.size()) ==
           bytes.size;
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
    Bytes bytes = {std::make_unique<char[]>(text.size()), text.size()};
    double best = 1e9;
    double bestUnpack = 1e9;
    double bestLoad = 1e9;
    for (int round = 0; round < options.rounds; ++round) {
        best = std::min(best, secondsOf([&] { return loadFile(path); }));
        bestUnpack = std::min(bestUnpack, secondsOf([&] { return unpack(packed.view(), bytes); }));
        bestLoad = std::min(bestLoad, secondsOf([&] { return loadMemory(text); }));
    }
    if (bytes.view() != text)
        fail("the library does not unpack " + path);
    return withinRow(std::string("T file, packed, ") + name,
                     std::string(name == std::string_view("gzip") ? "libdeflate" : "libzstd") +
                         " alone into memory kept + loading the text from memory",
                     {best, bestUnpack + bestLoad}, 1.1);
}

} // namespace

std::vector<Row> packedRows(const Options& options) {
    const std::string text = sample::largeWareText(std::int64_t{options.megabytes} * 1000000);
    return {packedRow(options, text, LORNFD_GZIP, "gzip", unpackGzip),
            packedRow(options, text, LORNFD_ZSTD, "zstd", unpackZstd)};
}

} // namespace bench
