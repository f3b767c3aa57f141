// Pixels that are not compressed: colours packed into the bits of a number, or indices of a
// palette.
//
// They are read here and not by the decoder library, which reads behind their end, loses the low
// bits and the last pixel of some, and trusts an index.
#pragma once

#include "tessil/picture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tessil {

/// Which bits of a pixel hold which channel; no alpha means opaque.
struct ChannelMasks {
    std::uint32_t red;
    std::uint32_t green;
    std::uint32_t blue;
    std::uint32_t alpha;
};

inline constexpr ChannelMasks MasksOf32{0xff0000, 0xff00, 0xff, 0xff000000};
inline constexpr ChannelMasks MasksOf24{0xff0000, 0xff00, 0xff, 0};
inline constexpr ChannelMasks MasksOf15{0x7c00, 0x3e0, 0x1f, 0};
inline constexpr ChannelMasks MasksOf16{0x7c00, 0x3e0, 0x1f, 0x8000};
inline constexpr ChannelMasks MasksOfGrey{0xff, 0xff, 0xff, 0};
inline constexpr ChannelMasks MasksOfGreyAlpha{0xff, 0xff, 0xff, 0xff00};

using Colour = std::array<std::uint8_t, 4>; ///< red, green, blue, alpha
using Palette = std::vector<Colour>;

struct PlainPixels {
    Size size;
    std::size_t bits = 0;     ///< of a pixel: 8, 16, 24, 32; of an index: 1, 4, 8
    std::size_t rowAlign = 1; ///< rows are padded to a multiple of so many bytes
    bool bottomUp = false;    ///< the last row comes first
    bool rightToLeft = false; ///< the last pixel of a row comes first
    ChannelMasks masks{};     ///< without a palette
    const Palette* palette{}; ///< null: the pixels are colours
    std::string_view data;    ///< rowBytes() a row and maybe more

    [[nodiscard]] std::size_t rowBytes() const noexcept;
};

/// Refuses too little data and an index that the palette does not have.
Picture readPlain(const PlainPixels& pixels);
/// The colours of a palette whose entries have 16, 24 or 32 bits.
Palette readPalette(std::string_view data, std::size_t bits, const ChannelMasks& masks);

} // namespace tessil
