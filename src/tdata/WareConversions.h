// How the fields of wares, weapons, stations and all other bodies read and are entered, a table a
// type.
#pragma once

#include "tdata/FieldConversion.h"

#include <cstdint>
#include <span>

/// The lists that fields of these types choose from.
namespace warelist {
enum List : std::int32_t { Bullets, Ammo, Races, Sizes, WareClasses, Icons, Subtypes, Count };
} // namespace warelist

/// The rows of a type's own fields.
[[nodiscard]] std::span<const FieldConversion> OwnWareConversions(std::int32_t Type);
/// The row of any field of these types: its type's own, that of the common frame, or one that
/// stores a number as it is entered. Null for an index outside the record.
[[nodiscard]] const FieldConversion* WareConversion(const clsTXTObject& Record, std::int32_t Index);
