#include "loadedtext.h"

using support::lastErrorText;
using support::LoadedText;
using Values = std::vector<std::string>;

namespace {

struct Row {
    std::string_view text;
    Values values;
    bool written; ///< of a call that reads exactly these values
};

const Row rows[] = {
    // Blanks and line breaks
    {"1;2;3;", {"1", "2", "3"}, true},
    {"\r\n 1;2;", {"1", "2"}, true},
    {"1 ;2;", {"1", "2"}, false},
    {"1; 2;", {"1", "2"}, false},
    {"1;\r2;", {"1", "2"}, false},
    {"1;2\t;", {"1", "2"}, false},
    {"a b;c\r\nd;", {"a b", "c\r\nd"}, true},
    {";;", {"", ""}, true},
    {"; ;", {"", ""}, false},
    {"\xEF\xBB\xBF"
     "1;",
     {"1"},
     true},
    {"\x80\xFF;\xA0;", {"\x80\xFF", "\xA0"}, true},
    {"\x01\x1F;", {"\x01\x1F"}, true},
    {"a,b;", {"a,b"}, true},
    // The last value
    {"1;2", {"1", "2"}, false},
    {"1; 2 \r\n", {"1", "2"}, false},
    {"/", {"/"}, false},
    // Remarks before a value
    {"// one; two\r\n1;2;", {"1", "2"}, true},
    {"// one;\r1;// two;\r2;", {"1", "2"}, false},
    {"/* ; // */ 1;/**/2;", {"1", "2"}, false},
    {"/*/ ; */1;", {"1"}, true},
    {"//*\n1;//", {"1"}, true},
    {"1;/* ** **/2;", {"1", "2"}, false},
    // Remarks inside and behind a value
    {"1/* ; */;2;", {"1", "2"}, false},
    {"1 // x;\n;2;", {"1", "2"}, false},
    {"ab/* ; */cd/**/e;2;", {"abcde", "2"}, false},
    {"ab/*x*/;", {"ab"}, false},
    {"a/*x*/ b;", {"a b"}, false},
    {"a//x\r\nb;", {"a\r\nb"}, false},
    {"/*x*/a/*y*/", {"a"}, false},
    {"5 /* x; */", {"5"}, false},
    {"5// x;", {"5"}, false},
    // Slashes that begin no remark
    {"a/b;c/;/;", {"a/b", "c/", "/"}, true},
    {"a/b/*;*/c/d;", {"a/bc/d"}, false},
    {"*/;", {"*/"}, true},
};

TEST(Places, ValuesAreCutAtTheirSemicolons) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        LoadedText text(row.text);
        EXPECT_EQ(text.spellings(static_cast<std::int64_t>(row.values.size())), row.values);
        EXPECT_EQ(text.written, row.written);
        EXPECT_EQ(text.tokenType(), KESH_TOKEN_END);
        EXPECT_TRUE(text.spellings(1).empty());
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_END);
    }
}

TEST(Places, OneByOneReadsTheSame) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const LoadedText text(row.text);
        for (const std::string& value : row.values)
            EXPECT_EQ(text.load(KESH_VALUE_STRING), KeshValue(value));
        EXPECT_EQ(text.load(KESH_VALUE_STRING), KeshValue());
    }
}

TEST(Places, EveryPrefixIsReadOrRefused) {
    for (const Row& row : rows)
        for (std::size_t size = 0; size < row.text.size(); ++size) {
            SCOPED_TRACE(row.text.substr(0, size));
            LoadedText text(row.text.substr(0, size));
            const Values values = text.spellings();
            EXPECT_LE(values.size(), row.values.size() + 1);
            const std::int32_t error = Kesh_GetLastError();
            EXPECT_TRUE(error == KESH_E_END || error == KESH_E_REMARK);
        }
}

TEST(Places, AValueOfAnySizeAtAnyDistanceFromTheEnd) {
    for (const std::size_t size : {1U, 15U, 16U, 17U, 63U, 64U, 65U, 127U, 128U, 1000U, 4U << 20}) {
        const std::string value(size, 'x');
        for (const std::string_view end : {";", "", " ;", "/**/;"}) {
            LoadedText text(value + std::string(end));
            EXPECT_EQ(text.spellings(), Values{value}) << size << end;
        }
    }
}

TEST(Places, HugeTextsAreRead) {
    const std::size_t size = 1U << 20;
    std::string remarks;
    while (remarks.size() < size)
        remarks += "/**/x";
    for (const std::string& hostile :
         {std::string(size, ' '), std::string(size, '/'), std::string(size, ','),
          std::string(size, '\r'), "/*" + std::string(size, '*'), remarks}) {
        const LoadedText text(hostile);
        static_cast<void>(text.load(KESH_VALUE_AS_SHOWN));
        static_cast<void>(text.advance(3));
    }
}

TEST(Places, CountsThatTheTextCannotFill) {
    LoadedText text("1;2;");
    EXPECT_TRUE(text.spellings(0).empty());
    bool written = true;
    EXPECT_EQ(Kesh_TXTLoadPlaces(text.handle(), -5, nullptr, written), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_OK);
    EXPECT_EQ(text.spellings(3), (Values{"1", "2"}));
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_END);
}

TEST(Places, MessagesNameFileAndLine) {
    const struct {
        std::string_view text;
        std::int32_t code;
        std::string_view named;
    } failures[] = {
        {"", KESH_E_END, "line 1"},
        {"1;\r\n2;\r\n", KESH_E_END, "line 3"},
        {"1;\r2;\r", KESH_E_END, "line 3"},
        {"1;\n\r2;\r\r\n", KESH_E_END, "line 5"},
        {"1;\n/*\n\n", KESH_E_REMARK, "line 2"},
        {"1;\na/*\n*/b/* c /*", KESH_E_REMARK, "line 3"},
        {"1;\n2/*\n\n*/;\n3;", KESH_E_END, "line 5"},
    };
    for (const auto& row : failures) {
        SCOPED_TRACE(row.text);
        LoadedText text(row.text);
        static_cast<void>(text.spellings());
        EXPECT_EQ(Kesh_GetLastError(), row.code);
        EXPECT_NE(lastErrorText().find(row.named), std::string::npos) << lastErrorText();
        EXPECT_NE(lastErrorText().find("a.txt"), std::string::npos) << lastErrorText();
    }
}

TEST(Places, ANulCharacterIsRefusedWhereverItStands) {
    for (std::size_t place : {0U, 2U, 5U, 7U}) {
        std::string bytes = "1;\n2; //";
        bytes[place] = '\0';
        const LoadedText text(bytes);
        EXPECT_EQ(text.handle(), 0);
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_NUL);
        EXPECT_NE(lastErrorText().find(place > 2 ? "line 2" : "line 1"), std::string::npos);
    }
    EXPECT_EQ(LoadedText(std::string((1U << 20) + 3, '\0')).handle(), 0);
}

TEST(Places, ValueKinds) {
    const LoadedText text("007;1.50;SHIP;007;\n1.0;");
    EXPECT_EQ(text.load(KESH_VALUE_AS_SHOWN), KeshValue(7));
    EXPECT_EQ(text.load(KESH_VALUE_AS_SHOWN), KeshValue(1.5));
    EXPECT_EQ(text.load(KESH_VALUE_AS_SHOWN), KeshValue("SHIP"));
    EXPECT_EQ(text.load(KESH_VALUE_STRING), KeshValue("007"));
    EXPECT_EQ(text.load(KESH_VALUE_WHOLE), KeshValue());
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_NOT_WHOLE);
    EXPECT_EQ(lastErrorText(), "\"1.0\" in line 2 of \"a.txt\" is not a whole number of 32 bits.");
    // The value that was refused can still be read otherwise.
    EXPECT_EQ(text.load(KESH_VALUE_AS_SHOWN), KeshValue(1.0));
}

TEST(Places, ALongTextIsShortenedInItsMessage) {
    const LoadedText text(std::string(100000, 'x') + ";");
    EXPECT_EQ(text.load(KESH_VALUE_WHOLE), KeshValue());
    EXPECT_LT(lastErrorText().size(), 200U);
}

TEST(Places, HandlesAreCheckedAndUsedAgain) {
    const std::int32_t handle = Kesh_LoadFromMemory("1;", "b.txt");
    EXPECT_EQ(Kesh_DeleteHandle(0, handle), 1);
    for (const std::int32_t bad : {handle, 0, -1, 1000, std::numeric_limits<std::int32_t>::min()}) {
        KeshValue value;
        KeshPlace place = 0;
        bool written = true;
        EXPECT_EQ(Kesh_TXTLoadValue(bad, 0, value), 0);
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_HANDLE);
        EXPECT_EQ(Kesh_TXTLoadPlaces(bad, 1, &place, written), 0);
        EXPECT_EQ(Kesh_TXTGetRawPlace(bad, place), 0);
        EXPECT_EQ(Kesh_TXTGetTokenType(bad), 0);
        EXPECT_EQ(Kesh_TXTGetTokenValue(bad, value), 0);
        EXPECT_EQ(Kesh_TXTAdvance(bad, 1), 0);
        EXPECT_EQ(Kesh_GetObjectType(bad), 0);
        EXPECT_EQ(Kesh_DeleteHandle(0, bad), 0);
        EXPECT_TRUE(Kesh_TXTGetText(bad).empty());
        EXPECT_EQ(Kesh_GetLastError(), KESH_E_HANDLE);
    }
    const LoadedText again("2;");
    EXPECT_EQ(again.handle(), handle);
    EXPECT_EQ(again.load(KESH_VALUE_WHOLE), KeshValue(2));
}

TEST(Places, ATextThatStartsWithAnElementIsNoTFile) {
    for (const std::string_view xml : {"<", " \r\n<a/>", "\xEF\xBB\xBF<a/>"})
        EXPECT_EQ(Kesh_GetObjectType(LoadedText(xml).handle()), KESH_TYPE_XML_TEXT);
    for (const std::string_view other : {"", "1;<", "// <\n1;", " "})
        EXPECT_EQ(Kesh_GetObjectType(LoadedText(other).handle()), KESH_TYPE_T_TEXT);
}

} // namespace
