// The grammar of numbers, shared by whole spellings and by places in a text.
#pragma once

#include <charconv>
#include <concepts>

namespace keshobjects {

/// Reads the number that starts at `first`. Gives the end of its spelling, or null if no number of
/// this type starts there or it leaves the type's range.
template <typename Number>
const char* parseNumber(const char* first, const char* last, Number& number) noexcept {
    // std::from_chars takes "-" but no "+", and "inf" and "nan", which are text here.
    const char* const digits = first + (first != last && (*first == '+' || *first == '-') ? 1 : 0);
    if (digits == last) {
        return nullptr;
    }
    const bool digit = *digits >= '0' && *digits <= '9';
    if (!digit && !(std::floating_point<Number> && *digits == '.')) {
        return nullptr;
    }
    const auto [end, error] = std::from_chars(*first == '+' ? digits : first, last, number);
    return error == std::errc{} ? end : nullptr;
}

} // namespace keshobjects
