// The one exception type. It ends at the edge of a parser or a window; public operations trap it.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace errnum {
inline constexpr std::uint32_t General = 0x80040064;
inline constexpr std::uint32_t Forbidden = 0x80040065;
inline constexpr std::uint32_t Loader = 0x80040001;    ///< a loader's own complaint
inline constexpr std::uint32_t ReadValue = 0x8004000A; ///< a value could not be read
inline constexpr std::uint32_t Overflow = 6;           ///< a whole number that leaves 32 bits
inline constexpr std::uint32_t DivisionByZero = 11;
inline constexpr std::uint32_t TypeMismatch = 13; ///< text where a number is needed
inline constexpr std::uint32_t Bounds = 9;        ///< an index outside its array
inline constexpr std::uint32_t Cancelled = 32755; ///< a cancelled file dialog; swallowed
} // namespace errnum

class KeshError : public std::runtime_error {
public:
    KeshError(std::uint32_t number, std::string source, const std::string& text)
        : std::runtime_error(text), m_number(number), m_source(std::move(source)) {}

    [[nodiscard]] std::uint32_t Number() const noexcept { return m_number; }
    /// Class or routine.
    [[nodiscard]] const std::string& Source() const noexcept { return m_source; }

private:
    std::uint32_t m_number;
    std::string m_source;
};
