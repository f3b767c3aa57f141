#include "lornfd/packing.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <libdeflate.h>
#include <string>
#include <sys/stat.h>
#include <tuple>

namespace {

using namespace lornfd;

/// One content in each place and form that can be read.
class Reading : public testing::TestWithParam<std::tuple<const char*, int>> {
protected:
    Reading() : content(scratch::noise(static_cast<std::size_t>(std::get<1>(GetParam())), 3)) {
        scratch::writeFile(directory / "plain.txt", content);
        scratch::writeFile(directory / "gzip.pck", stored(LORNFD_GZIP));
        scratch::writeFile(directory / "zstd.pck", stored(LORNFD_ZSTD));
        scratch::makeCatalog(directory / "c.cat", {{"other", "other bytes"},
                                                   {"plain.txt", content},
                                                   {"gzip.pck", stored(LORNFD_GZIP)},
                                                   {"zstd.pck", stored(LORNFD_ZSTD)}});
    }
    [[nodiscard]] std::string stored(std::int32_t form) const {
        return std::string(pack(content, form, "")->view());
    }
    [[nodiscard]] std::int32_t open() const {
        return LornFD_OpenFile(directory / std::get<0>(GetParam()), LORNFD_READ,
                               LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    }
    [[nodiscard]] std::string readBy(std::int64_t step) const {
        const std::int32_t file = open();
        std::string read;
        std::string piece(static_cast<std::size_t>(step), '\0');
        for (std::int64_t got; (got = LornFD_ReadFile(file, piece.data(), step)) > 0;)
            read.append(piece, 0, static_cast<std::size_t>(got));
        EXPECT_EQ(LornFD_ReadFile(file, piece.data(), step), 0);
        EXPECT_EQ(LornFD_CloseFile(file), 1);
        return read;
    }

    const scratch::Directory directory;
    const std::string content;
};

INSTANTIATE_TEST_SUITE_P(All, Reading,
                         testing::Combine(testing::Values("plain.txt", "gzip.pck", "zstd.pck",
                                                          "c.cat::plain.txt", "c.cat::gzip.pck",
                                                          "c.cat::zstd.pck", "C.CAT::PLAIN.TXT"),
                                          testing::Values(0, 1, 1000, 5'000'000)),
                         [](const auto& place) { return "Case" + std::to_string(place.index); });

TEST_P(Reading, GivesTheSameInEveryWay) {
    const auto size = static_cast<std::int64_t>(content.size());
    for (const std::int64_t step : {size / 3 + 1, size + 1})
        EXPECT_TRUE(readBy(step) == content) << step;
    const std::int32_t file = open();
    EXPECT_EQ(LornFD_FileSize(file), size);
    const std::string_view view = LornFD_ViewFile(file);
    ASSERT_NE(view.data(), nullptr);
    EXPECT_TRUE(view == content);
    std::int64_t markedSize = -1;
    std::uint32_t checksum = 0;
    EXPECT_EQ(LornFD_Checksum(file, &markedSize, &checksum), 1);
    EXPECT_EQ(markedSize, size);
    EXPECT_EQ(checksum, libdeflate_crc32(0, content.data(), content.size()));
    const std::string_view name = std::get<0>(GetParam());
    EXPECT_EQ(LornFD_FileType(file), name.ends_with("gzip.pck")   ? LORNFD_GZIP
                                     : name.ends_with("zstd.pck") ? LORNFD_ZSTD
                                                                  : LORNFD_PLAIN);
    EXPECT_EQ(LornFD_CloseFile(file), 1);
}

TEST(ReadingFailures, NameFileAndCause) {
    const scratch::Directory directory;
    std::filesystem::create_directory(directory / "folder");
    ::mkfifo((directory / "pipe").c_str(), 0600);
    scratch::makeCatalog(directory / "c.cat", {{"a", "12345"}, {"p.pck", "\x1f\x8b\x08 no gzip"}});
    scratch::makeCatalog(directory / "damaged.cat", {{"a", "12345"}});
    scratch::writeFile(directory / "damaged.dat", "12346");
    scratch::makeCatalog(directory / "short.cat", {{"a", "12345"}});
    scratch::writeFile(directory / "short.dat", "1234");
    scratch::makeCatalog(directory / "nodata.cat", {{"a", "12345"}});
    std::filesystem::remove(directory / "nodata.dat");
    const struct {
        const char* name;
        int code;
        const char* told;
    } cases[] = {{"none.txt", LORNFD_E_NOT_FOUND, "none.txt"},
                 {"none\\none.txt", LORNFD_E_NOT_FOUND, "none/none.txt"},
                 {"c.cat\\none.txt", LORNFD_E_NOT_FOUND, "c.cat/none.txt"},
                 {"folder", LORNFD_E_OPEN, "folder"},
                 {"pipe", LORNFD_E_OPEN, "pipe"},
                 {"none.cat::a", LORNFD_E_NOT_FOUND, "none.cat"},
                 {"folder::a", LORNFD_E_OPEN, "folder"},
                 {"c.cat::types/none", LORNFD_E_NOT_FOUND, "c.cat::types\\none"},
                 {"c.cat::", LORNFD_E_NOT_FOUND, "c.cat::"},
                 {"c.cat::p.pck", LORNFD_E_PACKED, "c.cat::p.pck"},
                 {"damaged.cat::a", LORNFD_E_CHECKSUM, "damaged.cat::a"},
                 {"short.cat::a", LORNFD_E_CATALOG, "short.cat"},
                 {"nodata.cat::a", LORNFD_E_CATALOG, "nodata.cat"}};
    for (const auto& wanted : cases) {
        EXPECT_EQ(scratch::load(directory / wanted.name), "error " + std::to_string(wanted.code))
            << wanted.name;
        const std::int32_t file = LornFD_OpenFile(directory / wanted.name, LORNFD_READ,
                                                  LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        EXPECT_EQ(LornFD_FileSize(file) < 0 && file != 0,
                  wanted.code == LORNFD_E_PACKED || wanted.code == LORNFD_E_CHECKSUM);
        scratch::load(directory / wanted.name);
        EXPECT_NE(scratch::errorText().find(directory / wanted.told), std::string::npos)
            << scratch::errorText();
        LornFD_AbandonFile(file);
        EXPECT_EQ(LornFD_FileExists(directory / wanted.name), file != 0 ? 1 : 0);
    }
    EXPECT_EQ(LornFD_FileExists(""), 0);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NAME);
    EXPECT_EQ(LornFD_FileExists(std::string("a\0b", 3)), 0);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NAME);
}

TEST(ReadingFailures, FileCutWhileOpen) {
    const scratch::Directory directory;
    scratch::writeFile(directory / "a.txt", std::string(1000, 'x'));
    const std::int32_t file =
        LornFD_OpenFile(directory / "a.txt", LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    std::filesystem::resize_file(directory / "a.txt", 10);
    EXPECT_EQ(LornFD_FileSize(file), -1);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_READ);
    EXPECT_NE(scratch::errorText().find("offset 10"), std::string::npos) << scratch::errorText();
    LornFD_CloseFile(file);
}

TEST(Handles, OfTheWrongKindAreRefused) {
    const scratch::Directory directory;
    scratch::makeCatalog(directory / "c.cat", {});
    const std::int32_t catalog = LornFD_OpenCatalog(directory / "c.cat", LORNFD_OPEN_EXISTING);
    const std::int32_t writer =
        LornFD_OpenFile(directory / "w", LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    scratch::writeFile(directory / "r", "x");
    const std::int32_t reader =
        LornFD_OpenFile(directory / "r", LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    ASSERT_TRUE(catalog > 0 && writer > 0 && reader > 0);
    char byte = 'x';
    for (const std::int32_t bad : {0, -1, 1'000'000, catalog}) {
        EXPECT_EQ(LornFD_CloseFile(bad), 0);
        EXPECT_EQ(LornFD_AbandonFile(bad), 0);
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_HANDLE);
    }
    EXPECT_EQ(LornFD_CloseCatalog(reader), 0);
    EXPECT_EQ(LornFD_ReadFile(writer, &byte, 1), -1);
    EXPECT_EQ(LornFD_FileSize(writer), -1);
    EXPECT_EQ(LornFD_ViewFile(writer).data(), nullptr);
    EXPECT_EQ(LornFD_WriteFile(reader, &byte, 1), 0);
    EXPECT_EQ(LornFD_SetEndOfFile(reader), 0);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_HANDLE);
    EXPECT_EQ(lornfd::catalogOfHandle(reader), nullptr);
    EXPECT_NE(lornfd::catalogOfHandle(catalog), nullptr);
    EXPECT_EQ(LornFD_FileName(reader), directory / "r");
    EXPECT_EQ(LornFD_CloseFile(reader), 1);
    EXPECT_EQ(LornFD_CloseFile(reader), 0);
    EXPECT_EQ(LornFD_AbandonFile(writer), 1);
    EXPECT_EQ(LornFD_CloseCatalog(catalog), 1);
}

TEST(Handles, UnknownArgumentsOpenNothing) {
    const scratch::Directory directory;
    for (const auto& [access, create, type] :
         {std::tuple{2, 0, 0}, {-1, 0, 0}, {1, 2, 1}, {1, 1, 4}, {0, 0, -1}}) {
        EXPECT_EQ(LornFD_OpenFile(directory / "a", access, create, type), 0);
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_ARGUMENT);
    }
    EXPECT_TRUE(directory.names().empty());
}

} // namespace
