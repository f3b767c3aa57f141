#include "support/gametexts.h"
#include "support/loadtext.h"
#include "tdata/FieldLookup.h"
#include "tdata/NewObjectName.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlKeshWare.h"

#include <gtest/gtest.h>

using support::repeat;

namespace {

struct NameCase {
    std::int32_t type;
    std::int32_t size;
    std::int32_t index;
    const char* name;
};

RecordPtr record(std::int32_t type, std::int32_t size) {
    auto made = std::make_shared<clsTXTObject>();
    made->otype = type;
    made->Construct(size);
    return made;
}

} // namespace

TEST(Fields, AreNamedByTheTypeThenTheFrame) {
    const NameCase cases[] = {
        // the type's table wins over head and tail
        {otype::Shields, 21, 5, "Index"},
        {otype::Shields, 21, 10, "Efficiency"}, // also N - 11
        {otype::Bullets, 47, 37, "Ammo"},       // also N - 10
        {otype::Cockpits, 19, 8, "Possible lasers"},
        // head and tail
        {otype::Ware, 17, 0, "Body file"},
        {otype::Ware, 17, 6, "Description"}, // also N - 11
        {otype::Ware, 17, 7, "Volume"},
        {otype::Ware, 17, 15, "Skin index"},
        {otype::Ware, 17, 16, "N/A"},
        {otype::Backgrounds, 38, 27, "N/A"}, // N - 11
        {otype::Nebula, 27, 17, "Volume"},   // the older, shorter record
        // neither
        {otype::Planets, 37, 11, "Unknown value"},
        {otype::JobWings, 20, 0, "Unknown value"},
        // ships: the count of gun groups moves with the turrets
        {otype::Ships, 65, 54, "Gun groups count"},
        {otype::Ships, 65, 55, "Volume"},
        // jobs have no frame
        {otype::Jobs, 120, 7, "Unknown value"},
        {otype::Jobs, 120, 119, "Unknown value"},
    };
    for (const NameCase& c : cases)
        EXPECT_EQ(FieldName(*record(c.type, c.size), c.index), c.name)
            << c.type << " field " << c.index;
    const auto ship = record(otype::Ships, 73);
    ship->SetValue(53, 2);
    EXPECT_EQ(FieldName(*ship, 62), "Gun groups count");
    EXPECT_EQ(FieldName(*ship, 54), "Unknown value");
}

TEST(Fields, HaveTheTypesOfTheirTables) {
    using namespace valuetype;
    struct Case {
        std::int32_t type;
        std::int32_t index;
        std::int32_t expected;
    };
    const Case cases[] = {
        // the head, which wins
        {otype::Ware, 0, String},
        {otype::Ware, 2, Float},
        {otype::Ware, 5, Integer},
        // but not where a type has its names alone, or nothing of it
        {otype::Cockpits, 0, Integer},
        {otype::Jobs, 0, Integer},
        // the type, and fields without a row
        {otype::Ware, 7, String},
        {otype::Ships, 21, Float},
        {otype::Planets, 12, Integer},
        {otype::Asteroids, 500, Integer},
    };
    for (const Case& c : cases)
        EXPECT_EQ(FieldValueType(c.type, ObjectSize(c.type), c.index), c.expected)
            << c.type << " field " << c.index;
}

TEST(Fields, AreTranslatedByTypeAndVersion) {
    using namespace translation;
    struct Case {
        std::int32_t type;
        std::int32_t version;
        std::int32_t index; ///< from the end if negative
        std::int32_t expected;
        const char* unit = "";
    };
    const Case cases[] = {
        {otype::Ships, 48, 13, Number, "MW"},
        {otype::Ships, 48, 28, None},
        // from a version on
        {otype::Ships, 48, 52, None},
        {otype::Ships, 49, 52, List},
        {otype::Laser, 49, 5, None},
        {otype::Laser, 50, 5, List},
        {otype::Factories, 47, 5, None},
        {otype::Factories, 48, 5, List},
        {otype::Special, 99, 5, None},
        // the ware class, where there is the whole frame
        {otype::Special, 99, -6, List},
        {otype::Cockpits, 49, -6, None},
        {otype::Bullets, 55, -2, List}, // counted from the end
    };
    for (const Case& c : cases) {
        const std::int32_t size = c.type == otype::Jobs ? 120 : ObjectSize(c.type);
        const std::int32_t index = c.index < 0 ? size + c.index : c.index;
        EXPECT_EQ(FieldTranslation(c.type, c.version, size, index), c.expected)
            << c.type << " version " << c.version << " field " << index;
        EXPECT_EQ(FieldUnit(c.type, size, index), c.unit) << c.type << " field " << index;
    }
    EXPECT_EQ(SubtypesOf(otype::Laser).Rows.size(), 32U);
    EXPECT_EQ(SubtypesOf(otype::Wrecks).Rows.size(), 31U);
    EXPECT_EQ(ListItem(SubtypesOf(otype::Wrecks), 16, true), "SG_DOCK_TRADE");
    EXPECT_EQ(ListItem(SubtypesOf(otype::Wrecks), 30, true), "SG_FAC_CCKIT");
    EXPECT_TRUE(SubtypesOf(otype::Special).Rows.empty());
}

TEST(TextTables, AnswerOutsideAndForEmptyRows) {
    EXPECT_EQ(ListItem(FactorySizeNames, 5, true), "Large (L)");
    EXPECT_EQ(ListItem(FactorySizeNames, 3, true), "Unknown value");
    EXPECT_EQ(ListItem(FactorySizeNames, 11, true), "N/A");
    EXPECT_EQ(ListItem(FactorySizeNames, 11, false), "");
    EXPECT_EQ(ListItemRaw(FactorySizeNames, 3), "");
    EXPECT_EQ(ListItem(RaceNames, 0, true), "N/A");
    EXPECT_EQ(ListItem(RaceNames, 19, true), "Yaki");
    EXPECT_EQ(ListItem(MissileStrengthNames, -1, true), "none");
    EXPECT_EQ(ListItem(MissileStrengthNames, -2147483647 - 1, true), "N/A");
    EXPECT_EQ(ListItem(TurretPositionNames, 2147483647, true), "N/A");
    std::int32_t position = 7;
    EXPECT_TRUE(FindInList("rear", TurretPositionNames, position));
    EXPECT_EQ(position, 2);
    EXPECT_FALSE(FindInList("Rear", TurretPositionNames, position));
    EXPECT_EQ(position, -1);
}

TEST(ShipVocabularies, NameClassesByTextKeyOrPosition) {
    struct Case {
        KeshValue value;
        std::int32_t version;
        const char* without; ///< any texts
        const char* with;
    };
    const Case cases[] = {
        {3, 48, "M1", "Carrier"},
        {std::string("3"), 48, "M1", "Carrier"},
        {std::string("SG_SH_M1"), 49, "", "Carrier"},
        {3, 49, "M1", "Carrier"},
        {13, 48, "Unknown value", "Unknown value"},
        {std::string("SG_SH_M7"), 50, "", ""},
        {std::string("SG_SH_OWN"), 50, "SG_SH_OWN", "SG_SH_OWN"},
        {std::string("sg_sh_m1"), 50, "sg_sh_m1", "sg_sh_m1"},
        {99, 48, "N/A", "N/A"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(GetShipClassName(c.value, c.version), c.without);
    const support::GameTexts texts("<page id=\"1263\"><string id=\"3\">Carrier</string></page>");
    for (const Case& c : cases)
        EXPECT_EQ(GetShipClassName(c.value, c.version), c.with);
}

TEST(ShipVocabularies, NameTypesByTextOrAsStored) {
    const std::string key = "OBJ_SHIP_KHAAKCLUSTER";
    EXPECT_EQ(GetShipTypeName(key, 49, false), key);
    EXPECT_EQ(GetShipTypeName(key, 49, true), "");
    EXPECT_EQ(GetShipTypeName(2131, 48, false), "2131");
    const support::GameTexts texts("<page id=\"2006\"><string id=\"2131\">Swarm</string>"
                                   "<string id=\"0\">Zero</string></page>");
    EXPECT_EQ(GetShipTypeName(key, 49, true), "Swarm");
    EXPECT_EQ(GetShipTypeName(2131, 48, true), "Swarm");
    EXPECT_EQ(GetShipTypeName(std::string("OBJ_OTHER"), 49, false), "Zero");
}

TEST(WareClasses, FallBackOneByOne) {
    const support::GameTexts texts("<page id=\"1999\"><string id=\"10\">pouch</string>"
                                   "<string id=\"11\"></string></page>");
    const auto names = GetWareClassNames();
    EXPECT_EQ(names[0], "pouch");
    EXPECT_EQ(names[1], "small");
    EXPECT_EQ(names[5], "stations");
}

TEST(Jobs, EachPlaceLeadsToItsFieldAndBack) {
    for (const std::int32_t size : {117, 119, 120})
        for (std::int32_t place = 0; place < size; ++place)
            EXPECT_EQ(JobPhysicalIndex(size, JobLogicalIndex(size, place)), place) << size;
}

TEST(NewObjectNames, FollowTheHighestNumber) {
    struct Case {
        std::vector<std::string> ids;
        const char* expected;
    };
    const Case cases[] = {
        {{}, "NEW_OBJECT_1"},
        {{"SS_WARE", "new_object_7"}, "NEW_OBJECT_1"},
        {{"NEW_OBJECT_9", "NEW_OBJECT_2"}, "NEW_OBJECT_10"},
        {{"X_NEW_OBJECT_3"}, "NEW_OBJECT_4"},
        {{"NEW_OBJECT5", "NEW_OBJECT_x"}, "NEW_OBJECT_6"},
        {{"NEW_OBJECT"}, "NEW_OBJECT_1"},
        {{"NEW_OBJECT_1e300", "NEW_OBJECT_4"}, "NEW_OBJECT_5"},
        {{"NEW_OBJECT_1", "new_object_2"}, "NEW_OBJECT_3"},
    };
    for (const Case& c : cases) {
        clsTxtParser parser;
        std::string text = "1;" + std::to_string(c.ids.size()) + ";";
        for (const auto& id : c.ids)
            text += repeat("0;", 16) + id + ";";
        static_cast<void>(support::load(parser, text, otype::Ware));
        EXPECT_EQ(NewObjectName(parser), c.expected) << (c.ids.empty() ? "" : c.ids.front());
    }
}
