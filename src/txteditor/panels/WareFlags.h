// The flags of bullets and missiles, bit by bit.
#pragma once

#include <cstdint>
#include <span>

struct WareFlag {
    const char* Caption = ""; ///< both to be translated in the context "WareFlags"
    const char* Tip = "";
};

struct WareFlagField {
    std::int32_t Field = -1;              ///< of the word
    std::span<const WareFlag> Flags = {}; ///< by the number of their bit
};

/// None for a type that has no flags.
[[nodiscard]] WareFlagField WareFlagsOf(std::int32_t Type);
inline constexpr std::int32_t MostWareFlags = 14;
