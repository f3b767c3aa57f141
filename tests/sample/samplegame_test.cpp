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
    static inline support::ScratchDir* s_scratch = nullptr;
    clsArchive m_archive;
};

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
    const std::pair<const char*, int> files[] = {
        {"TBullets", 55},   {"TLaser", 52},       {"TMissiles", 52}, {"TShields", 49},
        {"TCockpits", 49},  {"TWareB", 48},       {"TWareE", 48},    {"TWareF", 48},
        {"TWareM", 48},     {"TWareN", 48},       {"TWareT", 48},    {"TShips", 50},
        {"TFactories", 50}, {"TDocks", 50},       {"TSpecial", 48},  {"Wrecks", 50},
        {"TGates", 48},     {"TPlanets", 48},     {"TSuns", 48},     {"TAsteroids", 48},
        {"TDebris", 48},    {"TBackgrounds", 48}, {"TNebula", 15},   {"Jobs", 10},
        {"JobWings", 0},    {"WareLists", 0},     {"IconData", 0},
    };
    for (const auto& [name, version] : files) {
        SCOPED_TRACE(name);
        const auto parser = file(name);
        ASSERT_NE(parser, nullptr);
        EXPECT_EQ(parser->Version(), version);
        ASSERT_FALSE(parser->ByIndex().empty());
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
        {"mods\\longhaul.cat::types\\TShips.pck", 50, 55, -1},
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
