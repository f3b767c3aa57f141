// The TShips file that several groups measure with.
#pragma once

#include <string>

namespace bench {

/// 5,000 ships of version 49, each with 7 turrets and 7 gun groups of 2 entries.
void writeShips(const std::string& path);

} // namespace bench
