#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/gametexts.h"
#include "support/loadtext.h"
#include "tdata/DataCheck.h"
#include "tdata/clsArchive.h"

#include <gtest/gtest.h>

using support::repeat;
using support::writeFile;

namespace {

/// A laser, a ship and a job, each with what is asked about set.
std::string laser(const char* bullet) {
    return repeat("0;", 9) + bullet + ';' + repeat("0;", 12) + "LAS;";
}
std::string ship(const char* shield, const char* wareList, const std::string& turret = "") {
    return repeat("0;", 22) + shield + ';' + repeat("0;", 7) + wareList + ';' + repeat("0;", 14) +
           "1;" + repeat("0;", 6) + "2031;" + (turret.empty() ? "0;" : "1;") + turret + "0;" +
           repeat("0;", 9) + "SHIP;";
}
std::string job(const char* wing, const char* list, const char* shipId) {
    return "1;" + repeat("0;", 12) + wing + ';' + list + ";0;0;0;" + shipId + ';' +
           repeat("0;", 100) + "name\r\n";
}

class CheckTest : public testing::Test {
protected:
    void TearDown() override { Archive.reset(); }

    void haveFiles(std::initializer_list<std::pair<const char*, std::string>> files) {
        for (const auto& [name, text] : files)
            writeFile(m_dir / (std::string("types/") + name + ".txt"), text);
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
        Archive = std::make_unique<clsArchive>();
    }

    /// "record:field:E" or ":N" for each finding.
    std::string found(const std::string& text, std::int32_t type, bool withTexts = false) {
        clsTxtParser parser;
        EXPECT_TRUE(support::load(parser, text, type)) << parser.GetLastError();
        CheckReferences references(m_withGame, withTexts);
        std::string list;
        for (const Finding& finding : CheckTFile(parser, "test.txt", references))
            list += std::to_string(finding.Record) + ':' + std::to_string(finding.Field) +
                    (finding.Level == Severity::Error ? ":E " : ":N ");
        return list;
    }

    support::ScratchDir m_dir;
    bool m_withGame = true;
};

} // namespace

TEST_F(CheckTest, MissingFilesAreNotedOnceAndTheirReferencesPassedOver) {
    haveFiles({});
    EXPECT_EQ(found("1;2;" + laser("999") + repeat("0;", 22) + "SAL;", otype::Laser), "-1:-1:N ");
    EXPECT_EQ(found("1;1;" + ship("5", "-1"), otype::Ships), "-1:-1:N ");
    EXPECT_EQ(found("1;1;ANY;", otype::WareLists), repeat("-1:-1:N ", 9));
    m_withGame = false;
    EXPECT_EQ(found("1;1;" + laser("999"), otype::Laser), "");
}

TEST_F(CheckTest, PositionsRunFromTheFirstObjectToTheLast) {
    haveFiles({{"TBullets", "53;2;" + repeat(repeat("0;", 47), 2)},
               {"TShields", "1;1;" + repeat("0;", 21)},
               {"TWareT", "48;1;" + repeat("0;", 17)},
               {"WareLists", "2;1;A;1;B;"}});
    for (const auto& [bullet, expected] :
         std::initializer_list<std::pair<const char*, const char*>>{
             {"0", ""}, {"1", ""}, {"2", "0:9:E "}, {"-1", "0:9:E "}, {"x", "0:9:E "}})
        EXPECT_EQ(found("1;1;" + laser(bullet), otype::Laser), expected) << bullet;
    EXPECT_EQ(found("1;1;" + ship("0", "1"), otype::Ships), "");
    EXPECT_EQ(found("1;1;" + ship("0", "-1"), otype::Ships), ""); // no list at all
    EXPECT_EQ(found("1;1;" + ship("1", "2"), otype::Ships), "0:22:E 0:30:E ");
    EXPECT_EQ(found("1;1;" + ship("-1", "0"), otype::Ships), "0:22:E ");
    const auto bulletOf = [](const std::string& ammo) {
        return "53;1;" + repeat("0;", 37) + ammo + ';' + repeat("0;", 8) + "BUL;";
    };
    EXPECT_EQ(found(bulletOf("0"), otype::Bullets) + found(bulletOf("-1"), otype::Bullets), "");
    EXPECT_EQ(found(bulletOf("1"), otype::Bullets), "0:37:E ");
}

TEST_F(CheckTest, JobsReferToWingsByNameOrNumber) {
    haveFiles({{"JobWings", "5;7,8;\r\n"},
               {"Jobs", "10;\r\n" + job("0", "0", "")},
               {"WareLists", "1;1;A;"},
               {"TShips", "1;1;" + ship("0", "0")}});
    for (const auto& [text, expected] : std::initializer_list<std::pair<std::string, const char*>>{
             {job("5", "0", "SHIP"), ""},
             {job("8", "0", "0"), ""}, // the name of a group is its last value
             {job("-1", "-1", ""), ""},
             {job("7", "1", "ship"), "0:13:E 0:14:E 0:18:E "}})
        EXPECT_EQ(found("10;\r\n" + text, otype::Jobs), expected) << text;
    EXPECT_EQ(found("1;1,2;\r\n", otype::JobWings), "0:2:E ");
}

TEST_F(CheckTest, NamesAreErrorsAndDescriptionsNotes) {
    haveFiles({});
    const auto ware = [](const char* name) {
        return std::string("1;1;") + repeat("0;", 6) + name + ';' + repeat("0;", 9) + "WARE;";
    };
    EXPECT_EQ(found(ware("900"), otype::Ware), ""); // no texts to look into
    const support::GameTexts texts("<page id=\"17\"><string id=\"1\">a</string>"
                                   "<string id=\"2\">b</string></page>");
    for (const auto& [name, expected] : std::initializer_list<std::pair<const char*, const char*>>{
             {"0", ""}, {"1", ""}, {"2", "0:6:N "}, {"3", "0:6:E "}, {"x", "0:6:E "}})
        EXPECT_EQ(found(ware(name), otype::Ware, true), expected) << name;
}

TEST_F(CheckTest, BrokenShipsAreToldNotRead) {
    haveFiles({{"TShields", "1;1;" + repeat("0;", 21)},
               {"TCockpits", "1;1;" + repeat("0;", 19)},
               {"WareLists", "1;1;A;"}});
    // A turret whose index has no pair of descriptors; a text in place of an index.
    for (const auto& [turret, expected] :
         std::initializer_list<std::pair<const char*, const char*>>{{"2;1;b;0;", ""},
                                                                    {"8;1;b;0;", "0:54:E "},
                                                                    {"x;1;b;0;", "0:54:E "},
                                                                    {"2;x;b;0;", "0:55:E "}})
        EXPECT_EQ(found("1;1;" + ship("0", "0", turret), otype::Ships), expected) << turret;
}
