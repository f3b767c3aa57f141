// A record of TShips as turrets, gun groups and guns.
//
// The record is one flat run of values: fields 0 to 30, six turret descriptors of two values (31 to
// 42), fields to 52, the count of turrets (53), four values a turret, the count of gun groups, the
// gun groups each with its guns, ten values of the common tail. The objects keep offsets into it
// and copy nothing.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class clsGun;
class clsGunGroup;
class clsTurret;

class clsShip {
public:
    static constexpr std::int32_t FieldGunCount = 19;
    static constexpr std::int32_t SectionDescriptors = 31; ///< of turrets, two values each
    static constexpr std::int32_t FieldTurretCount = 53;
    static constexpr std::int32_t SectionTurrets = 54;
    static constexpr std::int32_t MaxTurrets = 6; ///< that have a descriptor; one more is in front
    static constexpr std::int32_t ConstructedSize = 65;

    explicit clsShip(RecordPtr object) : Object(std::move(object)) {}
    clsShip(const clsShip&) = delete;
    clsShip& operator=(const clsShip&) = delete;

    const RecordPtr Object;

    [[nodiscard]] std::string key() const { return Object->key(); }
    [[nodiscard]] std::int32_t size() const { return Object->size(); }

    // Numbers of the record; all throw KeshError for a value that is no number of 32 bits or an
    // offset outside the record.
    [[nodiscard]] std::int32_t TurretCount() const { return Integer(FieldTurretCount); }
    [[nodiscard]] std::int32_t GunCount() const { return Integer(FieldGunCount); }
    [[nodiscard]] std::int32_t GunSectionsCount() const { return Integer(GGCountOffset()); }
    void SetGunSectionsCount(std::int32_t count) { SetValue(GGCountOffset(), count); }
    [[nodiscard]] std::int32_t GGCountOffset() const;     ///< of the count of gun groups
    [[nodiscard]] std::int32_t DynamicDataOffset() const; ///< of the first value behind the guns
    [[nodiscard]] KeshValue Value(std::int32_t index) const { return Object->Value(index); }
    void SetValue(std::int32_t index, const KeshValue& value) { Object->SetValue(index, value); }
    [[nodiscard]] std::int32_t Integer(std::int32_t index) const; ///< 0 for an unset value

    /// By their "Index"; of equal ones the earlier in the data first. Objects are new after
    /// LoadObjects.
    [[nodiscard]] const std::vector<std::shared_ptr<clsTurret>>& Turrets() const noexcept {
        return m_turrets;
    }
    [[nodiscard]] const std::vector<std::shared_ptr<clsGunGroup>>& GunGroups() const noexcept {
        return m_groups;
    }

    /// Makes the record a fresh one of 65 values; LoadObjects has to follow.
    void Construct() { Object->Construct(ConstructedSize); }
    /// Builds turrets, gun groups and guns from the values; needed after the record was loaded,
    /// constructed or replaced. False with GetLastError set if the counts lead out of the record;
    /// what was found up to there stays.
    [[nodiscard]] bool LoadObjects();
    /// Whether the sizes and counts of the objects fit the record; if not, GetLastError says why.
    [[nodiscard]] bool Validate();
    [[nodiscard]] const std::string& GetLastError() const noexcept { return m_lastError; }

    // Changes of the structure; one that fails changes nothing.
    /// Adds a turret and its gun group behind the last ones; its body, path and descriptor stay
    /// unset. Throws KeshError for more than seven.
    std::shared_ptr<clsTurret> MakeNewTurret();
    /// Only the last one can go, and its gun group with it.
    [[nodiscard]] bool RemoveTurret(const clsTurret& turret);
    /// The record's half of clsGunGroup::MakeNewGun and RemoveGun, which alone call them.
    void MakeNewGun(clsGunGroup& group, clsGun& gun);
    void RemoveGun(clsGunGroup& group, const clsGun& gun);
    /// Position from 1; throws KeshError for a turret that is not of this ship.
    [[nodiscard]] std::int32_t GetTurretIndex(const clsTurret& turret) const;

    void RefreshGunCount(); ///< first gun of each group, guns of the ship
    void ReindexGuns();     ///< numbers the guns, each group from its first
    void ReindexTurrets();  ///< numbers turrets and gun groups from 1

private:
    friend class ShipChange;

    [[nodiscard]] std::int32_t FirstGunGroupOffset() const;
    [[nodiscard]] std::int32_t GunGroupsSize() const;
    [[nodiscard]] std::shared_ptr<clsTurret> CreateTurret(std::int32_t offset);
    [[nodiscard]] std::shared_ptr<clsGunGroup> CreateGunGroup(std::int32_t offset);
    void LoadTurrets();
    void LoadGunGroups();
    [[nodiscard]] std::shared_ptr<clsTurret> InsertTurret();
    void InsertGunGroup(std::int32_t turretIndex);
    void TakeLastTurret();
    [[nodiscard]] std::size_t PositionOf(const clsGunGroup& group) const;
    void ShiftGroups(std::size_t from, std::int32_t delta);
    [[nodiscard]] bool NoteTurretsOutside();
    [[nodiscard]] bool CheckSizes();
    [[nodiscard]] bool CheckTotal(const char* what, std::int64_t calculated, std::int32_t stored);
    bool SetLastError(std::string text);

    std::vector<std::shared_ptr<clsTurret>> m_turrets;
    std::vector<std::shared_ptr<clsGunGroup>> m_groups;
    std::int32_t m_turretIds = 0; ///< last ones given; only grow
    std::int32_t m_groupIds = 0;
    std::string m_lastError;
};
