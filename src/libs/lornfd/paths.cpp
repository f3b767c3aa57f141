#include "lornfd/paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace lornfd {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view entryMark = "::";

/// The entry of a directory that equals `name` without regard to case; `name` itself if there is
/// none.
fs::path findInDirectory(const fs::path& directory, const fs::path& name) {
    std::error_code error;
    const std::string wanted = name.string();
    std::string found;
    for (fs::directory_iterator entry(directory.empty() ? "." : directory, error), end;
         !error && entry != end; entry.increment(error)) {
        std::string candidate = entry->path().filename().string();
        // Of several spellings the first in byte order wins, so that the choice does not depend on
        // the order in which the disk lists them.
        if (equalNoCase(candidate, wanted) && (found.empty() || candidate < found))
            found = std::move(candidate);
    }
    return found.empty() ? name : fs::path(found);
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

fs::path resolve(const fs::path& native) {
    if (isThere(native))
        return native;
    fs::path resolved;
    bool missing = false;
    for (const fs::path& component : native) {
        const fs::path exact = resolved / component;
        if (missing || isThere(exact)) {
            resolved = exact;
            continue;
        }
        resolved /= findInDirectory(resolved, component);
        missing = !isThere(resolved);
    }
    return resolved;
}

} // namespace

std::string nativePath(std::string_view path) {
    std::string native(path);
    const auto entry = native.begin() +
                       static_cast<std::ptrdiff_t>(std::min(native.find(entryMark), native.size()));
    std::replace_if(
        native.begin(), entry, [](char c) { return c == '\\' || c == '/'; },
        static_cast<char>(fs::path::preferred_separator));
    return native;
}

std::string programPath(std::string_view path) {
    std::string result(path);
    std::ranges::replace(result, '/', '\\');
    return result;
}

std::string resolvePath(std::string_view path) {
    const std::string native = nativePath(path);
    const std::size_t entry = std::min(native.find(entryMark), native.size());
    return resolve(native.substr(0, entry)).string() + native.substr(entry);
}

std::string realPath(std::string_view path) {
    constexpr int mostLinks = 40;
    fs::path real = resolvePath(path);
    std::error_code error;
    for (int links = 0; links < mostLinks && fs::is_symlink(real, error); ++links)
        real = real.parent_path() / fs::read_symlink(real, error);
    return real.string();
}

bool equalNoCase(std::string_view a, std::string_view b) noexcept {
    return a.size() == b.size() && (a == b || compareNoCase(a, b) == 0);
}

int compareNoCase(std::string_view a, std::string_view b) noexcept {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto left = static_cast<unsigned char>(foldCase(a[i]));
        const auto right = static_cast<unsigned char>(foldCase(b[i]));
        if (left != right)
            return left < right ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

std::string foldCase(std::string_view text) {
    std::string folded(text);
    for (char& c : folded)
        c = foldCase(c);
    return folded;
}

} // namespace lornfd
