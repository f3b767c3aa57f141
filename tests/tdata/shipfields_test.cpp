#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/gametexts.h"
#include "tdata/FieldLookup.h"
#include "tdata/ShieldRecharge.h"
#include "tdata/ShipFields.h"
#include "tdata/WeaponSlots.h"
#include "tdata/clsArchive.h"
#include "tdata/shiprecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using support::repeat;

namespace {

using Changes = std::vector<std::pair<std::int32_t, const char*>>;

/// A ship of zeros with some other values.
RecordPtr shipOf(const Changes& values) {
    auto ship = support::recordOf(support::shipText("0;0;"));
    for (const auto& [index, text] : values)
        ship->SetValue(index, keshobjects::readValue(text));
    return ship;
}

/// A file of records of that many values, each with its number in field 5 if it is named so.
std::string fileOf(const std::vector<std::string>& records) {
    std::string text = "40;" + std::to_string(records.size()) + ";\r\n";
    for (const std::string& record : records)
        text += record + "\r\n";
    return text;
}

/// A shield with a name, what it needs and its strength.
std::string shield(const std::string& name, const std::string& need, const std::string& strength,
                   const std::string& id) {
    return repeat("0;", 6) + name + ';' + need + ';' + strength + ";0;0.5;" + repeat("0;", 9) + id +
           ';';
}

constexpr const char* Texts =
    "<page id=\"17\"><string id=\"5\">Round shield</string><string id=\"7\">Ferry</string>"
    "<string id=\"8\"></string><string id=\"10003\">Hauler</string></page>"
    "<page id=\"1263\"><string id=\"3\">Carrier</string></page>"
    "<page id=\"1266\"><string id=\"2\">Frogs</string><string id=\"3\"></string></page>"
    "<page id=\"2006\"><string id=\"2021\">Big one</string><string id=\"2022\">Big one</string>"
    "</page>";

/// With a directory of files behind the archive.
class ShipFieldsTest : public testing::Test {
protected:
    ~ShipFieldsTest() override { Archive.reset(); }

    void load(std::int32_t version) {
        support::writeFile(
            m_dir / "types/TShields.txt",
            fileOf({shield("5", "20", "1000", "SHIELD_A"), shield("5", "0", "1000", "SHIELD_B"),
                    shield("8", "20", "many", "SHIELD_C")}));
        support::writeFile(m_dir / "types/TCockpits.txt", fileOf({repeat("0;", 18) + "COCKPIT;"}));
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
        Archive = std::make_unique<clsArchive>();
        fields.LoadFiles();
        fields.SetVersion(version);
    }
    /// A text that no translation gives stands for none.
    static constexpr const char* None = "-";

    std::string shown(const clsTXTObject& ship, std::int32_t index, bool raw) const {
        std::string text = "untouched";
        const bool translated = fields.Translate(ship, index, text, raw);
        EXPECT_TRUE(translated || text == "untouched");
        return translated ? text : None;
    }
    std::string entered(const clsTXTObject& ship, std::int32_t index, const char* text) const {
        KeshValue value = "untouched";
        const bool taken = fields.TranslateBack(ship, text, index, value);
        EXPECT_TRUE(taken || value == KeshValue("untouched"));
        return taken ? keshobjects::spellValue(value) : None;
    }

    support::ScratchDir m_dir;
    ShipFields fields;
};

struct Case {
    std::int32_t field; ///< from the end if negative
    std::int32_t version;
    const char* stored;
    const char* shown;
    const char* raw;
    const char* entered;
    const char* restored;
};

const Case Cases[] = {
    // turns a minute
    {2, 48, "0.5", "30.0 rot/min", "30.0", " 30 ", "0.5"},
    {3, 48, "0.5125", "30.8 rot/min", "30.8", "30.75", "0.5125"},
    {4, 49, "-1", "-60.0 rot/min", "-60.0", "60", "1"},
    {4, 49, "0", "0.0 rot/min", "0.0", "0.0009", "0.00002"}, // 1.5 steps, to even
    {4, 49, "0", "0.0 rot/min", "0.0", "0.0015", "0.00002"}, // 2.5
    {4, 49, "0", "0.0 rot/min", "0.0", "-0", "0"},
    {2, 48, "1e308", "-", "-", "1e308", "-"},
    {2, 48, "fast", "-", "-", "1 000", "-"},
    // metres a second, here with two tunnings
    {7, 48, "30000", "60.00 - 72.00 m/s", "60.00", "60.001", "30001"},
    {7, 48, "0", "0.00 - 00.00 m/s", "0.00", "0.07", "35"},
    {7, 48, "-2500", "-5.00 - -06.00 m/s", "-5.00", "60.02", "30010"},
    {7, 48, "35", "0.07 - 00.08 m/s", "0.07", "-0.001", "1"},
    {7, 48, "1e300", "-", "-", "4294968", "-"}, // leaves 32 bits
    {8, 48, "35", "0.070 m/s", "0.070", "0.0001", "1"},
    {8, 48, "7", "0.014 m/s", "0.014", "0,07", "-"},
    // powers
    {13, 48, "007", "007 kW", "007", " 0.50 ", "0.5"},
    {13, 48, "1e3", "1e3 kW", "1e3", "much", "-"},
    {13, 48, "x", "-", "-", "", "-"},
    {20, 48, "1000", "1000 W", "1000", "2.5", "2"},
    {20, 48, "1000", "1000 W", "1000", "2147483648", "-"},
    {21, 48, "0.15", "150.000 W/s", "150.000", "250", "0.25"},
    {21, 48, "0.0005", "0.500 W/s", "0.500", "0", "-"},
    {21, 48, "0", "0.000 W/s", "0.000", "nan", "-"},
    {21, 48, "0", "0.000 W/s", "0.000", "1e308", "1e+305"},
    {21, 48, "0", "0.000 W/s", "0.000", "1e-308", "-"},
    // classes: a number, then a key
    {5, 48, "3", "Carrier", "Carrier", "M2", "4"},
    {5, 48, "13", "Unknown value", "Unknown value", "Carrier", "3"},
    {5, 48, "99", "N/A", "N/A", "SG_SH_M1", "-"},
    {5, 48, "3", "Carrier", "Carrier", " 77 ", "77"},
    {5, 49, "SG_SH_M1", "Carrier", "Carrier", "M2", "SG_SH_M2"},
    {5, 49, "SG_SH_M2", "-", "-", "SG_OWN ", "SG_OWN"},
    {5, 49, "SG_OWN", "SG_OWN", "SG_OWN", "", "-"},
    // types: a number's text, then a key
    {52, 48, "2021", "Big one", "Big one", "2030", "2030"},
    {52, 49, "OBJ_SHIP_M1", "Big one", "Big one", "OBJ_SHIP_M0", "OBJ_SHIP_M0"},
    {52, 49, "OBJ_SHIP_M2", "Big one", "Big one", "Big one", "OBJ_SHIP_M2"}, // what it was
    {52, 49, "OBJ_SHIP_M0", "OBJ_SHIP_M0", "OBJ_SHIP_M0", "Big one", "OBJ_SHIP_M1"},
    {52, 49, "OBJ_SHIP_M0", "OBJ_SHIP_M0", "OBJ_SHIP_M0", "OBJ_OWN", "-"},
    // other lists
    {22, 48, "0", "Round shield", "Round shield", "SHIELD_C", "2"},
    {22, 48, "1", "Round shield", "Round shield", "Round shield", "1"},
    {22, 48, "3", "Unknown value", "Unknown value", "9", "9"},
    {22, 48, "-1", "Unknown value", "Unknown value", "1.5", "-"},
    {44, 48, "2", "medium", "medium", "stations", "5"},
    {-6, 48, "6", "N/A", "N/A", "tiny", "0"},
    {-6, 48, "x", "-", "-", "", "-"},
    {45, 48, "2", "Frogs", "Frogs", "Yaki", "19"},
    {45, 48, "0", "N/A", "N/A", "yaki", "-"},
    {45, 48, "99999999999", "-", "-", "99999999999", "-"},
    // without a conversion
    {28, 48, "7", "-", "-", "7", "-"},
    {65, 48, "", "-", "-", "7", "-"},
    {-66, 48, "", "-", "-", "7", "-"},
};

/// The loop of the rule as it is told, with nothing kept from one round to the next.
double plainSeconds(const ShieldRecharge& input) {
    const auto& [count, strength, need, efficiency, reactor] = input;
    std::int64_t remaining = count;
    std::int64_t power = strength;
    double total = 0;
    while (remaining >= 1) {
        std::int64_t n = reactor / need;
        if (n == 0)
            n = 1;
        if (n > count)
            n = count;
        std::int64_t used = n * need;
        if (used > reactor)
            used = reactor;
        const double t = static_cast<double>(n * power) / (static_cast<double>(used) * efficiency);
        power = strength;
        const std::int64_t left = reactor - used;
        if (left > 0)
            power = std::llrint(static_cast<double>(power) -
                                static_cast<double>(left) * efficiency * t);
        if (std::floor(t) == t)
            total += t;
        else
            total += std::trunc(t) >= 1 ? std::trunc(t) + 1 : std::trunc(t) + 2;
        remaining -= n;
    }
    return total;
}

clsTxtParser& loaded(clsTxtParser& parser, const std::vector<std::string>& records,
                     std::int32_t type) {
    EXPECT_TRUE(support::load(parser, fileOf(records), type)) << parser.GetLastError();
    return parser;
}

std::string slots(const clsTxtParser& parser, const TextTable& subtypes, bool symbolic) {
    std::string text;
    for (const auto& [bit, weapon] : WeaponSlots(parser, subtypes, symbolic))
        text += std::to_string(bit) + '=' + std::string(weapon->ObjectName()) + ' ';
    return text;
}

} // namespace

TEST_F(ShipFieldsTest, ValuesReadAndAreEnteredByTheirFields) {
    const support::GameTexts texts(Texts);
    load(48);
    for (const Case& c : Cases) {
        fields.SetVersion(c.version);
        const auto ship = shipOf({{20, "1000"}, {26, "2"}});
        const std::int32_t index = c.field < 0 ? ship->size() + c.field : c.field;
        if (index >= 0 && index < ship->size())
            ship->SetValue(index, std::string(c.stored));
        EXPECT_EQ(shown(*ship, index, false), c.shown) << c.field << ": " << c.stored;
        EXPECT_EQ(shown(*ship, index, true), c.raw) << c.field << ": " << c.stored;
        EXPECT_EQ(entered(*ship, index, c.entered), c.restored) << c.field << ": " << c.entered;
    }
    const auto dead = shipOf({{20, "0"}, {26, "x"}});
    EXPECT_EQ(entered(*dead, 21, "5"), None) << "no energy to recharge";
    EXPECT_EQ(shown(*dead, 7, false), None) << "no number of tunnings";
    EXPECT_EQ(shown(*dead, 7, true), "0.00");
}

TEST_F(ShipFieldsTest, ListsHoldWhatIsShown) {
    struct List {
        std::int32_t field;
        std::int32_t version;
        std::size_t rows;
        std::size_t row;
        const char* text;
    };
    const List lists[] = {
        {5, 48, 16, 3, "Carrier"},  {5, 49, 16, 3, "Carrier"},
        {5, 49, 16, 15, "M8"},      {5, 49, 16, 13, "Unknown value"},
        {52, 49, 27, 1, "Big one"}, {52, 49, 27, 0, "OBJ_SHIP_M0"},
        {22, 48, 3, 2, "SHIELD_C"}, {44, 48, 6, 0, "tiny"},
        {59, 48, 6, 5, "stations"}, {45, 48, 19, 1, "Frogs"},
        {45, 48, 19, 18, "Yaki"},
    };
    const support::GameTexts texts(Texts);
    load(48);
    const auto ship = shipOf({});
    for (const List& c : lists) {
        fields.SetVersion(c.version);
        const auto rows = fields.Values(*ship, c.field);
        ASSERT_EQ(rows.size(), c.rows) << c.field;
        EXPECT_EQ(rows[c.row], c.text) << c.field;
    }
    EXPECT_TRUE(fields.Values(*ship, 7).empty());
    EXPECT_TRUE(fields.Values(*ship, -1).empty());
}

TEST_F(ShipFieldsTest, ShipsHaveNamesRacesAndClasses) {
    const support::GameTexts texts(Texts);
    load(49);
    struct Name {
        Changes values;
        const char* resource;
        const char* type;
    };
    const Name cases[] = {
        {{{6, "7"}, {45, "2"}, {5, "SG_SH_M1"}}, "Frogs Ferry", "Carrier"},
        {{{6, "7"}, {45, "2"}, {50, "3"}, {5, "SG_SH_M2"}}, "Frogs Ferry Hauler", "SG_SH_M2"},
        {{{6, "8"}, {45, "x"}, {50, "4"}, {5, "SG_OWN"}}, "x SS_X", "SG_OWN"},
        {{{6, "no"}, {45, "0"}, {50, "2147483647"}, {5, ""}}, "N/A SS_X", ""},
    };
    for (const Name& c : cases) {
        const auto ship = shipOf(c.values);
        EXPECT_EQ(fields.ResourceName(*ship), c.resource);
        EXPECT_EQ(fields.Class(*ship), c.type);
    }
    EXPECT_EQ(fields.ResourceName(*support::recordOf("1;SHORT;")), " SHORT");
    EXPECT_EQ(fields.ResourceName(clsTXTObject()), " ");
    EXPECT_EQ(fields.RechargeTime(clsTXTObject()), "");
}

TEST_F(ShipFieldsTest, WithoutFilesAndTextsVocabulariesServe) {
    fields.LoadFiles();
    for (const std::int32_t version : {48, 49}) {
        fields.SetVersion(version);
        EXPECT_EQ(fields.Symbolic(), version == 49);
        const auto ship = shipOf({{5, "SG_SH_M1"}, {22, "3"}, {45, "1"}});
        EXPECT_EQ(fields.Values(*ship, 5)[3], "M1");
        EXPECT_EQ(shown(*ship, 22, false), "125 MW");
        EXPECT_EQ(entered(*ship, 22, "5 MW"), "1");
        EXPECT_EQ(entered(*ship, 5, "M1"), version == 49 ? "SG_SH_M1" : "3");
        EXPECT_EQ(fields.Race(*ship), "Argon");
        EXPECT_EQ(fields.RechargeTime(*ship), "");
    }
    EXPECT_TRUE(fields.Lasers().ByIndex().empty());
    EXPECT_TRUE(fields.Cockpits().SortedCockpits().empty());
    load(49);
    EXPECT_TRUE(fields.Shields().ByIndex().empty()) << "files are taken once";
    ShipFields later;
    later.LoadFiles();
    EXPECT_EQ(later.Shields().ByIndex().size(), 3U);
    EXPECT_EQ(later.Cockpits().SortedCockpits().size(), 1U);
}

TEST_F(ShipFieldsTest, RechargeTimeIsToldOrLeftOut) {
    struct Told {
        const char* count;
        const char* shield; ///< its place
        const char* text;
    };
    const Told cases[] = {
        {"2", "0", "Round shield x 2 = 200 s"},
        {"many", "0", ""},
        {"2", "2", ""}, // of no strength
        {"2", "9", ""}, // there is none
    };
    const support::GameTexts texts(Texts);
    load(48);
    for (const Told& c : cases) {
        const auto ship = shipOf({{22, c.shield}, {23, c.count}, {13, "20"}});
        EXPECT_EQ(fields.RechargeTime(*ship), c.text) << c.count << ' ' << c.shield;
    }
}

TEST(ShieldRecharge, IsToldOrLeftOut) {
    struct Recharge {
        ShieldRecharge input; ///< count, strength, need, efficiency, reactor
        std::optional<double> seconds;
    };
    const Recharge cases[] = {
        // 10 are left over: the next has 1000 - 10 * 0.5 * 100 = 500 to take
        {{2, 1000, 20, 0.5, 30}, 150},
        {{1, 5, 20, 0.5, 20}, 2}, // below a second
        {{-3, 1000, 0, 0.5, 20}, 0},
        {{2, 1000, 0, 0.5, 0}, {}},
        {{100'001, 1, 1, 1, 1}, {}},
        {{2, 1000, 20, 1e-320, 20}, {}},
        {{2, 1000, 1, 1, std::numeric_limits<std::int32_t>::min()}, {}}, // no batch would end it
        {{2, 1000, -20, 0.5, 60}, {}},
    };
    for (const Recharge& c : cases)
        EXPECT_EQ(RechargeSeconds(c.input), c.seconds)
            << c.input.Count << ' ' << c.input.Need << ' ' << c.input.Reactor;
    try {
        static_cast<void>(RechargeSeconds({1, 1000, 0, 0.5, 20}));
        ADD_FAILURE() << "a need of 0";
    } catch (const KeshError& error) {
        EXPECT_EQ(error.Number(), errnum::DivisionByZero);
    }
}

TEST(ShieldRecharge, FollowsTheRule) {
    std::mt19937 random(4711);
    const auto to = [&](std::int32_t most) {
        return std::uniform_int_distribution<std::int32_t>(1, most)(random);
    };
    for (int i = 0; i < 500; ++i) {
        const ShieldRecharge input{to(40), to(200'000), to(9'000), to(200) / 100.0, to(60'000)};
        EXPECT_EQ(RechargeSeconds(input), plainSeconds(input)) << i;
    }
}

TEST(WeaponSlots, AreWeaponsByIndexOrSubtype) {
    const auto laser = [](const std::string& subtype, const std::string& id) {
        return repeat("0;", 5) + subtype + ';' + repeat("0;", 16) + id + ';';
    };
    clsTxtParser older;
    std::vector<std::string> many;
    for (int i = 0; i < 40; ++i)
        many.push_back(laser("0", "L" + std::to_string(i)));
    const std::string text =
        slots(loaded(older, many, otype::Laser), SubtypesOf(otype::Laser), false);
    EXPECT_TRUE(text.starts_with("0=L0 1=L1 ") && text.ends_with(" 31=L31 ")) << text;

    clsTxtParser newer;
    loaded(newer,
           {laser("SG_LASER_KYON", "A"), laser("SG_LASER_PAC", "B"), laser("SG_LASER_PAC", "C"),
            laser("sg_laser_ire", "D"), laser("", "E"), laser("SG_LASER_OWN", "F")},
           otype::Laser);
    newer.CreateObject({}); // without values
    EXPECT_EQ(slots(newer, SubtypesOf(otype::Laser), true), "1=B 31=A ");
    EXPECT_EQ(slots(newer, SubtypesOf(otype::Missiles), true), "");
}

TEST(WeaponSlots, MasksKeepTheir32Bits) {
    struct Mask {
        const char* stored = "";
        std::optional<std::uint32_t> bits;
        const char* written = "";
    };
    const Mask cases[] = {
        {"0", 0U, "0"},
        {"5", 5U, "5"},
        {"-1", 0xFFFFFFFFU, "-1"},
        {"4294967295", 0xFFFFFFFFU, "-1"},
        {"2147483648", 0x80000000U, "-2147483648"},
        {"-2147483648", 0x80000000U, "-2147483648"},
        {"-2147483649", {}, ""},
        {"4294967296", {}, ""},
        {"1.5", {}, ""},
        {"1e300", {}, ""},
        {"0x1", {}, ""},
        {"", {}, ""},
    };
    for (const Mask& c : cases) {
        const auto bits = ReadMask(*shipOf({{18, c.stored}}), 18);
        EXPECT_EQ(bits, c.bits) << c.stored;
        if (bits) {
            EXPECT_EQ(keshobjects::spellValue(MaskValue(*bits)), c.written);
        }
    }
    for (const std::int32_t outside : {-1, 65})
        EXPECT_EQ(ReadMask(*shipOf({}), outside), std::nullopt);
}
