#include "keshvfs/loosefiles.h"

#include "keshvfs/wildcard.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <deque>
#include <filesystem>

namespace fs = std::filesystem;

namespace keshvfs {
namespace {

/// Links that one walk follows at most, so that links to each other cannot multiply without end.
constexpr int MaxLinks = 1000;

struct Pending {
    fs::path native;
    std::string path; ///< in the view, with a final "\"; empty for the root
    std::string real; ///< prefix of real names
    Id directory;
    std::vector<fs::path> links; ///< the directories of the links that led here
    std::size_t parts = 0;       ///< of `path`
};

bool contains(const fs::path& outer, const fs::path& inner) {
    return std::ranges::mismatch(outer, inner).in1 == outer.end();
}

bool isLink(const fs::directory_entry& entry) {
    std::error_code ignored;
    return entry.is_symlink(ignored);
}

class Walk {
public:
    Walk(View& view, std::uint32_t layer, const Filters& filters)
        : m_view(view), m_layer(layer), m_filters(filters) {}

    LooseFiles run(const Pending& root);

private:
    bool readDirectory(const Pending& here);
    void visit(const fs::directory_entry& entry, const Pending& here);
    void visitDirectory(const fs::directory_entry& entry, const Pending& here, const Entry& found);
    void visitFile(const Pending& here, const Entry& found);
    bool followLink(const fs::directory_entry& entry, Pending& next);
    void noteCatalog(std::string_view name);
    void warn(const fs::path& file, std::string_view reason);

    View& m_view;
    std::uint32_t m_layer;
    const Filters& m_filters;
    std::deque<Pending> m_pending; ///< first in, first out: near directories use up links first
    std::string m_path;            ///< of the file at hand, kept to save allocations
    Id m_source = NoId;
    int m_links = 0;
    LooseFiles m_result;
};

LooseFiles Walk::run(const Pending& root) {
    m_result.rootRead = readDirectory(root);
    while (!m_pending.empty()) {
        const Pending next = std::move(m_pending.front());
        m_pending.pop_front();
        readDirectory(next);
    }
    return std::move(m_result);
}

bool Walk::readDirectory(const Pending& here) {
    m_source = m_view.addSource({m_layer, here.real, nullptr});
    std::error_code error;
    for (fs::directory_iterator at(here.native, error), end; !error && at != end;
         at.increment(error))
        visit(*at, here);
    if (error)
        warn(here.native, error.message());
    return !error;
}

void Walk::visit(const fs::directory_entry& entry, const Pending& here) {
    const std::string whole = entry.path().string();
    const std::string_view name =
        std::string_view(whole).substr(whole.find_last_of(fs::path::preferred_separator) + 1);
    if (name.find('\\') != std::string_view::npos || name.find("::") != std::string_view::npos) {
        warn(entry.path(), "the name holds \"\\\" or \"::\"");
        return;
    }
    std::error_code ignored;
    const Entry found{name, 0, m_source};
    if (entry.is_directory(ignored))
        visitDirectory(entry, here, found);
    else if (entry.is_regular_file(ignored))
        visitFile(here, found);
}

void Walk::visitFile(const Pending& here, const Entry& found) {
    if (here.path.empty() && nameEndsWith(found.path, ".cat"))
        noteCatalog(found.path);
    m_path.assign(here.path).append(found.path);
    if (m_filters.shows(m_path))
        m_view.addFile(here.directory, {m_view.keepName(found.path), 0, m_source});
}

void Walk::visitDirectory(const fs::directory_entry& entry, const Pending& here,
                          const Entry& found) {
    const std::string below = std::string(found.path) + '\\';
    Pending next{entry.path(), here.path + below, here.real + below,
                 NoId,         here.links,        here.parts + 1};
    if (!m_filters.showsBelow(next.path) || (isLink(entry) && !followLink(entry, next)))
        return;
    if (here.parts + 1 == View::MaxParts) {
        warn(entry.path(), "it lies too deep");
        return;
    }
    next.directory =
        m_view.addDirectory(here.directory, {m_view.keepName(found.path), 0, m_source});
    m_pending.push_back(std::move(next));
}

bool Walk::followLink(const fs::directory_entry& entry, Pending& next) {
    std::error_code error;
    const fs::path target = fs::canonical(entry.path(), error);
    next.links.push_back(fs::canonical(entry.path().parent_path(), error));
    if (target.empty() || error ||
        std::ranges::any_of(next.links, [&](const auto& link) { return contains(target, link); }))
        return false;
    if (m_links++ == MaxLinks)
        warn(entry.path(), "too many links to directories; the rest is left out");
    return m_links <= MaxLinks;
}

void Walk::noteCatalog(std::string_view name) {
    // Of "01.cat" and "01.CAT" the lower case counts, as it does in the view.
    std::string& noted = m_result.catalogs[lornfd::foldCase(name)];
    noted = std::max(noted, std::string(name));
}

void Walk::warn(const fs::path& file, std::string_view reason) {
    m_result.warnings.append(file.string()).append(": ").append(reason).append("\n");
}

} // namespace

LooseFiles addLooseFiles(View& view, std::string_view root, std::uint32_t layer,
                         const Filters& filters) {
    const std::string real = lornfd::programPath(root.substr(0, root.find_last_not_of("\\/") + 1));
    return Walk(view, layer, filters)
        .run({fs::path(lornfd::resolvePath(root)), {}, real + '\\', View::Root, {}});
}

} // namespace keshvfs
