// Between the program's path form ("\" throughout) and the disk's.
#pragma once

#include <string>
#include <string_view>

namespace lornfd {

/// The native form of a plain path; in a catalog path only the part before "::" changes.
std::string nativePath(std::string_view path);

/// The program's form of a native path: every "/" as "\".
std::string programPath(std::string_view path);

/// nativePath of an existing file or directory found without regard to case, component by
/// component; an exact match wins. Where the last components do not exist they stay as given.
std::string resolvePath(std::string_view path);

/// resolvePath of a plain path with the links at its end followed, also where they lead to no file.
std::string realPath(std::string_view path);

/// ASCII folded to lower case; other bytes stay. "_" (0x5F) thus sorts before letters.
constexpr char foldCase(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
bool equalNoCase(std::string_view a, std::string_view b) noexcept;
/// <0, 0, >0 by folded bytes (unsigned), then by length.
int compareNoCase(std::string_view a, std::string_view b) noexcept;
std::string foldCase(std::string_view text);

} // namespace lornfd
