// The one lookup that serves every record type: names, value types, translation and units of
// fields.
#pragma once

#include "tdata/FieldTable.h"
#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The fields of a type; an empty table for one that names none (job wings, ware lists, icons).
[[nodiscard]] const FieldTable& FieldsOf(std::int32_t Type);

/// The type's own name of a field, else the common frame's, else "Unknown value". The fields at N -
/// 11 and N - 1 of a frame answer "N/A" unless the type names them. `Index` is logical for jobs.
[[nodiscard]] std::string FieldName(const clsTXTObject& Record, std::int32_t Index);
/// The names of all values for a listing: those of a ship's turrets, gun groups and guns are their
/// column labels, a job's go by the fields that its version has, and the last value of a frame,
/// which editors show apart, is "ID".
[[nodiscard]] std::vector<std::string> FieldNames(const clsTXTObject& Record);
/// The common frame's name alone, "N/A" as above; empty between head and tail.
[[nodiscard]] std::string CommonFieldName(std::int32_t Size, std::int32_t Index);
/// valuetype; Integer for a field without a row. A word in field 5 still counts as Integer.
[[nodiscard]] std::int32_t FieldValueType(std::int32_t Type, std::int32_t Size, std::int32_t Index);
/// translation of a field in a file of that version.
[[nodiscard]] std::int32_t FieldTranslation(std::int32_t Type, std::int32_t Version,
                                            std::int32_t Size, std::int32_t Index);
/// Unit that the value dialog shows; empty for none.
[[nodiscard]] std::string_view FieldUnit(std::int32_t Type, std::int32_t Size, std::int32_t Index);

/// True if field 5 of such a file holds a word of SubtypesOf, not its position.
[[nodiscard]] bool HasSymbolicSubtype(std::int32_t Type, std::int32_t Version);
/// The words for field 5; an empty table for a type whose subtype is always a number.
[[nodiscard]] const TextTable& SubtypesOf(std::int32_t Type);
