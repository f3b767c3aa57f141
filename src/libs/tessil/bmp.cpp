#include "tessil/bytes.h"
#include "tessil/plainpixels.h"
#include "tessil/readers.h"

#include <cstdlib>
#include <optional>

namespace tessil {

namespace {

enum Offset : std::size_t {
    AtData = 10,
    AtInfo = 14,
    AtWidth = 18,
    AtHeight = 22,
    AtBits = 28,
    AtCompression = 30,
    AtColours = 46,
    AtMasks = 54,
    AtAlphaMask = 66,
};

enum Compression : std::uint32_t { None = 0, BitFields = 3 };

/// The info part of version 3, of which all later ones are extensions.
constexpr std::uint32_t InfoSize = 40;
/// From this size on it has an alpha mask, up to the largest known.
constexpr std::uint32_t InfoSizeAlpha = 56, InfoSizeMax = 124;

[[noreturn]] void refuseKind() {
    throw Refusal(TESSIL_E_KIND, "BMP pictures of this kind are not read");
}

ChannelMasks masksOf(const Bytes& file, std::uint16_t bits) {
    if (file.little32(AtCompression) == BitFields)
        return {file.little32(AtMasks), file.little32(AtMasks + 4), file.little32(AtMasks + 8),
                file.little32(AtInfo) >= InfoSizeAlpha ? file.little32(AtAlphaMask) : 0};
    // The fourth byte has no meaning without masks.
    return bits == 16 ? MasksOf15 : MasksOf24;
}

std::optional<Palette> paletteOf(const Bytes& file, std::uint16_t bits) {
    if (bits > 8)
        return std::nullopt;
    const std::size_t most = std::size_t{1} << bits, told = file.little32(AtColours);
    const std::size_t colours = told == 0 ? most : std::min(told, most);
    return readPalette(file.part(AtInfo + file.little32(AtInfo), colours * 4), 32, MasksOf24);
}

} // namespace

Picture readBmp(std::string_view bytes) {
    const Bytes file(bytes);
    const std::uint32_t info = file.little32(AtInfo), compression = file.little32(AtCompression);
    const std::uint16_t bits = file.little16(AtBits);
    const bool known = bits == 1 || bits == 4 || (bits != 0 && bits % 8 == 0 && bits <= 32);
    if (info < InfoSize || info > InfoSizeMax || !known ||
        (compression != None && (compression != BitFields || bits % 16 != 0)))
        refuseKind();
    // A negative height tells that the top row comes first.
    const auto height = static_cast<std::int32_t>(file.little32(AtHeight));
    const auto palette = paletteOf(file, bits);
    return readPlain(
        {.size = checkedSize(file.little32(AtWidth),
                             static_cast<std::uint64_t>(std::abs(std::int64_t{height}))),
         .bits = bits,
         .rowAlign = 4,
         .bottomUp = height > 0,
         .masks = masksOf(file, bits),
         .palette = palette ? &*palette : nullptr,
         .data = file.from(file.little32(AtData))});
}

} // namespace tessil
