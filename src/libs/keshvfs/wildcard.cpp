#include "keshvfs/wildcard.h"

#include <algorithm>

namespace keshvfs {
namespace {

constexpr bool sameCharacter(char a, char b) noexcept {
    return foldName(a) == foldName(b);
}

constexpr bool characterLess(char a, char b) noexcept {
    return static_cast<unsigned char>(foldName(a)) < static_cast<unsigned char>(foldName(b));
}

constexpr bool fits(char mask, char c) noexcept {
    return mask == '?' || sameCharacter(mask, c);
}

} // namespace

bool sameName(std::string_view a, std::string_view b) noexcept {
    return std::ranges::equal(a, b, sameCharacter);
}

bool nameLess(std::string_view a, std::string_view b) noexcept {
    return std::ranges::lexicographical_compare(a, b, characterLess);
}

bool nameStartsWith(std::string_view name, std::string_view start) noexcept {
    return sameName(name.substr(0, start.size()), start);
}

bool nameEndsWith(std::string_view name, std::string_view end) noexcept {
    return name.size() >= end.size() && sameName(name.substr(name.size() - end.size()), end);
}

bool hasWildcard(std::string_view mask) noexcept {
    return mask.find_first_of("*?") != std::string_view::npos;
}

bool matchesMask(std::string_view name, std::string_view mask) noexcept {
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t lastStar = std::string_view::npos;
    std::size_t retryFrom = 0;
    while (n < name.size()) {
        if (m < mask.size() && mask[m] == '*') {
            lastStar = m++;
            retryFrom = n;
        } else if (m < mask.size() && fits(mask[m], name[n])) {
            ++m;
            ++n;
        } else if (lastStar != std::string_view::npos) {
            m = lastStar + 1;
            n = ++retryFrom;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of('*', m) == std::string_view::npos;
}

bool canMatchBelow(std::string_view start, std::string_view mask) noexcept {
    const std::string_view fixed = mask.substr(0, mask.find('*'));
    const std::size_t common = std::min(fixed.size(), start.size());
    const bool fitsSoFar = std::equal(
        fixed.begin(), fixed.begin() + static_cast<std::ptrdiff_t>(common), start.begin(), fits);
    return fitsSoFar && (fixed.size() < mask.size() || fixed.size() > start.size());
}

} // namespace keshvfs
