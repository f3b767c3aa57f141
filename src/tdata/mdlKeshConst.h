// What every record needs before any field has a name: object types, record sizes, the common
// frame.
#pragma once

#include "tdata/TextTable.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace otype {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t Ships = 1;
inline constexpr std::int32_t Shields = 2;
inline constexpr std::int32_t Laser = 3;
inline constexpr std::int32_t Bullets = 4;
inline constexpr std::int32_t Missiles = 5;
inline constexpr std::int32_t Ware = 6;
inline constexpr std::int32_t Factories = 7;
inline constexpr std::int32_t Special = 8;
inline constexpr std::int32_t Cockpits = 9;
inline constexpr std::int32_t Docks = 10;
inline constexpr std::int32_t Wrecks = 11;
inline constexpr std::int32_t Gates = 12;
inline constexpr std::int32_t Planets = 13;
inline constexpr std::int32_t Suns = 14;
inline constexpr std::int32_t Asteroids = 15;
inline constexpr std::int32_t Debris = 16;
inline constexpr std::int32_t Backgrounds = 17;
inline constexpr std::int32_t Nebula = 18;
inline constexpr std::int32_t Jobs = 19;
inline constexpr std::int32_t JobWings = 20;
inline constexpr std::int32_t WareLists = 21;
inline constexpr std::int32_t IconData = 22;
} // namespace otype

struct FieldTable;

/// What is known of an object type, a row a type, in search order: the first key found anywhere in
/// a file's name wins.
struct ObjectTypeKey {
    std::string_view Key; ///< "TShips"
    std::int32_t Code;
    std::string_view PanelTitle = {};
    std::int32_t Size = 0;              ///< fields of a record; 0 if that is not fixed
    const FieldTable* Fields = nullptr; ///< null if it names none
};
std::span<const ObjectTypeKey> ObjectTypeKeys();
/// The row of a type; null for an unknown code.
const ObjectTypeKey* ObjectTypeOf(std::int32_t Type);
std::span<const std::string_view> WareFileNames();

/// A step of the start that is known by its name; the tables are constants, so it does nothing.
void InitArrays();
/// Type code for a file's name without regard to case and extension; 0 if it is no object file.
std::int32_t ObjectTypeFromFile(std::string_view Path);
/// True for a name under which the game looks for an object file.
bool IsTFileName(std::string_view Path);
/// The file key of a type ("TShips"); empty for an unknown code.
std::string_view ObjectTypeKeyOf(std::int32_t Type);
/// Fields of a record by type; 0 for a type without fixed size.
std::int32_t ObjectSize(std::int32_t Type);

inline constexpr std::int32_t CommonHeadCount = 7;
inline constexpr std::int32_t CommonTailCount = 10;
extern const TextTable CommonHeadNames;
extern const std::array<std::int32_t, CommonHeadCount> CommonHeadTypes; ///< valuetype by index
extern const TextTable CommonTailNames; ///< addressed with N - index - 2 for a record of N fields

extern const TextTable RaceNames; ///< positions 1 to 19

// Languages that have a name; the same rows.
std::span<const std::int32_t> LanguageIDs();
extern const TextTable LanguageNames;

/// Prefixes of units by powers of 1000.
extern const TextTable SIPrefixes;
