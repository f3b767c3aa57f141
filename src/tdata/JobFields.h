// What the values of a job mean: its flags by group, its name, numbers for new ones. Fields are
// logical, as in a record of 120; records may have any size and content.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Logical fields that have a meaning of their own.
namespace jobfield {
inline constexpr std::int32_t Count = 120; ///< of the newest version; older ones lack some
inline constexpr std::int32_t Number = 0;
inline constexpr std::int32_t Name = 1;
inline constexpr std::int32_t Most = 2;
inline constexpr std::int32_t MostInSector = 3;
inline constexpr std::int32_t Description = 6; ///< a text of page 17
inline constexpr std::int32_t ShipName = 8;    ///< the same
inline constexpr std::int32_t Wing = 13;
inline constexpr std::int32_t WareList = 14;
inline constexpr std::int32_t Respawn = 17;
inline constexpr std::int32_t Ship = 18; ///< its ID in TShips, empty for none
inline constexpr std::int32_t SectorInverted = 64;
inline constexpr std::int32_t SectorX = 65;
inline constexpr std::int32_t SectorY = 66;
inline constexpr std::int32_t Docked = 72; ///< chance in percent
inline constexpr std::int32_t AllowDrones = 90;
} // namespace jobfield

/// Neighbouring fields of which each says yes or no.
struct JobFlags {
    std::int32_t First = 0;
    std::int32_t Count = 0;
};
namespace jobflags {
inline constexpr JobFlags NameParts{9, 4}; ///< race, corporation, class, variant of the ship
inline constexpr JobFlags Classes{19, 9};
inline constexpr JobFlags ShipRaces{28, 10};
inline constexpr JobFlags Variants{38, 17};
inline constexpr JobFlags Sectors{58, 6};
inline constexpr JobFlags Creation{67, 5};
inline constexpr JobFlags OwnerRaces{78, 10};
inline constexpr JobFlags ForbiddenWeapons{91, 5};
inline constexpr JobFlags AllowedWeapons{96, 8};
inline constexpr JobFlags Various{110, 5};
inline constexpr JobFlags Roles{115, 4}; ///< one of them
} // namespace jobflags

// Names by the place in a group; empty outside it.
[[nodiscard]] std::string JobClassName(std::int32_t Place);    ///< in jobflags::Classes
[[nodiscard]] std::string JobShipRaceName(std::int32_t Place); ///< in jobflags::ShipRaces
/// In jobflags::OwnerRaces, which has another order than the races of ships.
[[nodiscard]] std::string JobOwnerRaceName(std::int32_t Place);
/// In jobflags::Variants, or of any ship: the text of the variant; "Basic" or its number where
/// there is none.
[[nodiscard]] std::string JobVariantName(std::int32_t Place);

/// The value; unset outside the record.
[[nodiscard]] KeshValue GetJobValue(const clsTXTObject& Job, std::int32_t Field);
/// Its spelling, valid until the next change; empty outside the record.
[[nodiscard]] std::string_view GetJobText(const clsTXTObject& Job, std::int32_t Field);
[[nodiscard]] std::optional<std::int32_t> GetJobInteger(const clsTXTObject& Job,
                                                        std::int32_t Field);
/// The ID of the job's own ship, valid as long; empty if it has none, which a new job spells "0".
[[nodiscard]] std::string_view JobShip(const clsTXTObject& Job);
/// False, and nothing changed, outside the record.
bool SetJobValue(clsTXTObject& Job, std::int32_t Field, const KeshValue& Value);

/// True for a number other than 0.
[[nodiscard]] bool JobFlagSet(const clsTXTObject& Job, std::int32_t Field);
/// Places in the group, from 0, of the flags that are set.
[[nodiscard]] std::vector<std::int32_t> JobFlagsSet(const clsTXTObject& Job, JobFlags Flags);
/// The field whose value a record without this field gives in its stead; none if it has it.
[[nodiscard]] std::optional<std::int32_t> JobNeighbour(const clsTXTObject& Job, std::int32_t Field);

/// The place in jobflags::Classes of a ship of TShips; none for a class that jobs do not know. A
/// pirate's ship counts as the others of its class.
[[nodiscard]] std::optional<std::int32_t> JobClassOf(const clsTXTObject& Ship);

/// Ship name, what the flags add to it, and description, in the user's language; empty if there is
/// no text.
[[nodiscard]] std::string JobResourceName(const clsTXTObject& Job);
