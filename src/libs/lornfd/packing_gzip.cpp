#include "lornfd/lornfd.h"
#include "lornfd/packedform.h"

#include <libdeflate.h>
#include <memory>

namespace lornfd {

namespace {

constexpr int level = 6;

std::optional<unsigned long long> claimedSize(std::string_view packed) {
    constexpr std::size_t footer = 4; // the size modulo 2^32, lowest byte first
    if (packed.size() < footer)
        return std::nullopt;
    unsigned long long size = 0;
    for (std::size_t i = 0; i < footer; ++i)
        size |= std::uint64_t{static_cast<unsigned char>(packed[packed.size() - footer + i])}
                << (8 * i);
    return size;
}

Decoded decode(std::string_view packed, char* room, std::size_t roomSize) {
    thread_local const std::unique_ptr<libdeflate_decompressor,
                                       decltype(&libdeflate_free_decompressor)>
        decompressor(libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    Decoded decoded = {Decoded::State::Done};
    switch (libdeflate_gzip_decompress_ex(decompressor.get(), packed.data(), packed.size(), room,
                                          roomSize, &decoded.consumed, &decoded.produced)) {
    case LIBDEFLATE_SUCCESS:
        return decoded;
    case LIBDEFLATE_INSUFFICIENT_SPACE:
        return {Decoded::State::NoRoom};
    default:
        return {.state = Decoded::State::Broken, .reason = "gzip data that is cut or damaged"};
    }
}

std::size_t encodedBound(std::size_t size) {
    return libdeflate_gzip_compress_bound(nullptr, size);
}

std::size_t encode(std::string_view content, Buffer& room) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    return compressor ? libdeflate_gzip_compress(compressor.get(), content.data(), content.size(),
                                                 room.data(), room.size())
                      : 0;
}

} // namespace

constinit const PackedForm gzipForm{.form = LORNFD_GZIP,
                                    .signature = "\x1f\x8b\x08",
                                    .ratio = 1032,
                                    .extra = 0,
                                    .claimedSize = claimedSize,
                                    .decode = decode,
                                    .encodedBound = encodedBound,
                                    .encode = encode};

} // namespace lornfd
