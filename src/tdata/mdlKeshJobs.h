// Jobs are spoken of by the logical fields of a record of 120; older versions store fewer.
#pragma once

#include <cstdint>
#include <optional>

/// Values of a job in a file of that version; none for a version that cannot be read or written.
[[nodiscard]] std::optional<std::int32_t> JobSize(std::int32_t Version);
/// Where a logical field stands in a record of `Size` values. A field that the version does not
/// have gives its neighbour's place.
[[nodiscard]] std::int32_t JobPhysicalIndex(std::int32_t Size, std::int32_t Logical);
/// The logical field that stands at a place.
[[nodiscard]] std::int32_t JobLogicalIndex(std::int32_t Size, std::int32_t Physical);
