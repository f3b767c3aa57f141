#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <algorithm>
#include <array>
#include <span>

namespace sample {

namespace {

constexpr std::array<Phrase, 8> living = {{
    {"Kelp Fibre", "Tangfaser"},
    {"Beeswax", "Bienenwachs"},
    {"Rye Seed", "Roggensaat"},
    {"Mushroom Spawn", "Pilzbrut"},
    {"Snail Shells", "Schneckenhäuser"},
    {"Raw Wool", "Rohwolle"},
    {"Hop Vines", "Hopfenranken"},
    {"Carp Fry", "Karpfenbrut"},
}};

constexpr std::array<Phrase, 3> energy = {{
    {"Lamp Oil", "Lampenöl"},
    {"Charged Jars", "Geladene Gläser"},
    {"Peat Bricks", "Torfziegel"},
}};

constexpr std::array<Phrase, 9> food = {{
    {"Salt Loaves", "Salzbrote"},
    {"Plum Jam", "Pflaumenmus"},
    {"Smoked Carp", "Räucherkarpfen"},
    {"Oat Porridge", "Haferbrei"},
    {"Pickled Beets", "Eingelegte Rüben"},
    {"Honey Cakes", "Honigkuchen"},
    {"Dark Ale", "Dunkelbier"},
    {"Goat Cheese", "Ziegenkäse"},
    {"Herb Broth", "Kräuterbrühe"},
}};

constexpr std::array<Phrase, 4> mineral = {{
    {"Slate", "Schiefer"},
    {"Tin Ore", "Zinnerz"},
    {"Potter's Clay", "Töpferton"},
    {"Quartz Sand", "Quarzsand"},
}};

constexpr std::array<Phrase, 6> natural = {{
    {"Amber", "Bernstein"},
    {"Pearls", "Perlen"},
    {"Driftwood", "Treibholz"},
    {"Meteor Dust", "Meteorstaub"},
    {"Whale Song", "Walgesang"},
    {"Mammoth Ivory", "Mammutelfenbein"},
}};

constexpr std::array<Phrase, 12> technical = {{
    {"Iron Shot", "Eisenschrot"},
    {"Cogwheels", "Zahnräder"},
    {"Sailcloth", "Segeltuch"},
    {"Brass Valves", "Messingventile"},
    {"Ground Lenses", "Geschliffene Linsen"},
    {"Rudder Wire", "Ruderdraht"},
    {"Boiler Plates", "Kesselbleche"},
    {"Tuning Forks", "Stimmgabeln"},
    {"Chart Paper", "Kartenpapier"},
    {"Docking Clamps", "Andockklammern"},
    {"Signal Flags", "Signalflaggen"},
    {"Cargo Nets", "Ladenetze"},
}};

std::span<const Phrase> namesOf(char letter) {
    switch (letter) {
    case 'B':
        return living;
    case 'E':
        return energy;
    case 'F':
        return food;
    case 'M':
        return mineral;
    case 'N':
        return natural;
    default:
        return technical;
    }
}

constexpr Phrase about = {"[i]Keep dry.[/i]\\nBest before the next harvest.",
                          "[i]Trocken lagern.[/i]\\nHaltbar bis zur nächsten Ernte."};

constexpr int listsAtScaleOne = 24;

} // namespace

std::string wareFile(Game& game, char letter, int version) {
    Random random(600 + static_cast<std::uint32_t>(letter));
    TText text(version);
    int index = 0;
    for (int repeat = 0; repeat < game.scale; ++repeat) {
        for (const Phrase& name : namesOf(letter)) {
            Head head;
            Tail tail;
            tail.id = idOf("WARE_", name.english, repeat);
            head.picture = 100 + index % 40;
            head.subtype = spell(index++);
            head.rotation[1] = random.hundredth();
            head.name = game.texts.object(tail.id, numbered(name.english, repeat),
                                          numbered(name.german, repeat), about);
            tail.volume = random.between(1, 40);
            tail.valueNpc = random.between(4, 20000);
            tail.valuePlayer = tail.valueNpc + random.below(50);
            tail.wareClass = random.below(5);
            text.add(framed(head, Record(), tail));
        }
    }
    return text.finish();
}

std::vector<std::string> wareIds(int scale, char letter) {
    std::vector<std::string> ids;
    for (int repeat = 0; repeat < scale; ++repeat)
        for (const Phrase& name : namesOf(letter))
            ids.push_back(idOf("WARE_", name.english, repeat));
    return ids;
}

int wareListCount(const Game& game) {
    return listsAtScaleOne * game.scale;
}

std::string wareListFile(Game& game) {
    Random random(2101);
    std::vector<std::string> ids = weaponIds();
    for (const char letter : std::string_view("BEFMNT"))
        std::ranges::copy(wareIds(game.scale, letter), std::back_inserter(ids));
    std::string text = "// What a new ship carries\r\n" + spell(wareListCount(game)) + ";\r\n";
    for (int list = 0; list < wareListCount(game); ++list) {
        const int count = list % 12 == 5 ? 1 : random.between(3, 9);
        text += spell(count) + ";";
        for (int i = 0; i < count; ++i)
            text += random.pick(ids) + (i == 3 ? " ;" : ";");
        text += list % 7 == 0 ? " /* checked */\r\n" : "\r\n";
    }
    return text;
}

} // namespace sample
