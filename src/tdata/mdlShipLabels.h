// Names of the values in a ship's sections, which no table by index can name.
#pragma once

#include "tdata/clsTXTObject.h"

#include <string_view>
#include <vector>

/// A name for each value of the record that lies in a turret descriptor, a turret, the count of gun
/// groups, a gun group's head or a gun; empty for all others. Walks by the record's counts as far
/// as they lead through it, and never into the common tail.
[[nodiscard]] std::vector<std::string_view> ShipFieldLabels(const clsTXTObject& ship);
