#include "tessil/bytes.h"
#include "tessil/decoder.h"
#include "tessil/plainpixels.h"
#include "tessil/readers.h"

#include <algorithm>
#include <string>

namespace tessil {

namespace {

constexpr std::size_t HeaderSize = 128;

enum Offset : std::size_t {
    AtFlags = 8,
    AtHeight = 12,
    AtWidth = 16,
    AtDataSize = 20,
    AtDepth = 24,
    AtFormatSize = 76,
    AtFormatFlags = 80,
    AtFourCC = 84,
    AtBits = 88,
    AtMasks = 92,
    AtCaps = 108,
};

enum FormatFlag : std::uint32_t {
    HasAlpha = 1,
    IsAlpha = 2,
    IsFourCC = 4,
    IsRgb = 0x40,
    IsLuminance = 0x20000,
};

struct BlockKind {
    std::string_view fourCC;
    std::size_t blockSize; ///< bytes for 4 x 4 pixels
};

constexpr BlockKind blockKinds[] = {{"DXT1", 8}, {"DXT3", 16}, {"DXT5", 16}};

void put32(std::string& file, std::size_t at, std::uint64_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        file[at + i] = static_cast<char>(value >> 8 * i & 0xff);
}

/// A file of one surface. The decoder takes the size of the data, the number of mipmaps and sides
/// as the header has them, so it gets a header of ours.
std::string surfaceFile(Size size, std::string_view fourCC, std::string_view blocks) {
    constexpr std::uint32_t caps = 1, height = 2, width = 4, format = 0x1000, dataSize = 0x80000;
    std::string file(HeaderSize, '\0');
    file.replace(0, 4, "DDS ");
    put32(file, 4, HeaderSize - 4);
    put32(file, AtFlags, caps | height | width | format | dataSize);
    put32(file, AtHeight, size.height);
    put32(file, AtWidth, size.width);
    put32(file, AtDataSize, blocks.size());
    put32(file, AtDepth, 1);
    put32(file, AtFormatSize, 32);
    put32(file, AtFormatFlags, IsFourCC);
    file.replace(AtFourCC, 4, fourCC);
    put32(file, AtCaps, 0x1000); // a texture
    return file.append(blocks);
}

Picture readBlocks(const Bytes& file, Size size) {
    const std::string_view fourCC = file.part(AtFourCC, 4);
    const auto* kind = std::ranges::find(blockKinds, fourCC, &BlockKind::fourCC);
    if (kind == std::end(blockKinds))
        throw Refusal(TESSIL_E_KIND, "DDS pictures of this compression are not read");
    const std::size_t blocks = (size.width + 3) / 4 * ((size.height + 3) / 4);
    const std::string_view data = file.part(HeaderSize, blocks * kind->blockSize);
    return decode(Codec::Dds, surfaceFile(size, fourCC, data), size);
}

ChannelMasks masksOf(const Bytes& file, std::uint32_t flags) {
    const auto mask = [&](std::size_t index) { return file.little32(AtMasks + 4 * index); };
    ChannelMasks masks{};
    if ((flags & IsRgb) != 0)
        masks = {mask(0), mask(1), mask(2), 0};
    else if ((flags & IsLuminance) != 0)
        masks = {mask(0), mask(0), mask(0), 0};
    if ((flags & (HasAlpha | IsAlpha)) != 0)
        masks.alpha = mask(3);
    return masks;
}

} // namespace

Picture readDds(std::string_view bytes) {
    const Bytes file(bytes);
    const Size size = checkedSize(file.little32(AtWidth), file.little32(AtHeight));
    const std::uint32_t flags = file.little32(AtFormatFlags);
    if ((flags & IsFourCC) != 0)
        return readBlocks(file, size);
    const std::uint32_t bits = file.little32(AtBits);
    if ((flags & (IsRgb | IsLuminance | IsAlpha)) == 0 || bits % 8 != 0 || bits < 8 || bits > 32)
        throw Refusal(TESSIL_E_KIND, "DDS pictures of this pixel format are not read");
    return readPlain(
        {.size = size, .bits = bits, .masks = masksOf(file, flags), .data = file.from(HeaderSize)});
}

} // namespace tessil
