#include "keshobjects/lines.h"

#include <algorithm>

namespace keshobjects {

std::ptrdiff_t countLineBreaks(std::string_view text) noexcept {
    std::ptrdiff_t count = std::count(text.begin(), text.end(), '\n');
    for (std::size_t at = text.find('\r'); at != text.npos; at = text.find('\r', at + 1))
        count += at + 1 == text.size() || text[at + 1] != '\n' ? 1 : 0;
    return count;
}

std::string describeLine(std::string_view before) {
    return "line " + std::to_string(countLineBreaks(before) + 1);
}

} // namespace keshobjects
