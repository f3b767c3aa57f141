// The guns of one turret: four head values in the ship's record, then six for each gun entry.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class clsGun;
class clsShip;
class clsTurret;

class clsGunGroup {
public:
    clsGunGroup(clsShip& ship, std::int32_t id, std::int32_t offset)
        : m_ship(&ship), m_id(id), m_offset(offset) {}

    /// Names of the four head values.
    [[nodiscard]] static std::span<const std::string_view> ColumnLabels();
    [[nodiscard]] static constexpr std::int32_t size() { return 4; }

    [[nodiscard]] clsShip& Ship() const noexcept { return *m_ship; }
    [[nodiscard]] std::int32_t Id() const noexcept { return m_id; }
    [[nodiscard]] std::string key() const { return std::to_string(m_id).insert(0, 1, 'k'); }
    /// Of the first head value, in the record.
    [[nodiscard]] std::int32_t Offset() const noexcept { return m_offset; }
    /// In data order.
    [[nodiscard]] const std::vector<std::shared_ptr<clsGun>>& Guns() const noexcept {
        return m_guns;
    }

    /// The turret at the position that value 2 gives, from 1; none if there is none.
    [[nodiscard]] std::shared_ptr<clsTurret> turret() const;
    /// Values the whole group takes, by its own count of entries; that count's sign is dropped.
    [[nodiscard]] std::int32_t SectionSize() const;
    /// 0 to 4, the last one being the value behind the head; throws KeshError outside.
    [[nodiscard]] std::int32_t Value(std::int32_t i) const;
    void SetValue(std::int32_t i, std::int32_t value);
    [[nodiscard]] std::int32_t InitialLaserPos() const { return Value(0); } ///< first gun's number
    [[nodiscard]] std::int32_t PseudoGunCount() const { return Value(1); }  ///< guns
    [[nodiscard]] std::int32_t SortIndex() const { return Value(2); } ///< "Index" of the turret
    [[nodiscard]] std::int32_t GunCount() const { return Value(3); }  ///< gun entries
    /// No value of a group has a translation.
    [[nodiscard]] static bool TranslateValue(std::int32_t, std::string&) { return false; }

    /// An object for each entry that the count claims, up to the first that begins outside the
    /// record.
    void CreateGuns();
    void ShiftOffset(std::int32_t delta); ///< of the group and its guns

    // Where one of these fails by a KeshError nothing is changed.
    /// Adds an entry of unset values at the group's end.
    std::shared_ptr<clsGun> MakeNewGun();
    /// Takes the data of the last entry and this object, which should be the last.
    void RemoveGun(const clsGun& gun);
    /// Counts guns and entries anew, then numbers all guns of the ship.
    void RefreshGunCount();
    /// Position by Id, from 1; -1 if it is not here.
    [[nodiscard]] std::int32_t GetGunIndex(const clsGun& gun) const;

private:
    friend class ShipChange;

    [[nodiscard]] std::int32_t At(std::int32_t i) const; ///< place of a value in the record

    clsShip* m_ship;
    std::int32_t m_id;
    std::int32_t m_offset;
    std::int32_t m_gunIds = 0; ///< last one given; only grows
    std::vector<std::shared_ptr<clsGun>> m_guns;
};
