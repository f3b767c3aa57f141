#include "sample/gamefiles.h"
#include "sample/random.h"
#include "sample/ttext.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace sample {

namespace {

constexpr int gridWidth = 9;
constexpr int gridHeight = 8;

constexpr std::array<SectorPlace, 8> holes = {
    {{4, 3}, {8, 0}, {0, 7}, {2, 5}, {6, 2}, {7, 6}, {5, 0}, {1, 2}}};

constexpr std::array<Phrase, 12> firstWords = {{
    {"Quiet", "Stille"},
    {"Lantern", "Laternen"},
    {"Copper", "Kupfer"},
    {"Gull", "Möwen"},
    {"Winter", "Winter"},
    {"Mill", "Mühlen"},
    {"Amber", "Bernstein"},
    {"Fog", "Nebel"},
    {"Harvest", "Ernte"},
    {"Willow", "Weiden"},
    {"Salt", "Salz"},
    {"Hollow", "Hohle"},
}};
constexpr std::array<Phrase, 6> secondWords = {{
    {"Reach", "Weite"},
    {"Shoals", "Untiefe"},
    {"Ford", "Furt"},
    {"Meadow", "Wiese"},
    {"Narrows", "Enge"},
    {"Basin", "Becken"},
}};

/// What a gate of each direction needs: the way it leads, its IDs, its place in the sector.
struct Direction {
    int dx;
    int dy;
    int gate;   ///< "gid" here
    int target; ///< "gid" of the gate that leads back
    int x;
    int z;
    int alpha;
};
constexpr std::array<Direction, 4> directions = {{
    {0, -1, 1, 2, 0, 22000, 0},
    {0, 1, 2, 1, 0, -22000, 32768},
    {-1, 0, 3, 4, -22000, 0, 16384},
    {1, 0, 4, 3, 22000, 0, -16384},
}};

using Attributes = std::initializer_list<std::pair<std::string_view, std::string>>;

class UniverseText {
public:
    void open(Attributes attributes) {
        element(attributes, ">");
        ++m_depth;
    }
    void leaf(Attributes attributes) { element(attributes, "/>"); }
    void close() {
        --m_depth;
        indent();
        m_text += "</o>\n";
    }
    void comment(std::string_view text) {
        indent();
        m_text.append("<!-- ").append(text).append(" -->\n");
    }
    [[nodiscard]] std::string finish() const {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<universe xmlns=\"KESHUNIV.xsd\">\n" +
               m_text + "</universe>\n";
    }

private:
    void indent() { m_text.append(static_cast<std::size_t>(m_depth), ' '); }
    void element(Attributes attributes, std::string_view end) {
        indent();
        m_text += "<o";
        for (const auto& [key, value] : attributes)
            m_text.append(" ").append(key).append("=\"").append(value).append("\"");
        m_text.append(end).append("\n");
    }

    std::string m_text;
    int m_depth = 1;
};

struct Place {
    std::string x;
    std::string y;
    std::string z;
};

Place placeOf(Random& random, int range) {
    const auto coordinate = [&] { return spell(random.between(-range, range)); };
    return {coordinate(), coordinate(), coordinate()};
}

void addSky(UniverseText& out, Random& random) {
    out.leaf({{"t", "2"}, {"s", spell(random.below(6))}});
    out.leaf({{"t", "3"},
              {"s", spell(random.below(4))},
              {"x", "90000"},
              {"y", "40000"},
              {"z", "1.5"},
              {"a", "0"},
              {"b", "0"},
              {"g", "0"},
              {"color", spell(0xFFF0C0)}});
    for (int i = random.below(3); i >= 0; --i) {
        const Place place = placeOf(random, 60000);
        out.leaf({{"t", "4"},
                  {"s", spell(random.below(8))},
                  {"x", place.x},
                  {"y", place.y},
                  {"z", place.z},
                  {"a", "0"},
                  {"b", spell(random.below(65536))},
                  {"g", "0"}});
    }
}

void addGates(UniverseText& out, const SectorPlace& sector,
              const std::vector<SectorPlace>& sectors) {
    for (const Direction& way : directions) {
        const int x = sector.x + way.dx;
        const int y = sector.y + way.dy;
        const bool leads = std::ranges::any_of(
            sectors, [&](const SectorPlace& other) { return other.x == x && other.y == y; });
        if (!leads)
            continue;
        out.leaf({{"t", "18"},
                  {"s", spell(way.gate - 1)},
                  {"x", spell(way.x)},
                  {"y", "0"},
                  {"z", spell(way.z)},
                  {"a", spell(way.alpha)},
                  {"b", "0"},
                  {"g", "0"},
                  {"r", "1"},
                  {"gid", spell(way.gate)},
                  {"gx", spell(x)},
                  {"gy", spell(y)},
                  {"gtid", spell(way.target)}});
    }
}

/// Object type of the ware files.
int wareType(char letter) {
    constexpr std::string_view letters = "ENBFMT";
    return 11 + static_cast<int>(letters.find(letter));
}

void addWares(UniverseText& out, int list, char letter, const std::string& id, int amount) {
    out.open({{"t", "23"}, {"s", spell(list)}});
    out.leaf({{"t", spell(wareType(letter))}, {"s", id}, {"n", spell(amount)}});
    out.close();
}

void addFactory(UniverseText& out, Random& random, const std::vector<std::string>& factories) {
    const int kind = random.below(static_cast<int>(factories.size()));
    const auto [letter, product] = productOf(kind);
    const Place place = placeOf(random, 15000);
    out.open({{"t", "6"},
              {"s", factories[static_cast<std::size_t>(kind)]},
              {"x", place.x},
              {"y", place.y},
              {"z", place.z},
              {"a", "0"},
              {"b", "0"},
              {"g", "0"},
              {"r", spell(random.between(1, 5))}});
    addWares(out, 6, 'E', wareIds(1, 'E')[0], random.between(100, 900));
    addWares(out, 7, letter, product, random.below(400));
    out.leaf({{"t", "23"}, {"s", "5"}});
    out.close();
}

void addDock(UniverseText& out, Random& random, const std::string& dock, const std::string& ship) {
    const Place place = placeOf(random, 12000);
    const std::string race = spell(random.between(1, 5));
    out.open({{"t", "5"},
              {"s", dock},
              {"x", place.x},
              {"y", place.y},
              {"z", place.z},
              {"a", "0"},
              {"b", "0"},
              {"g", "0"},
              {"r", race},
              {"landlord", "guild &amp; sons"}});
    addWares(out, 8, 'T', wareIds(1, 'T')[1], random.below(60));
    out.open({{"t", "23"}, {"s", "5"}});
    out.leaf({{"t", "7"}, {"s", ship}, {"r", race}});
    out.close();
    out.close();
}

void addRocks(UniverseText& out, Random& random) {
    for (int i = random.below(5); i > 0; --i) {
        const Place place = placeOf(random, 18000);
        out.leaf({{"t", "17"},
                  {"s", spell(random.below(5))},
                  {"x", place.x},
                  {"y", place.y},
                  {"z", place.z},
                  {"a", "0"},
                  {"b", "0"},
                  {"g", "0"},
                  {"atype", spell(random.below(3))},
                  {"aamount", spell(random.between(5, 60))}});
    }
}

void addPatrol(UniverseText& out, Random& random, const std::vector<std::string>& ships) {
    out.open({{"t", "23"}, {"s", "9"}});
    for (int i = random.between(1, 3); i > 0; --i) {
        const Place place = placeOf(random, 9000);
        out.open({{"t", "7"},
                  {"s", random.pick(ships)},
                  {"x", place.x},
                  {"y", place.y},
                  {"z", place.z},
                  {"r", spell(random.between(1, 5))}});
        out.open({{"t", "23"}, {"s", "1"}});
        out.leaf({{"t", "9"}, {"s", spell(random.below(shieldCount()))}, {"n", "1"}});
        out.close();
        out.close();
    }
    out.close();
}

/// What only some sectors have.
void addRarities(UniverseText& out, Random& random, int number) {
    const Place place = placeOf(random, 14000);
    if (number % 6 == 2)
        out.leaf({{"t", "21"},
                  {"s", spell(random.below(4))},
                  {"x", place.x},
                  {"y", place.y},
                  {"z", place.z}});
    if (number % 7 == 3)
        out.leaf({{"t", "20"},
                  {"s", spell(random.below(6))},
                  {"x", place.x},
                  {"y", place.y},
                  {"z", place.z},
                  {"a", "0"},
                  {"b", "0"},
                  {"g", "0"}});
    if (number % 9 == 4)
        out.leaf({{"t", "28"}, {"s", "0"}, {"x", place.x}, {"y", place.y}, {"z", place.z}});
}

std::string sectorColour(Random& random) {
    return spell(random.below(0x1000000));
}

} // namespace

std::vector<SectorPlace> sectorPlaces() {
    std::vector<SectorPlace> places;
    for (int y = 0; y < gridHeight; ++y)
        for (int x = 0; x < gridWidth; ++x)
            if (std::ranges::none_of(
                    holes, [&](const SectorPlace& hole) { return hole.x == x && hole.y == y; }))
                places.push_back({x, y});
    return places;
}

void nameSectors(Texts& texts) {
    std::size_t number = 0;
    for (const SectorPlace& place : sectorPlaces()) {
        const Phrase& first = firstWords[number % firstWords.size()];
        const Phrase& second =
            secondWords[(number + number / firstWords.size()) % secondWords.size()];
        ++number;
        texts.set(Texts::SectorPage, 1020000 + 100 * (place.y + 1) + place.x + 1,
                  std::string(first.english) + " " + std::string(second.english),
                  std::string(first.german) + "-" + std::string(second.german));
    }
}

std::string universeFile(Game& game) {
    Random random(1);
    const std::vector<SectorPlace> sectors = sectorPlaces();
    const std::vector<std::string> ships = shipIds(game);
    const std::vector<std::string> factories = factoryIds(game);
    const std::vector<std::string> docks = dockIds(game);
    UniverseText out;
    out.comment("Sixty-four sectors; every gate leads to one that leads back");
    int number = 0;
    for (const SectorPlace& sector : sectors) {
        out.open({{"t", "1"},
                  {"s", "0"},
                  {"x", spell(sector.x)},
                  {"y", spell(sector.y)},
                  {"r", spell(random.between(1, 5))},
                  {"color", sectorColour(random)},
                  {"ff", "0"},
                  {"fc", "0"},
                  {"fn", "0"},
                  {"m", spell(8100 + number % 12)}});
        addSky(out, random);
        addGates(out, sector, sectors);
        for (int i = random.below(4); i >= 0; --i)
            addFactory(out, random, factories);
        addDock(out, random, random.pick(docks), random.pick(ships));
        addRocks(out, random);
        addPatrol(out, random, ships);
        addRarities(out, random, number++);
        out.close();
    }
    return out.finish();
}

std::string smallUniverseFile() {
    Random random(2);
    std::vector<SectorPlace> sectors;
    for (int i = 0; i < 9; ++i)
        sectors.push_back({i % 3, i / 3});
    UniverseText out;
    for (const SectorPlace& sector : sectors) {
        out.open({{"t", "1"},
                  {"s", "0"},
                  {"x", spell(sector.x)},
                  {"y", spell(sector.y)},
                  {"r", "1"},
                  {"color", "0"},
                  {"ff", "0"},
                  {"fc", "0"},
                  {"fn", "0"}});
        addSky(out, random);
        addGates(out, sector, sectors);
        out.close();
    }
    return out.finish();
}

} // namespace sample
