#include "tdata/JobWingIndex.h"

JobWingIndex::JobWingIndex(const clsTxtParser& Wings) {
    for (const RecordPtr& group : Wings.ByIndex()) {
        if (group->size() == 0)
            continue;
        m_byName.emplace(keshobjects::spellValue(group->Value(group->size() - 1)), group);
        m_byNumber.emplace(keshobjects::spellValue(group->Value(0)), group);
    }
}

RecordPtr JobWingIndex::Find(const KeshValue& Number) const {
    const std::string spelling = keshobjects::spellValue(Number);
    for (const Groups* const groups : {&m_byNumber, &m_byName})
        if (const auto found = groups->find(spelling); found != groups->end())
            return found->second;
    return {};
}
