// Tables of texts by position, and the reads that never fail.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Texts at the positions from First on. A row may be empty: it has a position but no text.
struct TextTable {
    std::int32_t First = 0;
    std::span<const std::string_view> Rows = {};

    /// The row, and the empty text outside the table.
    [[nodiscard]] std::string_view At(std::int32_t Index) const noexcept;
    [[nodiscard]] bool Holds(std::int32_t Index) const noexcept {
        return Index >= First && std::int64_t{Index} - First < std::ssize(Rows);
    }
};

/// The row; "Unknown value" for an empty one. Outside the table "N/A", or the empty text without
/// ReportNA.
[[nodiscard]] std::string ListItem(const TextTable& Table, std::int32_t Index, bool ReportNA);
/// The row; "Unknown value" for an empty one and outside the table.
[[nodiscard]] std::string TableText(const TextTable& Table, std::int32_t Index);
/// The row; the empty text outside the table.
[[nodiscard]] std::string ListItemRaw(const TextTable& Table, std::int32_t Index);
/// Position of the first row that is exactly this text; false, and Position is -1, if there is
/// none.
bool FindInList(std::string_view Value, const TextTable& Table, std::int32_t& Position);
/// The position alone; -1 if there is none.
[[nodiscard]] std::int32_t FindInList(std::string_view Value, const TextTable& Table);
