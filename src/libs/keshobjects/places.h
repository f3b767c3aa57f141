// Reading a value at its place in a loaded text.
#pragma once

#include "keshobjects/keshobjects.h"

#include <optional>
#include <string_view>

namespace keshobjects {

constexpr bool isBlank(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// `text` without the blanks and line breaks at its end.
std::string_view trimEnd(std::string_view text) noexcept;
/// The spelling of the value at a place.
std::string_view valueAt(std::string_view text, KeshPlace place) noexcept;
/// The raw rest of line at a place.
std::string_view rawAt(std::string_view text, KeshPlace place) noexcept;
/// The number at a place by the whole grammar, found without looking for the value's end first.
std::optional<double> anyNumberAt(std::string_view text, KeshPlace place) noexcept;
/// The same, quick for the short whole numbers that most values are.
inline std::optional<double> numberAt(std::string_view text, KeshPlace place) noexcept {
    constexpr std::ptrdiff_t mostDigits = 15; // exact in a double
    const char* const first = text.data() + place;
    const char* const last = text.data() + text.size();
    const char* at = first;
    std::int64_t number = 0;
    while (at != last && *at >= '0' && *at <= '9' && at - first < mostDigits)
        number = number * 10 + (*at++ - '0');
    if (at != first && at != last && *at == ';')
        return static_cast<double>(number);
    return anyNumberAt(text, place);
}
std::optional<std::int32_t> integerAt(std::string_view text, KeshPlace place) noexcept;

} // namespace keshobjects
