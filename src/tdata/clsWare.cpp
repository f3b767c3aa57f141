#include "tdata/clsWare.h"

#include "tdata/mdlKeshConst.h"

namespace {
constexpr std::int32_t RaceField = 13;
}

std::string clsWare::Race() const {
    if (m_object->otype != otype::Factories && m_object->otype != otype::Docks)
        return {};
    return TableText(RaceNames, m_object->ValueInteger(RaceField).value_or(0));
}
