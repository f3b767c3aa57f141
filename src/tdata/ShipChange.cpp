#include "tdata/ShipChange.h"

#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"

ShipChange::ShipChange(clsShip& ship)
    : m_ship(ship),
      m_values(ship.Object->Values()),
      m_dirty(ship.Object->Dirty),
      m_turrets(ship.m_turrets),
      m_groups(ship.m_groups) {
    m_states.reserve(m_groups.size());
    for (const auto& group : m_groups)
        m_states.push_back({group->m_offset, group->m_guns});
}

ShipChange::~ShipChange() {
    if (m_kept)
        return;
    m_ship.Object->SetValues(std::move(m_values));
    m_ship.Object->Dirty = m_dirty;
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        clsGunGroup& group = *m_groups[i];
        group.m_guns = std::move(m_states[i].guns);
        group.ShiftOffset(m_states[i].offset - group.m_offset);
    }
    m_ship.m_turrets = std::move(m_turrets);
    m_ship.m_groups = std::move(m_groups);
}
