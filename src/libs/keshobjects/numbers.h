// The grammar of numbers, shared by whole spellings and by places in a text.
#pragma once

#include <charconv>
#include <concepts>

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

} // namespace keshobjects
