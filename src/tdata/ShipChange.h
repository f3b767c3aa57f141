// A change of a ship's structure that happens as a whole or not at all.
#pragma once

#include "tdata/clsValueArray.h"

#include <cstdint>
#include <memory>
#include <vector>

class clsGun;
class clsGunGroup;
class clsShip;
class clsTurret;

/// Puts values and objects back as they were, at the end of its scope, unless it is told to keep.
/// The objects are the same ones, so that who holds one still may.
class ShipChange {
public:
    explicit ShipChange(clsShip& ship);
    ~ShipChange();
    ShipChange(const ShipChange&) = delete;
    ShipChange& operator=(const ShipChange&) = delete;

    void Keep() noexcept { m_kept = true; }

private:
    struct GroupState {
        std::int32_t offset;
        std::vector<std::shared_ptr<clsGun>> guns;
    };

    clsShip& m_ship;
    clsValueArray m_values;
    bool m_dirty;
    bool m_kept = false;
    std::vector<std::shared_ptr<clsTurret>> m_turrets;
    std::vector<std::shared_ptr<clsGunGroup>> m_groups;
    std::vector<GroupState> m_states; ///< of each group
};
