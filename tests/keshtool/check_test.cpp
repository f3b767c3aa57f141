#include "keshtool/keshtool.h"
#include "sample/samplegame.h"

#include <algorithm>
#include <vector>

namespace {

/// Lines of a check without their sentences, or of a list of faults, sorted.
std::vector<std::string> places(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line.substr(0, line.find(": ")));
    std::ranges::sort(lines);
    return lines;
}

class SampleCheck : public Keshtool {
protected:
    void SetUp() override {
        std::string error;
        ASSERT_TRUE(sample::writeSampleGame(root + "game", 1, error)) << error;
    }
};

} // namespace

TEST_F(SampleCheck, FindsTheFaultsThatAreThereAndNoOthers) {
    const auto faults = places(read("game/faults.txt"));
    EXPECT_GT(faults.size(), 30U);
    for (const char* line : {"--data game check --all", "--data game check --all --lang 49",
                             "--data game --mod game/mods/longhaul.cat check --all"}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 1) << line;
        EXPECT_EQ(result.err, "") << line;
        EXPECT_EQ(places(result.out), faults) << line;
    }
}

TEST_F(SampleCheck, TellsOfSingleFilesWhatIsWrong) {
    const Result texts = run("--data game check game/faulty/0009-L044.xml");
    EXPECT_EQ(texts.code, 1);
    EXPECT_NE(texts.out.find("\t3100:91\t\terror: The reference to 3100:9999 leads nowhere.\n"),
              std::string::npos)
        << texts.out;
    const Result lasers = run("--data game check game/faulty/TLaser.txt game/types/TWareT.txt");
    EXPECT_EQ(lasers.code, 1);
    EXPECT_NE(lasers.out.find("\t9\terror: \"Projectile\" is \"900\", but TBullets has the objects "
                              "0 to 15.\n"),
              std::string::npos)
        << lasers.out;
    EXPECT_EQ(output("--data game check game/types/TWareT.txt vfs://types/TShips.pck"), "");
    // Alone a file is held only against what it says itself.
    EXPECT_EQ(places(output("check game/types/TWareT.txt")).size(), 0U);
}

TEST_F(Keshtool, CheckGoesOnBehindAFileThatCannotBeRead) {
    write("TWareT.txt", "31;1;0;");
    write("0001-L044.xml", "<texts language=\"44\">\n<page id=\"1\">");
    write("TWareB.txt", "31;1;0;0;0;0;0;0;0;0;0;0;0;9;0;0;0;0;WARE;\n");
    const Result result = run("check TWareT.txt missing.txt 0001-L044.xml TWareB.txt");
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.out, "TWareB.txt\t0\tWARE\t11\terror: \"Ware class\" is \"9\", which is no "
                          "ware class.\n");
    for (const char* said : {"TWareT.txt", "missing.txt not found", "0001-L044.xml", "line 2"})
        EXPECT_NE(result.err.find(said), std::string::npos) << said << '\n' << result.err;
    EXPECT_EQ(run("check").code, 2);
    EXPECT_EQ(run("check --all TWareB.txt").code, 2);
}

TEST_F(Keshtool, DumpNamesEveryFieldOfARecord) {
    write("TWareT.txt", "31;1;a;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;WARE;\n");
    const std::string names = output("dump TWareT.txt --names");
    EXPECT_TRUE(names.starts_with("0\tBody file\ta\n1\tPicture ID\t1\n")) << names;
    EXPECT_TRUE(names.ends_with("\n15\tSkin index\t15\n16\tID\tWARE\n")) << names;
    const std::string json = output("dump TWareT.txt --names --json");
    EXPECT_NE(json.find("\"fields\":[{\"index\":0,\"name\":\"Body file\",\"value\":\"a\"},"
                        "{\"index\":1,\"name\":\"Picture ID\",\"value\":1}"),
              std::string::npos)
        << json;
}

TEST_F(Keshtool, DumpNamesTurretsAndGuns) {
    std::string ship;
    for (int i = 0; i < 53; ++i)
        ship += "0;";
    write("TShips.txt",
          "50;1;" + ship + "1;1;0;body;2;1;1;1;1;1;1;1;gun;3;;-1;" + "0;0;0;0;0;0;0;0;0;SHIP;\n");
    const std::string names = output("dump TShips.txt --names");
    EXPECT_NE(names.find("\n30\tWare List ID\t0\n31\tType\t0\n32\tPosition\t0\n"),
              std::string::npos)
        << names;
    EXPECT_NE(
        names.find("\n53\tTurret count\t1\n54\tIndex\t1\n55\tTurr. Idx\t0\n56\tBody ID\tbody\n"
                   "57\tPath Idx\t2\n58\tGun groups count\t1\n59\tInit gun idx\t1\n"
                   "60\t# of guns\t1\n61\tIndex\t1\n62\tGun entries\t1\n63\tGun index\t1\n"
                   "64\tGun Count\t1\n65\tBody ID\tgun\n66\tPath idx.\t3\n67\tBody ID (2)\t\n"
                   "68\tPath idx (2)\t-1\n69\tVolume\t0\n"),
        std::string::npos)
        << names;
}
