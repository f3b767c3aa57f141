#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <array>

namespace sample {

namespace {

/// Field 5 of stations and wrecks holds words from this version on.
constexpr int firstSymbolicStations = 48;

struct Works {
    Phrase name;
    std::string_view subtype;
    int position;
    char product;
};

constexpr std::array<Works, 10> works = {{
    {{"Oil Press", "Ölmühle"}, "SG_FAC_POWER", 4, 'E'},
    {{"Bakery", "Bäckerei"}, "SG_FAC_FOOD", 3, 'F'},
    {{"Smokehouse", "Räucherei"}, "SG_FAC_FOOD", 3, 'F'},
    {{"Kelp Farm", "Tangfarm"}, "SG_FAC_BIO", 2, 'B'},
    {{"Apiary", "Imkerei"}, "SG_FAC_BIO", 2, 'B'},
    {{"Slate Quarry", "Schieferbruch"}, "SG_FAC_MINE", 5, 'M'},
    {{"Lens Grinder", "Linsenschleiferei"}, "SG_FAC_TECH", 1, 'T'},
    {{"Rope Walk", "Reeperbahn"}, "SG_FAC_TECH", 1, 'T'},
    {{"Slipway", "Helling"}, "SG_FAC_SHIP", 0, 'T'},
    {{"Granary", "Kornspeicher"}, "SG_FAC_STORAGE", 6, 'N'},
}};

struct Dock {
    Phrase name;
    std::string_view subtype;
    int position;
};

constexpr std::array<Dock, 6> docks = {{
    {{"Market Hall", "Markthalle"}, "SG_DOCK_TRADE", 0},
    {{"Pilgrim House", "Pilgerhaus"}, "SG_DOCK_GONER", 1},
    {{"Hidden Cove", "Verborgene Bucht"}, "SG_DOCK_PIRATES", 2},
    {{"Chandlery", "Schiffsausrüster"}, "SG_DOCK_EQUIP", 3},
    {{"Counting House", "Kontor"}, "SG_DOCK_HQ", 4},
    {{"Great Hive", "Großer Stock"}, "SG_DOCK_KHAAK", 5},
}};

struct Wreck {
    Phrase name;
    std::string_view subtype;
    int position; ///< in ship classes, docks, factories, one behind the other
};

constexpr std::array<Wreck, 4> wrecks = {{
    {{"Burnt Scout", "Ausgebrannter Späher"}, "SG_SH_M5", 7},
    {{"Broken Carrier", "Zerbrochener Träger"}, "SG_SH_M1", 3},
    {{"Empty Market", "Leerer Markt"}, "SG_DOCK_TRADE", 16},
    {{"Flooded Quarry", "Gefluteter Bruch"}, "SG_FAC_MINE", 27},
}};

constexpr std::array<Phrase, 6> specials = {{
    {"Weather Mast", "Wettermast"},
    {"Fog Bell", "Nebelglocke"},
    {"Toll Booth", "Zollhäuschen"},
    {"Billboard", "Plakatwand"},
    {"Old Lighthouse", "Alter Leuchtturm"},
    {"Drifting Garden", "Treibender Garten"},
}};

constexpr std::array<std::string_view, 3> sizes = {"S", "M", "L"};
constexpr std::array<int, 3> sizeNumbers = {1, 2, 5};
constexpr std::array<int, 5> races = {1, 2, 3, 4, 5};

constexpr Phrase about = {"Open around the clock.", "Rund um die Uhr geöffnet."};

Tail stationTail(Random& random, const std::string& id) {
    Tail tail;
    tail.valueNpc = 1000 * random.between(50, 900);
    tail.valuePlayer = 2 * tail.valueNpc;
    tail.wareClass = 5;
    tail.notoriety = 10 * random.below(30);
    tail.id = id;
    return tail;
}

/// Fields 7 to 16, which factories and docks share.
Record stationPart(Random& random, int race) {
    Record own;
    own.add(760, 120.5 + random.below(40), 900.25, 5000);           // sounds, distances, volume
    own.add("stations\\yard" + spell(race), random.between(1, 90)); // scenes
    return own.add(race, 480, 481, 12);
}

std::string factoryId(const Works& kind, std::size_t size, int repeat) {
    return idOf("FAC_" + std::string(sizes[size]) + "_", kind.name.english, repeat);
}

} // namespace

std::string factoryFile(Game& game, int version) {
    Random random(701);
    TText text(version);
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Works& kind : works)
            for (std::size_t size = 0; size < sizes.size(); ++size) {
                const std::string id = factoryId(kind, size, repeat);
                const std::string mark = " " + std::string(sizes[size]);
                Head head;
                head.body = "stations\\" + idOf("", kind.name.english);
                head.subtype = version >= firstSymbolicStations ? std::string(kind.subtype)
                                                                : spell(kind.position);
                head.name = game.texts.object(id, numbered(kind.name.english, repeat) + mark,
                                              numbered(kind.name.german, repeat) + mark, about);
                Record own = stationPart(random, random.pick(races));
                own.add(sizeNumbers[size], "ICON_WORKSHOP");
                text.add(framed(head, own, stationTail(random, id)));
            }
    return text.finish();
}

std::string dockFile(Game& game, int version) {
    Random random(1001);
    TText text(version);
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Dock& dock : docks) {
            const std::string id = idOf("DOCK_", dock.name.english, repeat);
            Head head;
            head.body = "stations\\" + idOf("", dock.name.english);
            head.subtype =
                version >= firstSymbolicStations ? std::string(dock.subtype) : spell(dock.position);
            head.name = game.texts.object(id, numbered(dock.name.english, repeat),
                                          numbered(dock.name.german, repeat), about);
            Record own = stationPart(random, random.pick(races));
            own.add(dock.position % 2 == 0 ? "ICON_MARKET" : "ICON_WHARF");
            text.add(framed(head, own, stationTail(random, id)));
        }
    return text.finish();
}

std::string specialFile(Game& game, int version) {
    Random random(801);
    TText text(version);
    for (const Phrase& name : specials) {
        const std::string id = idOf("SPEC_", name.english);
        Head head;
        head.name =
            game.texts.object(id, std::string(name.english), std::string(name.german), about);
        Record own;
        own.add("special\\" + idOf("", name.english));
        text.add(framed(head, own, stationTail(random, id)));
    }
    return text.finish();
}

std::string wreckFile(Game& game, int version) {
    Random random(1101);
    TText text(version);
    for (const Wreck& wreck : wrecks) {
        const std::string id = idOf("WRECK_", wreck.name.english);
        Head head;
        head.subtype =
            version >= firstSymbolicStations ? std::string(wreck.subtype) : spell(wreck.position);
        head.name = game.texts.object(id, std::string(wreck.name.english),
                                      std::string(wreck.name.german), about);
        Record own;
        own.add("wrecks\\" + idOf("", wreck.name.english), 490, 491);
        text.add(framed(head, own, stationTail(random, id)));
    }
    return text.finish();
}

std::vector<std::string> factoryIds(const Game& game) {
    std::vector<std::string> ids;
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Works& kind : works)
            for (std::size_t size = 0; size < sizes.size(); ++size)
                ids.push_back(factoryId(kind, size, repeat));
    return ids;
}

std::vector<std::string> dockIds(const Game& game) {
    std::vector<std::string> ids;
    for (int repeat = 0; repeat < game.scale; ++repeat)
        for (const Dock& dock : docks)
            ids.push_back(idOf("DOCK_", dock.name.english, repeat));
    return ids;
}

std::pair<char, std::string> productOf(int factory) {
    const int kind = factory / static_cast<int>(sizes.size()) % static_cast<int>(works.size());
    const char letter = works[static_cast<std::size_t>(kind)].product;
    const std::vector<std::string> ids = wareIds(1, letter);
    return {letter, ids[static_cast<std::size_t>(kind) % ids.size()]};
}

} // namespace sample
