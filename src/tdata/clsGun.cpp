#include "tdata/clsGun.h"

#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"
#include "tdata/mdlRecordNumbers.h"

#include <array>

namespace {

constexpr std::array<std::string_view, 6> Labels{"Gun index", "Gun Count",   "Body ID",
                                                 "Path idx.", "Body ID (2)", "Path idx (2)"};
constexpr const char* OutOfBounds = "Index out of bounds";

} // namespace

std::span<const std::string_view> clsGun::ColumnLabels() {
    return Labels;
}

std::int32_t clsGun::Integer(std::int32_t i) const {
    return m_group->Ship().Integer(m_offset + i);
}

KeshValue clsGun::Value(std::int32_t i) const {
    CheckListIndex(i, size() - 1, "clsGun", OutOfBounds);
    return m_group->Ship().Value(m_offset + i);
}

void clsGun::SetValue(std::int32_t i, const KeshValue& value) {
    CheckListIndex(i, size(), "clsGun", OutOfBounds);
    m_group->Ship().SetValue(m_offset + i, value);
}
