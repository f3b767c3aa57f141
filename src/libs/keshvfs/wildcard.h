// Masks of the view: "*" and "?", without regard to ASCII case, "/" and "\" alike.
#pragma once

#include <string_view>

namespace keshvfs {

/// ASCII lower case, with "/" as "\".
constexpr char foldName(char c) noexcept {
    if (c == '/')
        return '\\';
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) noexcept;
/// Order of folded, unsigned bytes.
bool nameLess(std::string_view a, std::string_view b) noexcept;
bool nameStartsWith(std::string_view name, std::string_view start) noexcept;

bool nameEndsWith(std::string_view name, std::string_view end) noexcept;

bool hasWildcard(std::string_view mask) noexcept;
/// True if the mask covers the whole name. "*" takes any characters, separators included.
bool matchesMask(std::string_view name, std::string_view mask) noexcept;
/// True if some longer name that begins with `start` could match.
bool canMatchBelow(std::string_view start, std::string_view mask) noexcept;

} // namespace keshvfs
