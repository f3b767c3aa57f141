#include "keshvfs/view.h"

#include "keshvfs/wildcard.h"
#include "lornfd/foldedsort.h"

#include <algorithm>
#include <random>
#include <tuple>

namespace keshvfs {
namespace {

constexpr std::string_view Separators = "\\/";

/// Cuts the first part off a path; empty parts are skipped.
std::string_view takePart(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(Separators), path.size()));
    const std::string_view part = path.substr(0, path.find_first_of(Separators));
    path.remove_prefix(part.size());
    return part;
}

std::string_view withoutExtension(std::string_view name) {
    return name.substr(0, name.rfind('.'));
}

bool hasExtension(std::string_view name) {
    return name.find('.') != std::string_view::npos;
}

std::uint32_t hashOf(bool directory, std::string_view name) {
    static const std::uint64_t seed = [] {
        std::random_device random;
        return std::uint64_t{random()} << 32U | random();
    }();
    return hashName(name, directory, seed);
}

bool isTooDeep(std::string_view directory) {
    const auto separators = std::ranges::count_if(
        directory, [](char c) { return Separators.find(c) != std::string_view::npos; });
    return static_cast<std::size_t>(separators) >= View::MaxParts;
}

} // namespace

bool Filters::shows(std::string_view path) const noexcept {
    return m_masks.empty() ||
           std::ranges::any_of(m_masks, [&](const auto& mask) { return matchesMask(path, mask); });
}

bool Filters::showsBelow(std::string_view path) const noexcept {
    return m_masks.empty() || std::ranges::any_of(m_masks, [&](const auto& mask) {
               return canMatchBelow(path, mask);
           });
}

View::View() : m_directories(1) {}

Id View::addSource(Source source) {
    m_sources.push_back(std::move(source));
    return static_cast<Id>(m_sources.size() - 1);
}

std::string_view View::keepName(std::string_view name) {
    auto* kept = static_cast<char*>(m_names.allocate(name.size() + 1, 1));
    std::ranges::copy(name, kept);
    return {kept, name.size()};
}

bool View::wins(const Entry& a, const Entry& b) const {
    // Within one layer names that differ in case alone may stand in any order on the disk: lower
    // case wins.
    return std::tuple(m_sources[a.source].layer, a.name()) >
           std::tuple(m_sources[b.source].layer, b.name());
}

void View::addEntry(Id parent, const Entry& entry) {
    m_directories[parent].children.push_back(static_cast<Id>(m_entries.size()));
    m_entries.push_back(entry);
}

void View::addFile(Id parent, Entry entry) {
    entry.directory = NoId;
    addEntry(parent, entry);
}

Id View::addDirectory(Id parent, Entry entry) {
    const Id known = find(parent, true, entry.name());
    entry.directory =
        known == NoId ? static_cast<Id>(m_directories.size()) : m_entries[known].directory;
    addEntry(parent, entry);
    if (known == NoId)
        m_directories.emplace_back();
    return entry.directory;
}

void View::settle(Directory& directory) const {
    auto& children = directory.children;
    if (directory.settled == children.size())
        return;
    directory.index.reserve(children.size());
    std::size_t kept = directory.settled;
    for (std::size_t i = kept; i < children.size(); ++i) {
        const Id id = children[i];
        const Entry& entry = m_entries[id];
        const std::uint32_t hash = hashOf(entry.isDirectory(), entry.name());
        const Id known = find(directory, hash, entry.isDirectory(), entry.name());
        if (known == NoId) {
            directory.index.insert(hash, id);
            children[kept++] = id;
        } else if (wins(entry, m_entries[known])) {
            m_entries[known] = entry;
        }
    }
    children.resize(kept);
    directory.settled = kept;
    directory.sorted = false;
}

std::size_t View::addCatalog(const std::shared_ptr<const lornfd::CatalogIndex>& catalog,
                             std::string_view prefix, std::uint32_t layer, const Filters& filters) {
    const Id source = addSource({layer, std::string(prefix) + "::", catalog});
    std::string_view lastPath;
    Id lastDirectory = Root;
    std::size_t tooDeep = 0;
    for (std::size_t i = 0; i < catalog->size(); ++i) {
        const std::string_view path = catalog->entry(i).name;
        if (!filters.shows(path))
            continue;
        const std::size_t nameStart = path.find_last_of(Separators) + 1;
        if (const auto directory = path.substr(0, nameStart); directory != lastPath) {
            lastDirectory = isTooDeep(directory) ? NoId : directoryOf(directory, source);
            lastPath = directory;
        }
        if (lastDirectory == NoId)
            ++tooDeep;
        else
            addFile(lastDirectory, {path, static_cast<std::uint32_t>(nameStart), source});
    }
    return tooDeep;
}

Id View::directoryOf(std::string_view path, Id source) {
    Id directory = Root;
    for (std::string_view rest = path, part = takePart(rest); !part.empty();
         part = takePart(rest)) {
        const auto start = static_cast<std::uint32_t>(part.data() - path.data());
        directory = addDirectory(directory, {path.substr(0, start + part.size()), start, source});
    }
    return directory;
}

Id View::find(const Directory& parent, std::uint32_t hash, bool directory,
              std::string_view name) const {
    return parent.index.find(hash, [&](Id id) {
        const Entry& entry = m_entries[id];
        return entry.isDirectory() == directory && sameName(entry.name(), name);
    });
}

Id View::find(Id parent, bool directory, std::string_view name) const {
    settle(m_directories[parent]);
    return find(m_directories[parent], hashOf(directory, name), directory, name);
}

std::vector<Id> View::search(std::string_view mask, bool listing) const {
    mask = mask.substr(0, mask.find_last_not_of(Separators) + 1);
    const std::size_t lastStart = mask.find_last_of(Separators) + 1;
    const std::string_view last = mask.substr(lastStart);
    std::vector<Id> found;
    if (last.empty())
        return found;
    for (const Id directory : directoriesMatching(mask.substr(0, lastStart))) {
        if (hasWildcard(last))
            findMask(directory, last, listing, found);
        else
            findName(directory, last, found);
    }
    return found;
}

std::vector<Id> View::directoriesMatching(std::string_view path) const {
    std::vector<Id> level{Root};
    for (std::string_view part = takePart(path); !part.empty(); part = takePart(path)) {
        std::vector<Id> found;
        for (const Id parent : level) {
            if (!hasWildcard(part)) {
                if (const Id id = find(parent, true, part); id != NoId)
                    found.push_back(m_entries[id].directory);
                continue;
            }
            for (const Id id : sortedChildren(parent))
                if (m_entries[id].isDirectory() && matchesMask(m_entries[id].name(), part))
                    found.push_back(m_entries[id].directory);
        }
        level = std::move(found);
    }
    return level;
}

void View::findName(Id directory, std::string_view name, std::vector<Id>& found) const {
    const auto first = static_cast<std::ptrdiff_t>(found.size());
    for (const bool isDirectory : {false, true})
        if (const Id id = find(directory, isDirectory, name); id != NoId)
            found.push_back(id);
    if (hasExtension(name))
        return;
    const std::string start = std::string(name) + '.';
    const auto& children = sortedChildren(directory);
    const auto nameOf = [this](Id id) { return m_entries[id].name(); };
    for (auto at = std::ranges::lower_bound(children, start, nameLess, nameOf);
         at != children.end() && nameStartsWith(nameOf(*at), start); ++at)
        if (withoutExtension(nameOf(*at)).size() == name.size())
            found.push_back(*at);
    std::ranges::stable_sort(found.begin() + first, found.end(), std::greater(), [this](Id id) {
        return std::pair(!m_entries[id].isDirectory(), m_sources[m_entries[id].source].layer);
    });
}

void View::findMask(Id directory, std::string_view mask, bool listing,
                    std::vector<Id>& found) const {
    const bool anyExtension = !hasExtension(mask);
    for (const Id id : sortedChildren(directory)) {
        const Entry& entry = m_entries[id];
        if (matchesMask(entry.name(), mask) || (listing && entry.isDirectory()) ||
            (anyExtension && matchesMask(withoutExtension(entry.name()), mask)))
            found.push_back(id);
    }
}

const std::vector<Id>& View::sortedChildren(Id directory) const {
    Directory& sorted = m_directories[directory];
    settle(sorted);
    if (!sorted.sorted)
        lornfd::sortNoCase(
            sorted.children, [this](Id id) { return m_entries[id].name(); },
            [this](Id a, Id b) { return m_entries[a].isDirectory() < m_entries[b].isDirectory(); });
    sorted.sorted = true;
    return sorted.children;
}

std::string View::realName(Id id) const {
    const Entry& entry = m_entries[id];
    return m_sources[entry.source].prefix + std::string(entry.path);
}

} // namespace keshvfs
