#include "tdata/clsShip.h"

#include "core/KeshError.h"
#include "core/mdlComFunctions.h"
#include "tdata/ShipChange.h"
#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlRecordNumbers.h"

#include <algorithm>

namespace {

[[noreturn]] void Throw(const char* text) {
    throw KeshError(errnum::General, "clsShip", text);
}

/// Puts an object at the end; fails where a sorted insert would, which has to read the numbers.
template <class T>
void Append(std::vector<std::shared_ptr<T>>& objects, std::shared_ptr<T> object) {
    if (objects.size() == 1)
        static_cast<void>(objects.front()->SortIndex());
    if (!objects.empty())
        static_cast<void>(object->SortIndex());
    objects.push_back(std::move(object));
}

/// The order that AddSorted gives; one by one a long record would take forever.
template <class T>
void SortByIndex(std::vector<std::shared_ptr<T>>& objects) {
    const auto before = [](const auto& a, const auto& b) {
        return a->SortIndex() < b->SortIndex();
    };
    if (!std::is_sorted(objects.begin(), objects.end(), before))
        std::stable_sort(objects.begin(), objects.end(), before);
}

template <class T>
auto FindObject(const std::vector<std::shared_ptr<T>>& objects, const T& object) {
    return std::find_if(objects.begin(), objects.end(),
                        [&](const auto& own) { return own.get() == &object; });
}

/// Item `position` counted from 0; fails if there is none.
template <class T>
void EraseItem(std::vector<std::shared_ptr<T>>& objects, std::size_t position) {
    if (position >= objects.size())
        throw KeshError(errnum::Bounds, "clsShip", "List index out of bounds.");
    objects.erase(objects.begin() + static_cast<std::ptrdiff_t>(position));
}

template <class Part>
bool LiesOutside(const Part& part, std::int32_t recordSize) {
    return std::int64_t{part.Offset()} + Part::size() - 1 >= recordSize;
}

std::string IndexText(std::size_t index) {
    return " (index " + std::to_string(index) + ")";
}

std::string OutsideText(const std::string& part) {
    return "Error while accessing data of " + part + ". Data overflow detected.";
}

} // namespace

bool clsShip::SetLastError(std::string text) {
    m_lastError = std::move(text);
    return false;
}

// --- Places in the record

std::int32_t clsShip::Integer(std::int32_t index) const {
    return RecordInteger(*Object, index);
}

std::int32_t clsShip::GGCountOffset() const {
    return CheckedInteger(SectionTurrets + std::int64_t{4} * TurretCount());
}

std::int32_t clsShip::FirstGunGroupOffset() const {
    return CheckedInteger(std::int64_t{GGCountOffset()} + 1);
}

std::int32_t clsShip::GunGroupsSize() const {
    std::int32_t total = 0;
    for (const auto& group : m_groups)
        total = CheckedInteger(std::int64_t{total} + group->SectionSize());
    return total;
}

std::int32_t clsShip::DynamicDataOffset() const {
    return CheckedInteger(std::int64_t{FirstGunGroupOffset()} + GunGroupsSize());
}

// --- Loading

std::shared_ptr<clsTurret> clsShip::CreateTurret(std::int32_t offset) {
    return std::make_shared<clsTurret>(*this, ++m_turretIds, offset);
}

std::shared_ptr<clsGunGroup> clsShip::CreateGunGroup(std::int32_t offset) {
    return std::make_shared<clsGunGroup>(*this, ++m_groupIds, offset);
}

bool clsShip::LoadObjects() {
    m_turrets.clear();
    m_groups.clear();
    bool loaded = true;
    try {
        LoadTurrets();
        LoadGunGroups();
    } catch (const std::exception& failure) {
        loaded = SetLastError(failure.what());
    }
    SortByIndex(m_turrets);
    SortByIndex(m_groups);
    return loaded;
}

// Counts that are too large end both loops at the first turret or group outside the record, where
// no number can be read.
void clsShip::LoadTurrets() {
    const std::int32_t count = TurretCount();
    std::int32_t offset = SectionTurrets;
    for (std::int32_t i = 0; i < count; ++i, offset += clsTurret::size())
        Append(m_turrets, CreateTurret(offset));
}

void clsShip::LoadGunGroups() {
    const std::int32_t count = GunSectionsCount();
    std::int32_t offset = FirstGunGroupOffset();
    for (std::int32_t i = 0; i < count; ++i) {
        auto group = CreateGunGroup(offset);
        group->CreateGuns();
        offset = CheckedInteger(std::int64_t{offset} + group->SectionSize());
        Append(m_groups, std::move(group));
    }
}

// --- Turrets

std::shared_ptr<clsTurret> clsShip::MakeNewTurret() {
    const std::int32_t count = TurretCount();
    if (count > MaxTurrets)
        Throw("Maximum number of turrets reached.");
    ShipChange change(*this);
    SetValue(FieldTurretCount, count + 1);
    auto turret = InsertTurret();
    ShiftGroups(0, clsTurret::size());
    InsertGunGroup(turret->index());
    change.Keep();
    return turret;
}

std::shared_ptr<clsTurret> clsShip::InsertTurret() {
    const auto count = static_cast<std::int32_t>(m_turrets.size());
    const std::int32_t offset = SectionTurrets + clsTurret::size() * count;
    Object->InsertSpaceToArray(offset, clsTurret::size());
    auto turret = CreateTurret(offset);
    turret->SetValue(0, count + 1);
    turret->SetValue(1, count);
    AddSorted(m_turrets, turret);
    return turret;
}

void clsShip::InsertGunGroup(std::int32_t turretIndex) {
    const std::int32_t offset = DynamicDataOffset();
    Object->InsertSpaceToArray(offset, clsGunGroup::size());
    const auto group = CreateGunGroup(offset);
    group->SetValue(2, turretIndex);
    group->SetValue(3, 0);
    group->SetValue(1, 0);
    group->SetValue(0, m_groups.empty()
                           ? 1
                           : CheckedInteger(std::int64_t{m_groups.back()->InitialLaserPos()} +
                                            m_groups.back()->PseudoGunCount()));
    AddSorted(m_groups, group);
    SetGunSectionsCount(CheckedInteger(std::int64_t{GunSectionsCount()} + 1));
}

bool clsShip::RemoveTurret(const clsTurret& turret) {
    try {
        const std::int32_t position = GetTurretIndex(turret);
        if (position < std::ssize(m_turrets))
            Throw("Can only remove last turret.");
        ShipChange change(*this);
        TakeLastTurret();
        change.Keep();
        return true;
    } catch (const std::exception& failure) {
        return SetLastError(std::string("Error removing turret: \r\n") + failure.what());
    }
}

void clsShip::TakeLastTurret() {
    clsTurret& turret = *m_turrets.back();
    if (turret.HasDescriptor()) {
        turret.SetDescriptorValue(1, 0);
        turret.SetDescriptorValue(0, 0);
    }
    const std::size_t last = m_turrets.size() - 1;
    const auto left = static_cast<std::int32_t>(last);
    SetValue(FieldTurretCount, left);
    Object->RemoveSpaceFromArray(SectionTurrets + clsTurret::size() * left, clsTurret::size());
    ShiftGroups(0, -clsTurret::size());
    if (m_groups.empty())
        Throw("List index out of bounds.");
    const std::int32_t section = m_groups.back()->SectionSize();
    Object->RemoveSpaceFromArray(DynamicDataOffset() - section, section);
    EraseItem(m_groups, last);
    m_turrets.pop_back();
    SetGunSectionsCount(CheckedInteger(std::int64_t{GunSectionsCount()} - 1));
    RefreshGunCount();
}

std::int32_t clsShip::GetTurretIndex(const clsTurret& turret) const {
    const auto found = FindObject(m_turrets, turret);
    if (found == m_turrets.end())
        Throw("Invalid turret passed.");
    return static_cast<std::int32_t>(found - m_turrets.begin()) + 1;
}

// --- Guns

std::size_t clsShip::PositionOf(const clsGunGroup& group) const {
    const auto found = FindObject(m_groups, group);
    if (found == m_groups.end())
        Throw("Invalid gun group passed.");
    return static_cast<std::size_t>(found - m_groups.begin());
}

void clsShip::ShiftGroups(std::size_t from, std::int32_t delta) {
    for (std::size_t i = from; i < m_groups.size(); ++i)
        m_groups[i]->ShiftOffset(delta);
}

void clsShip::MakeNewGun(clsGunGroup& group, clsGun& gun) {
    const std::size_t position = PositionOf(group);
    const auto entries = static_cast<std::int32_t>(group.Guns().size());
    const std::int32_t offset = CheckedInteger(std::int64_t{group.Offset()} + clsGunGroup::size() +
                                               std::int64_t{clsGun::size()} * entries);
    group.SetValue(3, CheckedInteger(std::int64_t{group.GunCount()} + 1));
    SetValue(FieldGunCount, CheckedInteger(std::int64_t{GunCount()} + 1));
    Object->InsertSpaceToArray(offset, clsGun::size());
    ShiftGroups(position + 1, clsGun::size());
    gun.SetOffset(offset);
}

void clsShip::RemoveGun(clsGunGroup& group, const clsGun&) {
    const std::size_t position = PositionOf(group);
    const auto entries = static_cast<std::int32_t>(group.Guns().size());
    const std::int32_t offset = CheckedInteger(std::int64_t{group.Offset()} + clsGunGroup::size() +
                                               std::int64_t{clsGun::size()} * (entries - 1));
    group.SetValue(3, CheckedInteger(std::int64_t{group.GunCount()} - 1));
    SetValue(FieldGunCount, CheckedInteger(std::int64_t{GunCount()} - 1));
    Object->RemoveSpaceFromArray(offset, clsGun::size());
    ShiftGroups(position + 1, -clsGun::size());
}

// --- Numbers that follow from others

void clsShip::RefreshGunCount() {
    ShipChange change(*this);
    std::int32_t next = m_groups.empty() ? 0 : m_groups.front()->InitialLaserPos();
    std::int32_t total = 0;
    for (const auto& group : m_groups) {
        const std::int32_t guns = group->PseudoGunCount();
        total = CheckedInteger(std::int64_t{total} + guns);
        group->SetValue(0, next);
        next = CheckedInteger(std::int64_t{next} + guns);
    }
    SetValue(FieldGunCount, total);
    change.Keep();
}

void clsShip::ReindexGuns() {
    ShipChange change(*this);
    for (const auto& group : m_groups) {
        std::int32_t next = group->InitialLaserPos();
        for (const auto& gun : group->Guns()) {
            gun->SetValue(0, next);
            next = CheckedInteger(std::int64_t{next} + gun->GunCount());
        }
    }
    change.Keep();
}

void clsShip::ReindexTurrets() {
    ShipChange change(*this);
    for (std::size_t i = 0; i < m_turrets.size(); ++i)
        m_turrets[i]->SetValue(0, static_cast<std::int32_t>(i + 1));
    for (std::size_t i = 0; i < m_groups.size(); ++i)
        m_groups[i]->SetValue(2, static_cast<std::int32_t>(i + 1));
    change.Keep();
}

// --- Validation

bool clsShip::Validate() {
    m_lastError.clear();
    try {
        return CheckSizes();
    } catch (const std::exception& failure) {
        return SetLastError(std::string("Error while reading data: ") + failure.what());
    }
}

bool clsShip::NoteTurretsOutside() {
    bool overflow = false;
    for (std::size_t i = 0; i < m_turrets.size(); ++i)
        if (LiesOutside(*m_turrets[i], size())) {
            m_lastError = OutsideText("turret" + IndexText(i));
            overflow = true;
        }
    return overflow;
}

bool clsShip::CheckSizes() {
    bool overflow = NoteTurretsOutside();
    const auto note = [&](const auto& part, const auto& describe) {
        if (!overflow && LiesOutside(part, size())) {
            m_lastError = OutsideText(describe()) + "\r\n";
            overflow = true;
        }
    };
    std::int64_t guns = 0;
    std::int64_t total = 0;
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        const clsGunGroup& group = *m_groups[i];
        const auto inGroup = [i] { return "gun group" + IndexText(i); };
        note(group, inGroup);
        for (const auto& gun : group.Guns()) {
            // The gun is named by its group's number too.
            note(*gun, [&] { return "gun" + IndexText(i) + " in " + inGroup(); });
            guns = CheckedInteger(guns + gun->GunCount());
        }
        total = CheckedInteger(total + group.SectionSize());
    }
    total =
        CheckedInteger(total + clsTurret::size() * std::int64_t{TurretCount()} + ConstructedSize);
    return CheckTotal("size of ship data does not match actual data size", total, size()) &&
           CheckTotal("gun count does not match gun count stored in ship data", guns, GunCount());
}

bool clsShip::CheckTotal(const char* what, std::int64_t calculated, std::int32_t stored) {
    if (calculated != stored)
        m_lastError += std::string("Calculated ") + what + " - should be " +
                       std::to_string(calculated) + " and it is " + std::to_string(stored) + ".";
    return calculated == stored;
}
