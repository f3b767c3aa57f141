#include "lornfd/catalog.h"

#include <algorithm>

namespace lornfd {

namespace {

constexpr std::size_t longestName = 255;

bool isForbidden(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f || c == ':';
}

} // namespace

bool isSafeEntryName(std::string_view name) noexcept {
    if (name.size() > longestName || std::ranges::any_of(name, isForbidden))
        return false;
    // A part of nothing but dots and blanks is no name: disks take it for a directory, its parent,
    // or nothing at all.
    bool named = false;
    for (const char c : name) {
        const bool separator = c == '\\' || c == '/';
        if (separator && !named)
            return false;
        named = !separator && (named || (c != '.' && c != ' '));
    }
    return named;
}

} // namespace lornfd
