#include "tdata/FieldLookup.h"

#include "tdata/RecordNames.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlShipLabels.h"

#include <algorithm>

namespace {

constexpr std::int32_t WareClassFromEnd = 6;

constexpr std::string_view NoName = "N/A"; ///< next to the tail, and at the ID
const FieldTable NoFields{};
const TextTable NoSubtypes{};

struct Symbolic {
    std::int32_t Type;
    std::int32_t Since; ///< version of the file from which field 5 is a word
    const TextTable* Words;
};
constexpr Symbolic SymbolicTypes[] = {
    {otype::Laser, 50, &LaserSubtypes},       {otype::Missiles, 50, &MissileSubtypes},
    {otype::Factories, 48, &FactorySubtypes}, {otype::Docks, 48, &DockSubtypes},
    {otype::Wrecks, 48, &WreckSubtypes},
};

const Symbolic* SymbolicOf(std::int32_t type) {
    const auto* found = std::find_if(std::begin(SymbolicTypes), std::end(SymbolicTypes),
                                     [type](const Symbolic& row) { return row.Type == type; });
    return found == std::end(SymbolicTypes) ? nullptr : found;
}

/// The name of the value that counts gun groups moves with the number of turrets.
bool CountsGunGroups(const clsTXTObject& record, std::int32_t index) {
    if (record.otype != otype::Ships || record.size() <= clsShip::FieldTurretCount)
        return false;
    const auto turrets = record.ValueInteger(clsShip::FieldTurretCount);
    return turrets && clsShip::SectionTurrets + std::int64_t{clsTurret::size()} * *turrets == index;
}

} // namespace

const Field* FieldTable::Find(std::int32_t index, std::int32_t size) const noexcept {
    const auto found = std::find_if(Fields.begin(), Fields.end(), [=](const Field& field) {
        return (field.Index < 0 ? std::int64_t{size} + field.Index : field.Index) == index;
    });
    return found == Fields.end() ? nullptr : &*found;
}

const FieldTable& FieldsOf(std::int32_t Type) {
    const ObjectTypeKey* const row = ObjectTypeOf(Type);
    return row != nullptr && row->Fields != nullptr ? *row->Fields : NoFields;
}

std::string CommonFieldName(std::int32_t Size, std::int32_t Index) {
    if (Index < CommonHeadCount)
        return ListItem(CommonHeadNames, Index, true);
    if (Index < Size - 11)
        return {};
    return ListItem(CommonTailNames, Size - 2 - Index, true);
}

std::string FieldName(const clsTXTObject& Record, std::int32_t Index) {
    const FieldTable& table = FieldsOf(Record.otype);
    const Field* const row = table.Find(Index, Record.size());
    if (row != nullptr && !row->Name.empty())
        return std::string(row->Name);
    const std::string common =
        table.Common == Frame::None ? std::string() : CommonFieldName(Record.size(), Index);
    if ((common.empty() || common == NoName) && CountsGunGroups(Record, Index))
        return "Gun groups count";
    return common.empty() ? "Unknown value" : common;
}

std::vector<std::string> FieldNames(const clsTXTObject& Record) {
    const std::int32_t size = Record.size();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(size));
    for (std::int32_t i = 0; i < size; ++i)
        names.push_back(
            FieldName(Record, Record.otype == otype::Jobs ? JobLogicalIndex(size, i) : i));
    if (size > 0 && FieldsOf(Record.otype).Common != Frame::None)
        names.back() = "ID";
    if (Record.otype == otype::Ships) {
        const auto labels = ShipFieldLabels(Record);
        for (std::size_t i = 0; i < labels.size(); ++i)
            if (!labels[i].empty())
                names[i] = labels[i];
    }
    return names;
}

std::int32_t FieldValueType(std::int32_t Type, std::int32_t Size, std::int32_t Index) {
    const FieldTable& table = FieldsOf(Type);
    if (table.Common == Frame::Full && Index >= 0 && Index < CommonHeadCount)
        return CommonHeadTypes[static_cast<std::size_t>(Index)];
    const Field* const row = table.Find(Index, Size);
    return row != nullptr ? row->Type : valuetype::Integer;
}

std::int32_t FieldTranslation(std::int32_t Type, std::int32_t Version, std::int32_t Size,
                              std::int32_t Index) {
    const FieldTable& table = FieldsOf(Type);
    if (Index == CommonSubtypeField && HasSymbolicSubtype(Type, Version))
        return translation::List;
    const Field* const row = table.Find(Index, Size);
    if (row != nullptr && row->Translation != translation::None)
        return Version >= row->Since ? row->Translation : translation::None;
    return table.Common == Frame::Full && Index == Size - WareClassFromEnd ? translation::List
                                                                           : translation::None;
}

std::string_view FieldUnit(std::int32_t Type, std::int32_t Size, std::int32_t Index) {
    const Field* const row = FieldsOf(Type).Find(Index, Size);
    return row != nullptr ? row->Unit : std::string_view();
}

bool HasSymbolicSubtype(std::int32_t Type, std::int32_t Version) {
    const Symbolic* const row = SymbolicOf(Type);
    return row != nullptr && Version >= row->Since;
}

const TextTable& SubtypesOf(std::int32_t Type) {
    const Symbolic* const row = SymbolicOf(Type);
    return row != nullptr ? *row->Words : NoSubtypes;
}
