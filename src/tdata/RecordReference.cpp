#include "tdata/RecordReference.h"

#include "tdata/JobWingIndex.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlRecordNumbers.h"
#include "tdata/mdlWareList.h"

#include <algorithm>

namespace {

enum class Named { ByIndex, ByID, ByNumber };

struct Reference {
    std::int32_t Type;
    std::int32_t Field; ///< logical in a job
    std::string_view File;
    Named How;
};
constexpr Reference References[] = {
    {otype::Ships, 22, "TShields", Named::ByIndex}, {otype::Ships, 30, "WareLists", Named::ByIndex},
    {otype::Laser, 9, "TBullets", Named::ByIndex},  {otype::Bullets, 37, "TWareT", Named::ByIndex},
    {otype::Jobs, 13, "JobWings", Named::ByNumber}, {otype::Jobs, 14, "WareLists", Named::ByIndex},
    {otype::Jobs, 18, "TShips", Named::ByID},
};

std::optional<RecordAddress> AddressOf(const Reference& reference, const clsTXTObject& record,
                                       std::int32_t place) {
    RecordAddress address{std::string(reference.File)};
    if (reference.How == Named::ByIndex) {
        address.Index = IntegerAt(record, place).value_or(-1);
        return address.Index >= 0 ? std::optional(std::move(address)) : std::nullopt;
    }
    address.Name = SpellingAt(record, place);
    const bool none = address.Name.empty() || (reference.How == Named::ByNumber &&
                                               NumberAt(record, place).value_or(0) == 0);
    return none ? std::nullopt : std::optional(std::move(address));
}

RecordPtr FindJob(const clsTxtParser& jobs, const std::string& number) {
    const KeshValue wanted = keshobjects::readValue(number);
    const auto& all = jobs.ByIndex();
    const auto found = std::find_if(all.begin(), all.end(), [&](const RecordPtr& job) {
        return job->size() > 0 && keshobjects::equalValues(job->Value(0), wanted);
    });
    return found == all.end() ? nullptr : *found;
}

} // namespace

std::optional<RecordAddress> ReferenceOf(const clsTXTObject& Record, std::int32_t Index) {
    const auto* found =
        std::find_if(std::begin(References), std::end(References), [&](const Reference& row) {
            return row.Type == Record.otype && row.Field == Index;
        });
    if (found == std::end(References))
        return {};
    const std::int32_t place =
        Record.otype == otype::Jobs ? JobPhysicalIndex(Record.size(), Index) : Index;
    return AddressOf(*found, Record, place);
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
        return FindJob(File, Address.Name);
    case otype::JobWings:
        return JobWingIndex(File).Find(keshobjects::readValue(Address.Name));
    default:
        return File.FindID(Address.Name);
    }
}
