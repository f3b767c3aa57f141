#include "tdata/mdlKeshConst.h"

#include "core/mdlComFunctions.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <array>

namespace {

// In search order: a name that holds several keys gets the first.
constexpr std::array<ObjectTypeKey, 22> Keys{{
    {"JobWings", otype::JobWings, ""},
    {"Jobs", otype::Jobs, ""},
    {"WareLists", otype::WareLists, ""},
    {"Wrecks", otype::Wrecks, "Wrecks"},
    {"TBullets", otype::Bullets, "Bullets"},
    {"TCockpits", otype::Cockpits, ""},
    {"TDocks", otype::Docks, "Docks"},
    {"TFactories", otype::Factories, "Factories"},
    {"TLaser", otype::Laser, "Lasers"},
    {"TMissiles", otype::Missiles, "Missiles"},
    {"TShields", otype::Shields, "Shields"},
    {"TShips", otype::Ships, ""},
    {"TSpecial", otype::Special, "Special"},
    {"TWare", otype::Ware, "Wares"},
    {"TGates", otype::Gates, "Gates"},
    {"TAsteroids", otype::Asteroids, "Asteroids"},
    {"TSuns", otype::Suns, "Suns"},
    {"TPlanets", otype::Planets, "Planets"},
    {"TDebris", otype::Debris, ""},
    {"IconData", otype::IconData, ""},
    {"TBackgrounds", otype::Backgrounds, "Background"},
    {"TNebula", otype::Nebula, "Nebula"},
}};

constexpr std::array<std::string_view, 6> WareFiles{"TWareB", "TWareE", "TWareF",
                                                    "TWareM", "TWareN", "TWareT"};

// By type code, 0 to 18.
constexpr std::array<std::int32_t, 19> Sizes{0,  65, 21, 23, 47, 37, 17, 29, 18, 19,
                                             28, 20, 18, 37, 19, 21, 21, 38, 36};

constexpr std::string_view HeadNames[] = {"Body file",  "Picture ID", "Rotation X",
                                          "Rotation Y", "Rotation Z", "Galaxy subtype",
                                          "Description"};

constexpr std::string_view TailNames[] = {
    "Skin index", "Video ID",           "Min. Notoriety",     "Production RelVal (player)",
    "Ware class", "Price modifier (2)", "Price modifier (1)", "Production RelVal (NPC)",
    "Volume"};

constexpr std::string_view Races[] = {"Argon",  "Boron",   "Split",    "Paranid", "Teladi",
                                      "Xenon",  "Khaak",   "Pirate",   "Goner",   "Player",
                                      "Enemy",  "Neutral", "Friendly", "Unknown", "Race 1",
                                      "Race 2", "Race 3",  "Terran",   "Yaki"};

constexpr std::int32_t Languages[] = {44, 49, 33, 42};
constexpr std::string_view LanguageRows[] = {"English", "German", "French", "Czech"};

constexpr std::string_view Prefixes[] = {"", "K", "M", "G", "T"};

// By type code; filled once from the keys, which stand in another order.
std::array<std::string_view, 23> NamesByCode;

} // namespace

void InitArrays() {
    for (const auto& key : Keys)
        NamesByCode[static_cast<std::size_t>(key.Code)] = key.Key;
}

std::span<const ObjectTypeKey> ObjectTypeKeys() {
    return Keys;
}

std::span<const std::string_view> WareFileNames() {
    return WareFiles;
}

std::int32_t ObjectTypeFromFile(std::string_view Path) {
    const auto name = lornfd::foldCase(std::string_view(BaseName(Path, true)));
    const auto found = std::find_if(Keys.begin(), Keys.end(), [&](const ObjectTypeKey& key) {
        return name.find(lornfd::foldCase(key.Key)) != std::string::npos;
    });
    return found == Keys.end() ? otype::None : found->Code;
}

bool IsTFileName(std::string_view Path) {
    const std::string extension = lornfd::foldCase(std::string_view(ExtensionOf(Path)));
    return (extension == "txt" || extension == "pck") && ObjectTypeFromFile(Path) != otype::None;
}

std::string_view ObjectTypeKeyOf(std::int32_t Type) {
    return Type >= 0 && Type < std::ssize(NamesByCode) ? NamesByCode[static_cast<std::size_t>(Type)]
                                                       : std::string_view();
}

std::int32_t ObjectSize(std::int32_t Type) {
    return Type >= 0 && Type < std::ssize(Sizes) ? Sizes[static_cast<std::size_t>(Type)] : 0;
}

std::span<const std::int32_t> LanguageIDs() {
    return Languages;
}

const TextTable CommonHeadNames{0, HeadNames};
const std::array<std::int32_t, CommonHeadCount> CommonHeadTypes{2, 0, 1, 1, 1, 0, 0};
const TextTable CommonTailNames{0, TailNames};
const TextTable RaceNames{1, Races};
const TextTable LanguageNames{0, LanguageRows};
const TextTable SIPrefixes{0, Prefixes};
