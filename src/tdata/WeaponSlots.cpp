#include "tdata/WeaponSlots.h"

#include "tdata/RecordNames.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlRecordNumbers.h"
#include "textres/ResourceText.h"

#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

namespace {

constexpr std::int32_t SlotCount = 32;

using Slots = std::array<RecordPtr, SlotCount>;

Slots ByIndex(const clsTxtParser& weapons) {
    Slots slots;
    for (std::int32_t bit = 0; bit < SlotCount; ++bit)
        slots[static_cast<std::size_t>(bit)] = weapons.FindIndex(bit);
    return slots;
}

Slots BySubtype(const clsTxtParser& weapons, const TextTable& subtypes) {
    std::unordered_map<std::string_view, RecordPtr> first;
    for (const RecordPtr& record : weapons.ByIndex())
        if (record->size() > CommonSubtypeField)
            first.emplace(record->ValueText(CommonSubtypeField), record);
    Slots slots;
    for (std::int32_t bit = 0; bit < SlotCount; ++bit)
        if (const auto found = first.find(subtypes.At(bit));
            subtypes.Holds(bit) && found != first.end())
            slots[static_cast<std::size_t>(bit)] = found->second;
    return slots;
}

} // namespace

std::vector<WeaponSlot> WeaponSlots(const clsTxtParser& Weapons, const TextTable& Subtypes,
                                    bool Symbolic) {
    std::vector<WeaponSlot> taken;
    std::int32_t bit = 0;
    for (RecordPtr& weapon : Symbolic ? BySubtype(Weapons, Subtypes) : ByIndex(Weapons)) {
        if (weapon)
            taken.push_back({bit, std::move(weapon)});
        ++bit;
    }
    return taken;
}

std::optional<std::uint32_t> ReadMask(const clsTXTObject& Record, std::int32_t Index) {
    const auto number = NumberAt(Record, Index);
    const bool fits = number && *number >= std::numeric_limits<std::int32_t>::min() &&
                      *number <= std::numeric_limits<std::uint32_t>::max() &&
                      *number == std::trunc(*number);
    return fits ? std::optional(static_cast<std::uint32_t>(static_cast<std::int64_t>(*number)))
                : std::nullopt;
}

KeshValue MaskValue(std::uint32_t Mask) {
    return static_cast<std::int32_t>(Mask);
}
