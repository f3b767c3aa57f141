#include "tdata/CheckReferences.h"

#include "tdata/JobFields.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlWareList.h"
#include "textres/clsDescServer.h"

namespace {

std::unordered_set<std::string_view> NamesIn(const clsTxtParser* file) {
    std::unordered_set<std::string_view> names;
    if (file == nullptr)
        return names;
    for (const RecordPtr& record : file->ByIndex())
        names.insert(record->ObjectName());
    return names;
}

} // namespace

const clsTxtParser* CheckReferences::File(std::string_view Key) {
    auto found = m_files.find(Key);
    if (found == m_files.end())
        found = m_files.emplace(Key, m_withGame ? GameFileOf(Key) : nullptr).first;
    return found->second.get();
}

std::int32_t CheckReferences::CountOf(std::string_view Key) {
    const clsTxtParser* const file = File(Key);
    return file != nullptr ? static_cast<std::int32_t>(file->ByIndex().size()) : 0;
}

bool CheckReferences::HasShip(std::string_view ID) {
    if (!m_ships)
        m_ships = NamesIn(File("TShips"));
    return m_ships->contains(ID);
}

bool CheckReferences::HasWare(std::string_view ID) {
    if (!m_wares) {
        m_merged = BuildWareList();
        m_wares = NamesIn(m_merged.get());
    }
    return m_wares->contains(ID);
}

bool CheckReferences::HasJobWing(const KeshValue& Number) {
    if (!m_wings && File("JobWings") != nullptr)
        m_wings.emplace(*File("JobWings"));
    return m_wings && m_wings->Find(Number);
}

bool CheckReferences::HasJob(std::int32_t Number) {
    if (!m_jobs && File("Jobs") != nullptr)
        m_jobs.emplace(*File("Jobs"));
    return m_jobs && m_jobs->Find(Number);
}

bool CheckReferences::HasObjectText(std::int32_t Id) const {
    return DescServer && DescServer->GetObjectString(Id) != 0;
}
