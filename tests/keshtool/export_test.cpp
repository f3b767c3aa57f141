#include "keshtool/keshtool.h"

namespace {

std::string zeros(int count) {
    std::string text;
    while (count-- > 0)
        text += "0;";
    return text;
}

class KeshtoolExport : public Keshtool {
protected:
    KeshtoolExport() {
        // class 3, name 7, speed 30000, race 2; tunnings 2 and 3
        write("TShips.txt", "48;1;0;0;0;0;0;3;7;30000;" + zeros(18) + "2;3;" + zeros(17) + "2;" +
                                zeros(18) + "SS_SHIP;\r\n");
        write("game/types/TShields.txt", "40;1;" + zeros(8) + "5000;" + zeros(11) + "SHIELD;");
        for (const auto& [language, name] : {std::pair("44", "Ferry"), std::pair("49", "Kahn")})
            write(std::string("game/t/0001-L0") + language + ".xml",
                  std::string("<texts><page id='17'><string id='7'>") + name +
                      "; old</string></page></texts>");
        succeed("pack game mod.cat");
    }

    /// The line of the only ship.
    [[nodiscard]] std::string row(const char* line) const {
        succeed(line);
        const std::string text = read("out.txt");
        EXPECT_TRUE(text.starts_with("TShips file TShips.txt - generated with ")) << text;
        return text.substr(text.find("\r\n0;") + 2);
    }
};

TEST_F(KeshtoolExport, TableTakesNamesAndShieldsFromTheGame) {
    const std::string numbers = ";60.00;72.00;2;3;0.000;0;0;0;";
    EXPECT_EQ(row("export TShips.txt out.txt"), "0;SS_SHIP;Boron;M1" + numbers + "N/A;0;0;0;\r\n");
    EXPECT_EQ(row("--data game export TShips.txt out.txt --format table"),
              "0;Ferry, old;Boron;M1" + numbers + "5000;0;0;0;\r\n");
    EXPECT_EQ(row("--mod mod.cat export TShips.txt out.txt --lang 49"),
              "0;Kahn, old;Boron;M1" + numbers + "5000;0;0;0;\r\n");
}

TEST_F(KeshtoolExport, RecordsGoIntoACatalogToo) {
    succeed("export TShips.txt out.txt --format records");
    const std::string text = read("out.txt");
    EXPECT_TRUE(text.starts_with("Body file: 0\r\nPicture ID: 0\r\n")) << text;
    EXPECT_TRUE(text.ends_with("Skin index: 0\r\nN/A: SS_SHIP\r\n\r\n")) << text;
    succeed("put TShips.txt mod.cat::types\\TShips.pck --type zstd");
    succeed("export --mod mod.cat vfs://types/TShips mod.cat::ships.txt --format records");
    EXPECT_EQ(output("cat mod.cat::ships.txt"), text);
}

TEST_F(KeshtoolExport, OneObjectIsWrittenWithIndices) {
    write("TWareT.txt", Wares);
    succeed("export TWareT.txt out.txt --index 1");
    const std::string text = read("out.txt");
    EXPECT_TRUE(text.starts_with("0: Body file: ")) << text;
    EXPECT_EQ(std::ranges::count(text, '\n'), 17);
    EXPECT_NE(text.find("\r\n5: Index: "), std::string::npos) << text;
    for (const char* line :
         {"export TWareT.txt out.txt --index 9", "export TWareT.txt out.txt --index -1",
          "export TShips.txt out.txt --index 0", "export TWareT.txt TWareT.txt --index 0"}) {
        EXPECT_EQ(run(line).code, 3) << line;
        EXPECT_EQ(read("out.txt"), text) << line;
    }
}

TEST_F(KeshtoolExport, WhatCannotBeExportedReplacesNothing) {
    write("TWareT.txt", Wares);
    write("out.txt", "old");
    write("broken/TShips.txt", "48;1;0;");
    const std::string ships = read("TShips.txt");
    for (const char* line : {"export TWareT.txt out.txt", "export none/TShips.txt out.txt",
                             "export broken/TShips.txt out.txt", "export TShips.txt TShips.txt",
                             "export TShips.txt ./tships.TXT", "export TShips.txt none/out.txt"}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 3) << line;
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
    }
    EXPECT_EQ(read("out.txt"), "old");
    EXPECT_EQ(read("TShips.txt"), ships);
    const Result untold = run("--data game export TShips.txt out.txt --lang 7");
    EXPECT_EQ(untold.code, 1) << "no texts of that language";
    EXPECT_NE(read("out.txt").find("0;SS_SHIP;"), std::string::npos);
}

} // namespace
