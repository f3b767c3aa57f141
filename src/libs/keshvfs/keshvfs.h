// The merged view over a data root: its catalogs, loose files, and appended catalogs; later wins.
//
// C-style face like lornfd's: 0 is failure, nothing is thrown, KeshVFS_GetLastError tells why.
// Rules of the view and of masks: docs/formats.md, "Merged view".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A found entry. Names are zero-terminated unless they fill their field; longer ones are cut here
/// and whole in KeshVFS_GetVFSName and KeshVFS_GetRealName.
struct VFSFindData {
    std::uint32_t Attributes; ///< bit 1 (value 2): a directory
    char VFSName[255];        ///< as the view shows it; in a listing without the directory searched
    char RealName[255];       ///< plain path or "catalog.cat::entry", for LornFD_OpenFile
    char Reserved[2];
};
static_assert(sizeof(VFSFindData) == 516);

inline constexpr std::uint32_t VFS_ATTRIBUTE_DIRECTORY = 2;

enum KeshVFSError : std::int32_t {
    KESHVFS_OK = 0,
    KESHVFS_E_NOT_FOUND = 1, ///< nothing matches
    KESHVFS_E_CATALOG,       ///< a catalog did not open, or has "::" in its name
    KESHVFS_E_DIRECTORY,     ///< the data root cannot be read, or has "::" in its name
    KESHVFS_E_HANDLE,        ///< not an open handle of the right kind
    KESHVFS_E_MEMORY,
    KESHVFS_E_FAILED, ///< anything else; the reason is the system's
};

/// Adds a mask of entries that the next view shows ("types\*"; "*" also crosses directories here).
/// Without any filter a view shows everything.
std::int32_t KeshVFS_AddVFSFilter(std::string_view Mask);
/// Forgets all filters (for tests and tools; a program sets them once).
void KeshVFS_ClearFilters();
/// Builds the view over a data root and replaces the former one; an empty root gives an empty view.
std::int32_t KeshVFS_CreateVFS(std::string_view DataRoot);
/// Lays a catalog over the view; 0 on failure, the view is then as before.
std::int32_t KeshVFS_AppendCatalog(std::string_view Catalog);
/// Stands for the whole view, wherever a catalog handle can stand here; never closed.
std::int32_t KeshVFS_GetVFSHandle();

/// Finds the first entry for a mask or a name relative to the data root. A last part without "."
/// also matches entries with any extension (a plain name: the topmost layer's).
std::int32_t KeshVFS_FindFirstFile(std::string_view Mask, VFSFindData& Data);
/// The next entry; 0 when there are no more.
std::int32_t KeshVFS_FindNextFile(std::int32_t Handle, VFSFindData& Data);
std::int32_t KeshVFS_FindClose(std::int32_t Handle);

/// Prepares listing a catalog (handle of LornFD_OpenCatalog) or the view; closed by
/// KeshVFS_FindClose.
std::int32_t KeshVFS_CatFindInit(std::int32_t Catalog);
/// Lists; with a wildcard the directories always come too. Gives a find handle of its own, to be
/// closed.
std::int32_t KeshVFS_CatFindFirstFile(std::int32_t Context, std::string_view Mask,
                                      VFSFindData& Data);

/// The names of the entry that a find handle stands on, whole.
std::string KeshVFS_GetVFSName(std::int32_t Handle);
std::string KeshVFS_GetRealName(std::int32_t Handle);

std::int32_t KeshVFS_GetLastError();
std::int32_t KeshVFS_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                    std::int32_t* Needed);

/// What was left out since the last view was begun (broken catalogs, unreadable directories, too
/// deep entries), or why it has nothing: one line each, empty if nothing went wrong.
std::string KeshVFS_Warnings();
