#include "tdata/TextTable.h"

#include <algorithm>

std::string_view TextTable::At(std::int32_t Index) const noexcept {
    return Holds(Index) ? Rows[static_cast<std::size_t>(std::int64_t{Index} - First)]
                        : std::string_view();
}

std::string TableText(const TextTable& Table, std::int32_t Index) {
    const std::string_view row = Table.At(Index);
    return std::string(row.empty() ? "Unknown value" : row);
}

std::string ListItem(const TextTable& Table, std::int32_t Index, bool ReportNA) {
    if (!Table.Holds(Index))
        return ReportNA ? "N/A" : "";
    return TableText(Table, Index);
}

std::string ListItemRaw(const TextTable& Table, std::int32_t Index) {
    return std::string(Table.At(Index));
}

bool FindInList(std::string_view Value, const TextTable& Table, std::int32_t& Position) {
    const auto found = std::find(Table.Rows.begin(), Table.Rows.end(), Value);
    const bool any = found != Table.Rows.end();
    Position = any ? Table.First + static_cast<std::int32_t>(found - Table.Rows.begin()) : -1;
    return any;
}

std::int32_t FindInList(std::string_view Value, const TextTable& Table) {
    std::int32_t position = -1;
    FindInList(Value, Table, position);
    return position;
}
