#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <algorithm>
#include <array>

namespace sample {

namespace {

/// Class and type of a ship are words from this version on, numbers before it.
constexpr int firstSymbolicShips = 49;
constexpr int fixedValues = 54;
constexpr int mostTurrets = 6;

struct ShipClass {
    std::string_view key;
    int position;
    std::string_view type;
    std::string_view typeId;
    int speed;   ///< metres a second
    int turrets; ///< without the front cockpit; -1: no guns at all
    int guns;    ///< in the front cockpit
    int shield;
    int cargo;
};

constexpr std::array<ShipClass, 15> classes = {{
    {"SG_SH_TL", 0, "OBJ_SHIP_TL", "2032", 60, 6, 0, 3, 50000},
    {"SG_SH_TS", 1, "OBJ_SHIP_TS", "2031", 90, 1, 0, 1, 4000},
    {"SG_SH_M1", 3, "OBJ_SHIP_M1", "2021", 70, 6, 4, 3, 12000},
    {"SG_SH_M2", 4, "OBJ_SHIP_M2", "2022", 75, 6, 8, 3, 8000},
    {"SG_SH_M3", 5, "OBJ_SHIP_M3", "2023", 150, 1, 6, 2, 300},
    {"SG_SH_M4", 6, "OBJ_SHIP_M4", "2024", 220, 0, 4, 1, 120},
    {"SG_SH_M5", 7, "OBJ_SHIP_M5", "2025", 340, 0, 2, 0, 40},
    {"SG_SH_TS_P", 9, "OBJ_SHIP_TS_PIRATE", "2035", 110, 2, 2, 1, 3500},
    {"SG_SH_GO", 10, "OBJ_SHIP_GONER", "2039", 130, 0, 0, 1, 900},
    {"SG_SH_M6", 11, "OBJ_SHIP_M6", "2026", 130, 4, 6, 2, 1500},
    {"SG_SH_TP", 12, "OBJ_SHIP_TP", "2030", 160, 1, 2, 1, 200},
    {"SG_SH_M7", 13, "OBJ_SHIP_M7", "2027", 95, 5, 8, 3, 6000},
    {"SG_SH_TM", 14, "OBJ_SHIP_TM", "2141", 100, 2, 0, 2, 1200},
    {"SG_SH_M8", 15, "OBJ_SHIP_M8", "2142", 120, 2, 2, 2, 700},
    {"SG_SH_M5", 7, "OBJ_SATELLITE", "2065", 20, -1, 0, 0, 0},
}};

struct Hull {
    Phrase name;
    std::size_t shipClass = 0; ///< in `classes`
};

constexpr std::array<Hull, 26> hulls = {{
    {{"Teasel", "Karde"}, 6},
    {{"Burdock", "Klette"}, 1},
    {{"Yarrow", "Schafgarbe"}, 5},
    {{"Sorrel", "Sauerampfer"}, 4},
    {{"Bramble", "Brombeere"}, 9},
    {{"Thistle", "Distel"}, 3},
    {{"Foxglove", "Fingerhut"}, 11},
    {{"Larkspur", "Rittersporn"}, 4},
    {{"Mallow", "Malve"}, 10},
    {{"Comfrey", "Beinwell"}, 1},
    {{"Tansy", "Rainfarn"}, 6},
    {{"Betony", "Ziest"}, 5},
    {{"Campion", "Lichtnelke"}, 12},
    {{"Woodruff", "Waldmeister"}, 8},
    {{"Hawthorn", "Weißdorn"}, 2},
    {{"Rowan", "Eberesche"}, 3},
    {{"Alder", "Erle"}, 0},
    {{"Juniper", "Wacholder"}, 9},
    {{"Blackthorn", "Schlehe"}, 7},
    {{"Hornbeam", "Hainbuche"}, 0},
    {{"Aspen", "Espe"}, 6},
    {{"Linden", "Linde"}, 13},
    {{"Spindle", "Pfaffenhütchen"}, 5},
    {{"Elder", "Holunder"}, 2},
    {{"Lookout Buoy", "Wachboje"}, 14},
    {{"Signal Buoy", "Signalboje"}, 14},
}};

constexpr std::array<Hull, 3> modHulls = {{
    {{"Long Alder", "Lange Erle"}, 0},
    {{"Old Burdock", "Alte Klette"}, 1},
    {{"Red Rowan", "Rote Eberesche"}, 3},
}};

constexpr int variants = 2;
constexpr std::array<int, 7> races = {1, 2, 3, 4, 5, 8, 18};

constexpr Phrase about = {"Built in the [color=blue]old yards[/color], repaired everywhere.",
                          "In den [color=blue]alten Werften[/color] gebaut, überall geflickt."};

std::string shipId(const Hull& hull, int variant, int repeat) {
    return idOf(variant == 0 ? "SHIP_" : "SHIP_V" + spell(variant) + "_", hull.name.english,
                repeat);
}

/// The fixed front cockpit and the turrets behind it, the gun groups, and all counts that tell of
/// them.
class Armament {
public:
    Armament(const ShipClass& shipClass, Random& random) : m_sections(random) {
        if (shipClass.turrets < 0)
            return;
        addTurret("ships\\bow", 0);
        addGroup(shipClass.guns, 2);
        for (int i = 1; i <= shipClass.turrets; ++i) {
            addTurret("turrets\\mount" + spell(1 + m_sections.below(3)), i);
            addGroup(m_sections.between(1, 4), 1 + m_sections.below(2));
        }
    }

    [[nodiscard]] int turretCount() const { return m_turretCount; }
    [[nodiscard]] int gunCount() const { return m_nextGun - 1; }
    /// Values 31 to 42: what stands in each turret, and where it is.
    [[nodiscard]] Record descriptors() const {
        Record record;
        for (int i = 0; i < mostTurrets; ++i)
            if (i < m_turretCount - 1)
                record.add(i % cockpitCount(), i % mostTurrets + 1);
            else
                record.zeros(2);
        return record;
    }
    [[nodiscard]] Record dynamicPart() const {
        Record record = m_turrets;
        record.add(m_turretCount); // each turret has one gun group
        return record.append(m_groups);
    }

private:
    void addTurret(const std::string& body, int number) {
        m_turrets.add(++m_turretCount, number, body, number);
    }

    void addGroup(int guns, int gunsAnEntry) {
        const int entries = (guns + gunsAnEntry - 1) / gunsAnEntry;
        m_groups.add(m_nextGun, guns, m_turretCount, entries);
        for (int left = guns; left > 0; left -= gunsAnEntry) {
            const int count = std::min(left, gunsAnEntry);
            const bool second = left % 3 == 0;
            m_groups.add(m_nextGun, count, "turrets\\barrel", left, second ? "turrets\\muzzle" : "",
                         second ? left : -1);
            m_nextGun += count;
        }
    }

    Random& m_sections;
    Record m_turrets;
    Record m_groups;
    int m_turretCount = 0;
    int m_nextGun = 1;
};

Record fixedPart(const ShipClass& shipClass, Random& random, int wareLists) {
    Record own;
    own.add(500 * shipClass.speed, 500 * random.between(2, 30), 700 + random.below(20), 1200);
    own.add(random.between(1, 9), random.between(10, 19), 40 * (shipClass.shield + 1) * 3, 400,
            5000);
    own.add("scenes\\hull" + spell(random.between(1, 9)), "scenes\\helm", laserMask(), 0);
    own.add(300 * random.between(1, 40), 0.02 + random.hundredth() / 10, shipClass.shield);
    own.add(random.between(1, 5), missileMask(), random.below(9), random.between(2, 12), 10);
    own.add(shipClass.cargo / 2, shipClass.cargo, random.below(wareLists));
    return own;
}

Record shipOf(Game& game, const Hull& hull, int variant, int repeat, int version, Random& random) {
    const ShipClass& shipClass = classes[hull.shipClass];
    const bool symbolic = version >= firstSymbolicShips;
    const Armament armament(shipClass, random);

    Head head;
    Tail tail;
    tail.id = shipId(hull, variant, repeat);
    head.body = "ships\\" + idOf("", hull.name.english);
    head.rotation[0] = 0.1 + random.hundredth();
    head.rotation[1] = 0.1 + random.hundredth();
    head.rotation[2] = 0.1 + random.hundredth();
    head.subtype = symbolic ? std::string(shipClass.key) : spell(shipClass.position);
    head.name = game.texts.object(idOf("SHIP_", hull.name.english, repeat),
                                  numbered(hull.name.english, repeat),
                                  numbered(hull.name.german, repeat), about);
    tail.valueNpc = 100 * random.between(20, 90000);
    tail.valuePlayer = tail.valueNpc;
    tail.wareClass = 5;

    Record own = fixedPart(shipClass, random, wareListCount(game));
    own.append(armament.descriptors());
    own.add(shipClass.turrets >= 5 ? 8 : 0, std::min(shipClass.cargo / 1000, 4));
    own.add(random.pick(races), 500 * (shipClass.shield + 1) * 8, 450, 460, 470, variant);
    own.add(0.5 + random.hundredth(), symbolic ? shipClass.type : shipClass.typeId);
    own.add(armament.turretCount());
    own.append(armament.dynamicPart());

    Record record = framed(head, own, tail);
    record.at(19) = spell(armament.gunCount());
    return record;
}

} // namespace

std::string shipFile(Game& game, int version) {
    Random random(101);
    TText text(version);
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Hull& hull : hulls)
            for (int variant = 0; variant < variants; ++variant)
                text.add(shipOf(game, hull, variant, repeat, version, random));
    return text.finish();
}

std::string modShipFile(Game& game, int version) {
    Random random(102);
    TText text(version);
    // All that the game's jobs ask for stay.
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Hull& hull : hulls)
            for (int variant = 0; variant < variants; ++variant)
                text.add(shipOf(game, hull, variant, repeat, version, random));
    for (const Hull& hull : modHulls)
        text.add(shipOf(game, hull, 3, 0, version, random));
    return text.finish();
}

std::vector<std::string> shipIds(const Game& game) {
    std::vector<std::string> ids;
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Hull& hull : hulls)
            for (int variant = 0; variant < variants; ++variant)
                ids.push_back(shipId(hull, variant, repeat));
    return ids;
}

std::vector<std::string_view> shipBodies() {
    std::vector<std::string_view> names;
    for (const Hull& hull : hulls)
        names.push_back(hull.name.english);
    return names;
}

} // namespace sample
