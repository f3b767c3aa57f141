// Vocabularies of ships, and the names of their classes and types.
#pragma once

#include "keshobjects/value.h"
#include "tdata/FieldTable.h"

#include <cstdint>
#include <string>

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
/// The type that field 52 stands for. Without a text the stored value, or nothing with NoFallback.
[[nodiscard]] std::string GetShipTypeName(const KeshValue& Value, std::int32_t Version,
                                          bool NoFallback);
