// The 32 kinds of lasers or missiles that a mask allows, a bit a kind.
#pragma once

#include "tdata/TextTable.h"
#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class clsTxtParser;

struct WeaponSlot {
    std::int32_t Bit;
    RecordPtr Weapon;
};

/// The slots that have a weapon, by bit. Symbolic: a bit is a row of the subtypes, which stands for
/// the first record of that subtype; else it is the record's Index.
[[nodiscard]] std::vector<WeaponSlot> WeaponSlots(const clsTxtParser& Weapons,
                                                  const TextTable& Subtypes, bool Symbolic);
/// The bits of a stored mask, a whole number that fits 32 bits with or without a sign; nothing for
/// any other value or an index outside.
[[nodiscard]] std::optional<std::uint32_t> ReadMask(const clsTXTObject& Record, std::int32_t Index);
/// The signed number of the same bits, as files have it.
[[nodiscard]] KeshValue MaskValue(std::uint32_t Mask);
