#include "tdata/mdlKeshJobs.h"

#include "tdata/FieldTable.h"
#include "tdata/JobFields.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace {

using valuetype::String;

constexpr Field JobRows[] = {
    {0, "ID"},
    {1, "Name", String},
    {2, "Max # of jobs"},
    {3, "Max # of jobs in sector"},
    {4, "Script function file", String},
    {5, "Script config file", String},
    {6, "Description"},
    {8, "Ship name"},
    {13, "Job wings group ID"},
    {14, "Warelist ID"},
    {15, "Jump range"},
    {16, "Idle rate"},
    {17, "Respawn time"},
    {55, "Color - Hue"},
    {56, "Color - Saturation"},
    {57, "Chance random race"},
    {65, "Sector X"},
    {66, "Sector Y"},
    {73, "Reserved"},
    {74, "Cargo bay extensions"},
    {75, "Engine tunning"},
    {76, "Rudder tunning"},
    {77, "Rotation accel. limit"},
    {88, "Shield"},
    {89, "Laser"},
    {106, "Agression level"},
    {107, "Morale level"},
    {108, "Fight level"},
    {109, "NPC ID"},
};

// Logical fields that records of older versions do not have.
constexpr std::int32_t MissingOf117[] = {36, 55, 86};
constexpr std::int32_t MissingOf119[] = {55};

struct JobLayout {
    std::int32_t Version;
    std::int32_t Size;
    std::span<const std::int32_t> Missing = {};
};
constexpr JobLayout JobLayouts[] = {
    {8, 117, MissingOf117}, {9, 119, MissingOf119}, {10, jobfield::Count}};

std::span<const std::int32_t> MissingFields(std::int32_t size) {
    const auto* const layout = std::ranges::find(JobLayouts, size, &JobLayout::Size);
    return layout == std::end(JobLayouts) ? std::span<const std::int32_t>() : layout->Missing;
}

} // namespace

const FieldTable JobFieldNames{Frame::None, JobRows};

std::optional<std::int32_t> JobSize(std::int32_t Version) {
    const auto* const layout = std::ranges::find(JobLayouts, Version, &JobLayout::Version);
    return layout == std::end(JobLayouts) ? std::nullopt : std::optional(layout->Size);
}

std::int32_t JobPhysicalIndex(std::int32_t Size, std::int32_t Logical) {
    const auto missing = MissingFields(Size);
    // The field that is missing reads its neighbour: 36 the one behind it, the others the one
    // before.
    const auto before = std::count_if(missing.begin(), missing.end(), [=](std::int32_t field) {
        return field == 36 ? Logical > field : Logical >= field;
    });
    return Logical - static_cast<std::int32_t>(before);
}

std::int32_t JobLogicalIndex(std::int32_t Size, std::int32_t Physical) {
    std::int32_t logical = Physical;
    for (const std::int32_t field : MissingFields(Size))
        logical += logical >= field ? 1 : 0;
    return logical;
}
