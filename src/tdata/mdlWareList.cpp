#include "tdata/mdlWareList.h"

#include "tdata/RecordNames.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "textres/ResourceText.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view MergedFiles[] = {"TWareB", "TWareE",   "TWareF",    "TWareM", "TWareN",
                                            "TWareT", "TShields", "TMissiles", "TLaser"};

/// Types whose name is that of the common frame; every other ware has it in front.
constexpr std::int32_t FramedTypes[] = {otype::Shields, otype::Laser, otype::Missiles, otype::Ware};

std::string TextOf(const clsTXTObject& record) {
    const bool framed = std::find(std::begin(FramedTypes), std::end(FramedTypes), record.otype) !=
                        std::end(FramedTypes);
    const std::int32_t field = framed ? CommonNameField : 0;
    const auto id = field < record.size() ? record.ValueInteger(field) : std::nullopt;
    const auto text = id ? ResourceText(ObjectNamePage, *id) : std::nullopt;
    return text ? *text : std::string(record.ObjectName());
}

std::string NameOf(const clsTXTObject* record, std::string_view id) {
    std::string name = record && record->otype != otype::None ? TextOf(*record) : "";
    return name.empty() ? std::string(id) : name;
}

} // namespace

std::span<const std::string_view> MergedWareFiles() {
    return MergedFiles;
}

std::unique_ptr<clsTxtParser> BuildWareList() {
    auto merged = std::make_unique<clsTxtParser>();
    std::int32_t index = 1;
    for (const std::string_view name : MergedFiles) {
        const auto file = GameFileOf(name);
        if (!file)
            continue;
        for (const RecordPtr& record : file->ByIndex()) {
            const RecordPtr copy = record->Clone();
            copy->ID = index++;
            merged->AddObjectP(copy, {});
        }
    }
    return merged;
}

std::string GetWareName(const clsTxtParser& Parser, const std::string& ID) {
    return NameOf(Parser.FindID(ID).get(), ID);
}

WareNames::WareNames(std::unique_ptr<const clsTxtParser> Wares) : m_wares(std::move(Wares)) {
    m_byName.reserve(m_wares->ByIndex().size());
    for (const RecordPtr& record : m_wares->ByIndex())
        m_byName.emplace(record->ObjectName(), record.get());
}

std::string WareNames::Name(std::string_view ID) const {
    const auto found = m_byName.find(ID);
    return NameOf(found == m_byName.end() ? nullptr : found->second, ID);
}
