#include "lornfd/catalog.h"

#include <algorithm>

namespace lornfd {

namespace {

constexpr std::size_t longestName = 255;

bool isForbidden(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f || c == ':';
}

/// Nothing but dots and blanks is no name: disks take it for a directory, its parent, or nothing.
bool isSafeComponent(std::string_view component) noexcept {
    return component.find_first_not_of(". ") != std::string_view::npos;
}

} // namespace

bool isSafeEntryName(std::string_view name) noexcept {
    if (name.size() > longestName || std::ranges::any_of(name, isForbidden))
        return false;
    for (;;) {
        const std::size_t end = name.find_first_of("\\/");
        if (!isSafeComponent(name.substr(0, end)))
            return false;
        if (end == std::string_view::npos)
            return true;
        name.remove_prefix(end + 1);
    }
}

} // namespace lornfd
