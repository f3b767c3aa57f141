#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/gametexts.h"
#include "support/loadtext.h"
#include "tdata/FieldLookup.h"
#include "tdata/WareFields.h"
#include "tdata/WareRows.h"
#include "tdata/clsArchive.h"

#include <gtest/gtest.h>

namespace {

using support::repeat;

RecordPtr recordOf(std::int32_t type, std::int32_t size = 0) {
    auto record = std::make_shared<clsTXTObject>();
    record->otype = type;
    record->Construct(size > 0 ? size : ObjectSize(type));
    return record;
}

/// Records of that size with an ID each.
std::string fileOf(int version, int size, const std::vector<std::string>& ids) {
    std::string text = std::to_string(version) + ";" + std::to_string(ids.size()) + ";\r\n";
    for (const std::string& id : ids)
        text += repeat("0;", size - 1) + id + ";\r\n";
    return text;
}

constexpr const char* IconData = "ICONTYPE_MAP;dds\\map.dds;256;32;2;\r\nA;0;0;0;9;9;\r\n"
                                 "B;0;1;1;9;9;\r\nICONTYPE_GUI;art/deep\\gui.tga;256;32;3;\r\n"
                                 "ICON_A;0;0;5;30;31;\r\nICON_B;0;32;0;0;30;\r\n"
                                 "ICON_C;0;-1;0;30;30;\r\nICONTYPE_LATE;x.dds;1;1;1;\r\n"
                                 "D;0;1;1;9;9;\r\n";

class WareFieldsTest : public testing::Test {
protected:
    ~WareFieldsTest() override { Archive.reset(); }

    void useFiles() {
        support::writeFile(m_dir / "types/TBullets.txt", fileOf(53, 47, {"BULLET_A", "7", "B"}));
        support::writeFile(m_dir / "types/TWareT.txt", fileOf(48, 17, {"AMMO_A", "AMMO_B"}));
        support::writeFile(m_dir / "types/IconData.txt", IconData);
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
        Archive = std::make_unique<clsArchive>();
    }
    void prepare(std::int32_t type, std::int32_t version) {
        fields.LoadFiles(type);
        fields.SetFile(type, version);
    }
    static constexpr const char* None = "-"; ///< stands for no translation

    std::string shown(const clsTXTObject& record, std::int32_t index, bool raw) const {
        std::string text = "untouched";
        const bool translated = fields.Translate(record, index, text, raw);
        EXPECT_TRUE(translated || text == "untouched");
        return translated ? text : None;
    }
    std::string entered(const clsTXTObject& record, std::int32_t index, const char* text) const {
        KeshValue value = "untouched";
        const bool taken = fields.TranslateBack(record, text, index, value);
        EXPECT_TRUE(taken || value == KeshValue("untouched"));
        return taken ? keshobjects::spellValue(value) : None;
    }

    support::ScratchDir m_dir;
    WareFields fields;
};

struct Case {
    std::int32_t type;
    std::int32_t version;
    std::int32_t field; ///< from the end if negative
    const char* stored;
    const char* shown;
    const char* bare;
    const char* entered;
    const char* restored;
};

const Case Cases[] = {
    // shields
    {2, 50, 7, "007", "007 kW", "007", "2.5", "2"},
    {2, 50, 7, "much", "-", "-", "3000000000", "-"},
    {2, 50, 8, "5", "5 KJ", "5", "many", "-"},
    {2, 50, 8, "25000", "25 MJ", "25000", "3.5", "4"},
    {2, 50, 8, "0", "0 J", "0", "", "-"},
    {2, 50, 8, "0.25", "250 J", "0.25", "1e3", "1000"},
    {2, 50, 8, "1234", "1.234 MJ", "1234", "7", "7"},
    {2, 50, 8, "1e14", "100000 TJ", "1e14", "7", "7"}, // no prefix beyond
    {2, 50, 8, "-5", "-5000 J", "-5", "-5", "-5"},
    {2, 50, 8, "1e306", "-", "1e306", "-0", "0"},
    // lasers
    {3, 50, 7, "500", "120 rnd/min", "120", "120", "500"},
    {3, 50, 7, "0", "0", "0", "0", "-"},
    {3, 50, 7, "7", "8571 rnd/min", "8571", "0.00001", "-"}, // leaves 32 bits
    {3, 50, 7, "fast", "-", "-", "fast", "-"},
    {3, 50, 9, "0", "BULLET_A", "BULLET_A", "B", "2"},
    {3, 50, 9, "1", "7", "7", "7", "7"}, // a number is a place, not the bullet of that name
    {3, 50, 9, "3", "-", "-", "C", "-"},
    {3, 50, 9, "-1", "-", "-", "12.4", "12"},
    {3, 50, 12, "ICON_A", "ICON_A", "ICON_A", " ICON_B ", "ICON_B"},
    {3, 50, 12, "", "-", "-", "", ""},
    {3, 50, 5, "SG_LASER_IRE", "-", "-", "SG_OWN", "SG_OWN"},
    {3, 50, 5, "SG_LASER_IRE", "-", "-", " ", "-"},
    {3, 49, 5, "2", "-", "-", "3", "3"},
    {3, 49, 5, "2", "-", "-", "SG_LASER_IRE", "-"},
    // bullets
    {4, 53, 10, "1250", "1.3 s", "1.3", "0.0126", "13"},
    {4, 53, 11, "150250", "300 m/s", "300", "300.5", "150250"},
    {4, 53, 11, "1250", "2 m/s", "2", "1e306", "-"},
    {4, 53, 13, "255", "0xFF", "0xFF", "ff", "255"},
    {4, 53, 14, "0", "0x0", "0x0", "0x1F", "31"},
    {4, 53, 15, "-1", "0xFFFFFFFF", "0xFFFFFFFF", "FFFFFFFF", "-1"},
    {4, 53, 15, "9e9", "-", "-", "123456789", "-"},
    {4, 53, 15, "255", "0xFF", "0xFF", "0x", "-"},
    {4, 53, 37, "1", "AMMO_B", "AMMO_B", "AMMO_A", "0"},
    {4, 53, 37, "2", "-", "-", "2.5", "2"},
    {4, 53, 37, "x", "-", "-", "AMMO_C", "-"},
    {4, 53, -2, "5", "-", "-", "6.5", "6.5"}, // a list without rows
    // missiles
    {5, 50, 7, "150000", "300 m/s", "300", "12", "6000"},
    {5, 50, 8, "100", "0 m/s", "0", "0.1", "50"},
    {5, 50, 13, "2500", "5 m", "5", "0.001", "0.5"},
    {5, 50, 14, "12500", "12 s", "12", "1.5", "1500"},
    {5, 50, 24, "550", "0.6 s", "0.6", "0.0005", "0"},
    {5, 50, 25, "ICON_B", "ICON_B", "ICON_B", "0100", "0100"},
    // stations
    {7, 48, 12, "7", "4307", "4307", "4300", "0"},
    {10, 48, 12, "7", "4307", "4307", "4300.1", "0"},
    {7, 48, 13, "2", "Boron", "Boron", "Yaki", "19"},
    {10, 48, 13, "0", "N/A", "N/A", "Nobody", "-"},
    {10, 48, 13, "20", "N/A", "N/A", "25", "25"},
    {7, 48, 17, "5", "Large (L)", "Large (L)", "Extra large (XL)", "10"},
    {7, 48, 17, "3", "Unknown value", "Unknown value", "", "-"},
    {7, 48, 17, "11", "N/A", "N/A", "Normal", "1"},
    {7, 48, 18, "ICON_B", "ICON_B", "ICON_B", "X", "X"},
    {10, 48, 17, "ICON_B", "ICON_B", "ICON_B", "X", "X"},
    // distances
    {17, 48, 24, "499000", "998 m", "998", "998", "499000"},
    {17, 48, 25, "500000", "1.000 km", "1000", "0.002", "1"},
    {18, 14, 8, "many", "-", "-", "many", "-"},
    {18, 14, 9, "-500", "-1 m", "-1", "-0", "0"},
    // the common frame
    {6, 48, -6, "2", "medium", "medium", "stations", "5"},
    {16, 48, -6, "6", "N/A", "N/A", "7", "7"},
    {11, 47, 5, "3", "-", "-", "4", "4"},
    {11, 48, 5, "SG_DOCK_HQ", "-", "-", "SG_FAC_FOOD", "SG_FAC_FOOD"},
    // without a conversion
    {8, 48, 3, "1.5", "-", "-", "0.50", "0.5"},
    {8, 48, 3, "1.5", "-", "-", "x", "-"},
    {8, 48, 18, "", "-", "-", "1", "-"},
};

std::string rowsOf(const clsTXTObject& record) {
    constexpr const char* signs[] = {"ID", "Name", "", "b", "d", "charge", "range", "color"};
    std::string text;
    for (const WareRow& row : WareRows(record)) {
        text += signs[static_cast<int>(row.What)];
        if (row.Field >= 0)
            text += std::to_string(row.Field);
        text += ' ';
    }
    return text;
}

std::string numbers(int from, int to) {
    std::string text;
    for (int i = from; i <= to; ++i)
        text += std::to_string(i) + ' ';
    return text;
}

} // namespace

TEST_F(WareFieldsTest, ValuesReadAndAreEnteredByTheirTypes) {
    useFiles();
    for (const Case& c : Cases) {
        prepare(c.type, c.version);
        const auto record = recordOf(c.type);
        const std::int32_t index = c.field < 0 ? record->size() + c.field : c.field;
        if (index < record->size())
            record->SetValue(index, std::string(c.stored));
        EXPECT_EQ(shown(*record, index, false), c.shown) << c.type << '.' << index << c.stored;
        EXPECT_EQ(shown(*record, index, true), c.bare) << c.type << '.' << index << c.stored;
        EXPECT_EQ(entered(*record, index, c.entered), c.restored)
            << c.type << '.' << index << c.entered;
    }
}

TEST_F(WareFieldsTest, ListsHoldWhatCanBeChosen) {
    struct List {
        std::int32_t type;
        std::int32_t field; ///< from the end if negative
        std::size_t rows;
        const char* last;
    };
    const List lists[] = {
        {3, 12, 3, "ICON_C"},
        {5, 25, 3, "ICON_C"},
        {7, 18, 3, "ICON_C"},
        {10, 17, 3, "ICON_C"},
        {3, 9, 3, "B"},
        {4, 37, 2, "AMMO_B"},
        {7, 13, 19, "Yaki"},
        {10, 13, 19, "Yaki"},
        {7, 17, 4, "Extra large (XL)"},
        {6, -6, 6, "stations"},
        {3, 5, 32, "SG_LASER_KYON"},
        {5, 5, 15, "SG_MISSILE_DMBF"},
        {7, 5, 9, "SG_FAC_CCKIT"},
        {10, 5, 6, "SG_DOCK_KHAAK"},
        {11, 5, 31, "SG_FAC_CCKIT"},
    };
    useFiles();
    for (const List& c : lists) {
        prepare(c.type, 53);
        const auto record = recordOf(c.type);
        const auto rows = fields.Values(*record, c.field < 0 ? record->size() + c.field : c.field);
        ASSERT_EQ(rows.size(), c.rows) << c.type << '.' << c.field;
        EXPECT_EQ(rows.back(), c.last) << c.type << '.' << c.field;
    }
    EXPECT_TRUE(fields.Values(*recordOf(4), 45).empty());
}

TEST_F(WareFieldsTest, WithoutFilesStoredValuesServeUntilTheyAreThere) {
    prepare(3, 50);
    const auto laser = recordOf(3);
    EXPECT_EQ(shown(*laser, 9, false), None);
    EXPECT_TRUE(fields.Values(*laser, 12).empty());
    useFiles();
    prepare(3, 50);
    EXPECT_EQ(shown(*laser, 9, false), "BULLET_A");
    EXPECT_EQ(fields.Values(*laser, 12).size(), 3U);
}

// What the panels promise for a field and its conversion go together, in every type.
TEST_F(WareFieldsTest, EveryFieldOfAClassHasItsConversion) {
    useFiles();
    for (std::int32_t type = otype::Shields; type <= otype::Nebula; ++type) {
        if (type == otype::Cockpits)
            continue;
        prepare(type, 53);
        const auto record = recordOf(type);
        for (std::int32_t i = 0; i < record->size() - 1; ++i) {
            const auto kind = FieldTranslation(type, 53, record->size(), i);
            const bool skin = type == otype::Bullets && i == record->size() - 2;
            EXPECT_EQ(kind == translation::List && !skin, !fields.Values(*record, i).empty())
                << type << '.' << i;
            const bool own = FindConversion(OwnWareConversions(type), *record, i) != nullptr;
            EXPECT_TRUE(!own || kind != translation::None) << type << '.' << i;
            if (kind == translation::Number) {
                EXPECT_NE(shown(*record, i, false), None) << type << '.' << i;
                EXPECT_EQ(entered(*record, i, "?"), None) << type << '.' << i;
            }
        }
    }
}

TEST_F(WareFieldsTest, IconsAreThoseOfTheInterface) {
    useFiles();
    GuiIcons icons;
    ASSERT_TRUE(icons.Load());
    EXPECT_EQ(icons.Picture(), "gui.tga");
    EXPECT_EQ(icons.Names(), (std::vector<std::string>{"ICON_A", "ICON_B", "ICON_C"}));
    const auto edge = icons.Find("ICON_C");
    ASSERT_TRUE(edge);
    EXPECT_EQ(edge->X, 0);
    const auto place = icons.Find("ICON_A");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->X, 1);
    EXPECT_EQ(place->Y, 6);
    EXPECT_EQ(place->Width, 30);
    EXPECT_EQ(place->Height, 31);
    for (const char* none : {"ICON_B", "A", "D", "", "icon_a"})
        EXPECT_FALSE(icons.Find(none)) << none;

    clsTxtParser other;
    ASSERT_TRUE(
        support::load(other, "ICONTYPE_MAP;x.dds;1;1;1;\r\nA;0;0;0;9;9;\r\n", otype::IconData));
    icons.Take(other);
    EXPECT_TRUE(icons.Names().empty());
    EXPECT_EQ(icons.Picture(), "");
    icons.Take(clsTxtParser());
    EXPECT_TRUE(icons.Names().empty());
}

TEST(WareRows, EachTypeHasItsOrder) {
    const std::string head = "ID Name ";
    EXPECT_EQ(rowsOf(*recordOf(6)), head + numbers(0, 15));
    EXPECT_EQ(rowsOf(*recordOf(2)), head + numbers(0, 6) + "8 7 charge " + numbers(9, 19));
    EXPECT_EQ(rowsOf(*recordOf(4)),
              head + "22 7 8 10 11 range 12 37 24 25 26 9 20 21 19 23 15 14 13 color 16 17 18 " +
                  numbers(27, 36) + numbers(38, 45));
    const std::string dust = "b11 d12 b13 d14 b15 d16 b17 d18 b19 d20 b21 d22 b23 d24 b25 d26 ";
    EXPECT_EQ(rowsOf(*recordOf(13)), head + numbers(0, 9) + "color 10 " + dust + numbers(27, 35));
    EXPECT_EQ(rowsOf(*recordOf(18)),
              head + numbers(0, 12) + dust.substr(8) + "b27 d28 " + numbers(27, 34));
    EXPECT_EQ(rowsOf(*recordOf(18, 27)), head + numbers(0, 12) + dust.substr(8, 48) + "b25 ");
    EXPECT_EQ(rowsOf(*recordOf(4, 9)), head + "7 range color ");
    EXPECT_EQ(rowsOf(*recordOf(6, 1)), head);
    EXPECT_EQ(rowsOf(clsTXTObject()), "");
}

TEST(WareRows, ComputedRowsAreToldOrLeftOut) {
    struct Computed {
        std::optional<std::string> (*text)(const clsTXTObject&);
        std::int32_t type;
        std::int32_t fields[2];
        const char* values[2];
        const char* result;
    };
    const Computed cases[] = {
        {ChargeTime, 2, {8, 7}, {"1000", "20"}, "50 s"},
        {ChargeTime, 2, {8, 7}, {"25", "10"}, "2.5 s"},
        {ChargeTime, 2, {8, 7}, {"596", "10"}, "59.6 s"},
        {ChargeTime, 2, {8, 7}, {"60", "1"}, "1 min"},
        {ChargeTime, 2, {8, 7}, {"5400", "1"}, "1.5 h"},
        {ChargeTime, 2, {8, 7}, {"864000", "1"}, "240 h"},
        {ChargeTime, 2, {8, 7}, {"-10", "4"}, "-2.5 s"},
        {ChargeTime, 2, {8, 7}, {"10", "0"}, "-"},
        {ChargeTime, 2, {8, 7}, {"", "5"}, "-"},
        {ChargeTime, 2, {8, 7}, {"1e308", "1e-10"}, "-"},
        {BulletRange, 4, {10, 11}, {"1500", "300000"}, "900 m"},
        {BulletRange, 4, {10, 11}, {"1000", "500000"}, "1 km"},
        {BulletRange, 4, {10, 11}, {"2001", "300250"}, "1.202 km"},
        {BulletRange, 4, {10, 11}, {"1", "250000"}, "0 m"}, // half a metre, to even
        {BulletRange, 4, {10, 11}, {"-1", "100"}, "0 m"},
        {BulletRange, 4, {10, 11}, {"1e300", "1e300"}, "-"},
        {BulletRange, 4, {10, 11}, {"x", "1"}, "-"},
    };
    for (const Computed& c : cases) {
        const auto record = recordOf(c.type);
        for (int i = 0; i < 2; ++i)
            record->SetValue(c.fields[i], keshobjects::readValue(c.values[i]));
        EXPECT_EQ(c.text(*record).value_or("-"), c.result) << c.values[0] << ' ' << c.values[1];
        EXPECT_FALSE(c.text(clsTXTObject()));
    }
}

TEST(WareRows, ColorsAreThreeFields) {
    for (const auto& [type, first] : {std::pair(4, 13), std::pair(13, 7)}) {
        const auto record = recordOf(type);
        const char* const parts[] = {"1", "002", "255"}; // blue, green, red
        for (int i = 0; i < 3; ++i)
            record->SetValue(first + i, std::string(parts[i]));
        EXPECT_EQ(ColorOfRecord(*record), 0x0102FF);
        ASSERT_TRUE(SetColorOfRecord(*record, 0x0102F0));
        EXPECT_EQ(record->ValueText(first), "1");
        EXPECT_EQ(record->ValueText(first + 2), "240");
        EXPECT_EQ(ColorOfRecord(*record), 0x0102F0);
        for (const char* bad : {"256", "-1", "red", ""}) {
            record->SetValue(first + 1, std::string(bad));
            EXPECT_FALSE(ColorOfRecord(*record)) << bad;
        }
    }
    for (const auto& none : {recordOf(6), recordOf(4, 16), recordOf(13, 9)}) {
        EXPECT_FALSE(ColorOfRecord(*none));
        EXPECT_FALSE(SetColorOfRecord(*none, 1));
    }
}
