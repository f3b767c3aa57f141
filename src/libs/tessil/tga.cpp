#include "tessil/bytes.h"
#include "tessil/plainpixels.h"
#include "tessil/readers.h"

#include <algorithm>
#include <string>

namespace tessil {

namespace {

enum Offset : std::size_t {
    AtHasPalette = 1,
    AtType = 2,
    AtFirstColour = 3,
    AtColours = 5,
    AtColourBits = 7,
    AtWidth = 12,
    AtHeight = 14,
    AtBits = 16,
    AtFlags = 17,
    HeaderSize = 18,
};

enum Type : std::uint8_t { Indexed = 1, Colours = 2, Grey = 3, Packed = 8 };

enum Flag : std::uint8_t { AlphaBits = 0x0f, RightToLeft = 0x10, TopDown = 0x20 };

struct PixelKind {
    Type type;
    std::uint8_t bits;      ///< as the file tells
    std::uint8_t alphaBits; ///< of the flags, as a least
    ChannelMasks masks;
};

/// The first that fits counts.
constexpr PixelKind pixelKinds[] = {
    {Indexed, 8, 0, {}},         {Colours, 15, 0, MasksOf15},     {Colours, 16, 1, MasksOf16},
    {Colours, 16, 0, MasksOf15}, {Colours, 24, 0, MasksOf24},     {Colours, 32, 0, MasksOf32},
    {Grey, 8, 0, MasksOfGrey},   {Grey, 16, 0, MasksOfGreyAlpha},
};

const PixelKind* findKind(std::uint8_t type, std::uint8_t bits, std::uint8_t alphaBits) {
    const auto* found = std::ranges::find_if(pixelKinds, [&](const PixelKind& kind) {
        return kind.type == type && kind.bits == bits && kind.alphaBits <= alphaBits;
    });
    return found != std::end(pixelKinds) ? found : nullptr;
}

std::size_t wholeBytes(std::uint8_t bits) {
    return (bits + 7U) / 8;
}

/// The colours of a picture that has indices. What stands in front of the first one is black.
Palette paletteOf(const Bytes& file, std::size_t at) {
    const std::uint8_t bits = file.byte(AtColourBits);
    const PixelKind* kind = findKind(Colours, bits, 0);
    require(file.byte(AtHasPalette) == 1 && kind, "it has no palette");
    const std::size_t first = file.little16(AtFirstColour), bytes = wholeBytes(bits);
    Palette palette =
        readPalette(file.part(at, file.little16(AtColours) * bytes), bytes * 8, kind->masks);
    palette.insert(palette.begin(), first, Colour{});
    return palette;
}

/// Runs: a byte with the highest bit and one pixel to repeat, or without and so many pixels; the
/// lower bits are the number less one.
std::string unpack(std::string_view runs, std::size_t pixelBytes, std::size_t wanted) {
    const Bytes data(runs);
    std::string pixels;
    pixels.reserve(wanted);
    for (std::size_t at = 0; pixels.size() < wanted;) {
        const std::uint8_t run = data.byte(at++);
        const std::size_t count = (run & 0x7fU) + 1, repeats = (run & 0x80) != 0 ? count : 1;
        const std::string_view read = data.part(at, count / repeats * pixelBytes);
        for (std::size_t i = 0; i < repeats; ++i)
            pixels.append(read);
        at += read.size();
    }
    return pixels;
}

bool isTga(const Bytes& file) {
    const auto type = file.size() > HeaderSize ? file.byte(AtType) & ~Packed : 0;
    return type >= Indexed && type <= Grey && file.byte(AtHasPalette) <= 1;
}

} // namespace

Picture readTga(std::string_view bytes) {
    const Bytes file(bytes);
    if (!isTga(file))
        throw Refusal(TESSIL_E_KIND, "it is none of DDS, PNG, JPEG, BMP and TGA");
    const std::uint8_t type = file.byte(AtType), bits = file.byte(AtBits),
                       flags = file.byte(AtFlags);
    const PixelKind* kind = findKind(type & ~Packed, bits, flags & AlphaBits);
    if (!kind)
        throw Refusal(TESSIL_E_KIND, "TGA pictures of this pixel format are not read");
    const Size size = checkedSize(file.little16(AtWidth), file.little16(AtHeight));

    const std::size_t atPalette = HeaderSize + file.byte(0); // behind a remark
    const std::size_t paletteSize =
        file.byte(AtHasPalette) == 1
            ? file.little16(AtColours) * wholeBytes(file.byte(AtColourBits))
            : 0;
    const Palette palette = kind->type == Indexed ? paletteOf(file, atPalette) : Palette();
    std::string_view data = file.from(atPalette + paletteSize);
    std::string unpacked;
    if ((type & Packed) != 0) {
        unpacked = unpack(data, wholeBytes(bits), size.pixels() * wholeBytes(bits));
        data = unpacked;
    }
    return readPlain({.size = size,
                      .bits = wholeBytes(bits) * 8,
                      .bottomUp = (flags & TopDown) == 0,
                      .rightToLeft = (flags & RightToLeft) != 0,
                      .masks = kind->masks,
                      .palette = kind->type == Indexed ? &palette : nullptr,
                      .data = data});
}

} // namespace tessil
