// File driver: plain files, packed files and files inside catalogs behind one kind of handle.
//
// Names come in two forms: a plain path ("C:\mods\tships.txt") and a catalog path
// ("C:\game\01.cat::types\TShips.pck"). "\" and "/" both separate, and names are found without
// regard to case on any disk. Handles are positive 32-bit numbers; 0 is failure, and
// LornFD_GetLastError tells why. Nothing is thrown. File formats: docs/formats.md, "Catalogs" and
// "Packed files".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Access
inline constexpr std::int32_t LORNFD_READ = 0;
inline constexpr std::int32_t LORNFD_WRITE = 1;
// Create
inline constexpr std::int32_t LORNFD_OPEN_EXISTING = 0;
inline constexpr std::int32_t LORNFD_CREATE = 1;
// FileType
inline constexpr std::int32_t LORNFD_AS_IS =
    0; ///< recognised when read; when written the target's own
inline constexpr std::int32_t LORNFD_PLAIN = 1;
inline constexpr std::int32_t LORNFD_GZIP = 2; ///< the older packed form
inline constexpr std::int32_t LORNFD_ZSTD = 3; ///< the newer packed form

/// Largest unpacked size that the driver accepts, in bytes: a small file that claims more is
/// refused.
inline constexpr std::int64_t LORNFD_MAX_UNPACKED = std::int64_t{4} << 30;

enum LornFDError : std::int32_t {
    LORNFD_OK = 0,
    LORNFD_E_NOT_FOUND = 1, ///< no such file or entry
    LORNFD_E_OPEN,          ///< the system refused to open
    LORNFD_E_READ,          ///< reading failed or ended early
    LORNFD_E_WRITE,         ///< writing, flushing or replacing failed; the target is as it was
    LORNFD_E_LOCKED,        ///< another program is writing the target
    LORNFD_E_NAME,     ///< a name that must never reach the disk ("..", drive, control character)
    LORNFD_E_CATALOG,  ///< a catalog's index is broken; the place tells the line
    LORNFD_E_PACKED,   ///< packed data is cut, damaged or fails its checksum
    LORNFD_E_TOO_BIG,  ///< unpacks to more than LORNFD_MAX_UNPACKED
    LORNFD_E_CHECKSUM, ///< an entry's stored bytes do not match the catalog's checksum
    LORNFD_E_HANDLE,   ///< not an open handle of the right kind
    LORNFD_E_ARGUMENT, ///< unknown access, create or file type
};

/// Opens for reading (the file as it is, packed data unpacked on first use) or for writing (a
/// complete new content is collected; the target is replaced by LornFD_CloseFile). With
/// LORNFD_WRITE and LORNFD_OPEN_EXISTING the target must exist; LORNFD_CREATE makes it.
std::int32_t LornFD_OpenFile(std::string_view Name, std::int32_t Access, std::int32_t Create,
                             std::int32_t FileType);
/// As LornFD_OpenFile for writing, stores in the form `FileType`, and makes the target where there
/// is none whatever `Create` says.
std::int32_t LornFD_OpenFileConvert(std::string_view Name, std::int32_t Access, std::int32_t Create,
                                    std::int32_t FileType);
/// Closes. A handle opened for writing replaces its target now, whole or not at all; 0 where that
/// failed.
std::int32_t LornFD_CloseFile(std::int32_t File);
/// Closes without touching the target.
std::int32_t LornFD_AbandonFile(std::int32_t File);

/// Copies up to `Count` unpacked bytes from the read position. Gives the bytes read, -1 on failure.
std::int64_t LornFD_ReadFile(std::int32_t File, void* Buffer, std::int64_t Count);
/// Appends at the write position. Gives 1 if all was taken.
std::int32_t LornFD_WriteFile(std::int32_t File, const void* Buffer, std::int64_t Count);
/// Size of the unpacked data in bytes, -1 on failure. Packed data is believed until it is read, if
/// its length makes the size possible.
std::int64_t LornFD_FileSize(std::int32_t File);
/// The whole unpacked content without a copy of a plain file (mapped); valid until the handle
/// closes. A null data pointer on failure; an empty file gives a non-null one of size 0.
std::string_view LornFD_ViewFile(std::int32_t File);
/// Size and CRC-32 of the unpacked content: of all that a handle opened for reading has, of what
/// was written so far to one opened for writing. Gives 1 on success.
std::int32_t LornFD_Checksum(std::int32_t File, std::int64_t* Size, std::uint32_t* Checksum);
/// The CRC-32 of bytes in memory.
std::uint32_t LornFD_ChecksumOf(std::string_view Content);
/// Fixes the length of what is being written at the write position.
std::int32_t LornFD_SetEndOfFile(std::int32_t File);
/// The form in which a file opened for reading is stored: LORNFD_PLAIN, _GZIP or _ZSTD; 0 on
/// failure.
std::int32_t LornFD_FileType(std::int32_t File);
/// The name under which a handle was opened, in native form, for messages.
std::string LornFD_FileName(std::int32_t File);

/// Non-zero if the file, or the entry in its catalog, exists.
std::int32_t LornFD_FileExists(std::string_view Name);
/// Removes a file, or takes an entry out of its catalog.
std::int32_t LornFD_DeleteFile(std::string_view Name);

/// Opens a catalog for listing; with LORNFD_CREATE makes an empty one where there is none.
std::int32_t LornFD_OpenCatalog(std::string_view Name, std::int32_t Create);
std::int32_t LornFD_CloseCatalog(std::int32_t Catalog);

/// Code of the last operation of this thread, 0 if it succeeded.
std::int32_t LornFD_GetLastError();
/// The text of a code: see lornfd::LastError::translate.
std::int32_t LornFD_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                   std::int32_t* Needed);
