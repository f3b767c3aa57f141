// T texts and files for tests.
#pragma once

#include "lornfd/lornfd.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
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

    [[nodiscard]] std::string operator/(const std::string& name) const {
        return (m_path / name).string();
    }
    [[nodiscard]] std::string path() const { return m_path.string(); }

private:
    std::filesystem::path m_path;
};

inline std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void writeFile(const std::string& path, const std::string& content) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

/// Parses a text as if it were a file of that type; the result is the parser's.
inline bool load(clsTxtParser& parser, const std::string& text, std::int32_t type) {
    Kesh_TXTIgnoreRemarks(type == otype::Jobs ? 1 : 0);
    const std::int32_t handle = Kesh_LoadFromMemory(text, "test.txt");
    EXPECT_NE(handle, 0);
    return parser.LoadFromHandle(handle, type);
}

/// What the parser writes; the result of Save must be true.
inline std::string save(clsTxtParser& parser) {
    const ScratchDir dir;
    const std::string path = dir / "saved.txt";
    const std::int32_t file =
        LornFD_OpenFileConvert(path, LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_PLAIN);
    EXPECT_TRUE(parser.Save(file)) << parser.GetLastError();
    EXPECT_NE(LornFD_CloseFile(file), 0);
    return readFile(path);
}

/// `value` so many times, for records whose content does not matter.
inline std::string repeat(const std::string& value, int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += value;
    return text;
}

/// All values of a record, each with ";" behind.
inline std::string joined(const clsTXTObject& record) {
    return record.GetObjectTData();
}

} // namespace support
