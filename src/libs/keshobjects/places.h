// Reading a value at its place in a loaded text.
#pragma once

#include "keshobjects/keshobjects.h"
#include "keshobjects/numbers.h"

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
    constexpr std::size_t window = 9; // bytes, with the one behind the digits
    if (text.size() - place >= window) {
        const auto [number, count] = parseShortDigits(text.data() + place);
        if (count > 0 && text[place + static_cast<std::size_t>(count)] == ';')
            return number;
    }
    return anyNumberAt(text, place);
}
std::optional<std::int32_t> integerAt(std::string_view text, KeshPlace place) noexcept;

} // namespace keshobjects
