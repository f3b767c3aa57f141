#include "tdata/clsCockpitParser.h"

bool clsCockpitParser::Load(const clsTxtParser& parser) {
    m_views.Clear();
    m_name = parser.FileName;
    for (const RecordPtr& record : parser.ByIndex())
        m_views.Add(record);
    m_views.Sort(parser);
    return true;
}

std::shared_ptr<clsCockpit> clsCockpitParser::FindIndex(std::int32_t index) const {
    const auto& sorted = m_views.Sorted();
    return index >= 0 && index < std::ssize(sorted) ? sorted[static_cast<std::size_t>(index)]
                                                    : nullptr;
}
