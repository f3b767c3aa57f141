// Where a path enters the program, and how the view is searched.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class QString;

/// A path from the platform (dialog, drop, command line, settings) in the program's form.
[[nodiscard]] std::string FromPlatform(std::string_view Path);
/// A path as messages and captions show it: native, catalog and "vfs://" forms recognised.
[[nodiscard]] std::string ShownPath(std::string_view Path);
[[nodiscard]] QString ShownText(std::string_view Path);

/// The real place of a "vfs://" name or of a name relative to the view, whole; none if it is
/// nowhere. "*" and "?" stand in no name, so that a mask never gives some other file.
[[nodiscard]] std::optional<std::string> FindInVFS(std::string_view NameInView);
/// Plain and catalog paths as they are, "vfs://" paths found in the view; none if nowhere.
[[nodiscard]] std::optional<std::string> RealPath(std::string_view Path);
/// Whether two plain or catalog paths lead to one file, which is there.
[[nodiscard]] bool SamePlace(std::string_view A, std::string_view B);

/// "Catalog::Entry"; in the merged view, the catalog "vfs://", "vfs://Entry".
[[nodiscard]] std::string BuildCatalogPath(std::string_view Entry, std::string_view Catalog);
/// What a typed name means in a directory of a catalog: "\" and "/" separate and lead at the start
/// to the top, "." and ".." are followed, the latter at most up to the top. Empty for the top.
[[nodiscard]] std::string EntryFromTyped(std::string_view Directory, std::string_view Typed);

/// Walks the entries that a mask matches in the view, with whole names; closes its handle.
class VfsSearch {
public:
    explicit VfsSearch(std::string_view Mask);
    VfsSearch(const VfsSearch&) = delete;
    VfsSearch& operator=(const VfsSearch&) = delete;
    ~VfsSearch();

    [[nodiscard]] bool Found() const noexcept { return m_found; } ///< standing on an entry
    void Next();
    [[nodiscard]] std::string Name() const;     ///< without the directory searched
    [[nodiscard]] std::string RealName() const; ///< for LornFD_OpenFile
    [[nodiscard]] bool IsDirectory() const noexcept { return m_directory; }

private:
    std::int32_t m_find = 0;
    bool m_found = false;
    bool m_directory = false;
};
