#include "tdata/clsShipParser.h"

bool clsShipParser::Load(const clsTxtParser& parser) {
    m_views.Clear();
    for (const RecordPtr& record : parser.ByIndex()) {
        const auto ship = m_views.Add(record);
        if (!ship->LoadObjects()) {
            m_lastError = "Error loading ship objects (ship idx=" + std::to_string(record->Index) +
                          "): " + ship->GetLastError();
            return false;
        }
    }
    m_views.Sort(parser);
    return true;
}
