#include "files/CatalogListing.h"

#include "core/KeshError.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace {

using Row = CatalogListing::Row;

/// Hands each entry to `take` until that gives true.
template <class Take>
void forEach(std::int32_t context, const std::string& mask, Take take) {
    VFSFindData data{};
    const std::int32_t find = KeshVFS_CatFindFirstFile(context, mask, data);
    if (find == 0)
        return;
    const auto closing = qScopeGuard([find] { KeshVFS_FindClose(find); });
    do
        if (take(Row{KeshVFS_GetVFSName(find), (data.Attributes & VFS_ATTRIBUTE_DIRECTORY) != 0}))
            return;
    while (KeshVFS_FindNextFile(find, data) != 0);
}

bool isMask(const std::string& name) {
    return name.find_first_of("*?") != name.npos;
}

bool comesBefore(const Row& a, const Row& b) {
    if (a.IsDirectory != b.IsDirectory)
        return a.IsDirectory;
    return lornfd::compareNoCase(a.Name, b.Name) < 0;
}

bool isSame(const Row& a, const Row& b) {
    return a.IsDirectory == b.IsDirectory && lornfd::equalNoCase(a.Name, b.Name);
}

} // namespace

bool CatalogListing::Open(const std::string& Catalog) {
    Close();
    if (Catalog != "vfs://") {
        m_catalog = LornFD_OpenCatalog(Catalog, LORNFD_OPEN_EXISTING);
        if (m_catalog == 0)
            return false;
    }
    m_context = KeshVFS_CatFindInit(m_catalog != 0 ? m_catalog : KeshVFS_GetVFSHandle());
    if (m_context != 0)
        return true;
    const std::string reason = KeshVFSErrorText();
    Close();
    throw KeshError(errnum::Forbidden, "frmCATDialog", reason);
}

void CatalogListing::Close() {
    if (m_context != 0)
        KeshVFS_FindClose(std::exchange(m_context, 0));
    if (m_catalog != 0)
        LornFD_CloseCatalog(std::exchange(m_catalog, 0));
}

std::vector<Row> CatalogListing::List(const std::string& Directory,
                                      const std::vector<std::string>& Masks) const {
    std::vector<Row> rows;
    for (const std::string& mask : Masks)
        forEach(m_context, JoinPath({Directory, mask}), [&](Row row) {
            rows.push_back(std::move(row));
            return false;
        });
    std::stable_partition(rows.begin(), rows.end(), [](const Row& row) { return row.IsDirectory; });
    if (!std::is_sorted(rows.begin(), rows.end(), comesBefore)) // of one mask they are
        std::sort(rows.begin(), rows.end(), comesBefore);
    rows.erase(std::unique(rows.begin(), rows.end(), isSame), rows.end());
    return rows;
}

std::optional<std::string> CatalogListing::FindFile(const std::string& Entry) const {
    std::optional<std::string> found;
    if (isMask(Entry))
        return found;
    forEach(m_context, Entry, [&](const Row& row) {
        if (!row.IsDirectory)
            found = JoinPath({ParentDir(Entry), row.Name});
        return !row.IsDirectory;
    });
    return found;
}

std::optional<std::string> CatalogListing::FindDirectory(const std::string& Path) const {
    std::optional<std::string> found;
    const std::string name = BaseName(Path, false);
    if (isMask(Path))
        return found;
    forEach(m_context, Path, [&](const Row& row) { // "types" also finds a directory "types.old"
        const bool fits = row.IsDirectory && lornfd::equalNoCase(row.Name, name);
        if (fits)
            found = JoinPath({ParentDir(Path), row.Name});
        return fits;
    });
    return found;
}

std::string CatalogListing::ExistingDirectory(std::string_view Path) const {
    std::string directory;
    while (!Path.empty()) {
        const std::string_view part = Path.substr(0, Path.find('\\'));
        const auto next = FindDirectory(JoinPath({directory, std::string(part)}));
        if (!next)
            break;
        directory = *next;
        Path.remove_prefix(std::min(part.size() + 1, Path.size()));
    }
    return directory;
}
