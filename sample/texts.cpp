#include "sample/texts.h"

#include "sample/ttext.h"

#include <span>

namespace sample {

namespace {

constexpr int racePage = 1266;
constexpr int classPage = 1263;
constexpr int wareClassPage = 1999;
constexpr int shipTypePage = 2006;
constexpr int helpPage = 3100;
constexpr int firstVariant = 10000;
constexpr int firstObject = 12000;

struct Row {
    int id = 0;
    Phrase phrase;
};

constexpr Row races[] = {
    {1, {"Valley Folk", "Talvolk"}},   {2, {"Lagoon Folk", "Lagunenvolk"}},
    {3, {"Ridge Folk", "Gratvolk"}},   {4, {"Orchard Folk", "Gartenvolk"}},
    {5, {"Market Folk", "Marktvolk"}}, {6, {"Clockworks", "Uhrwerke"}},
    {7, {"Swarm", "Schwarm"}},         {8, {"Smugglers", "Schmuggler"}},
    {9, {"Pilgrims", "Pilger"}},       {18, {"Old Harbour", "Alter Hafen"}},
};

constexpr Row classes[] = {
    {0, {"Ferry", "Fähre"}},
    {1, {"Barge", "Lastkahn"}},
    {2, {"Citadel", "Zitadelle"}},
    {3, {"Carrier", "Träger"}},
    {4, {"Frigate", "Fregatte"}},
    {5, {"Lancer", "Lanzenreiter"}},
    {6, {"Courser", "Renner"}},
    {7, {"Scout", "Späher"}},
    {8, {"Stolen ferry", "Geraubte Fähre"}},
    {9, {"Stolen barge", "Geraubter Kahn"}},
    {10, {"Pilgrim boat", "Pilgerboot"}},
    {11, {"Cutter", "Kutter"}},
    {12, {"Coach", "Kutsche"}},
    {14, {"Tender", "Beiboot"}},
    {15, {"Bombard", "Mörser"}},
};

constexpr Row wareClasses[] = {
    {10, {"pouch", "Beutel"}}, {11, {"crate", "Kiste"}},      {12, {"pallet", "Palette"}},
    {13, {"wagon", "Waggon"}}, {14, {"lighter", "Leichter"}}, {15, {"station", "Station"}},
};

constexpr Row shipTypes[] = {
    {2021, {"Carrier", "Träger"}},
    {2022, {"Frigate", "Fregatte"}},
    {2023, {"Lancer", "Lanzenreiter"}},
    {2024, {"Courser", "Renner"}},
    {2025, {"Scout", "Späher"}},
    {2026, {"Cutter", "Kutter"}},
    {2030, {"Coach", "Kutsche"}},
    {2031, {"Barge", "Lastkahn"}},
    {2032, {"Ferry", "Fähre"}},
    {2065, {"Lookout buoy", "Wachboje"}},
    {2060, {"Marker buoy", "Markierungsboje"}},
};

constexpr Row variants[] = {
    {1, {"Wayfarer", "Wanderer"}}, {2, {"Raider", "Räuber"}},     {3, {"Hauler", "Schlepper"}},
    {4, {"Warden", "Wächter"}},    {5, {"Sprinter", "Sprinter"}},
};

constexpr Row help[] = {
    {1, {"Fly carefully.", "Fliegen Sie vorsichtig."}},
    {2,
     {"[b]Docking[/b]\\nSlow down, then wait for the [color=green]green[/color] lamp.",
      "[b]Andocken[/b]\\nBremsen, dann auf die [color=green]grüne[/color] Lampe warten."}},
    {3, {"See also: {:2}", "Siehe auch: {:2}"}},
    {4, {"A \\{brace\\} and a backslash: \\\\", "Eine \\{Klammer\\} und ein Rückstrich: \\\\"}},
    {5, {"Prices < 5 & > 2 are \"fair\".", "Preise < 5 & > 2 sind \"gerecht\"."}},
    {6, {"", ""}},
};

constexpr std::string_view titleOf(int page) {
    switch (page) {
    case Texts::SectorPage:
        return "Sectors";
    case Texts::ObjectPage:
        return "Objects";
    case classPage:
        return "Ship classes";
    case racePage:
        return "Races";
    case wareClassPage:
        return "Ware classes";
    case shipTypePage:
        return "Ship types";
    default:
        return "Help";
    }
}

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

std::string fileOf(int language, const std::string& pages) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<texts language=\"" + spell(language) +
           "\">\n" + pages + "</texts>\n";
}

} // namespace

Texts::Texts() {
    const auto fill = [this](int page, std::span<const Row> rows, int offset = 0) {
        for (const Row& row : rows)
            set(page, row.id + offset, row.phrase);
    };
    fill(racePage, races);
    fill(classPage, classes);
    fill(wareClassPage, wareClasses);
    fill(shipTypePage, shipTypes);
    fill(ObjectPage, variants, firstVariant);
    fill(helpPage, help);
}

void Texts::set(int page, int id, std::string english, std::string german) {
    m_pages[page][id] = {std::move(english), std::move(german)};
}

void Texts::set(int page, int id, const Phrase& phrase) {
    set(page, id, std::string(phrase.english), std::string(phrase.german));
}

int Texts::object(const std::string& key, std::string english, std::string german,
                  const Phrase& description) {
    const int next = nextObject();
    const auto [entry, isNew] = m_objects.try_emplace(key, next);
    if (isNew) {
        const std::string self = "{17:" + spell(next) + "}: ";
        set(ObjectPage, next, std::move(english), std::move(german));
        set(ObjectPage, next + 1, self + std::string(description.english),
            self + std::string(description.german));
    }
    return entry->second;
}

int Texts::nextObject() const {
    return firstObject + 10 * static_cast<int>(m_objects.size());
}

std::string Texts::page(int id, int language, int firstId) const {
    const std::string title(titleOf(id));
    std::string out = " <page id=\"" + spell(id) + "\" title=\"" + title + "\" description=\"" +
                      title + " of the sample\" voice=\"" + (id == SectorPage ? "1" : "0") +
                      "\">\n";
    const std::map<int, Both>& strings = m_pages.at(id);
    for (auto entry = strings.lower_bound(firstId); entry != strings.end(); ++entry) {
        const auto& [number, both] = *entry;
        out += "  <string id=\"" + spell(number) + "\">" +
               escaped(language == German ? both.german : both.english) + "</string>\n";
    }
    return out + " </page>\n";
}

std::string Texts::objectsXml(int language, int firstId) const {
    return fileOf(language, page(ObjectPage, language, firstId));
}

std::string Texts::pagesXml(int language) const {
    std::string pages;
    for (const auto& [id, strings] : m_pages)
        if (id != ObjectPage)
            pages += page(id, language, 0);
    return fileOf(language, pages);
}

} // namespace sample
