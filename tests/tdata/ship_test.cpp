#include "tdata/clsShipParser.h"
#include "tdata/mdlShipLabels.h"
#include "tdata/shiprecord.h"

#include <gtest/gtest.h>

#include <functional>

using support::errorOf;
using support::joined;
using support::objectsOf;
using support::recordOf;
using support::repeat;
using support::sectionsOf;
using support::shipText;

namespace {

/// Front cockpit and one turret; the first group has an entry of one gun and one of two, the second
/// one of three.
constexpr const char* armed = "2;1;0;B1;7;2;1;B2;8;2;"
                              "1;3;1;2;1;1;G;1;;-1;2;2;G;2;H;3;"
                              "4;3;2;1;4;3;K;5;;-1;";

struct Loaded : clsShip {
    explicit Loaded(const std::string& text) : clsShip(recordOf(text)) {
        EXPECT_TRUE(LoadObjects()) << GetLastError();
    }
};

struct ArmedShip : Loaded {
    ArmedShip() : Loaded(shipText(armed, "6")) {}
};

} // namespace

TEST(Ship, WithoutTurretsIsJustTheFields) {
    clsShip ship(std::make_shared<clsTXTObject>());
    ship.Construct();
    ASSERT_TRUE(ship.LoadObjects());
    EXPECT_EQ(ship.size(), 65);
    EXPECT_EQ(ship.GGCountOffset(), 54);
    EXPECT_EQ(ship.DynamicDataOffset(), 55);
    EXPECT_TRUE(ship.Validate());
}

TEST(Ship, TurretsGrowFromTheFrontCockpitToSeven) {
    Loaded ship(shipText("0;0;"));
    const auto front = ship.MakeNewTurret();
    EXPECT_EQ(sectionsOf(ship), "1;1;0;;;1;1;0;1;0;");
    EXPECT_EQ(front->PositionName(), "front cockpit");
    EXPECT_EQ(front->DescriptorOffset(), 29);
    EXPECT_EQ(front->DescriptorValue(1), KeshValue(0));
    ship.GunGroups()[0]->MakeNewGun()->SetValue(1, 5);
    ship.GunGroups()[0]->RefreshGunCount();
    const auto second = ship.MakeNewTurret();
    EXPECT_EQ(sectionsOf(ship), "2;1;0;;;2;1;;;2;1;5;1;1;1;5;;;;;6;0;2;0;");
    second->SetDescriptorValue(1, 4);
    EXPECT_EQ(second->PositionName(), "right");
    second->SetDescriptorValue(1, 7);
    EXPECT_EQ(second->PositionName(), "Unknown value");
    second->SetDescriptorValue(1, 0);
    EXPECT_EQ(second->PositionName(), "0");

    while (ship.Turrets().size() < 7)
        static_cast<void>(ship.MakeNewTurret());
    const auto last = ship.Turrets().back();
    last->SetDescriptorValue(0, 9);
    EXPECT_EQ(ship.Value(41), KeshValue(9));
    EXPECT_TRUE(ship.Validate()) << ship.GetLastError();
    const std::string before = joined(*ship.Object);
    EXPECT_EQ(errorOf([&] { return ship.MakeNewTurret(); }),
              "80040064 clsShip Maximum number of turrets reached.");
    EXPECT_EQ(joined(*ship.Object), before);
    EXPECT_EQ(ship.Turrets().size(), 7U);

    EXPECT_TRUE(ship.RemoveTurret(*last));
    EXPECT_EQ(ship.Value(41), KeshValue(0)) << "the pair stays, as zeros";
    EXPECT_TRUE(ship.Validate()) << ship.GetLastError();
}

TEST(Ship, RemovingATurretOfNoPairZeroesNoOtherField) {
    Loaded ship(shipText("1;9;1;B;7;1;1;0;9;0;"));
    ship.SetValue(45, 5);
    EXPECT_TRUE(ship.RemoveTurret(*ship.Turrets()[0]));
    EXPECT_EQ(ship.Value(45), KeshValue(5));
}

TEST(Ship, RemoveGunTakesTheLastEntrysDataAndTheGivenObject) {
    ArmedShip ship;
    const auto group = ship.GunGroups()[0];
    const auto other = group->Guns()[0];
    group->RemoveGun(*other);

    EXPECT_EQ(group->GunCount(), 1);
    EXPECT_EQ(ship.size(), 65 + 8 + 2 * 4 + 2 * 6);
    EXPECT_EQ(group->Guns()[0]->Offset(), 73) << "where its data no longer is";
}

TEST(Ship, RemovingATurretWithAGroupTooManyShowsInValidate) {
    Loaded ship(shipText("1;1;0;B;7;2;1;0;1;0;1;0;2;1;1;0;G;1;;-1;"));
    EXPECT_TRUE(ship.RemoveTurret(*ship.Turrets()[0]));
    EXPECT_EQ(ship.size(), 65 + 4) << "the data of the last group is gone";
    ASSERT_EQ(ship.GunGroups().size(), 1U);
    EXPECT_EQ(ship.GunGroups()[0]->key(), "k2") << "and the object of the first";
    EXPECT_FALSE(ship.Validate());
}

TEST(Ship, ObjectsStandInTheOrderOfTheirIndex) {
    Loaded ship(shipText("3;3;1;C;0;1;0;A;0;1;1;B;0;3;1;0;3;0;1;0;2;0;1;0;1;0;"));
    std::string order;
    for (const auto& turret : ship.Turrets())
        order += turret->BodyID();
    EXPECT_EQ(order, "ABC");
    EXPECT_EQ(objectsOf(ship), "Tk2@58 Tk3@62 Tk1@54 Gk3@75 Gk2@71 Gk1@67 ");
    ship.ReindexTurrets();
    EXPECT_EQ(sectionsOf(ship), "3;3;1;C;0;1;0;A;0;2;1;B;0;3;1;0;3;0;1;0;2;0;1;0;1;0;");
    EXPECT_EQ(ship.GunGroups()[2]->turret(), ship.Turrets()[2]);
    ship.GunGroups()[2]->SetValue(2, 4);
    EXPECT_EQ(ship.GunGroups()[2]->turret(), nullptr);
}

// --- Failures

struct FailureCase {
    const char* name;
    std::function<void(clsShip&)> action;
    const char* error;
};

class ShipFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(ShipFailure, IsRaisedAndChangesNothing) {
    ArmedShip ship;
    const std::string before = joined(*ship.Object);
    const std::string objects = objectsOf(ship);
    EXPECT_EQ(errorOf([&] { GetParam().action(ship); }), GetParam().error);
    EXPECT_EQ(joined(*ship.Object), before);
    EXPECT_EQ(objectsOf(ship), objects);
    EXPECT_FALSE(ship.Object->Dirty);
}

namespace {

clsTurret& turretOf(clsShip& ship) {
    return *ship.Turrets()[1];
}
clsGunGroup& groupOf(clsShip& ship) {
    return *ship.GunGroups()[0];
}
clsGun& gunOf(clsShip& ship) {
    return *groupOf(ship).Guns()[0];
}

constexpr const char* turretBounds = "80040064 clsTurret List index out of bounds.";
constexpr const char* groupBounds = "80040064 clsGunGroup List index out of bounds.";
constexpr const char* gunBounds = "80040064 clsGun Index out of bounds";

} // namespace

INSTANTIATE_TEST_SUITE_P(
    All, ShipFailure,
    testing::Values(
        FailureCase{"TurretGetBelow", [](clsShip& s) { return turretOf(s).Value(-1); },
                    turretBounds},
        FailureCase{"TurretGetAbove", [](clsShip& s) { return turretOf(s).Value(5); },
                    turretBounds},
        FailureCase{"TurretSetAbove", [](clsShip& s) { turretOf(s).SetValue(5, 1); }, turretBounds},
        FailureCase{"PairGetAbove", [](clsShip& s) { return turretOf(s).DescriptorValue(2); },
                    turretBounds},
        FailureCase{"PairSetBelow", [](clsShip& s) { turretOf(s).SetDescriptorValue(-1, 1); },
                    turretBounds},
        FailureCase{"PairOfTheFront", [](clsShip& s) { s.Turrets()[0]->SetDescriptorValue(0, 1); },
                    "80040065 clsTurret Guns don't have turret descriptors."},
        FailureCase{"GroupGetAbove", [](clsShip& s) { return groupOf(s).Value(5); }, groupBounds},
        FailureCase{"GroupSetBelow", [](clsShip& s) { groupOf(s).SetValue(-1, 1); }, groupBounds},
        FailureCase{"GunGetAbove", [](clsShip& s) { return gunOf(s).Value(6); }, gunBounds},
        FailureCase{"GunSetAbove", [](clsShip& s) { gunOf(s).SetValue(7, 1); }, gunBounds},
        FailureCase{"ForeignGroup",
                    [](clsShip& s) {
                        ArmedShip other;
                        s.MakeNewGun(groupOf(other), gunOf(other));
                    },
                    "80040064 clsShip Invalid gun group passed."},
        FailureCase{"ForeignTurret",
                    [](clsShip& s) {
                        ArmedShip other;
                        (void)s.GetTurretIndex(turretOf(other));
                    },
                    "80040064 clsShip Invalid turret passed."},
        FailureCase{"ForeignGun",
                    [](clsShip& s) { groupOf(s).RemoveGun(clsGun(groupOf(s), 99, 67)); },
                    "80040064 clsGunGroup Invalid gun passed."}),
    [](const auto& test) { return test.param.name; });

TEST(Ship, BoundsReachOneBehindWhereTheyAlwaysDid) {
    ArmedShip ship;
    EXPECT_EQ(turretOf(ship).Value(4), KeshValue(2)) << "the count of groups";
    EXPECT_EQ(groupOf(ship).Value(4), 1) << "the first gun's index";
    gunOf(ship).SetValue(6, 77);
    EXPECT_EQ(groupOf(ship).Guns()[1]->index(), 77);
}

TEST(Ship, RemovingATurretSaysWhyNot) {
    ArmedShip ship;
    ArmedShip other;
    EXPECT_FALSE(ship.RemoveTurret(turretOf(other)));
    EXPECT_EQ(ship.GetLastError(), "Error removing turret: \r\nInvalid turret passed.");
    EXPECT_FALSE(ship.RemoveTurret(*ship.Turrets()[0]));
    EXPECT_EQ(ship.GetLastError(), "Error removing turret: \r\nCan only remove last turret.");
    EXPECT_EQ(sectionsOf(ship), armed);
}

// A value that is no number comes up in the middle of the work.
TEST(Ship, AnOperationThatFailsHalfWayIsTakenBack) {
    ArmedShip ship;
    ship.SetValue(84, std::string("many")); // guns of the last entry
    ship.Object->Dirty = false;
    const std::string before = joined(*ship.Object);
    const std::string objects = objectsOf(ship);
    const std::string mismatch = "d clsTXTObject Type mismatch: value 90 is \"many\".";
    EXPECT_EQ(errorOf([&] { groupOf(ship).MakeNewGun(); }), mismatch);
    EXPECT_EQ(errorOf([&] { groupOf(ship).RemoveGun(*groupOf(ship).Guns()[1]); }),
              "d clsTXTObject Type mismatch: value 78 is \"many\".");
    EXPECT_EQ(joined(*ship.Object), before);
    EXPECT_EQ(objectsOf(ship), objects);
    EXPECT_FALSE(ship.Object->Dirty);

    ship.SetValue(82, 1000); // entries of the last group
    EXPECT_FALSE(ship.RemoveTurret(turretOf(ship)));
    EXPECT_EQ(objectsOf(ship), objects);
    ship.SetValue(82, 1);
    EXPECT_EQ(joined(*ship.Object), before);
}

// --- Broken records

struct BrokenCase {
    const char* name;
    std::string text;
    bool loaded;
    bool valid;
    std::string error; ///< of Validate
};

class BrokenShip : public testing::TestWithParam<BrokenCase> {};

TEST_P(BrokenShip, IsReadAsFarAsItGoes) {
    const auto& param = GetParam();
    clsShip ship(recordOf(param.text));
    EXPECT_EQ(ship.LoadObjects(), param.loaded) << ship.GetLastError();
    EXPECT_EQ(ship.Validate(), param.valid);
    EXPECT_EQ(ship.GetLastError(), param.error);
    EXPECT_LT(ship.Turrets().size() + ship.GunGroups().size(), 20U);
    static_cast<void>(ShipFieldLabels(*ship.Object));
}

namespace {

std::string sizeText(int calculated, int found) {
    return "Calculated size of ship data does not match actual data size - should be " +
           std::to_string(calculated) + " and it is " + std::to_string(found) + ".";
}

std::string gunText(int calculated, int stored) {
    return "Calculated gun count does not match gun count stored in ship data - should be " +
           std::to_string(calculated) + " and it is " + std::to_string(stored) + ".";
}

std::string outside(const std::string& part) {
    return "Error while accessing data of " + part + ". Data overflow detected.";
}

const std::string gunOutside = outside("gun (index 0) in gun group (index 0)") + "\r\n";

/// One turret and one group that claims `entries`, with the data of one gun.
std::string claiming(const std::string& entries, const std::string& guns = "1") {
    return shipText("1;1;0;B;7;1;1;1;1;" + entries + ";1;1;G;1;;-1;", guns);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    All, BrokenShip,
    testing::Values(
        BrokenCase{"Sound", claiming("1"), true, true, ""},
        BrokenCase{"GunTotal", claiming("1", "4"), true, false, gunText(1, 4)},
        BrokenCase{"NegativeGuns", shipText("1;1;0;B;7;1;1;0;1;1;1;-2;G;1;;-1;"), true, false,
                   gunText(-2, 0)},
        BrokenCase{"EntryTooMany", claiming("2", "12"), true, false, sizeText(85, 79)},
        BrokenCase{"EntryTooFew", claiming("0", "0"), true, false, sizeText(73, 79)},
        BrokenCase{"GunPartlyOutside", claiming("3", "30"), true, false,
                   gunOutside + sizeText(91, 79)},
        BrokenCase{"GunOutside", claiming("4"), true, false,
                   "Error while reading data: Index 82 is outside the record (79 values, ID "
                   "\"SS_X\")."},
        BrokenCase{"HugeEntries", claiming("300000000"), true, false,
                   "Error while reading data: Index 82 is outside the record (79 values, ID "
                   "\"SS_X\")."},
        BrokenCase{"EntriesOutOfRange", claiming("2147483647"), false, false, sizeText(69, 79)},
        BrokenCase{"NegativeEntries", claiming("-1", "0"), true, true, ""},
        BrokenCase{"LowestEntries", claiming("-2147483648"), false, false, sizeText(69, 79)},
        BrokenCase{"NoEntries", claiming("none"), false, false, sizeText(69, 79)},
        BrokenCase{"TurretTooMany", shipText("1;0;"), false, false,
                   "Error while reading data: Type mismatch: value 64 is \"SS_X\"."},
        BrokenCase{"TurretPartlyOutside", shipText("3;0;"), false, false,
                   outside("turret (index 2)") + sizeText(77, 65)},
        BrokenCase{"HugeTurrets", shipText("536870911;0;"), false, false,
                   "Error while reading data: Overflow: 2147483709 is no possible place or "
                   "count."},
        BrokenCase{"MostTurrets", shipText("2147483647;0;"), false, false,
                   "Error while reading data: Overflow: 8589934653 is no possible place or "
                   "count."},
        BrokenCase{"NegativeTurrets", shipText("-1;0;"), true, false, sizeText(61, 65)},
        BrokenCase{"LowestTurrets", shipText("-2147483648;0;"), false, false,
                   "Error while reading data: Overflow: -8589934527 is no possible place or "
                   "count."},
        BrokenCase{
            "GroupBehindTheLastPlace", shipText("0;3;1;1;1;357913931;"), false, false,
            "Error while reading data: Index 72 is outside the record (69 values, ID \"SS_X\")."},
        BrokenCase{"TextForTurrets", shipText("x;0;"), false, false,
                   "Error while reading data: Type mismatch: value 53 is \"x\"."},
        BrokenCase{
            "HugeGroups", shipText("0;2147483647;"), false, false,
            "Error while reading data: Index 66 is outside the record (65 values, ID \"SS_X\")."},
        BrokenCase{"NegativeGroups", shipText("0;-1;"), true, true, ""},
        BrokenCase{"Empty", "", false, false,
                   "Error while reading data: Index 53 is outside the record (0 values, ID "
                   "\"\")."}),
    [](const auto& test) { return test.param.name; });

TEST(Ship, ManyGroupsInAnyOrderLoadAtOnce) {
    constexpr int count = 50000;
    std::string sections = "0;" + std::to_string(count) + ";";
    for (int i = count; i > 0; --i)
        sections += "1;0;" + std::to_string(i) + ";0;";
    Loaded ship(shipText(sections));
    EXPECT_TRUE(ship.Validate()) << ship.GetLastError();
    EXPECT_EQ(ship.GunGroups().front()->Id(), count);
}

// --- Labels

TEST(ShipLabels, FollowTheSections) {
    const auto labels = ShipFieldLabels(*recordOf(shipText(armed, "6")));
    std::string text;
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (!labels[i].empty() && (i < 33 || i == 42 || (i > 57 && i < 74) || i > 86))
            text += std::to_string(i) + " " + std::string(labels[i]) + "\n";
    EXPECT_EQ(text, "31 Type\n32 Position\n42 Position\n58 Index\n59 Turr. Idx\n60 Body ID\n"
                    "61 Path Idx\n62 Gun groups count\n63 Init gun idx\n64 # of guns\n65 Index\n"
                    "66 Gun entries\n67 Gun index\n68 Gun Count\n69 Body ID\n70 Path idx.\n"
                    "71 Body ID (2)\n72 Path idx (2)\n73 Gun index\n87 Body ID (2)\n"
                    "88 Path idx (2)\n");
}

TEST(ShipLabels, EndWhereTheCountsNoLongerLead) {
    const auto lastOf = [](const std::string& text) {
        const auto labels = ShipFieldLabels(*recordOf(text));
        std::ptrdiff_t last = std::ssize(labels);
        while (last > 0 && labels[static_cast<std::size_t>(last - 1)].empty())
            --last;
        return last - 1;
    };
    EXPECT_EQ(lastOf(shipText("0;0;")), 54);
    EXPECT_EQ(lastOf(shipText("1;0;")), 42) << "no turret lies in the tail";
    EXPECT_EQ(lastOf(shipText("-1;0;")), 42);
    EXPECT_EQ(lastOf(claiming("2147483647")), 68);
    EXPECT_EQ(lastOf(claiming("-1")), 62);
    EXPECT_EQ(lastOf(repeat("0;", 50)), 38);
    EXPECT_EQ(lastOf("0;"), -1);
}

// --- All ships of a file

namespace {

/// Three ships, in the file's order C, a, B.
void loadThree(clsTxtParser& parser) {
    const std::string values = repeat("0;", 64);
    ASSERT_TRUE(support::load(parser,
                              "49;3;" + values + "SS_C;" + values + "SS_a;" + values + "SS_B;\r\n",
                              otype::Ships));
}

std::string namesOf(const clsShipParser& ships) {
    std::string names;
    for (const auto& ship : ships.SortedShips())
        names += ship->Object->ObjectName();
    return names;
}

} // namespace

TEST(ShipParser, FindsShipsByTheIdOfTheirRecord) {
    clsTxtParser parser;
    loadThree(parser);
    clsShipParser ships;
    ASSERT_TRUE(ships.Load(parser));
    EXPECT_EQ(namesOf(ships), "SS_aSS_BSS_C");
    const auto first = parser.FindIndex(0);
    EXPECT_EQ(ships.Find(first->ID)->Object, first);
    EXPECT_TRUE(ships.RemoveShip("K" + std::to_string(first->ID)));
    EXPECT_FALSE(ships.RemoveShip(first->key()));
    EXPECT_EQ(ships.Find(first->ID), nullptr);
    EXPECT_EQ(namesOf(ships), "SS_aSS_B");

    const auto record = parser.CreateObject(first);
    const auto ship = ships.CreateShip(record);
    ship->Construct();
    EXPECT_TRUE(ship->LoadObjects());
    EXPECT_EQ(ships.Find(record->ID), ship);
    EXPECT_EQ(ships.SortedShips().back(), ship);
}

TEST(ShipParser, StopsAtTheFirstShipThatCannotBeRead) {
    clsTxtParser parser;
    loadThree(parser);
    parser.FindIndex(1)->SetValue(53, 5);
    clsShipParser ships;
    EXPECT_FALSE(ships.Load(parser));
    EXPECT_EQ(ships.GetLastError(), "Error loading ship objects (ship idx=1): Index 66 is outside "
                                    "the record (65 values, ID \"SS_a\").");
    EXPECT_EQ(ships.Ships().size(), 2U);
    EXPECT_TRUE(ships.SortedShips().empty());
}
