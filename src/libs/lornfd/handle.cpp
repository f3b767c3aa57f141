#include "lornfd/handle.h"

#include "lornfd/paths.h"

#include <algorithm>

namespace lornfd {

FileName FileName::parse(std::string_view name) {
    constexpr std::string_view mark = "::";
    const std::size_t end = name.find(mark);
    if (end == std::string_view::npos)
        return {name, {}, false};
    return {name.substr(0, end), name.substr(end + mark.size()), true};
}

std::string FileName::shown() const {
    std::string text = nativePath(path);
    if (inCatalog) {
        text += "::";
        text += entry;
        std::ranges::replace(text.end() - static_cast<std::ptrdiff_t>(entry.size()), text.end(),
                             '/', '\\');
    }
    return text;
}

} // namespace lornfd
