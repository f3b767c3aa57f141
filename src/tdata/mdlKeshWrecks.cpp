#include "tdata/FieldTable.h"
#include "tdata/mdlKeshShips.h"

#include <algorithm>
#include <array>

namespace {

// A wreck is what a ship, a dock or a factory leaves behind.
const std::array<std::string_view, 16 + 6 + 9> WreckRows = [] {
    std::array<std::string_view, 16 + 6 + 9> rows;
    auto end = rows.begin();
    for (const TextTable* const part : {&ShipClassKeys, &DockSubtypes, &FactorySubtypes})
        end = std::copy(part->Rows.begin(), part->Rows.end(), end);
    return rows;
}();

} // namespace

const TextTable WreckSubtypes{0, WreckRows};
