#include "keshtool/keshtool.h"

namespace {

class KeshtoolTexts : public Keshtool {
protected:
    KeshtoolTexts() {
        write("game/t/0001-L044.xml",
              "<texts language='44'><page id='17' title='Objects'><string id='1'>Ferry</string>"
              "<string id='-2'>{:1}\\n[b]big[/b]\n\tend</string></page></texts>");
        write("game/t/0001-L049.xml",
              "<texts><page id='17'><string id='1'>F\xC3\xA4hre</string></page></texts>");
        write("mod/t/0002-L044.xml",
              "<texts><page id='17'><string id='1'>Barge</string></page><page id='3'/></texts>");
        succeed("pack mod mod.cat");
    }
};

TEST_F(KeshtoolTexts, OneText) {
    EXPECT_EQ(output("text 17 1 --data game"), "Ferry\n");
    EXPECT_EQ(output("text 17 1 --data game --lang 49"), "F\xC3\xA4hre\n");
    EXPECT_EQ(output("text 17 -2 --data game --mod mod.cat"), "Barge\nbig\n\tend\n");
    EXPECT_EQ(output("text 17 -2 --raw --data game"), "{:1}\\n[b]big[/b]\n\tend\n");
    EXPECT_EQ(output("text -3 99 --data game"), "[string -3:99]\n");
}

TEST_F(KeshtoolTexts, AllTexts) {
    EXPECT_EQ(output("texts --data game --mod mod.cat"),
              "17\t\tObjects\n17\t1\tBarge\n17\t-2\t{:1}\\n[b]big[/b]\\n\\tend\n3\t\t\n");
}

TEST_F(KeshtoolTexts, ProblemsAreWarnings) {
    write("game/t/0000-L044.xml", "<texts>");
    write("game/t/0003-L044.xml", "<universe/>");
    for (const char* line : {"text 17 1 --data game", "texts --data game"}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 1) << line;
        EXPECT_NE(result.out.find("Ferry\n"), std::string::npos) << result.out;
        for (const char* told : {"0000-L044", "0003-L044", "line 1"})
            EXPECT_NE(result.err.find(told), std::string::npos) << result.err;
    }
    const Result none = run("text 17 1 --data game --lang 7");
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.out, "[string 17:1]\n");
    EXPECT_NE(none.err.find("LangID=7"), std::string::npos) << none.err;
    for (const char* line : {"text 17 --data game", "text 17 x --data game", "texts 3"})
        EXPECT_EQ(run(line).code, 2) << line;
}

} // namespace
