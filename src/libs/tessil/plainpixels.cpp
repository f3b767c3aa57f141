#include "tessil/plainpixels.h"

#include <algorithm>
#include <bit>

namespace tessil {

namespace {

/// Takes one channel out of a pixel and brings it to 8 bits.
class Channel {
public:
    Channel(std::uint32_t mask, std::uint8_t whereNone) : m_mask(mask) {
        const int low = std::countr_zero(mask), high = 32 - std::countl_zero(mask);
        const int used = std::min(high - low, 8);
        m_shift = mask != 0 ? high - used : 0;
        const unsigned top = mask != 0 ? (1U << used) - 1 : 1;
        for (unsigned i = 0; i <= top; ++i)
            m_values[i] = static_cast<std::uint8_t>((i * 255 + top / 2) / top);
        if (mask == 0)
            m_values.fill(whereNone);
    }

    [[nodiscard]] std::uint8_t of(std::uint32_t pixel) const noexcept {
        return m_values[(pixel & m_mask) >> m_shift];
    }

private:
    std::uint32_t m_mask;
    int m_shift = 0;
    std::array<std::uint8_t, 256> m_values{};
};

class Channels {
public:
    Channels(const ChannelMasks& masks, std::size_t bits)
        : m_bytes(bits / 8),
          m_red(masks.red, 0),
          m_green(masks.green, 0),
          m_blue(masks.blue, 0),
          m_alpha(masks.alpha, 255) {}

    [[nodiscard]] Colour at(std::string_view data, std::size_t index) const noexcept {
        std::uint32_t pixel = 0;
        for (std::size_t i = m_bytes; i-- > 0;)
            pixel = pixel << 8 | static_cast<std::uint8_t>(data[index * m_bytes + i]);
        return {m_red.of(pixel), m_green.of(pixel), m_blue.of(pixel), m_alpha.of(pixel)};
    }

private:
    std::size_t m_bytes;
    Channel m_red, m_green, m_blue, m_alpha;
};

class Indices {
public:
    Indices(const Palette& palette, std::size_t bits) : m_palette(palette), m_bits(bits) {}

    /// The first pixel of a byte stands in its highest bits.
    [[nodiscard]] Colour at(std::string_view data, std::size_t index) const {
        const std::size_t bit = index * m_bits;
        const auto byte = static_cast<std::uint8_t>(data[bit / 8]);
        const std::size_t number = byte >> (8 - m_bits - bit % 8) & ((1U << m_bits) - 1);
        require(number < m_palette.size(), "a pixel has a colour that the palette lacks");
        return m_palette[number];
    }

private:
    const Palette& m_palette;
    std::size_t m_bits;
};

template <typename Source>
Picture read(const PlainPixels& pixels, const Source& source) {
    const auto [width, height] = pixels.size;
    const std::size_t row = pixels.rowBytes();
    require(pixels.data.size() >= row * height, "its pixels are not all there");
    Picture picture{pixels.size, std::vector<std::uint8_t>(pixels.size.pixels() * 4)};
    auto to = picture.rgba.begin();
    for (std::size_t y = 0; y < height; ++y) {
        const auto line = pixels.data.substr((pixels.bottomUp ? height - 1 - y : y) * row, row);
        for (std::size_t x = 0; x < width; ++x)
            to = std::ranges::copy(source.at(line, pixels.rightToLeft ? width - 1 - x : x), to).out;
    }
    return picture;
}

} // namespace

std::size_t PlainPixels::rowBytes() const noexcept {
    const std::size_t bytes = (size.width * bits + 7) / 8;
    return (bytes + rowAlign - 1) / rowAlign * rowAlign;
}

Picture readPlain(const PlainPixels& pixels) {
    if (pixels.palette)
        return read(pixels, Indices(*pixels.palette, pixels.bits));
    return read(pixels, Channels(pixels.masks, pixels.bits));
}

Palette readPalette(std::string_view data, std::size_t bits, const ChannelMasks& masks) {
    const Channels channels(masks, bits);
    Palette palette(data.size() * 8 / bits);
    for (std::size_t i = 0; i < palette.size(); ++i)
        palette[i] = channels.at(data, i);
    return palette;
}

} // namespace tessil
