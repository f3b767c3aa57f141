#include "tdata/JobIndex.h"

#include "tdata/mdlKeshConst.h"

JobIndex::JobIndex(const clsTxtParser& Parser) : m_wings(Parser.otype() == otype::JobWings) {
    for (const RecordPtr& record : Parser.ByIndex()) {
        if (record->size() == 0)
            continue;
        m_byName.emplace(record->ObjectName(), record);
        m_byNumber.emplace(keshobjects::spellValue(record->Value(0)), record);
    }
}

RecordPtr JobIndex::Find(const KeshValue& Number) const {
    const std::string spelling = keshobjects::spellValue(Number);
    const auto* const first = m_wings ? &m_byNumber : &m_byName;
    const auto* const then = m_wings ? &m_byName : &m_byNumber;
    for (const Records* const records : {first, then})
        if (const auto found = records->find(spelling); found != records->end())
            return found->second;
    return {};
}
