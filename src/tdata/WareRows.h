// Which rows an editor shows for a ware, weapon, station or other body, in which order, and what
// those say that stand for several fields.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct WareRow {
    enum class Kind { ID, Name, Field, DustBody, DustDensity, ChargeTime, Range, Color };

    Kind What = Kind::Field;
    std::int32_t Field = -1; ///< of Field and the two of dust

    friend bool operator==(const WareRow&, const WareRow&) = default;
};

/// What an editor offers for a type, by bit.
namespace waretrait {
inline constexpr std::uint32_t Names = 1; ///< the list may show names
inline constexpr std::uint32_t Races = 2; ///< or races
inline constexpr std::uint32_t Creatable = 4;
inline constexpr std::uint32_t Description = 8; ///< the view ends with that of the record
inline constexpr std::uint32_t Plain = 16;      ///< served without being prepared for the type
} // namespace waretrait

/// True for the types whose records have these rows.
[[nodiscard]] bool HasWareRows(std::int32_t Type);
/// True for such a type with that trait.
[[nodiscard]] bool HasWareTrait(std::int32_t Type, std::uint32_t Trait);
/// Rows of a record; the ID, which is its last value, stands in front. None for an empty record.
[[nodiscard]] std::vector<WareRow> WareRows(const clsTXTObject& Record);
/// The field that holds the key of the icon to show; -1 if the type has none.
[[nodiscard]] std::int32_t IconField(std::int32_t Type);

/// Time in which a shield fills; nothing where it cannot be told, as for one that needs 0.
[[nodiscard]] std::optional<std::string> ChargeTime(const clsTXTObject& Shield);
/// How far a bullet flies; nothing where it cannot be told.
[[nodiscard]] std::optional<std::string> BulletRange(const clsTXTObject& Bullet);

/// Red in byte 0, green in byte 1, blue in byte 2, out of three fields of a bullet or planet;
/// nothing for other types, or if one is no byte.
[[nodiscard]] std::optional<std::int32_t> ColorOfRecord(const clsTXTObject& Record);
/// Writes the three fields; false for records that have none.
bool SetColorOfRecord(clsTXTObject& Record, std::int32_t Color);
