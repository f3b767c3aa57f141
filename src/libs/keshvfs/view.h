// The merged view in memory: directories with their entries, each from the topmost layer that has
// it.
#pragma once

#include "keshvfs/entryindex.h"
#include "lornfd/catalog.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace keshvfs {

/// Masks of what a view shows; none lets everything through.
class Filters {
public:
    void add(std::string_view mask) { m_masks.emplace_back(mask); }
    void clear() noexcept { m_masks.clear(); }
    [[nodiscard]] bool shows(std::string_view path) const noexcept;
    /// True if something below the directory `path` (with its final "\") may be shown.
    [[nodiscard]] bool showsBelow(std::string_view path) const noexcept;

private:
    std::vector<std::string> m_masks;
};

/// A place that entries come from: one directory on disk, or one catalog.
struct Source {
    std::uint32_t layer; ///< of two entries of one name the one of the higher layer wins
    std::string prefix;  ///< of real names: "C:\game\types\" or "C:\game\01.cat::"
    std::shared_ptr<const lornfd::CatalogIndex> catalog; ///< owns the names; none for a directory
};

/// An entry: a file, or a directory if it has a number as one.
struct Entry {
    std::string_view path;   ///< below its source, as spelled there
    std::uint32_t nameStart; ///< where the last part begins in `path`
    Id source;
    Id directory = NoId; ///< its number as a directory

    [[nodiscard]] std::string_view name() const noexcept { return path.substr(nameStart); }
    [[nodiscard]] bool isDirectory() const noexcept { return directory != NoId; }
};

class View {
public:
    static constexpr Id Root = 0;
    /// Parts of the longest path; a small catalog could ask for very many directories else.
    static constexpr std::size_t MaxParts = 32;

    View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    // Building
    Id addSource(Source source);
    /// A copy of a name that lives as long as the view.
    std::string_view keepName(std::string_view name);
    void addFile(Id parent, Entry entry);
    /// The number of the directory `entry` in `parent`, made if it is new.
    Id addDirectory(Id parent, Entry entry);
    /// All entries of a catalog that the filters show; `prefix` stands before "::" in real names.
    /// Gives the number of those left out for having more than MaxParts parts.
    [[nodiscard]] std::size_t addCatalog(const std::shared_ptr<const lornfd::CatalogIndex>& catalog,
                                         std::string_view prefix, std::uint32_t layer,
                                         const Filters& filters);

    // Searching
    /// Entries that a mask matches, in name order; of a plain name without "." the topmost first.
    /// With `listing` a wildcard also gives every directory.
    [[nodiscard]] std::vector<Id> search(std::string_view mask, bool listing) const;
    [[nodiscard]] const Entry& entry(Id id) const { return m_entries[id]; }
    [[nodiscard]] std::string realName(Id id) const;

private:
    struct Directory {
        std::vector<Id> children;
        std::size_t settled = 0; ///< so many children are in the index, each name once
        EntryIndex index;
        bool sorted = true;
    };

    void addEntry(Id parent, const Entry& entry);
    /// Brings the children that came since the last time into the index; of two of one name the
    /// winner stays. Done when a directory is first asked for: most never are.
    void settle(Directory& directory) const;
    [[nodiscard]] bool wins(const Entry& a, const Entry& b) const;
    [[nodiscard]] Id directoryOf(std::string_view path, Id source);
    [[nodiscard]] Id find(Id parent, bool directory, std::string_view name) const;
    [[nodiscard]] Id find(const Directory& parent, std::uint32_t hash, bool directory,
                          std::string_view name) const;
    [[nodiscard]] std::vector<Id> directoriesMatching(std::string_view path) const;
    void findName(Id directory, std::string_view name, std::vector<Id>& found) const;
    void findMask(Id directory, std::string_view mask, bool listing, std::vector<Id>& found) const;
    [[nodiscard]] const std::vector<Id>& sortedChildren(Id directory) const;

    std::vector<Source> m_sources;
    mutable std::deque<Entry> m_entries; ///< settling lets winners take the place of losers
    mutable std::vector<Directory> m_directories; ///< settled and sorted when first asked for
    std::pmr::monotonic_buffer_resource m_names;
};

} // namespace keshvfs
