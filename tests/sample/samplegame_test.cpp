#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "lornfd/catalog.h"
#include "sample/samplegame.h"
#include "support/loadtext.h"
#include "tdata/clsArchive.h"

#include <QString>
#include <QXmlStreamReader>

#include <map>
#include <set>
#include <tuple>

namespace {

using Directory = std::filesystem::path;
using NameSet = std::set<std::string, std::less<>>;

std::map<std::string, std::string> contentOf(const Directory& root) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(root)] = support::readFile(entry.path());
    return files;
}

std::string unpacked(const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const std::string content(LornFD_ViewFile(file));
    LornFD_CloseFile(file);
    return content;
}

/// The game at scale 1, made once; the view over it without the mod.
class SampleGame : public testing::Test {
protected:
    static void SetUpTestSuite() {
        s_scratch = new support::ScratchDir;
        std::string error;
        ASSERT_TRUE(sample::writeSampleGame(root(), 1, error)) << error;
    }
    static void TearDownTestSuite() { delete s_scratch; }

    void SetUp() override {
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(root())), 0);
    }

    static std::string root() { return *s_scratch / "game"; }

    std::shared_ptr<clsTxtParser> file(const char* name) {
        auto parser = m_archive.GetFile(name);
        EXPECT_NE(parser, nullptr) << m_archive.GetLastError();
        return parser;
    }
    NameSet ids(std::initializer_list<const char*> names) {
        NameSet found;
        for (const char* name : names)
            for (const RecordPtr& record : file(name)->ByIndex())
                found.emplace(record->ObjectName());
        return found;
    }

    static inline support::ScratchDir* s_scratch = nullptr;
    clsArchive m_archive;
};

int whole(const RecordPtr& record, std::int32_t index) {
    return static_cast<int>(record->ValueNumber(index).value());
}

} // namespace

TEST_F(SampleGame, IsTheSameBytesEachTime) {
    std::string error;
    ASSERT_TRUE(sample::writeSampleGame(*s_scratch / "again", 1, error)) << error;
    const auto first = contentOf(root());
    EXPECT_EQ(first, contentOf(*s_scratch / "again"));
    EXPECT_TRUE(first.contains("mods/longhaul.cat"));
}

TEST_F(SampleGame, LeavesADirectoryWithFilesAlone) {
    const auto before = contentOf(root());
    std::string error;
    EXPECT_FALSE(sample::writeSampleGame(root(), 1, error));
    EXPECT_NE(error.find("not empty"), std::string::npos) << error;
    EXPECT_EQ(contentOf(root()), before);
}

TEST_F(SampleGame, EveryTypeLoadsThroughTheView) {
    const std::tuple<const char*, int, std::size_t> files[] = {
        {"TBullets", 55, 16},    {"TLaser", 52, 14},    {"TMissiles", 52, 9},
        {"TShields", 49, 4},     {"TCockpits", 49, 6},  {"TWareB", 48, 8},
        {"TWareE", 48, 3},       {"TWareF", 48, 9},     {"TWareM", 48, 4},
        {"TWareN", 48, 6},       {"TWareT", 48, 12},    {"TShips", 50, 52},
        {"TFactories", 50, 30},  {"TDocks", 50, 6},     {"TSpecial", 48, 6},
        {"Wrecks", 50, 4},       {"TGates", 48, 5},     {"TPlanets", 48, 8},
        {"TSuns", 48, 4},        {"TAsteroids", 48, 5}, {"TDebris", 48, 3},
        {"TBackgrounds", 48, 6}, {"TNebula", 15, 4},    {"Jobs", 10, 40},
        {"JobWings", 0, 13},     {"WareLists", 0, 24},  {"IconData", 0, 31},
    };
    for (const auto& [name, version, count] : files) {
        SCOPED_TRACE(name);
        const auto parser = file(name);
        ASSERT_NE(parser, nullptr);
        EXPECT_EQ(parser->Version(), version);
        EXPECT_EQ(parser->ByIndex().size(), count);
        EXPECT_FALSE(parser->ByIndex().back()->ObjectName().empty());
    }
}

TEST_F(SampleGame, OlderVersionsAndCatalogsLoad) {
    const std::tuple<const char*, int, std::size_t, std::int32_t> files[] = {
        {"versions\\TNebula_13.txt", 13, 4, 27},
        {"versions\\TNebula_14.txt", 14, 4, 36},
        {"versions\\TMissiles_48.txt", 48, 9, 37},
        {"versions\\TLaser_49.txt", 49, 14, 23},
        {"versions\\Jobs_8.txt", 8, 40, 117},
        {"versions\\Jobs_9.txt", 9, 40, 119},
        {"01.cat::types\\Jobs.pck", 9, 40, 119},
        {"02.cat::types\\Jobs.pck", 10, 40, 120},
        {"01.cat::types\\TDocks.pck", 47, 6, 28},
        {"02.cat::types\\TNebula.pck", 15, 4, 36},
        {"mods\\longhaul.cat::types\\TShields.txt", 49, 5, 21},
        {"mods\\longhaul.cat::types\\TShips.pck", 50, 29, -1},
        {"versions\\TShips_48.txt", 48, 52, -1},
    };
    for (const auto& [name, version, count, size] : files) {
        SCOPED_TRACE(name);
        const std::int32_t open =
            LornFD_OpenFile(root() + "\\" + name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        clsTxtParser parser;
        EXPECT_TRUE(parser.Load(open, ObjectTypeFromFile(name))) << parser.GetLastError();
        LornFD_CloseFile(open);
        ASSERT_EQ(parser.ByIndex().size(), count);
        EXPECT_EQ(parser.Version(), version);
        if (size > 0) {
            EXPECT_EQ(parser.FindIndex(0)->size(), size);
        }
    }
}

TEST_F(SampleGame, CountsInsideShipsAgreeWithTheirData) {
    std::set<int> turretCounts;
    for (const RecordPtr& ship : file("TShips")->ByIndex()) {
        SCOPED_TRACE(ship->ObjectName());
        const int turrets = whole(ship, 53);
        turretCounts.insert(turrets);
        std::int32_t at = 54 + 4 * turrets;
        EXPECT_EQ(whole(ship, at), turrets);
        int guns = 0;
        ++at;
        for (int group = 1; group <= turrets; ++group) {
            EXPECT_EQ(whole(ship, at), guns + 1);
            EXPECT_EQ(whole(ship, at + 2), group);
            const int entries = whole(ship, at + 3);
            const int last = guns + whole(ship, at + 1);
            at += 4;
            for (int entry = 0; entry < entries; ++entry, at += 6) {
                EXPECT_EQ(whole(ship, at), guns + 1);
                guns += whole(ship, at + 1);
            }
            EXPECT_EQ(guns, last);
        }
        EXPECT_EQ(at + 10, ship->size());
        EXPECT_EQ(whole(ship, 19), guns);
    }
    EXPECT_EQ(turretCounts, (std::set{0, 1, 2, 3, 5, 6, 7}));
}

TEST_F(SampleGame, ReferencesHold) {
    const auto count = [&](const char* name) {
        return static_cast<int>(file(name)->ByIndex().size());
    };
    for (const RecordPtr& laser : file("TLaser")->ByIndex())
        EXPECT_NE(file("TBullets")->FindIndex(whole(laser, 9)), nullptr) << laser->ObjectName();
    for (const RecordPtr& ship : file("TShips")->ByIndex()) {
        EXPECT_LT(whole(ship, 22), count("TShields"));
        EXPECT_LT(whole(ship, 30), count("WareLists"));
        for (std::int32_t pair = 31; pair < 43; pair += 2)
            EXPECT_LT(whole(ship, pair), count("TCockpits"));
    }
    const auto wares = ids({"TWareB", "TWareE", "TWareF", "TWareM", "TWareN", "TWareT", "TShields",
                            "TMissiles", "TLaser"});
    for (const RecordPtr& list : file("WareLists")->ByIndex())
        for (std::int32_t i = 0; i < list->size(); ++i)
            EXPECT_TRUE(wares.contains(list->ValueText(i))) << list->ValueText(i);
    const auto ships = ids({"TShips"});
    NameSet wings;
    for (const RecordPtr& wing : file("JobWings")->ByIndex())
        wings.emplace(wing->ValueText(0));
    for (const RecordPtr& job : file("Jobs")->ByIndex()) {
        EXPECT_TRUE(job->ValueText(18).empty() || ships.contains(job->ValueText(18)));
        EXPECT_TRUE(job->ValueText(13) == "0" || wings.contains(job->ValueText(13)));
        EXPECT_LT(whole(job, 14), count("WareLists"));
    }
}

TEST_F(SampleGame, NamesHaveTextsInBothLanguages) {
    for (const char* path : {"t\\0002-L044.pck", "01.cat::t\\0002-L049.pck"}) {
        std::set<int> strings;
        QXmlStreamReader xml(QByteArray::fromStdString(unpacked(root() + "\\" + path)));
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"string")
                strings.insert(xml.attributes().value(QLatin1String("id")).toInt());
        EXPECT_FALSE(xml.hasError()) << path << ": " << xml.errorString().toStdString();
        for (const char* name : {"TShips", "TLaser", "TWareN", "TFactories", "TNebula", "TGates"})
            for (const RecordPtr& record : file(name)->ByIndex())
                EXPECT_TRUE(strings.contains(whole(record, 6))) << path << record->ObjectName();
    }
}

TEST_F(SampleGame, GatesLeadBack) {
    using Place = std::tuple<int, int, int>; // sector x, y, gate
    std::map<Place, Place> gates;
    std::set<std::pair<int, int>> sectors;
    std::pair<int, int> sector;
    QXmlStreamReader xml(
        QByteArray::fromStdString(unpacked(root() + "\\02.cat::maps\\universe.pck")));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto number = [&](const char* key) {
            return xml.attributes().value(QLatin1String(key)).toInt();
        };
        if (number("t") == 1)
            sectors.insert(sector = {number("x"), number("y")});
        if (number("t") == 18)
            gates[{sector.first, sector.second, number("gid")}] = {number("gx"), number("gy"),
                                                                   number("gtid")};
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(sectors.size(), 64u);
    EXPECT_EQ(gates.size(), 200u);
    for (const auto& [from, to] : gates)
        EXPECT_EQ(gates[to], from);
}

TEST_F(SampleGame, ValuesAreSpelledAsPeopleSpellThem) {
    const std::string text = unpacked(root() + "\\02.cat::types\\TShips.pck");
    for (const char* spelling :
         {";000;", ";0.50;", ";1e3;", "; 0.25 ;", "/* by eye */", "// retired", ";+10;", ";\r\n  "})
        EXPECT_NE(text.find(spelling), std::string::npos) << spelling;
    EXPECT_NE(text.find(";\n"), std::string::npos);
}
