#include "tdata/clsTurret.h"

#include "core/KeshError.h"
#include "tdata/clsShip.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlRecordNumbers.h"

#include <array>

namespace {

constexpr std::array<std::string_view, 4> Labels{"Index", "Turr. Idx", "Body ID", "Path Idx"};
constexpr std::array<std::string_view, 2> PairLabels{"Type", "Position"};

} // namespace

std::span<const std::string_view> clsTurret::ColumnLabels() {
    return Labels;
}

std::span<const std::string_view> clsTurret::DescriptorLabels() {
    return PairLabels;
}

std::int32_t clsTurret::Integer(std::int32_t i) const {
    return m_ship->Integer(m_offset + i);
}

std::int32_t clsTurret::PairOffset(std::int32_t i) const {
    return CheckedInteger(std::int64_t{DescriptorOffset()} + i);
}

KeshValue clsTurret::DescriptorValue(std::int32_t i) const {
    CheckListIndex(i, 1, "clsTurret");
    return HasDescriptor() ? m_ship->Value(PairOffset(i)) : KeshValue(0);
}

void clsTurret::SetDescriptorValue(std::int32_t i, const KeshValue& value) {
    CheckListIndex(i, 1, "clsTurret");
    if (!IsTurret())
        throw KeshError(errnum::Forbidden, "clsTurret", "Guns don't have turret descriptors.");
    // With an index outside 2 to 7 the place would be that of a field that is no descriptor.
    if (!HasDescriptor())
        throw KeshError(errnum::General, "clsTurret", "List index out of bounds.");
    m_ship->SetValue(PairOffset(i), value);
}

KeshValue clsTurret::Value(std::int32_t i) const {
    CheckListIndex(i, size(), "clsTurret");
    return m_ship->Value(m_offset + i);
}

void clsTurret::SetValue(std::int32_t i, const KeshValue& value) {
    CheckListIndex(i, size(), "clsTurret");
    m_ship->SetValue(m_offset + i, value);
}

std::string clsTurret::BodyID() const {
    return std::string(m_ship->Object->ValueText(m_offset + 2));
}

bool clsTurret::TranslateDescValue(std::int32_t i, std::string& text) const {
    const std::int32_t position = i == 1 ? Position() : 0;
    if (position != 0)
        text = TableText(TurretPositionNames, position);
    return position != 0;
}

std::int32_t clsTurret::DescriptorOffset() const {
    return CheckedInteger((std::int64_t{index()} - 2) * 2 + clsShip::SectionDescriptors);
}

bool clsTurret::HasDescriptor() const {
    const std::int32_t number = index();
    return IsTurret() && number >= 2 && number < 2 + clsShip::MaxTurrets;
}

std::optional<std::int32_t> clsTurret::Type() const {
    const auto number = keshobjects::readNumber(keshobjects::spellValue(DescriptorValue(0)));
    return number ? keshobjects::roundToInteger(*number) : std::nullopt;
}

std::int32_t clsTurret::Position() const {
    return HasDescriptor() ? m_ship->Integer(PairOffset(1)) : 0;
}

std::string clsTurret::PositionName() const {
    if (!IsTurret())
        return "front cockpit";
    std::string text;
    return TranslateDescValue(1, text) ? text : std::to_string(Position());
}
