#include "lornfd/catalog.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace lornfd;

constexpr std::int64_t dataSize = 100;
const std::string header = "KESHCAT 1 x.dat\n";

std::shared_ptr<const CatalogIndex> parse(const std::string& text) {
    return CatalogIndex::parse(Buffer::copyOf(text), dataSize, "x.cat");
}

TEST(CatalogIndex, ReadsEntries) {
    const auto index = parse("KESHCAT 1 my data.dat\r\n0 10 0000abCD types\\A b.txt\r\n"
                             "10 0 00000000 types/sub/empty\r\n90 10 ffffffff x.y\r\n");
    ASSERT_TRUE(index) << scratch::errorText();
    ASSERT_EQ(index->size(), 3U);
    EXPECT_EQ(index->dataPath(), "my data.dat");
    const CatalogEntry entry = index->entry(0);
    EXPECT_EQ(entry.offset, 0);
    EXPECT_EQ(entry.size, 10);
    EXPECT_EQ(entry.crc, 0xabcdU);
    EXPECT_EQ(entry.name, "types\\A b.txt");
    EXPECT_EQ(index->entry(1).name, "types\\sub\\empty");
    EXPECT_EQ(index->find("TYPES/a B.TXT"), 0U);
    EXPECT_EQ(index->find("types\\SUB\\empty"), 1U);
    for (const char* absent : {"", "types", "types\\A b.tx", "types\\A b.txt ", "y.x"})
        EXPECT_EQ(index->find(absent), CatalogIndex::npos) << absent;
    EXPECT_EQ(index->find(std::string(300, 'x')), CatalogIndex::npos);
}

TEST(CatalogIndex, FindsEachOfMany) {
    std::string text = header;
    for (int i = 0; i < 5000; ++i)
        text += "0 0 00000000 Dir" + std::to_string(i % 7) + "\\Name" + std::to_string(i) + "\n";
    const auto index = parse(text);
    ASSERT_TRUE(index);
    for (std::size_t i = 0; i < index->size(); ++i)
        ASSERT_EQ(index->find(index->entry(i).name), i);
}

TEST(CatalogIndex, NamesUpTo255Bytes) {
    const std::string longest(255, 'n');
    const auto index = parse(header + "0 1 00000000 " + longest + "\n");
    ASSERT_TRUE(index);
    EXPECT_EQ(index->entry(0).name, longest);
    EXPECT_EQ(index->find(longest), 0U);
}

struct BrokenIndex {
    const char* what;
    std::string text; ///< behind the header
    int line;
};

class BrokenCatalogs : public testing::TestWithParam<BrokenIndex> {};

TEST_P(BrokenCatalogs, NameFileAndLine) {
    EXPECT_FALSE(parse(header + GetParam().text));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_CATALOG);
    const std::string text = scratch::errorText();
    EXPECT_NE(text.find("\"x.cat\""), std::string::npos) << text;
    EXPECT_NE(text.find("line " + std::to_string(GetParam().line) + ":"), std::string::npos)
        << text;
}

std::string named(const std::string& name) {
    return "0 1 00000000 " + name + "\n";
}

INSTANTIATE_TEST_SUITE_P(
    All, BrokenCatalogs,
    testing::Values(
        BrokenIndex{"offset past the end", named("a") + "101 0 00000000 b\n", 3},
        BrokenIndex{"end past the end", "91 10 00000000 a\n", 2},
        BrokenIndex{"sum leaves 64 bits", "10 999999999999999999 00000000 a\n", 2},
        BrokenIndex{"huge", "99999999999999999999999 1 00000000 a\n", 2},
        BrokenIndex{"wraps to a small number", "18446744073709551617 1 00000000 a\n", 2},
        BrokenIndex{"negative offset", "-1 1 00000000 a\n", 2},
        BrokenIndex{"negative size", "1 -1 00000000 a\n", 2},
        BrokenIndex{"plus sign", "+1 1 00000000 a\n", 2},
        BrokenIndex{"hexadecimal", "0x1 1 00000000 a\n", 2},
        BrokenIndex{"two blanks", "1  1 00000000 a\n", 2},
        BrokenIndex{"checksum short", "1 1 0000000 a\n", 2},
        BrokenIndex{"checksum long", "1 1 000000000 a\n", 2},
        BrokenIndex{"checksum no number", "1 1 0000000g a\n", 2},
        BrokenIndex{"checksum at the end", "1 1 00", 2}, BrokenIndex{"empty line", "\n", 2},
        BrokenIndex{"no name", "1 1 00000000\n", 2},
        BrokenIndex{"empty name", "1 1 00000000 \n", 2},
        BrokenIndex{"last line without end", named("a") + "1 1 00000000 b", 3},
        BrokenIndex{"overlap", "0 10 00000000 a\n20 10 00000000 b\n9 1 00000000 c\n", 4},
        BrokenIndex{"same bytes", "0 10 00000000 a\n0 10 00000000 b\n", 3},
        BrokenIndex{"inside", "0 90 00000000 a\n90 1 00000000 c\n5 1 00000000 b\n", 4},
        BrokenIndex{"duplicate", named("a\\b") + "1 1 00000000 A\\B\n", 3},
        BrokenIndex{"duplicate by separator", named("a\\b") + "1 1 00000000 a/b\n", 3},
        BrokenIndex{"parent", named("..\\a"), 2},
        BrokenIndex{"parent inside", named("a\\..\\..\\b"), 2},
        BrokenIndex{"parent at the end", named("a/.."), 2},
        BrokenIndex{"this directory", named("a\\.\\b"), 2},
        BrokenIndex{"nothing but dots and blanks", named("a\\. .\\b"), 2},
        BrokenIndex{"drive", named("c:\\a"), 2}, BrokenIndex{"absolute", named("\\a"), 2},
        BrokenIndex{"absolute by slash", named("/etc/passwd"), 2},
        BrokenIndex{"empty part", named("a\\\\b"), 2},
        BrokenIndex{"ends with a separator", named("directory\\"), 2},
        BrokenIndex{"8 bytes and a separator", named("1234567\\"), 2},
        BrokenIndex{"control character", named("a\tb"), 2},
        BrokenIndex{"escape", named("a\x1b[2Jb"), 2},
        BrokenIndex{"delete character", named("a\x7f"), 2},
        BrokenIndex{"NUL", named(std::string("a\0b", 3)), 2},
        BrokenIndex{"lone CR", named("a\rb"), 2},
        BrokenIndex{"256 bytes", named(std::string(256, 'n')), 2},
        BrokenIndex{"300 bytes", named(std::string(300, 'n')), 2},
        BrokenIndex{"511 bytes", named(std::string(511, 'n')), 2}),
    [](const auto& broken) {
        std::string name;
        for (const char c : std::string_view(broken.param.what))
            name += c == ' ' ? '_' : c;
        return name;
    });

TEST(CatalogIndex, HeaderIsChecked) {
    for (const char* bad : {"", "\n", "KESHCAT", "KESHCAT 1", "KESHCAT 1 \n", "KESHCAT 2 x.dat\n",
                            "keshcat 1 x.dat\n", "KESHCAT 1 a\\x.dat\n", "KESHCAT 1 a/x.dat\n",
                            "KESHCAT 1 ..\n", "KESHCAT 1 c:x.dat\n", "\xef\xbb\xbfKESHCAT 1 x\n"}) {
        EXPECT_FALSE(parse(bad)) << bad;
        EXPECT_NE(scratch::errorText().find("line 1"), std::string::npos) << scratch::errorText();
    }
}

TEST(CatalogIndex, PrefixIsRefusedOrHoldsWholeLines) {
    const std::string text = header + "0 10 01234567 types\\a.txt\n10 5 89abcdef b/c\r\n";
    const auto whole = parse(text);
    ASSERT_EQ(whole->size(), 2U);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const auto index = parse(text.substr(0, length));
        ASSERT_EQ(index != nullptr, length >= header.size() && text[length - 1] == '\n') << length;
        for (std::size_t i = 0; index && i < index->size(); ++i)
            EXPECT_EQ(index->entry(i).name, whole->entry(i).name);
    }
}

TEST(CatalogIndex, ManyNamesOfOneLength) {
    std::string text = header;
    for (int i = 0; i < 300'000; ++i)
        text += "0 0 00000000 n" + std::to_string(1'000'000 + i) + "\n";
    ASSERT_TRUE(parse(text));
}

} // namespace
