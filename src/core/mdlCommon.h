// Who the program is, the path forms, and the error texts of the closed libraries.
#pragma once

#include <string>
#include <string_view>

/// "Kesh Editor"
[[nodiscard]] std::string ProgramTitle();
/// major.minor.revision
[[nodiscard]] std::string ProgramVersion();
/// version, blank, title: written into files
[[nodiscard]] std::string ProgramID();

// Path forms: plain, "catalog::entry", "vfs://entry"
/// "vfs://" at the start, in exactly this case.
[[nodiscard]] bool IsVFSPath(std::string_view Path);
/// Behind "vfs://"; empty for any other path.
[[nodiscard]] std::string StripVFS(std::string_view Path);
/// "::" anywhere.
[[nodiscard]] bool IsCatalogPath(std::string_view Path);
/// Before the first "::"; all if there is none.
[[nodiscard]] std::string CatalogPart(std::string_view Path);
/// Behind the first "::"; empty if there is none.
[[nodiscard]] std::string EntryPart(std::string_view Path);
/// The entry, and Catalog gets the catalog part; a path without "::" comes back whole, Catalog as
/// it was.
std::string SplitCatalogPath(std::string_view Path, std::string& Catalog);
/// The name of a file under any form of path, without its directories.
[[nodiscard]] std::string NameOfFile(std::string_view Path);
/// Every "/" as "\", but for those of a leading "vfs://".
[[nodiscard]] std::string WithBackslashes(std::string_view Path);

// Texts of the last errors
[[nodiscard]] std::string LornFDErrorText();
[[nodiscard]] std::string KeshVFSErrorText();
[[nodiscard]] std::string KeshErrorText();
