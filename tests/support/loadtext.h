// T texts and files for tests.
#pragma once

#include "lornfd/lornfd.h"
#include "support/scratchdir.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace support {

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
