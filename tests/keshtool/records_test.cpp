#include "keshtool/keshtool.h"
#include "lornfd/lornfd.h"

namespace {

TEST_F(Keshtool, DumpsALineForEachRecord) {
    write("TWareT.txt", Wares);
    EXPECT_EQ(output("dump TWareT.txt"),
              "0\tSS_WARE_A\t007;0;+5;1e3;0.50;-0;0.5;-12;12;0;text;1.25;\"q\";;"
              "100000000000000000000;9;SS_WARE_A;\n"
              "1\tSS_WARE_B\t0;0;0;0;0;0;0;0;0;0;0;0;0;0.00005;0.0001;caf\xE9;SS_WARE_B;\n");
}

TEST_F(Keshtool, JsonNumbersStandOnlyWhereTheyKeepTheSpelling) {
    write("TWareT.txt", Wares);
    EXPECT_EQ(output("dump TWareT.txt --json"),
              R"({"type":6,"version":31,"records":[{"index":0,"id":"SS_WARE_A","values":)"
              R"(["007",0,"+5","1e3","0.50","-0",0.5,-12,12,0,"text",1.25,"\"q\"","",)"
              R"("100000000000000000000",9,"SS_WARE_A"]},{"index":1,"id":"SS_WARE_B","values":)"
              "[0,0,0,0,0,0,0,0,0,0,0,0,0,\"0.00005\",0.0001,\"caf\u00e9\",\"SS_WARE_B\"]}]}\n");
}

TEST_F(Keshtool, AFileWithoutRecordsIsDumpedButNotSaved) {
    write("TWareT.txt", "31;0;");
    EXPECT_EQ(output("dump TWareT.txt"), "");
    EXPECT_EQ(output("dump --json TWareT.txt"), "{\"type\":6,\"version\":31,\"records\":[]}\n");
    write("TWareB.txt", "old");
    EXPECT_EQ(run("convert TWareT.txt TWareB.txt").code, 3);
    EXPECT_EQ(read("TWareB.txt"), "old");
    write("Jobs.txt", "8;"); // these have no count to be 0
    succeed("convert Jobs.txt out.txt");
    EXPECT_EQ(read("out.txt"), "8;\r\n");
}

TEST_F(Keshtool, ConvertKeepsEverySpellingInEveryForm) {
    write("TWareT.txt", Wares);
    const std::string records = output("dump TWareT.txt");
    const struct {
        const char* line;
        const char* file;
        std::int32_t form;
    } cases[] = {
        {"convert TWareT.txt TWareT.pck", "TWareT.pck", LORNFD_ZSTD},
        {"convert TWareT.pck TWareB.txt", "TWareB.txt", LORNFD_PLAIN},
        {"convert TWareB.txt TWareE.PCK --type gzip", "TWareE.PCK", LORNFD_GZIP},
        {"convert --type zstd TWareE.PCK TWareF.txt", "TWareF.txt", LORNFD_ZSTD},
        {"convert TWareF.txt TWareF.txt --type plain", "TWareF.txt", LORNFD_PLAIN},
    };
    for (const auto& [line, file, form] : cases) {
        succeed(line);
        EXPECT_EQ(formOf(file), form) << line;
        EXPECT_EQ(output((std::string("dump ") + file).c_str()), records) << line;
    }
    EXPECT_TRUE(read("TWareF.txt").starts_with("// Created with "));
}

TEST_F(Keshtool, ConvertWritesIntoACatalogAndTheView) {
    write("TWareT.txt", Wares);
    write("game/old.txt", "old");
    succeed("put game/old.txt game/01.cat::types\\TWareT.pck --create");
    succeed("convert TWareT.txt vfs://types/TWareT --data game");
    EXPECT_EQ(output("dump game/01.cat::types/TWareT.pck"), output("dump TWareT.txt"));
    const Result missing = run("convert TWareT.txt vfs://types/TWareF.pck --data game");
    EXPECT_EQ(missing.code, 3);
    EXPECT_EQ(missing.err, "keshtool: File vfs://types/TWareF.pck not found.\n");
}

} // namespace
