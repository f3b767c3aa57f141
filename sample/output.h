// Writing the sample to disk and into catalogs.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sample {

/// A file of the game: its name in the view ("\" separated), its content, and how it is stored.
struct GameFile {
    std::string name;
    std::string content;
    std::int32_t form;
};

/// Both give false with `error` set.
[[nodiscard]] bool writeLooseFile(const std::filesystem::path& root, const GameFile& file,
                                  std::string& error);
[[nodiscard]] bool writeCatalog(const std::filesystem::path& catalog,
                                const std::vector<GameFile>& files, std::string& error);

/// The text of the file driver's last error.
std::string driverError();

} // namespace sample
