#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <array>

namespace sample {

namespace {

/// Field 5 of lasers and missiles holds words from this version on, the slot's number before it.
constexpr int firstSymbolicWeapons = 50;

struct Weapon {
    Phrase name;
    std::string_view subtype;
    int slot;
};

constexpr std::array<Weapon, 14> lasers = {{
    {{"Ember Lance", "Glutlanze"}, "SG_LASER_IRE", 0},
    {{"Copper Sling", "Kupferschleuder"}, "SG_LASER_PAC", 1},
    {{"Hail Caster", "Hagelwerfer"}, "SG_LASER_MASS", 2},
    {{"Kiln Breath", "Ofenhauch"}, "SG_LASER_HEPT", 6},
    {{"Chalk Ray", "Kreidestrahl"}, "SG_LASER_PBE", 8},
    {{"Rivet Stream", "Nietenstrom"}, "SG_LASER_CIG", 11},
    {{"Tide Hammer", "Gezeitenhammer"}, "SG_LASER_BORON_MEDIUM", 12},
    {{"Swallow Screen", "Schwalbenschirm"}, "SG_LASER_TERRAN_AF", 19},
    {{"Anvil Light", "Ambosslicht"}, "SG_LASER_PPC", 20},
    {{"Long Wick", "Langer Docht"}, "SG_LASER_ARGON_BEAM", 25},
    {{"Mending Lamp", "Flicklampe"}, "SG_LASER_SPECIAL", 28},
    {{"Quarry Drill", "Steinbohrer"}, "SG_LASER_UNKNOWN1", 29},
    {{"Tow Thread", "Schleppfaden"}, "SG_LASER_UNKNOWN2", 30},
    {{"Hive Spark", "Stockfunke"}, "SG_LASER_KYON", 31},
}};

constexpr std::array<Weapon, 9> missiles = {{
    {{"Bodkin", "Pfriem"}, "SG_MISSILE_LIGHT", 0},
    {{"Gimlet", "Handbohrer"}, "SG_MISSILE_MEDIUM", 1},
    {{"Mallet", "Schlegel"}, "SG_MISSILE_HEAVY", 2},
    {{"Awl", "Ahle"}, "SG_MISSILE_TR_LIGHT", 3},
    {{"Adze", "Dechsel"}, "SG_MISSILE_BOMBER", 7},
    {{"Wedge", "Keil"}, "SG_MISSILE_TORP_CAPITAL", 8},
    {{"Sieve", "Sieb"}, "SG_MISSILE_AF_CAPITAL", 9},
    {{"Grapnel", "Wurfanker"}, "SG_MISSILE_BOARDINGPOD", 13},
    {{"Thresher", "Drescher"}, "SG_MISSILE_DMBF", 14},
}};

struct Shield {
    Phrase name;
    int power = 0;
    int strength = 0;
    double efficiency = 0;
};

constexpr std::array<Shield, 5> shields = {{
    {{"Gauze Screen", "Gazeschirm"}, 40, 900, 0.8},
    {{"Linen Screen", "Leinenschirm"}, 150, 4800, 0.75},
    {{"Felt Screen", "Filzschirm"}, 600, 24000, 0.7},
    {{"Canvas Screen", "Segeltuchschirm"}, 2400, 118000, 0.625},
    {{"Slate Screen", "Schieferschirm"}, 9000, 610000, 0.5}, // the mod's
}};

constexpr std::array<Phrase, 6> cockpits = {{
    {"Bow Glass", "Bugglas"},
    {"Tail Cabin", "Heckkabine"},
    {"Port Bay", "Backborderker"},
    {"Starboard Bay", "Steuerborderker"},
    {"Upper Dome", "Obere Kuppel"},
    {"Keel Dome", "Kielkuppel"},
}};

/// Bullets that only come out of other bullets, behind one bullet for each laser.
constexpr std::array<Phrase, 2> fragments = {{
    {"Hail Splinter", "Hagelsplitter"},
    {"Anvil Chip", "Ambossspan"},
}};

constexpr Phrase about = {"Sold by weight, never returned.",
                          "Nach Gewicht verkauft, kein Umtausch."};

std::string subtypeOf(const Weapon& weapon, int version) {
    return version >= firstSymbolicWeapons ? std::string(weapon.subtype) : spell(weapon.slot);
}

std::string iconOf(std::string_view prefix, const Weapon& weapon) {
    return "ICON_" + idOf(prefix, weapon.name.english);
}

Head headOf(Game& game, const std::string& id, const Phrase& name, int picture) {
    Head head;
    head.picture = picture;
    head.name = game.texts.object(id, std::string(name.english), std::string(name.german), about);
    return head;
}

Tail tailOf(Random& random, const std::string& id, int price, int wareClass) {
    Tail tail;
    tail.volume = random.between(1, 25);
    tail.valueNpc = price;
    tail.valuePlayer = price + price / 10;
    tail.modifier1 = random.between(5, 20);
    tail.modifier2 = random.between(5, 20);
    tail.wareClass = wareClass;
    tail.id = id;
    return tail;
}

Record bulletOf(Random& random, int number, bool fragmenting) {
    Record own;
    own.add(random.between(10, 4000), random.between(1, 300),
            800 + number); // damage, energy, sound
    own.add(1000 + 250 * random.below(8), 100000 + 5000 * random.below(90)); // lifetime, speed
    own.add(1 << (number % 9), random.below(256), random.below(256),
            random.below(256));                                             // flags, colour
    own.add(0.25 + random.hundredth(), 0.5, 1.5 + random.hundredth());      // box
    own.add(200 + number, 220 + number, 240 + number);                      // effects
    own.add(random.between(1, 900), 260 + number, 820 + number, 300, 5000); // hull, trail, sounds
    own.zeros(1).add(25, 3000, 2, 40, 1500);                                // slowing, draining
    own.add(fragmenting ? static_cast<int>(lasers.size()) + number % 2 : 0, fragmenting ? 6 : 0);
    return own.add(1, 1);
}

int maskOf(const auto& weapons) {
    std::uint32_t mask = 0;
    for (const Weapon& weapon : weapons)
        mask |= std::uint32_t{1} << weapon.slot;
    return static_cast<int>(mask);
}

} // namespace

std::string laserFile(Game& game, int version) {
    Random random(301);
    TText text(version);
    for (std::size_t i = 0; i < lasers.size(); ++i) {
        const Weapon& laser = lasers[i];
        const std::string id = idOf("LAS_", laser.name.english);
        const int number = static_cast<int>(i);
        Head head = headOf(game, id, laser.name, number);
        head.body = "weapons\\mount";
        head.subtype = subtypeOf(laser, version);
        Record own;
        own.add(100 * random.between(1, 30), 850 + number, number, random.between(200, 9000));
        own.add(1.25 + random.hundredth(), iconOf("LAS_", laser));
        text.add(framed(head, own, tailOf(random, id, random.between(400, 90000), number % 4)));
    }
    return text.finish();
}

std::string bulletFile(Game& game, int version) {
    Random random(401);
    TText text(version);
    for (std::size_t i = 0; i < lasers.size() + fragments.size(); ++i) {
        const bool isFragment = i >= lasers.size();
        const Phrase& name = isFragment ? fragments[i - lasers.size()] : lasers[i].name;
        const std::string id = idOf("BUL_", name.english);
        const int number = static_cast<int>(i);
        Record own = bulletOf(random, number, !isFragment && i % 6 == 2);
        Tail tail = tailOf(random, id, 0, 0);
        tail.volume = number % 8; // the ammunition: a place in TWareT
        text.add(framed(headOf(game, id, name, 0), own, tail));
    }
    return text.finish();
}

std::string missileFile(Game& game, int version) {
    Random random(501);
    TText text(version);
    for (std::size_t i = 0; i < missiles.size(); ++i) {
        const Weapon& missile = missiles[i];
        const std::string id = idOf("MIS_", missile.name.english);
        const int number = static_cast<int>(i);
        Head head = headOf(game, id, missile.name, 40 + number);
        head.body = "weapons\\dart";
        head.subtype = subtypeOf(missile, version);
        Record own;
        own.add(40000 + 4000 * random.below(60), 20000, 900 + number, 920, 0); // flight
        own.add(random.between(200, 90000), 1000 * random.below(20), 1000 * random.between(8, 60));
        own.add(301, 302, 930, 400, 6000, 310, 311, 312);
        own.add(1 << (number % 9), 500 * random.between(1, 9), iconOf("MIS_", missile));
        own.add("effects\\dart_trail");
        text.add(framed(head, own, tailOf(random, id, random.between(50, 20000), number % 3)));
    }
    return text.finish();
}

std::string shieldFile(Game& game, int version, bool withModShield) {
    Random random(201);
    TText text(version);
    const std::size_t count = shields.size() - (withModShield ? 0 : 1);
    for (std::size_t i = 0; i < count; ++i) {
        const Shield& shield = shields[i];
        const std::string id = idOf("SHD_", shield.name.english);
        Head head = headOf(game, id, shield.name, 60);
        head.subtype = spell(static_cast<int>(i));
        Record own;
        own.add(shield.power, shield.strength, 500, shield.efficiency);
        text.add(framed(head, own, tailOf(random, id, shield.strength / 2, static_cast<int>(i))));
    }
    return text.finish();
}

std::string cockpitFile(Game& game, int version) {
    Random random(901);
    TText text(version);
    for (const Phrase& cockpit : cockpits) {
        const std::string id = idOf("CPT_", cockpit.english);
        Record own;
        own.add("cockpits\\plain", laserMask() & ~(1 << random.below(8)));
        text.add(framed(headOf(game, id, cockpit, 0), own, tailOf(random, id, 0, 0)));
    }
    return text.finish();
}

int laserCount() {
    return static_cast<int>(lasers.size());
}

int shieldCount() {
    return static_cast<int>(shields.size()) - 1;
}

int cockpitCount() {
    return static_cast<int>(cockpits.size());
}

int laserMask() {
    return maskOf(lasers);
}

int missileMask() {
    return maskOf(missiles);
}

std::vector<std::string> weaponIds() {
    std::vector<std::string> ids;
    for (const Weapon& laser : lasers)
        ids.push_back(idOf("LAS_", laser.name.english));
    for (const Weapon& missile : missiles)
        ids.push_back(idOf("MIS_", missile.name.english));
    for (int i = 0; i < shieldCount(); ++i)
        ids.push_back(idOf("SHD_", shields[static_cast<std::size_t>(i)].name.english));
    return ids;
}

std::vector<std::string> iconNames() {
    std::vector<std::string> names;
    for (const Weapon& laser : lasers)
        names.push_back(iconOf("LAS_", laser));
    for (const Weapon& missile : missiles)
        names.push_back(iconOf("MIS_", missile));
    names.insert(names.end(), {"ICON_WORKSHOP", "ICON_MARKET", "ICON_WHARF"});
    return names;
}

} // namespace sample
