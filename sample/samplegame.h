// Makes a small, complete, invented game directory, and large data of the same kind for
// measurements.
//
// Everything comes from fixed seeds: the same call makes the same bytes each time. Nothing is
// thrown.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sample {

/// Writes a game directory: catalogs 01.cat and 02.cat, loose files over them, mods\longhaul.cat,
/// and every type of T file in its older versions below versions\. `scale` (1 to 10,000) multiplies
/// wares, ships, stations, jobs and body files. The directory is made if it is missing and must be
/// empty. False with `error` set if it is not, or if a write failed.
[[nodiscard]] bool writeSampleGame(const std::string& directory, int scale, std::string& error);

/// The text of a TWareT file of at least `bytes` bytes with 17 values a record, about 7 bytes a
/// value.
[[nodiscard]] std::string largeWareText(std::int64_t bytes);

/// Makes a catalog of `count` plain entries of about 1 KB, named by largeEntryName.
[[nodiscard]] bool writeLargeCatalog(const std::string& catalog, int count, std::string& error);
[[nodiscard]] std::string largeEntryName(int number);

/// Makes `count` files of about 1 KB below `directory`, 100 to a directory.
[[nodiscard]] bool writeLargeTree(const std::string& directory, int count, std::string& error);

} // namespace sample
