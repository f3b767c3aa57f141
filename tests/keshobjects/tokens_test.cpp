#include "loadedtext.h"

using support::LoadedText;
using Values = std::vector<std::string>;

namespace {

/// Reads wings of the form `first;n,n,n;` up to the end of the text, "|" between wings.
std::string readWings(const LoadedText& text) {
    std::string read;
    while (text.tokenType() != KESH_TOKEN_END) {
        const KeshValue first = text.load(KESH_VALUE_WHOLE);
        if (!std::holds_alternative<std::int32_t>(first))
            return read + "error " + std::to_string(Kesh_GetLastError());
        read += keshobjects::spellValue(first) + ":";
        for (bool more = true; more;) {
            if (text.tokenType() != KESH_TOKEN_VALUE)
                return read + "unexpected " + text.token();
            read += text.token() + " ";
            if (!text.advance())
                return read + "error " + std::to_string(Kesh_GetLastError());
            more = text.tokenType() == KESH_TOKEN_LIST_SEPARATOR && text.advance();
        }
        read += "|";
    }
    return read;
}

TEST(Tokens, Wings) {
    const struct {
        std::string_view text;
        std::string_view read;
    } rows[] = {
        {"1;2,3,4;", "1:2 3 4 |"},
        {"1;2;3;4,5;", "1:2 |3:4 5 |"},
        {"1;2,3", "1:2 3 |"},
        {" 1 ;\r\n 2\t,\r\n3 , 4 ;\r\n\r\n", "1:2 3 4 |"},
        {"// x;\n1;/*,*/2/*;*/,// 9;\n3/**/;\n5;6; // end", "1:2 3 |5:6 |"},
        {"1/**/2;3/*,*/4,5;", "12:34 5 |"},
        {"1;;", "1: |"},
        {"1;007,x y,;", "1:007 x y  |"},
        {"1;2,,3;", "1:2 unexpected ,"},
        {"1;2,", "1:2 unexpected \"a.txt\" ends in line 1 where a value is expected."},
        {"1;", "1:unexpected \"a.txt\" ends in line 1 where a value is expected."},
        {"1,2;3;", "error 4"},
        {"1;2;/* x", "1:2 |error 5"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(readWings(LoadedText(row.text)), row.read);
        for (std::size_t size = 0; size < row.text.size(); ++size)
            readWings(LoadedText(row.text.substr(0, size)));
    }
}

TEST(Tokens, AdvanceStepsOverSeveralAndStopsAtTheEnd) {
    const LoadedText text("1,2;3;");
    EXPECT_TRUE(text.advance(0));
    EXPECT_TRUE(text.advance(3));
    EXPECT_EQ(text.load(KESH_VALUE_WHOLE), KeshValue(3));
    EXPECT_FALSE(text.advance());
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_END);
    EXPECT_FALSE(text.advance(-1));
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_ARGUMENT);
}

TEST(Tokens, LookingAtATokenLeavesItThere) {
    LoadedText text(" /*;*/ a/*,*/b , c;d;");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(text.tokenType(), KESH_TOKEN_VALUE);
        EXPECT_EQ(text.token(), "ab");
    }
    EXPECT_EQ(text.spellings(), (Values{"ab      , c", "d"}));
}

TEST(Tokens, ARemarkThatNeverEndsIsNotTheEnd) {
    const LoadedText text("1; /* 2;");
    EXPECT_TRUE(text.advance());
    EXPECT_EQ(text.tokenType(), 0);
    EXPECT_EQ(Kesh_GetLastError(), KESH_E_REMARK);
    EXPECT_FALSE(text.advance());
}

} // namespace
