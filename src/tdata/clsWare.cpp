#include "tdata/clsWare.h"

#include "core/mdlComFunctions.h"
#include "tdata/mdlKeshConst.h"

namespace {
constexpr std::int32_t RaceField = 13;
}

std::string clsWare::Race() const {
    if (m_object->otype != otype::Factories && m_object->otype != otype::Docks)
        return {};
    return TableText(RaceNames(),
                     static_cast<std::int64_t>(m_object->ValueNumber(RaceField).value_or(-1)));
}
