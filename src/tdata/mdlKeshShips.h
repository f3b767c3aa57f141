// Vocabularies of ships, and the names of their classes and types.
#pragma once

#include "keshobjects/value.h"
#include "tdata/FieldTable.h"

#include <cstdint>
#include <string>

/// Fields that have a meaning of their own; the counts of turrets and guns are clsShip's.
namespace shipfield {
inline constexpr std::int32_t Body = 0;
inline constexpr std::int32_t Yaw = 2;
inline constexpr std::int32_t Pitch = 3;
inline constexpr std::int32_t Roll = 4;
inline constexpr std::int32_t Class = 5;
inline constexpr std::int32_t Speed = 7;
inline constexpr std::int32_t Acceleration = 8;
inline constexpr std::int32_t Reactor = 13; ///< its output
inline constexpr std::int32_t Scene = 16;
inline constexpr std::int32_t Cockpit = 17; ///< the scene of it
inline constexpr std::int32_t Lasers = 18;  ///< mask of those that fit
inline constexpr std::int32_t Energy = 20;  ///< of the weapons
inline constexpr std::int32_t Recharge = 21;
inline constexpr std::int32_t Shield = 22; ///< place in TShields
inline constexpr std::int32_t ShieldCount = 23;
inline constexpr std::int32_t Missiles = 24; ///< mask of those that fit
inline constexpr std::int32_t EngineTuning = 26;
inline constexpr std::int32_t RudderTuning = 27;
inline constexpr std::int32_t CargoMin = 28;
inline constexpr std::int32_t CargoMax = 29;
inline constexpr std::int32_t WareList = 30; ///< place in WareLists, -1 for none
inline constexpr std::int32_t CargoClass = 44;
inline constexpr std::int32_t Race = 45;
inline constexpr std::int32_t Hull = 46;
inline constexpr std::int32_t Variation = 50;
inline constexpr std::int32_t Type = 52;
} // namespace shipfield

/// Version of TShips from which fields 5 and 52 hold keys, numbers before it.
inline constexpr std::int32_t FirstSymbolicShips = 49;

extern const TextTable ShipClassKeys;       ///< field 5; the position is the older files' number
extern const TextTable ShipClassLabels;     ///< what a class reads as without texts
extern const TextTable ShipObjectTypeKeys;  ///< field 52
extern const TextTable ShipObjectTypeIDs;   ///< the same rows in older files: ids in text page 2006
extern const TextTable ShieldStrengthNames; ///< field 22 without the TShields file
extern const TextTable MissileStrengthNames; ///< positions -1 to 7; without the TMissiles file
extern const TextTable TurretPositionNames;  ///< positions 1 to 6

// Below that version text in place of a number comes back as it is.
/// The class that field 5 of a ship of a file's version stands for, in the user's language where
/// there is a text. A key that is not known comes back as it is; a known one without text is empty.
[[nodiscard]] std::string GetShipClassName(const KeshValue& Value, std::int32_t Version);
/// The text of a variation; empty where there is none.
[[nodiscard]] std::string GetShipVariationName(std::int32_t Variation);
/// The type that field 52 stands for. Without a text the stored value, or nothing with NoFallback.
[[nodiscard]] std::string GetShipTypeName(const KeshValue& Value, std::int32_t Version,
                                          bool NoFallback);
