#include "tdata/clsGunGroup.h"

#include "core/KeshError.h"
#include "tdata/ShipChange.h"
#include "tdata/clsGun.h"
#include "tdata/clsShip.h"
#include "tdata/mdlRecordNumbers.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr std::array<std::string_view, 4> Labels{"Init gun idx", "# of guns", "Index",
                                                 "Gun entries"};

} // namespace

std::span<const std::string_view> clsGunGroup::ColumnLabels() {
    return Labels;
}

std::int32_t clsGunGroup::At(std::int32_t i) const {
    return CheckedInteger(std::int64_t{m_offset} + i);
}

std::shared_ptr<clsTurret> clsGunGroup::turret() const try {
    const std::int32_t position = SortIndex();
    const auto& turrets = m_ship->Turrets();
    return position >= 1 && position <= std::ssize(turrets)
               ? turrets[static_cast<std::size_t>(position - 1)]
               : nullptr;
} catch (const KeshError&) {
    return {};
}

std::int32_t clsGunGroup::SectionSize() const {
    return CheckedInteger(size() + clsGun::size() * std::abs(std::int64_t{GunCount()}));
}

std::int32_t clsGunGroup::Value(std::int32_t i) const {
    CheckListIndex(i, size(), "clsGunGroup");
    return m_ship->Integer(At(i));
}

void clsGunGroup::SetValue(std::int32_t i, std::int32_t value) {
    CheckListIndex(i, size(), "clsGunGroup");
    m_ship->SetValue(At(i), value);
}

void clsGunGroup::CreateGuns() {
    const std::int32_t count = GunCount();
    const std::int32_t end = m_ship->size();
    std::int32_t offset = At(size());
    for (std::int32_t i = 0; i < count; ++i, offset += clsGun::size()) {
        m_guns.push_back(std::make_shared<clsGun>(*this, ++m_gunIds, offset));
        if (offset >= end)
            break;
    }
}

void clsGunGroup::ShiftOffset(std::int32_t delta) {
    m_offset = CheckedInteger(std::int64_t{m_offset} + delta);
    for (const auto& gun : m_guns)
        gun->SetOffset(CheckedInteger(std::int64_t{gun->Offset()} + delta));
}

std::shared_ptr<clsGun> clsGunGroup::MakeNewGun() {
    ShipChange change(*m_ship);
    auto gun = std::make_shared<clsGun>(*this, ++m_gunIds, 0);
    m_ship->MakeNewGun(*this, *gun);
    m_guns.push_back(gun);
    m_ship->ReindexGuns();
    RefreshGunCount();
    change.Keep();
    return gun;
}

void clsGunGroup::RemoveGun(const clsGun& gun) {
    const std::int32_t index = GetGunIndex(gun);
    if (index < 0)
        throw KeshError(errnum::General, "clsGunGroup", "Invalid gun passed.");
    ShipChange change(*m_ship);
    m_ship->RemoveGun(*this, gun);
    m_guns.erase(m_guns.begin() + index - 1);
    m_ship->ReindexGuns();
    RefreshGunCount();
    change.Keep();
}

void clsGunGroup::RefreshGunCount() {
    ShipChange change(*m_ship);
    std::int64_t total = 0;
    for (const auto& gun : m_guns)
        total += std::max(0, gun->GunCount());
    SetValue(1, CheckedInteger(total));
    SetValue(3, CheckedInteger(std::ssize(m_guns)));
    m_ship->RefreshGunCount();
    m_ship->ReindexGuns();
    change.Keep();
}

std::int32_t clsGunGroup::GetGunIndex(const clsGun& gun) const {
    const auto found = std::find_if(m_guns.begin(), m_guns.end(),
                                    [&](const auto& own) { return own->Id() == gun.Id(); });
    return found == m_guns.end() ? -1 : static_cast<std::int32_t>(found - m_guns.begin()) + 1;
}
