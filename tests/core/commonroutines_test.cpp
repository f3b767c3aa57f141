#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "lornfd/lornfd.h"

#include <QDir>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

TEST(Paths, FallIntoTheirParts) {
    struct Row {
        const char* path;
        const char* parent;
        const char* file;
        const char* extension;
        const char* base;
        const char* stem;
        const char* root;
    };
    const Row rows[] = {
        {"C:\\mods\\tships.txt", "C:\\mods", "tships.txt", "txt", "tships.txt", "tships", "C:"},
        {"tships.old.txt", "", "", "txt", "tships.old.txt", "tships.old", ""},
        {"\\home", "", "home", "", "home", "home", ""},
        {"c:\\a.b\\", "c:\\a.b", "", "b\\", "", "", "c:"},
        {"", "", "", "", "", "", ""},
        {"\\\\server\\share\\x\\y.pck", "\\\\server\\share\\x", "y.pck", "pck", "y.pck", "y",
         "\\\\server\\share"},
        {"\\\\server", "\\", "server", "", "server", "server", "\\\\server"},
        {"1:\\x", "1:", "x", "", "x", "x", ""},
        {".txt", "", "", "txt", ".txt", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(ParentDir(row.path), row.parent);
        EXPECT_EQ(FileNameOf(row.path), row.file);
        EXPECT_EQ(ExtensionOf(row.path), row.extension);
        EXPECT_EQ(BaseName(row.path, false), row.base);
        EXPECT_EQ(BaseName(row.path, true), row.stem);
        EXPECT_EQ(RootOf(row.path), row.root);
    }
}

TEST(Paths, JoinWithOneSeparatorBetween) {
    EXPECT_EQ(JoinPath({"C:\\game\\", "mods", "x.cat"}), "C:\\game\\mods\\x.cat");
    EXPECT_EQ(JoinPath({"", "mods", "", "x.cat"}), "mods\\x.cat");
    EXPECT_EQ(JoinPath({"a", "b\\"}), "a\\b");
    EXPECT_EQ(JoinPath({"a", ""}), "a");
    EXPECT_EQ(JoinPath({"\\", "x"}), "\\x");
    EXPECT_EQ(JoinPath({}), "");
}

TEST(Paths, CatalogAndViewForms) {
    struct Row {
        const char* path;
        bool vfs;
        const char* stripped;
        bool catalog;
        const char* catalogPart;
        const char* entry;
    };
    const Row rows[] = {
        {"vfs://types\\T.pck", true, "types\\T.pck", false, "vfs://types\\T.pck", ""},
        {"VFS://types\\T.pck", false, "", false, "VFS://types\\T.pck", ""},
        {" vfs://x", false, "", false, " vfs://x", ""},
        {"vfs://", true, "", false, "vfs://", ""},
        {"C:\\01.cat::types\\T.pck", false, "", true, "C:\\01.cat", "types\\T.pck"},
        {"a::b::c", false, "", true, "a", "b::c"},
        {"a::", false, "", true, "a", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(IsVFSPath(row.path), row.vfs);
        EXPECT_EQ(StripVFS(row.path), row.stripped);
        EXPECT_EQ(IsCatalogPath(row.path), row.catalog);
        EXPECT_EQ(CatalogPart(row.path), row.catalogPart);
        EXPECT_EQ(EntryPart(row.path), row.entry);
        std::string catalog = "as it was";
        EXPECT_EQ(SplitCatalogPath(row.path, catalog), row.catalog ? row.entry : row.path);
        EXPECT_EQ(catalog, row.catalog ? row.catalogPart : "as it was");
    }
}

TEST(Texts, AreReplacedAppendedAndCut) {
    struct Row {
        const char* text;
        const char* find;
        const char* with;
        TextCompare compare;
        int count;
        const char* result;
    };
    const Row rows[] = {
        {"\"%1\" \"%2\"", "%1", "a%1b", TextCompare::Binary, 1, "\"a%1b\" \"%2\""},
        {"aaaa", "aa", "a", TextCompare::Binary, 2, "aa"},
        {"xAyaz", "a", "", TextCompare::NoCase, 2, "xyz"},
        {"xAyaz", "a", "", TextCompare::Binary, 1, "xAyz"},
        {"Abc", "ABC", "abc", TextCompare::NoCase, 1, "abc"},
        {"abc", "", "x", TextCompare::Binary, 0, "abc"},
        {"abc", "b", "b", TextCompare::NoCase, 0, "abc"},
        {"\xC4\xE4", "\xE4", "x", TextCompare::NoCase, 1, "\xC4x"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        std::string text = row.text;
        EXPECT_EQ(ReplaceAll(text, row.find, row.with, row.compare), row.count);
        EXPECT_EQ(text, row.result);
    }

    std::string lines;
    for (const char* line : {"", "one", "", "two"})
        AppendLine(lines, line, "\r\n");
    EXPECT_EQ(lines, "one\r\ntwo");
    EXPECT_EQ(TrimNull(std::string_view("ab\0cd\0", 6)), "ab");
    EXPECT_EQ(TrimNull("ab"), "ab");
}

TEST(Numbers, AreRecognised) {
    for (const char* whole : {"0", "-7", "+7", "5.0", "5.", "1e3", "2147483647", "-2147483648"})
        EXPECT_TRUE(IsWholeNumber(whole)) << whole;
    for (const char* other : {"", " 5", "5 ", "5.5", "1e-1", "2147483648", "-2147483649", "1e400",
                              "nan", "0x10", "5,0", "five", "-"})
        EXPECT_FALSE(IsWholeNumber(other)) << other;
}

TEST(Numbers, HexadecimalBothWays) {
    EXPECT_EQ(ParseHex("fF10zz"), 0xFF10U);
    EXPECT_EQ(ParseHex("zz"), 0U);
    EXPECT_EQ(ParseHex(""), 0U);
    EXPECT_EQ(ParseHex("123456789A"), 0x3456789AU);
    EXPECT_TRUE(IsHexText(""));
    EXPECT_TRUE(IsHexText("09afAF"));
    EXPECT_FALSE(IsHexText("0g"));
    EXPECT_FALSE(IsHexText(" 0"));

    EXPECT_EQ(ToHex(0xABC, 0), "0ABC");
    EXPECT_EQ(ToHex(0xAB, 0), "AB");
    EXPECT_EQ(ToHex(0, 0), "0");
    EXPECT_EQ(ToHex(0, 4), "0000");
    EXPECT_EQ(ToHex(0xABCDE, 4), "ABCDE");
    EXPECT_EQ(ToHex(0xFFFFFFFF, 10), "00FFFFFFFF");
    EXPECT_EQ(ToHex(1, -3), "1");
}

TEST(Numbers, WordsAndColours) {
    constexpr std::int32_t n = static_cast<std::int32_t>(0xFEDC8123U);
    EXPECT_EQ(HiWord(n), 0xFEDC);
    EXPECT_EQ(LoWord(n), 0x8123);
    EXPECT_EQ(GetRed(n), 0x23);
    EXPECT_EQ(GetGreen(n), 0x81);
    EXPECT_EQ(GetBlue(n), 0xDC);
    EXPECT_EQ(SwapRB(n), static_cast<std::int32_t>(0xFE2381DCU));
    EXPECT_EQ(SwapBytes(n), SwapRB(n));
}

TEST(FormatFixed, RoundsWhatTheUserSeesAwayFromZero) {
    struct Row {
        double value;
        int decimals;
        const char* text;
    };
    const Row rows[] = {
        {0.005, 2, "0.01"},        {1.005, 2, "1.01"},
        {0.125, 2, "0.13"},        {2.5, 0, "3"},
        {-2.5, 0, "-3"},           {0.5, 0, "1"},
        {0.4999, 0, "0"},          {9.995, 2, "10.00"},
        {999.9999, 3, "1000.000"}, {-0.001, 2, "0.00"},
        {-0.0, 1, "0.0"},          {7, 3, "7.000"},
        {12.34, 0, "12"},          {0.1, -1, "0"},
        {1e-300, 4, "0.0000"},     {1e22, 1, "10000000000000000000000.0"},
        {5e-324, 2, "0.00"},       {99.5, 0, "100"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(FormatFixed(row.value, row.decimals), row.text) << row.value;
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::max(), 2).size(), 309U + 3U);
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 2), "inf");
}

TEST(FormatFixed, StaysWithinHalfAStepOfTheValue) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> values(-1e6, 1e6);
    for (int i = 0; i < 2000; ++i) {
        const double value = values(random);
        const int decimals = i % 6;
        const double shown = std::stod(FormatFixed(value, decimals));
        EXPECT_LE(std::abs(shown - value), 0.5 * std::pow(10, -decimals) + 1e-9) << value;
    }
}

TEST(FormatDistance, ChoosesUnitByLength) {
    struct Row {
        double units;
        bool plain;
        bool miles;
        const char* text;
    };
    const Row rows[] = {
        {500000, false, false, "1.000 km"}, {499000, false, false, "998 m"},
        {499999, false, false, "999 m"},    {0, false, false, "0 m"},
        {-250, false, false, "0 m"},        {-1000, false, false, "-2 m"},
        {617283, false, false, "1.235 km"}, {617283, true, false, "1234"},
        {926000, false, true, "1.000  nm"}, {926000, true, true, "1.000"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(FormatDistance(row.units, row.plain, row.miles), row.text) << row.units;
}

TEST(Lookups, AnswerOutsideTheTable) {
    constexpr std::string_view table[] = {"first", "", "third"};
    for (const std::int64_t index : {1, 3, -1}) {
        EXPECT_EQ(TableText(table, index), "Unknown value") << index;
        EXPECT_EQ(TableTextRaw(table, index), "") << index;
    }
    const std::span<const std::string_view> all = table;
    std::int32_t position = 5;
    EXPECT_TRUE(FindInArray(all, "third", position));
    EXPECT_EQ(position, 2);
    EXPECT_FALSE(FindInArray(all, "none", position));
    EXPECT_EQ(position, -1);
}

TEST(Lookups, AddSortedKeepsEqualOnesInTheirOrder) {
    struct Item {
        int sort;
        int number;
        [[nodiscard]] int SortIndex() const { return sort; }
    };
    std::vector<std::shared_ptr<Item>> items;
    int number = 0;
    for (const int sort : {3, 1, 2, 1, 3})
        AddSorted(items, std::make_shared<Item>(Item{sort, number++}));
    std::vector<int> order;
    for (const auto& item : items)
        order.push_back(item->number);
    EXPECT_EQ(order, (std::vector<int>{1, 3, 2, 0, 4}));
}

TEST(Messages, NameWhatIsWrong) {
    EXPECT_EQ(ValueErrorText("Speed", 0),
              "Entered value is incorrect. It must be whole number: Speed.");
    EXPECT_EQ(ValueErrorText("", 1), "Entered value is incorrect. It must be float number.");
    EXPECT_EQ(ValueErrorText("", -1), "Entered value is incorrect. It must be string.");
}

TEST(Messages, ErrorTextOfTheDriverIsWholeAndNamesTheFile) {
    const std::string name =
        (QDir::tempPath() + QStringLiteral("/no such kesh file.txt")).toStdString();
    ASSERT_EQ(LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS), 0);
    const std::string text = LornFDErrorText();
    EXPECT_NE(text.find("no such kesh file.txt"), std::string::npos) << text;
    EXPECT_EQ(text.find('\0'), std::string::npos);
    EXPECT_FALSE(text.ends_with(' '));
}
