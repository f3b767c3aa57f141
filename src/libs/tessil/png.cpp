#include "tessil/bytes.h"
#include "tessil/decoder.h"
#include "tessil/readers.h"

#include <algorithm>
#include <string>

namespace tessil {

namespace {

constexpr std::size_t SignatureSize = 8;
constexpr std::size_t AroundData =
    12; // length and name in front of a chunk's data, checksum behind
constexpr std::string_view pixelChunks[] = {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};

/// The same file with the chunks alone that make up the pixels. Texts and profiles could unpack to
/// gigabytes, and a gamma value would change what the artist stored.
std::string pixelsOnly(const Bytes& file) {
    std::string kept(file.part(0, SignatureSize));
    std::string_view name;
    for (std::size_t at = SignatureSize; name != "IEND";) {
        const std::size_t whole = AroundData + std::size_t{file.big32(at)};
        const std::string_view chunk = file.part(at, whole);
        name = chunk.substr(4, 4);
        if (std::ranges::find(pixelChunks, name) != std::end(pixelChunks))
            kept.append(chunk);
        at += whole;
    }
    return kept;
}

} // namespace

Picture readPng(std::string_view bytes) {
    const Bytes file(bytes);
    require(file.part(SignatureSize + 4, 4) == "IHDR", "it does not begin with its size");
    const Size size = checkedSize(file.big32(16), file.big32(20));
    return decode(Codec::Png, pixelsOnly(file), size);
}

} // namespace tessil
