#include "keshvfs/keshvfs.h"
#include "loadedtext.h"
#include "lornfd/lornfd.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

using support::lastErrorText;

namespace {

/// A scratch directory with texts written and read through plain files.
class Files : public testing::Test {
protected:
    void SetUp() override {
        m_directory =
            std::filesystem::temp_directory_path() / ("keshobjects-" + std::to_string(::getpid()));
        std::filesystem::create_directories(m_directory);
    }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    [[nodiscard]] std::string path(std::string_view name) const {
        return (m_directory / name).string();
    }
    std::string write(std::string_view name, std::string_view content) const {
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }
    static std::string read(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path m_directory;
};

TEST_F(Files, ALoadedTextNeedsItsFileNoMore) {
    std::string content;
    while (content.size() < 3'000'000)
        content += std::to_string(content.size()) + ";";
    for (const std::int32_t type : {LORNFD_PLAIN, LORNFD_GZIP, LORNFD_ZSTD}) {
        const std::string name = path("t.txt");
        const std::int32_t out = LornFD_OpenFile(name, LORNFD_WRITE, LORNFD_CREATE, type);
        ASSERT_NE(Kesh_TXTWriteFile(out, content), 0);
        ASSERT_NE(LornFD_CloseFile(out), 0);
        const std::int32_t file =
            LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        const std::int32_t text = Kesh_LoadFromFile(file, 1);
        ASSERT_NE(text, 0) << lastErrorText();
        LornFD_CloseFile(file);
        write("t.txt", "gone");
        EXPECT_EQ(Kesh_TXTGetText(text), content);
        EXPECT_EQ(Kesh_TXTDescribePlace(text, 0), "line 1 of " + name);
        Kesh_DeleteHandle(0, text);
    }
}

TEST_F(Files, EmptyFilesUnknownKindsAndBadHandles) {
    const std::string name = write("empty.txt", "");
    const std::int32_t file =
        LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    EXPECT_EQ(Kesh_LoadFromFile(file, 2), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_ARGUMENT);
    const std::int32_t text = Kesh_LoadFromFile(file, 0);
    EXPECT_EQ(Kesh_TXTGetTokenType(text), KESH_TOKEN_END);
    Kesh_DeleteHandle(0, text);
    LornFD_CloseFile(file);
    EXPECT_EQ(Kesh_LoadFromFile(file, 0), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_READ);
    EXPECT_EQ(Kesh_TXTWriteFile(file, "x"), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_WRITE);
}

TEST_F(Files, AFileOfFourGigabytesIsRefusedUnread) {
    const std::string name = write("large.txt", "");
    std::filesystem::resize_file(name, std::uintmax_t{4} << 30U);
    const std::int32_t file =
        LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    EXPECT_EQ(Kesh_LoadFromFile(file, 1), 0);
    EXPECT_EQ(Kesh_GetLastError(), file == 0 ? KESH_E_READ : KESH_E_TOO_BIG);
    LornFD_CloseFile(file);
}

TEST_F(Files, ValuesAreWrittenAsTheySpell) {
    const std::string name = path("out.txt");
    const std::int32_t file = LornFD_OpenFile(name, LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    for (const KeshValue& value : {KeshValue(-7), KeshValue(0.25), KeshValue("a b"), KeshValue()})
        EXPECT_EQ(Kesh_TXTWriteValue(file, value), 1);
    EXPECT_EQ(Kesh_TXTWriteFile(file, "\r\n"), 1);
    EXPECT_NE(LornFD_CloseFile(file), 0);
    EXPECT_EQ(read(name), "-7;0.25;a b;;\r\n");
}

TEST_F(Files, XmlFilesInEveryForm) {
    const std::string text = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n<a b=\"ä€\"/>";
    KeshXmlMark mark{};
    std::string back;
    for (const std::int32_t type : {LORNFD_PLAIN, LORNFD_GZIP, LORNFD_ZSTD})
        for (const auto written : {KESH_XML_AS_DECLARED, KESH_XML_UTF8, KESH_XML_UTF16_BIG})
            for (const std::string& content : {text, std::string()}) {
                ASSERT_EQ(Kesh_EncodeXMLFile(path("u.xml"), content, written, type), 1);
                ASSERT_EQ(Kesh_DecodeXMLFile(path("u.xml"), back, mark), 1) << lastErrorText();
                EXPECT_EQ(back, content);
                EXPECT_EQ(mark, written);
            }
    std::filesystem::create_directories(m_directory / "root/maps");
    ASSERT_EQ(Kesh_EncodeXMLFile(path("root/maps/u.xml"), text, KESH_XML_AS_DECLARED, LORNFD_PLAIN),
              1);
    EXPECT_EQ(read(path("root/maps/u.xml")).back(), '>');
    KeshVFS_CreateVFS(path("root"));
    EXPECT_EQ(Kesh_DecodeXMLFile("vfs://maps\\u.xml", back, mark), 1) << lastErrorText();
    EXPECT_EQ(back, text);
    EXPECT_EQ(Kesh_DecodeXMLFile("vfs://maps\\other.xml", back, mark), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_NOT_FOUND);
    EXPECT_EQ(lastErrorText(), "\"vfs://maps\\other.xml\" was not found.");
    KeshVFS_CreateVFS("");
}

TEST_F(Files, AFailedXmlSaveLeavesTheOldFile) {
    const std::string name = write("u.xml", "old");
    EXPECT_EQ(Kesh_EncodeXMLFile(name, "<a>\xFF</a>", KESH_XML_AS_DECLARED, LORNFD_PLAIN), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_DECODE);
    EXPECT_EQ(read(name), "old");
    EXPECT_EQ(Kesh_EncodeXMLFile(path("no/such/u.xml"), "<a/>", KESH_XML_UTF8, LORNFD_PLAIN), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_WRITE);
    std::string text;
    KeshXmlMark mark{};
    EXPECT_EQ(Kesh_DecodeXMLFile(path("none.xml"), text, mark), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_READ);
    EXPECT_NE(lastErrorText().find("none.xml"), std::string::npos);
}

} // namespace
