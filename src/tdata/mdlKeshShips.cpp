#include "tdata/mdlKeshShips.h"

#include "textres/ResourceText.h"

#include <limits>
#include <optional>

namespace {

using translation::List;
using translation::Number;
using valuetype::Float;
using valuetype::Integer;
using valuetype::String;

constexpr Field ShipRows[] = {
    {2, "Yaw", Float, Number, "rotations/min"},
    {3, "Pitch", Float, Number, "rotations/min"},
    {4, "Roll", Float, Number, "rotations/min"},
    {5, "Class", Integer, List},
    {6, "Description"},
    {7, "Speed", Integer, Number, "m/s"},
    {8, "Acceleration", Integer, Number, "m/s"},
    {9, "Engine sound"},
    {10, "Average reaction delay"},
    {11, "Engine effect (color)"},
    {12, "Engine glow effect"},
    {13, "Reactor output (power)", Integer, Number, "MW"},
    {14, "Sound volume (min)"},
    {15, "Sound volume (max)"},
    {16, "Ship scene", String},
    {17, "Cockpit scene", String},
    {18, "Possible lasers"},
    {19, "Gun count"},
    {20, "Weapons energy", Integer, Number, "J"},
    {21, "Weapons recharge rate", Float, Number, "J/s"},
    {22, "Shield type", Integer, List},
    {23, "Max shield count"},
    {24, "Possible missiles"},
    {25, "Number of missiles (NPC)"},
    {26, "Max # of engine tunning"},
    {27, "Max # of rudder tunning"},
    {28, "Cargo min (buy)"},
    {29, "Cargo max"},
    {30, "Ware List ID"},
    {43, "Docking slots"},
    {44, "Cargo type", Integer, List},
    {45, "Race", Integer, List},
    {46, "Hull strength"},
    {47, "Explosion effect"},
    {48, "Body explosion effect"},
    {49, "Particle emmiter"},
    {50, "Variation index"},
    {51, "Angular acceleration"},
    {52, "Type", Integer, List, "", FirstSymbolicShips},
    {53, "Turret count"},
};

constexpr std::string_view ShipClassKeyRows[] = {
    "SG_SH_TL", "SG_SH_TS", "SG_SH_M0",   "SG_SH_M1",   "SG_SH_M2", "SG_SH_M3",
    "SG_SH_M4", "SG_SH_M5", "SG_SH_TL_P", "SG_SH_TS_P", "SG_SH_GO", "SG_SH_M6",
    "SG_SH_TP", "SG_SH_M7", "SG_SH_TM",   "SG_SH_M8",
};

// The row without a label reads "Unknown value"; no other word would tell more.
constexpr std::string_view ShipClassLabelRows[] = {
    "TL",   "TS",   "M0",        "M1", "M2", "M3", "M4", "M5",
    "TL-P", "TS-P", "UFO/Goner", "M6", "TP", "",   "TM", "M8",
};

constexpr std::string_view ShipObjectTypeKeyRows[] = {
    "OBJ_SHIP_M0",      "OBJ_SHIP_M1",        "OBJ_SHIP_M2",           "OBJ_SHIP_M3",
    "OBJ_SHIP_M4",      "OBJ_SHIP_M5",        "OBJ_SHIP_M6",           "OBJ_SHIP_M7",
    "OBJ_SHIP_M8",      "OBJ_SHIP_TP",        "OBJ_SHIP_TS",           "OBJ_SHIP_TM",
    "OBJ_SHIP_TL",      "OBJ_SHIP_TS_PIRATE", "OBJ_SHIP_TL_PIRATE",    "OBJ_SHIP_GONER",
    "OBJ_SHIP_UFO",     "OBJ_SHIP_ASTRONAUT", "OBJ_SATELLITE",         "OBJ_SATELLITE2",
    "OBJ_BEACON",       "OBJ_MINE",           "OBJ_ORBITALLASER",      "OBJ_FIGHTDRONE",
    "OBJ_FREIGHTDRONE", "OBJ_SPACEFLY",       "OBJ_SHIP_KHAAKCLUSTER",
};

constexpr std::string_view ShipObjectTypeIDRows[] = {
    "2020", "2021", "2022", "2023", "2024", "2025", "2026", "2027", "2142",
    "2030", "2031", "2141", "2032", "2035", "2036", "2039", "2068", "2064",
    "2065", "2080", "2060", "2066", "2011", "2067", "2092", "2070", "2131",
};

constexpr std::string_view ShieldStrengthRows[] = {"1 MW", "5 MW", "25 MW", "125 MW"};
constexpr std::string_view MissileStrengthRows[] = {
    "none", "Mosqito", "Wasp", "Dragonfly", "Silkworm", "Hornet", "Sting", "Needle", "Thorn"};
constexpr std::string_view TurretPositionRows[] = {"front", "rear", "left",
                                                   "right", "top",  "bottom"};

constexpr std::int32_t ClassPage = 1263;
constexpr std::int32_t TypePage = 2006;
constexpr std::int32_t FirstVariation = 10000; ///< ids of their texts

/// The whole number that a value is or spells, rounded.
std::optional<std::int32_t> NumberOf(const KeshValue& value) {
    const auto number = keshobjects::readNumber(keshobjects::spellValue(value));
    return number ? keshobjects::roundToInteger(*number) : std::nullopt;
}

} // namespace

const FieldTable ShipFieldNames{Frame::Full, ShipRows};
const TextTable ShipClassKeys{0, ShipClassKeyRows};
const TextTable ShipClassLabels{0, ShipClassLabelRows};
const TextTable ShipObjectTypeKeys{0, ShipObjectTypeKeyRows};
const TextTable ShipObjectTypeIDs{0, ShipObjectTypeIDRows};
const TextTable ShieldStrengthNames{0, ShieldStrengthRows};
const TextTable MissileStrengthNames{-1, MissileStrengthRows};
const TextTable TurretPositionNames{1, TurretPositionRows};

std::string GetShipClassName(const KeshValue& Value, std::int32_t Version) {
    const bool isKey = Version >= FirstSymbolicShips && std::holds_alternative<std::string>(Value);
    std::string spelling = keshobjects::spellValue(Value);
    std::int32_t position = -1;
    if (isKey) {
        if (!FindInList(spelling, ShipClassKeys, position))
            return spelling;
    } else if (const auto number = NumberOf(Value)) {
        position = *number;
    } else {
        return spelling;
    }
    if (const auto text = ResourceText(ClassPage, position))
        return *text;
    return isKey ? std::string() : ListItem(ShipClassLabels, position, true);
}

std::string GetShipVariationName(std::int32_t Variation) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max() - FirstVariation;
    return Variation > most ? std::string()
                            : ResourceText(ObjectNamePage, FirstVariation + Variation).value_or("");
}

std::string GetShipTypeName(const KeshValue& Value, std::int32_t Version, bool NoFallback) {
    std::string id = keshobjects::spellValue(Value);
    std::string fallback = id;
    const bool keys = Version >= FirstSymbolicShips;
    if (keys)
        id = ListItemRaw(ShipObjectTypeIDs, FindInList(id, ShipObjectTypeKeys));
    auto number = NumberOf(id);
    if (keys && !number)
        number = 0; // a key that is not known may have a text all the same
    const auto text = number ? ResourceText(TypePage, *number) : std::nullopt;
    if (text)
        return *text;
    return NoFallback ? std::string() : fallback;
}
