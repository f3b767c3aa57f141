// A file in memory that cannot be read behind its end.
#pragma once

#include "tessil/picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessil {

/// Reading where there is nothing is a Refusal.
class Bytes {
public:
    explicit Bytes(std::string_view all) noexcept : m_all(all) {}

    [[nodiscard]] std::size_t size() const noexcept { return m_all.size(); }
    /// `count` bytes from `at`.
    [[nodiscard]] std::string_view part(std::size_t at, std::size_t count) const {
        require(at <= m_all.size() && count <= m_all.size() - at, "it ends too early");
        return m_all.substr(at, count);
    }
    /// All from `at`.
    [[nodiscard]] std::string_view from(std::size_t at) const {
        return part(at, m_all.size() - std::min(at, m_all.size()));
    }
    [[nodiscard]] std::uint8_t byte(std::size_t at) const {
        return static_cast<std::uint8_t>(part(at, 1).front());
    }
    /// A number of 2 or 4 bytes, lowest byte first.
    [[nodiscard]] std::uint16_t little16(std::size_t at) const {
        return static_cast<std::uint16_t>(byte(at) | byte(at + 1) << 8);
    }
    [[nodiscard]] std::uint32_t little32(std::size_t at) const {
        return little16(at) | static_cast<std::uint32_t>(little16(at + 2)) << 16;
    }
    /// The same, highest byte first.
    [[nodiscard]] std::uint16_t big16(std::size_t at) const {
        return static_cast<std::uint16_t>(byte(at) << 8 | byte(at + 1));
    }
    [[nodiscard]] std::uint32_t big32(std::size_t at) const {
        return static_cast<std::uint32_t>(big16(at)) << 16 | big16(at + 2);
    }

private:
    std::string_view m_all;
};

} // namespace tessil
