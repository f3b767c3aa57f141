#include "loadedtext.h"

using support::LoadedText;
using Values = std::vector<std::string>;

namespace {

/// Reads lines of two values and a raw rest, as the parser reads jobs: "value,value,raw|".
std::string readJobs(LoadedText& text) {
    std::string read;
    while (text.tokenType() != KESH_TOKEN_END) {
        const Values values = text.spellings(2);
        if (values.size() < 2)
            return read + "error " + std::to_string(Kesh_GetLastError());
        KeshPlace place = 0;
        if (Kesh_TXTGetRawPlace(text.handle(), place) == 0)
            return read + "no raw, error " + std::to_string(Kesh_GetLastError());
        const std::string raw = text.token();
        EXPECT_EQ(raw, keshobjects::rawAt(Kesh_TXTGetText(text.handle()), place));
        EXPECT_TRUE(text.advance());
        read += values[0] + "," + values[1] + "," + raw + "|";
    }
    return read;
}

TEST(Jobs, LinesAreReadAsWritten) {
    const struct {
        std::string_view text;
        std::string_view read;
    } rows[] = {
        {"", ""},
        {"\r\n \r\n", ""},
        {"1;2;name\r\n3;4;other\r\n", "1,2,name|3,4,other|"},
        {"1;2;name", "1,2,name|"},
        {"1;2;\r\n3;4;\r\n", "1,2,|3,4,|"},
        {"1;2;", "1,2,|"},
        {"1;2;a;b,c // d /* e \r\n", "1,2,a;b,c // d /* e |"},
        {"1;2;  x  \r\n", "1,2,  x  |"},
        {"1;2; \n3;4;\t\r5;6;z", "1,2, |3,4,\t|5,6,z|"},
        {"1;2;a\n\r\n\r\n 3 ;\r\n4;b\n", "1,2,a|3,4,b|"},
        {"//1;/*2;x\n", "//1,/*2,x|"},
        {"1,2;3;x\n", "1,2,3,x|"},
        {"1;2;\xC4\xFF\n", "1,2,\xC4\xFF|"},
        {"1;2", "no raw, error 3"},
        {"1;2;a\n3;", "1,2,a|error 3"},
        {"1;2;a\nb", "1,2,a|error 3"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        LoadedText text(row.text, LoadedText::jobs);
        EXPECT_EQ(readJobs(text), row.read);
        for (std::size_t size = 0; size < row.text.size(); ++size) {
            LoadedText prefix(row.text.substr(0, size), LoadedText::jobs);
            readJobs(prefix);
        }
    }
}

TEST(Jobs, BehindAValueEvenAnEmptyRestIsAToken) {
    const LoadedText text("1;\r\n", LoadedText::jobs);
    EXPECT_TRUE(text.advance());
    EXPECT_EQ(text.tokenType(), KESH_TOKEN_VALUE);
    EXPECT_EQ(text.token(), "");
    EXPECT_TRUE(text.advance());
    EXPECT_EQ(text.tokenType(), KESH_TOKEN_END);
    EXPECT_FALSE(text.advance());
}

TEST(Jobs, TheFlagIsThatOfTheLoad) {
    const LoadedText jobs("a//b;", LoadedText::jobs);
    const LoadedText other("a//b\n;");
    EXPECT_EQ(jobs.load(KESH_VALUE_STRING), KeshValue("a//b"));
    EXPECT_EQ(other.load(KESH_VALUE_STRING), KeshValue("a"));
    KeshPlace place = 0;
    EXPECT_EQ(Kesh_TXTGetRawPlace(other.handle(), place), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_ARGUMENT);
}

} // namespace
