#include "keshtool/keshtool.h"

namespace {

class KeshtoolView : public Keshtool {
protected:
    KeshtoolView() {
        write("first/types/TWareT.txt", Wares);
        write("first/types/a.txt", "game");
        write("first/t/0001-L044.xml", "<t/>");
        write("game/types/b.txt", "loose");
        succeed("pack first game/01.cat");
        write("second/types/a.txt", "mod");
        write("mods/readme.txt", "");
        succeed("pack second mods/my.cat");
    }
};

TEST_F(KeshtoolView, LsGivesNamesAndRealPlaces) {
    EXPECT_EQ(output("ls types\\* --data game"),
              "types\\a.txt\tgame/01.cat::types\\a.txt\n"
              "types\\b.txt\tgame/types/b.txt\n"
              "types\\TWareT.txt\tgame/01.cat::types\\TWareT.txt\n");
    EXPECT_EQ(output("--data game --mod mods/my.cat ls vfs://types/a"),
              "types\\a.txt\tmods/my.cat::types\\a.txt\n");
    EXPECT_EQ(output("ls T*\\*-L044 --data game"),
              "t\\0001-L044.xml\tgame/01.cat::t\\0001-L044.xml\n");
}

TEST_F(KeshtoolView, LsWithoutMaskGivesEveryFile) {
    EXPECT_EQ(output("ls --mod mods/my.cat"), "types\\a.txt\tmods/my.cat::types\\a.txt\n");
    EXPECT_EQ(output("ls"), "") << "no data root: the working directory is not looked at";
    const std::string all = output("ls --data game");
    EXPECT_EQ(output("ls --data game vfs://"), all);
    for (const char* name : {"types\\a.txt\t", "types\\b.txt\t", "t\\0001-L044.xml\t", "01.cat\t"})
        EXPECT_NE(all.find(name), std::string::npos) << all;
}

TEST_F(KeshtoolView, EveryCommandTakesNamesInTheView) {
    EXPECT_EQ(output("cat vfs://types\\a.txt --data game"), "game");
    EXPECT_EQ(output("cat --mod mods/my.cat vfs://types/A --data game"), "mod");
    EXPECT_EQ(output("dump vfs://types/TWareT --data game"),
              output("dump game/01.cat::types\\TWareT.txt"));
    succeed("put game/types/b.txt vfs://types/a.txt --data game");
    EXPECT_EQ(output("cat game/01.cat::types/a.txt"), "loose");
    succeed("rm vfs://types/a.txt --data game");
    EXPECT_EQ(run("cat game/01.cat::types/a.txt").code, 3);
    EXPECT_EQ(run("rm vfs://types/b.txt --data game").code, 2) << "a loose file is no entry";
    EXPECT_EQ(read("game/types/b.txt"), "loose");
}

TEST_F(KeshtoolView, WhatIsNowhereIsToldByName) {
    for (const char* line : {"cat vfs://types/no.txt --data game", "ls types/no* --data game",
                             "cat vfs://types/no.txt", "cat game/01.cat::types/no.txt",
                             "cat game/no.cat::types/no.txt"}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 3) << line;
        EXPECT_NE(result.err.find("no"), std::string::npos) << result.err;
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
    }
}

TEST_F(KeshtoolView, ABrokenGameCatalogIsAFindingABrokenModAFailure) {
    write("game/02.cat", "rubbish");
    const Result listed = run("ls types/a.txt --data game");
    EXPECT_EQ(listed.code, 1);
    EXPECT_NE(listed.out.find("01.cat::types\\a.txt"), std::string::npos);
    EXPECT_NE(listed.err.find("02.cat"), std::string::npos);
    const Result mod = run("ls --data game --mod game/02.cat");
    EXPECT_EQ(mod.code, 3);
    EXPECT_EQ(mod.out, "");
    EXPECT_NE(mod.err.find("02.cat"), std::string::npos);
    const Result data = run("ls --data nowhere");
    EXPECT_EQ(data.code, 3);
    EXPECT_NE(data.err.find("nowhere"), std::string::npos);
}

} // namespace
