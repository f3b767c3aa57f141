// Ware classes.
#pragma once

#include "tdata/TextTable.h"

#include <array>
#include <cstdint>
#include <string>

inline constexpr std::int32_t WareClassCount = 6;
extern const TextTable DefaultWareClassNames;
/// The names of the ware classes in the user's language, each with its default where there is none.
/// Panels keep their own copy.
[[nodiscard]] std::array<std::string, WareClassCount> GetWareClassNames();
