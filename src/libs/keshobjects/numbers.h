// The grammar of numbers, shared by whole spellings and by places in a text.
#pragma once

#include <bit>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <cstring>

namespace keshobjects {

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

/// Reads the number that starts at `first`. Gives the end of its spelling, or null if no number of
/// this type starts there or it leaves the type's range.
template <typename Number>
const char* parseNumber(const char* first, const char* last, Number& number) noexcept {
    if (first == last)
        return nullptr;
    if (!isDigit(*first)) {
        // std::from_chars takes "-" but no "+", and "inf" and "nan", which are text here.
        const char* const digits = first + (*first == '+' || *first == '-' ? 1 : 0);
        const bool point = std::floating_point<Number> && digits != last && *digits == '.';
        if (digits == last || !(isDigit(*digits) || point))
            return nullptr;
        first += *first == '+' ? 1 : 0;
    }
    const auto [end, error] = std::from_chars(first, last, number);
    return error == std::errc{} ? end : nullptr;
}

/// The digits at the start of 8 bytes.
struct ShortDigits {
    std::uint32_t number;
    int count; ///< 0 to 8
};

/// Reads up to 8 digits at once: where the lengths of numbers change from value to value, a loop
/// over digits costs more in wrong guesses of the processor than all the arithmetic.
inline ShortDigits parseShortDigits(const char* first) noexcept {
    std::uint64_t bytes;
    std::memcpy(&bytes, first, sizeof bytes);
    if constexpr (std::endian::native == std::endian::big)
        bytes = __builtin_bswap64(bytes);
    bytes ^= 0x3030303030303030; // digits become 0 to 9, everything else more
    const std::uint64_t above = ((bytes + 0x7676767676767676) | bytes) & 0x8080808080808080;
    const int count = std::countr_zero(above) / 8;
    if (count == 0)
        return {0, 0};
    bytes <<= 64 - 8 * count; // zeros in front
    bytes = bytes * 10 + (bytes >> 8);
    constexpr std::uint64_t pairs = 0x000000ff000000ff;
    const std::uint64_t number = (bytes & pairs) * (100 + (std::uint64_t{1000000} << 32)) +
                                 ((bytes >> 16) & pairs) * (1 + (std::uint64_t{10000} << 32));
    return {static_cast<std::uint32_t>(number >> 32), count};
}

} // namespace keshobjects
