// A directory for one test, and short ways to read and write through the driver.
#pragma once

#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"
#include "support/scratchdir.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace scratch {

using Directory = support::ScratchDir;
using support::readFile;
using support::writeFile;

inline std::string errorText() {
    std::int32_t needed = 0;
    LornFD_TranslateError(LornFD_GetLastError(), nullptr, 0, &needed);
    std::string text(static_cast<std::size_t>(needed), ' ');
    LornFD_TranslateError(LornFD_GetLastError(), text.data(), needed, &needed);
    text.pop_back();
    return text;
}

/// The unpacked content, or "error " and its code; then the last error is that one.
inline std::string load(const std::string& name) {
    const std::int32_t file =
        LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const std::string_view view = file != 0 ? LornFD_ViewFile(file) : std::string_view();
    if (!view.data()) // closing would clear the error; a test's end closes what is left
        return "error " + std::to_string(LornFD_GetLastError());
    std::string content(view);
    LornFD_CloseFile(file);
    return content;
}

/// Saves in several pieces, as a saver that looks only at the close.
inline bool save(const std::string& name, std::string_view content,
                 std::int32_t fileType = LORNFD_AS_IS) {
    const std::int32_t file = LornFD_OpenFile(name, LORNFD_WRITE, LORNFD_CREATE, fileType);
    constexpr std::size_t pieceSize = 300'000;
    bool written = file != 0;
    for (; written && !content.empty();
         content.remove_prefix(std::min(pieceSize, content.size()))) {
        const auto size = static_cast<std::int64_t>(std::min(pieceSize, content.size()));
        written = LornFD_WriteFile(file, content.data(), size) != 0;
    }
    EXPECT_TRUE(!written || LornFD_SetEndOfFile(file) != 0);
    const bool closed = file != 0 && LornFD_CloseFile(file) != 0;
    EXPECT_EQ(closed, written && closed) << "closed what could not be written";
    return closed;
}

/// Makes a catalog of entries that are stored as given.
inline void makeCatalog(const std::string& path,
                        const std::vector<std::pair<std::string, std::string>>& entries) {
    const auto update = lornfd::CatalogUpdate::begin(path, true);
    ASSERT_TRUE(update) << errorText();
    for (const auto& [name, bytes] : entries)
        ASSERT_TRUE(update->put(name, bytes)) << errorText();
    ASSERT_TRUE(update->commit()) << errorText();
}

/// Bytes that do not pack well, the same for the same seed.
inline std::string noise(std::size_t size, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes;
    bytes.reserve(size + sizeof(unsigned));
    while (bytes.size() < size) {
        const auto word = static_cast<unsigned>(random());
        bytes.append(reinterpret_cast<const char*>(&word),
                     sizeof word); // NOLINT: any bytes will do
    }
    bytes.resize(size);
    return bytes;
}

} // namespace scratch
