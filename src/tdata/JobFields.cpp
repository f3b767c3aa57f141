#include "tdata/JobFields.h"

#include "core/mdlComFunctions.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlKeshShips.h"
#include "textres/ResourceText.h"

#include <iterator>

namespace {

constexpr std::size_t ClassLength = 2; ///< of a class, signs; what follows tells of pirates

constexpr std::string_view ClassRows[] = {"M1", "M2", "M3", "M4", "M5", "M6", "TP", "TS", "TL"};
constexpr std::string_view ShipRaceRows[] = {"Argon", "Boron",   "Split", "Paranid", "Teladi",
                                             "Xenon", "Pirates", "Khaak", "Goner",   "Yaki"};
constexpr TextTable ClassNames{0, ClassRows};
constexpr TextTable ShipRaceNames{0, ShipRaceRows};
// Positions in RaceNames.
constexpr std::int32_t OwnerRaceRows[] = {1, 2, 3, 4, 5, 6, 7, 9, 19, 8};

bool Reaches(const clsTXTObject& job, std::int32_t place) {
    return place >= 0 && place < job.size();
}

std::int32_t PlaceOf(const clsTXTObject& job, std::int32_t field) {
    return field < 0 ? field : JobPhysicalIndex(job.size(), field);
}

std::string ObjectText(const clsTXTObject& job, std::int32_t field) {
    const auto id = GetJobInteger(job, field);
    return id ? ResourceText(ObjectNamePage, *id).value_or("") : std::string();
}

/// What the one set flag of a group stands for; empty if none or several are set.
std::string OnlyName(const clsTXTObject& job, JobFlags flags, std::string (*name)(std::int32_t)) {
    const auto set = JobFlagsSet(job, flags);
    return set.size() == 1 ? name(set.front()) : std::string();
}

// In the order of jobflags::NameParts. A job names no corporation, so that flag adds nothing.
struct NamePart {
    JobFlags Flags = {};
    std::string (*Name)(std::int32_t) = nullptr;
};
constexpr NamePart NameParts[] = {{jobflags::OwnerRaces, JobOwnerRaceName},
                                  {},
                                  {jobflags::Classes, JobClassName},
                                  {jobflags::Variants, JobVariantName}};
static_assert(std::size(NameParts) == jobflags::NameParts.Count);

} // namespace

std::string JobClassName(std::int32_t Place) {
    return ListItemRaw(ClassNames, Place);
}

std::string JobShipRaceName(std::int32_t Place) {
    return ListItemRaw(ShipRaceNames, Place);
}

std::string JobOwnerRaceName(std::int32_t Place) {
    return Place >= 0 && Place < std::ssize(OwnerRaceRows)
               ? std::string(RaceNames.At(OwnerRaceRows[Place]))
               : std::string();
}

std::string JobVariantName(std::int32_t Place) {
    std::string text = GetShipVariationName(Place);
    if (text.empty())
        text = Place == 0 ? "Basic" : std::to_string(Place);
    return text;
}

// --- Values

KeshValue GetJobValue(const clsTXTObject& Job, std::int32_t Field) {
    const std::int32_t place = PlaceOf(Job, Field);
    return Reaches(Job, place) ? Job.Value(place) : KeshValue();
}

std::string_view GetJobText(const clsTXTObject& Job, std::int32_t Field) {
    const std::int32_t place = PlaceOf(Job, Field);
    return Reaches(Job, place) ? Job.ValueText(place) : std::string_view();
}

std::optional<std::int32_t> GetJobInteger(const clsTXTObject& Job, std::int32_t Field) {
    const std::int32_t place = PlaceOf(Job, Field);
    return Reaches(Job, place) ? Job.ValueInteger(place) : std::nullopt;
}

std::string_view JobShip(const clsTXTObject& Job) {
    const std::string_view id = GetJobText(Job, jobfield::Ship);
    return id == "0" ? std::string_view() : id;
}

bool SetJobValue(clsTXTObject& Job, std::int32_t Field, const KeshValue& Value) {
    const std::int32_t place = PlaceOf(Job, Field);
    if (!Reaches(Job, place))
        return false;
    Job.SetValue(place, Value);
    return true;
}

bool JobFlagSet(const clsTXTObject& Job, std::int32_t Field) {
    const std::int32_t place = PlaceOf(Job, Field);
    return Reaches(Job, place) && Job.ValueNumber(place).value_or(0) != 0;
}

std::vector<std::int32_t> JobFlagsSet(const clsTXTObject& Job, JobFlags Flags) {
    std::vector<std::int32_t> set;
    for (std::int32_t place = 0; place < Flags.Count; ++place)
        if (JobFlagSet(Job, Flags.First + place))
            set.push_back(place);
    return set;
}

std::optional<std::int32_t> JobNeighbour(const clsTXTObject& Job, std::int32_t Field) {
    const std::int32_t given = JobLogicalIndex(Job.size(), JobPhysicalIndex(Job.size(), Field));
    return given == Field ? std::nullopt : std::optional(given);
}

// --- Names

std::optional<std::int32_t> JobClassOf(const clsTXTObject& Ship) {
    if (Ship.size() <= shipfield::Class)
        return {};
    const std::int32_t position =
        Ship.ValueInteger(shipfield::Class)
            .value_or(FindInList(Ship.ValueText(shipfield::Class), ShipClassKeys));
    const std::int32_t place =
        FindInList(ShipClassLabels.At(position).substr(0, ClassLength), ClassNames);
    return place < 0 ? std::nullopt : std::optional(place);
}

std::string JobResourceName(const clsTXTObject& Job) {
    std::string name = ObjectText(Job, jobfield::ShipName);
    if (GetJobInteger(Job, jobfield::ShipName) == 0)
        name.clear();
    for (const std::int32_t part : JobFlagsSet(Job, jobflags::NameParts))
        if (const auto& [flags, nameOf] = NameParts[part]; nameOf != nullptr)
            AppendLine(name, OnlyName(Job, flags, nameOf), " ");
    AppendLine(name, ObjectText(Job, jobfield::Description), " ");
    return name;
}
