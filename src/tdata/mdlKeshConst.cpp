#include "tdata/mdlKeshConst.h"

#include "core/mdlComFunctions.h"
#include "lornfd/paths.h"
#include "tdata/FieldTable.h"

#include <algorithm>
#include <array>

namespace {

// In search order: a name that holds several keys gets the first.
constexpr std::array<ObjectTypeKey, 22> Keys{{
    {"JobWings", otype::JobWings},
    {"Jobs", otype::Jobs, "", 0, &JobFieldNames},
    {"WareLists", otype::WareLists},
    {"Wrecks", otype::Wrecks, "Wrecks", 20, &DefaultFieldNames},
    {"TBullets", otype::Bullets, "Bullets", 47, &BulletFieldNames},
    {"TCockpits", otype::Cockpits, "", 19, &CockpitFieldNames},
    {"TDocks", otype::Docks, "Docks", 28, &DockFieldNames},
    {"TFactories", otype::Factories, "Factories", 29, &FactoryFieldNames},
    {"TLaser", otype::Laser, "Lasers", 23, &LaserFieldNames},
    {"TMissiles", otype::Missiles, "Missiles", 37, &MissileFieldNames},
    {"TShields", otype::Shields, "Shields", 21, &ShieldFieldNames},
    {"TShips", otype::Ships, "", 65, &ShipFieldNames},
    {"TSpecial", otype::Special, "Special", 18, &DefaultFieldNames},
    {"TWare", otype::Ware, "Wares", 17, &WareFieldNames},
    {"TGates", otype::Gates, "Gates", 18, &DefaultFieldNames},
    {"TAsteroids", otype::Asteroids, "Asteroids", 21, &AsteroidFieldNames},
    {"TSuns", otype::Suns, "Suns", 19, &SunFieldNames},
    {"TPlanets", otype::Planets, "Planets", 37, &PlanetFieldNames},
    {"TDebris", otype::Debris, "Debris", 21, &DebrisFieldNames},
    {"IconData", otype::IconData},
    {"TBackgrounds", otype::Backgrounds, "Background", 38, &BackgroundFieldNames},
    {"TNebula", otype::Nebula, "Nebula", 36, &NebulaFieldNames},
}};

constexpr std::array<std::string_view, 6> WareFiles{"TWareB", "TWareE", "TWareF",
                                                    "TWareM", "TWareN", "TWareT"};

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

} // namespace

void InitArrays() {}

std::span<const ObjectTypeKey> ObjectTypeKeys() {
    return Keys;
}

const ObjectTypeKey* ObjectTypeOf(std::int32_t Type) {
    const auto found = std::ranges::find(Keys, Type, &ObjectTypeKey::Code);
    return found == Keys.end() ? nullptr : &*found;
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
    const ObjectTypeKey* const row = ObjectTypeOf(Type);
    return row != nullptr ? row->Key : std::string_view();
}

std::int32_t ObjectSize(std::int32_t Type) {
    const ObjectTypeKey* const row = ObjectTypeOf(Type);
    return row != nullptr ? row->Size : 0;
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
