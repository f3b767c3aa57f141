#include "tdata/WareFields.h"

#include "tdata/FieldLookup.h"
#include "tdata/RecordNames.h"
#include "tdata/WareRows.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshWare.h"

namespace {

using namespace warelist;

ChoiceList ListFrom(const TextTable& table) {
    return {.First = table.First, .Rows = {table.Rows.begin(), table.Rows.end()}};
}

/// A row a record of a file.
ChoiceList RecordList(std::string_view name, std::string (*rowOf)(const clsTXTObject&)) {
    ChoiceList list;
    if (const auto file = GameFileOf(name))
        for (const RecordPtr& record : file->ByIndex())
            list.Rows.push_back(rowOf(*record));
    return list;
}

} // namespace

void WareFields::LoadFiles(std::int32_t Type) {
    if (IconField(Type) >= 0 && m_icons.Names().empty() && m_icons.Load())
        List(warelist::Icons).Rows = m_icons.Names();
    if (Type == otype::Laser && List(Bullets).Rows.empty())
        List(Bullets) = RecordList("TBullets", [](const clsTXTObject& bullet) {
            return std::string(bullet.ObjectName());
        });
    if (Type == otype::Bullets && List(Ammo).Rows.empty())
        List(Ammo) = RecordList("TWareT", RecordName);
}

void WareFields::SetFile(std::int32_t Type, std::int32_t Version) {
    SetVersion(Version);
    const auto classes = GetWareClassNames();
    List(WareClasses).Rows = {classes.begin(), classes.end()};
    List(Races) = ListFrom(RaceNames);
    List(Sizes) = ListFrom(FactorySizeNames);
    List(Subtypes) = ListFrom(SubtypesOf(Type));
}

std::string WareFields::ResourceName(const clsTXTObject& Record) {
    return Record.size() > CommonNameField ? RecordName(Record) : std::string();
}
