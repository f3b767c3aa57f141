// What is known of the fields of a record type, a row a field; the tables themselves, one module a
// type or family, in mdlKesh*.cpp.
//
// Some names and texts are misspelt. They are what authors of mods know and search for, so they
// stay.
#pragma once

#include "tdata/TextTable.h"

#include <cstdint>
#include <span>
#include <string_view>

/// What a field holds.
namespace valuetype {
inline constexpr std::int32_t Integer = 0;
inline constexpr std::int32_t Float = 1;
inline constexpr std::int32_t String = 2;
} // namespace valuetype

/// How a person reads and enters a field.
namespace translation {
inline constexpr std::int32_t None = 0;   ///< as it is stored
inline constexpr std::int32_t Number = 1; ///< converted, with a unit
inline constexpr std::int32_t List = 2;   ///< one of a list of choices
} // namespace translation

/// One field. Conversions for a person are rows of a table of their own (FieldConversion.h).
// The members stand in the order in which a row is read.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Field {
    std::int32_t Index = 0;     ///< in the record; counted from its size if negative
    std::string_view Name = {}; ///< empty: the common frame names it, or nothing does
    std::int32_t Type = valuetype::Integer;
    std::int32_t Translation = translation::None;
    std::string_view Unit = {}; ///< in the value dialog; a row has its own, which need not agree
    std::int32_t Since = 0;     ///< version of the file from which Translation holds
};

/// What a type has of the common frame of head and tail.
enum class Frame : std::uint8_t {
    None,
    Names, ///< the names alone: the type's panel takes every field as it is stored
    Full,  ///< also the head's value types, and the ware class is a choice
};

struct FieldTable {
    Frame Common = Frame::None;
    std::span<const Field> Fields = {};

    /// The row of a field in a record of `size` values; null if there is none.
    [[nodiscard]] const Field* Find(std::int32_t index, std::int32_t size) const noexcept;
};

// mdlKeshShips, mdlKeshShields, mdlKeshLasers, mdlKeshBullets, mdlKeshMissiles
extern const FieldTable ShipFieldNames;
extern const FieldTable ShieldFieldNames;
extern const FieldTable LaserFieldNames;
extern const FieldTable BulletFieldNames;
extern const FieldTable MissileFieldNames;
// mdlKeshWare, mdlKeshFactories, mdlKeshDocks
extern const FieldTable WareFieldNames;
extern const FieldTable FactoryFieldNames;
extern const FieldTable DockFieldNames;
// mdlKeshWareSmall, mdlKeshNebula
extern const FieldTable PlanetFieldNames;
extern const FieldTable SunFieldNames;
extern const FieldTable AsteroidFieldNames;
extern const FieldTable DebrisFieldNames;
extern const FieldTable CockpitFieldNames;
extern const FieldTable DefaultFieldNames; ///< special objects, wrecks, gates
extern const FieldTable BackgroundFieldNames;
extern const FieldTable NebulaFieldNames;
// mdlKeshJobs; by logical field
extern const FieldTable JobFieldNames;

// Words for field 5 in the newer files; a row's position is the number in the older ones.
extern const TextTable LaserSubtypes;
extern const TextTable MissileSubtypes;
extern const TextTable FactorySubtypes;
extern const TextTable DockSubtypes;
extern const TextTable WreckSubtypes; ///< ship classes, docks, factories

/// Sizes of factories by field 17, most rows empty.
extern const TextTable FactorySizeNames;
