#include "files/mdlPaths.h"

#include "core/mdlCommon.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/paths.h"

std::string FromPlatform(std::string_view Path) {
    return WithBackslashes(Path);
}

std::string ShownPath(std::string_view Path) {
    return IsVFSPath(Path) ? std::string(Path) : lornfd::nativePath(Path);
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
