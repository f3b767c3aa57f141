#include "files/mdlPaths.h"

#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/paths.h"

#include <QString>

#include <algorithm>
#include <filesystem>

std::string FromPlatform(std::string_view Path) {
    return WithBackslashes(Path);
}

std::string ShownPath(std::string_view Path) {
    return IsVFSPath(Path) ? std::string(Path) : lornfd::nativePath(Path);
}

QString ShownText(std::string_view Path) {
    return QString::fromStdString(ShownPath(Path));
}

std::optional<std::string> FindInVFS(std::string_view NameInView) {
    if (NameInView.find_first_of("*?") != NameInView.npos)
        return {};
    VfsSearch search(IsVFSPath(NameInView) ? StripVFS(NameInView) : std::string(NameInView));
    while (search.Found() && search.IsDirectory())
        search.Next();
    return search.Found() ? std::optional(search.RealName()) : std::nullopt;
}

std::optional<std::string> RealPath(std::string_view Path) {
    return IsVFSPath(Path) ? FindInVFS(Path) : std::optional<std::string>(Path);
}

bool SamePlace(std::string_view A, std::string_view B) {
    std::error_code missing;
    return lornfd::equalNoCase(EntryPart(A), EntryPart(B)) &&
           std::filesystem::equivalent(lornfd::resolvePath(CatalogPart(A)),
                                       lornfd::resolvePath(CatalogPart(B)), missing);
}

std::string BuildCatalogPath(std::string_view Entry, std::string_view Catalog) {
    return std::string(Catalog).append(IsVFSPath(Catalog) ? "" : "::").append(Entry);
}

std::string EntryFromTyped(std::string_view Directory, std::string_view Typed) {
    std::string rest = WithBackslashes(Typed);
    std::string entry(rest.starts_with('\\') ? std::string_view() : Directory);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\\'), rest.size());
        const std::string part = rest.substr(0, end);
        rest.erase(0, end + 1);
        if (part == "..")
            entry = ParentDir(entry);
        else if (part != ".")
            AppendLine(entry, part, "\\");
    }
    return entry;
}

namespace {
bool isDirectory(const VFSFindData& data) {
    return (data.Attributes & VFS_ATTRIBUTE_DIRECTORY) != 0;
}
} // namespace

VfsSearch::VfsSearch(std::string_view Mask) {
    VFSFindData data{};
    m_find = KeshVFS_FindFirstFile(Mask, data);
    m_found = m_find != 0;
    m_directory = m_found && isDirectory(data);
}

VfsSearch::~VfsSearch() {
    if (m_find != 0)
        KeshVFS_FindClose(m_find);
}

void VfsSearch::Next() {
    VFSFindData data{};
    m_found = m_found && KeshVFS_FindNextFile(m_find, data) != 0;
    m_directory = m_found && isDirectory(data);
}

std::string VfsSearch::Name() const {
    return m_found ? KeshVFS_GetVFSName(m_find) : std::string();
}

std::string VfsSearch::RealName() const {
    return m_found ? KeshVFS_GetRealName(m_find) : std::string();
}
