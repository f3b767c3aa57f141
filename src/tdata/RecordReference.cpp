#include "tdata/RecordReference.h"

#include "tdata/JobFields.h"
#include "tdata/JobIndex.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlRecordNumbers.h"
#include "tdata/mdlWareList.h"

#include <algorithm>

namespace {

using By = FieldReference::By;

constexpr FieldReference References[] = {
    {otype::Ships, shipfield::Shield, "TShields", By::Index, false},
    {otype::Ships, shipfield::WareList, "WareLists", By::Index},
    {otype::Laser, 9, "TBullets", By::Index, false},
    {otype::Bullets, 37, "TWareT", By::Index},
    {otype::Jobs, jobfield::Wing, "JobWings", By::Number},
    {otype::Jobs, jobfield::WareList, "WareLists", By::Index},
    {otype::Jobs, jobfield::Ship, "TShips", By::ID},
};

} // namespace

bool FieldReference::NamesNone(const clsTXTObject& Record, std::int32_t Place) const {
    if (How == By::ID) {
        const std::string id = SpellingAt(Record, Place);
        return id.empty() || id == "0";
    }
    const auto number = IntegerAt(Record, Place);
    return number && (How == By::Number ? *number <= 0 : Optional && *number < 0);
}

std::span<const FieldReference> FieldReferences() {
    return References;
}

std::optional<RecordAddress> ReferenceOf(const clsTXTObject& Record, std::int32_t Index) {
    const auto* found =
        std::find_if(std::begin(References), std::end(References), [&](const FieldReference& row) {
            return row.Type == Record.otype && row.Field == Index;
        });
    if (found == std::end(References))
        return {};
    const std::int32_t place =
        Record.otype == otype::Jobs ? JobPhysicalIndex(Record.size(), Index) : Index;
    if (place < 0 || place >= Record.size() || found->NamesNone(Record, place))
        return {};
    RecordAddress address{std::string(found->File)};
    const auto number = IntegerAt(Record, place);
    if (found->How == By::Index)
        address.Index = number.value_or(-1);
    else if (found->How == By::ID || number)
        address.Name = SpellingAt(Record, place);
    return address.Index >= 0 || !address.Name.empty() ? std::optional(std::move(address))
                                                       : std::nullopt;
}

std::optional<RecordAddress> WareAddress(std::string_view ID) {
    for (const std::string_view name : MergedWareFiles())
        if (const auto file = GameFileOf(name); file && file->FindID(ID))
            return RecordAddress{std::string(name), -1, std::string(ID)};
    return {};
}

RecordPtr FindRecord(const clsTxtParser& File, const RecordAddress& Address) {
    if (Address.Index >= 0)
        return File.FindIndex(Address.Index);
    switch (File.otype()) {
    case otype::Jobs:
    case otype::JobWings:
        return JobIndex(File).Find(keshobjects::readValue(Address.Name));
    default:
        return File.FindID(Address.Name);
    }
}
