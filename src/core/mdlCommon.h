// Who the program is, the path forms, and the error texts of the closed libraries.
#pragma once

#include <string>
#include <string_view>

/// "Kesh Editor"
std::string ProgramTitle();
/// major.minor.revision
std::string ProgramVersion();
/// version, blank, title: written into files
std::string ProgramID();

// Path forms: plain, "catalog::entry", "vfs://entry"
bool IsVFSPath(std::string_view Path);          ///< "vfs://" at the start, in exactly this case
std::string StripVFS(std::string_view Path);    ///< behind "vfs://"; empty for any other path
bool IsCatalogPath(std::string_view Path);      ///< "::" anywhere
std::string CatalogPart(std::string_view Path); ///< before the first "::"; all if there is none
std::string EntryPart(std::string_view Path);   ///< behind the first "::"; empty if there is none
/// The entry, and Catalog gets the catalog part; a path without "::" comes back whole, Catalog as
/// it was.
std::string SplitCatalogPath(std::string_view Path, std::string& Catalog);
/// Every "/" as "\", but for those of a leading "vfs://".
std::string WithBackslashes(std::string_view Path);

// Texts of the last errors
std::string LornFDErrorText();
std::string KeshVFSErrorText();
std::string KeshObjectsErrorText();
