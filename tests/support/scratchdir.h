// Files on the disk for tests.
#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <unistd.h>

namespace support {

/// A directory of its own that goes with the object.
class ScratchDir {
public:
    ScratchDir() {
        std::string pattern = (std::filesystem::temp_directory_path() / "keshtest-XXXXXX").string();
        m_path = ::mkdtemp(pattern.data());
    }
    ~ScratchDir() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    [[nodiscard]] std::string operator/(std::string_view name) const {
        return (m_path / name).string();
    }
    [[nodiscard]] std::string path() const { return m_path.string(); }
    /// The names of all that is in it.
    [[nodiscard]] std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            found.insert(entry.path().filename().string());
        return found;
    }

private:
    std::filesystem::path m_path;
};

inline std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Makes its directories too.
inline void writeFile(const std::string& path, std::string_view content) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

} // namespace support
