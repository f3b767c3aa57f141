// A decoded picture, and why a file is not one.
#pragma once

#include "tessil/tessil.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessil {

struct Size {
    std::size_t width = 0;
    std::size_t height = 0;

    [[nodiscard]] std::size_t pixels() const noexcept { return width * height; }
    bool operator==(const Size&) const = default;
};

struct Picture {
    Size size;
    std::vector<std::uint8_t> rgba; ///< 4 bytes a pixel, top row first
};

/// Thrown by readers where a file cannot be decoded; ends at the C-style face.
class Refusal : public std::runtime_error {
public:
    Refusal(TESSILError code, const std::string& reason)
        : std::runtime_error(reason), m_code(code) {}

    [[nodiscard]] TESSILError code() const noexcept { return m_code; }

private:
    TESSILError m_code;
};

/// Refuses a file as broken unless the condition holds.
inline void require(bool holds, const char* reason) {
    if (!holds)
        throw Refusal(TESSIL_E_BROKEN, reason);
}

/// The size that a file claims, held against the limits. Whatever has the size of a picture is
/// allocated after this.
Size checkedSize(std::uint64_t width, std::uint64_t height);

} // namespace tessil
