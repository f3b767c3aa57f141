#include "tdata/mdlShipLabels.h"

#include "core/KeshError.h"
#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlRecordNumbers.h"

#include <array>

namespace {

using Labels = std::span<const std::string_view>;
constexpr std::array<std::string_view, 1> GroupCountLabel{"Gun groups count"};

/// Walks through the record section by section.
class Labeller {
public:
    explicit Labeller(const clsTXTObject& ship)
        : m_ship(ship),
          m_labels(static_cast<std::size_t>(ship.size())),
          m_end(ship.size() - CommonTailCount) {}

    [[nodiscard]] std::vector<std::string_view> Take() { return std::move(m_labels); }
    void MoveTo(std::int32_t at) { m_at = at; }
    /// So many sections of the same names; false if they do not fit.
    bool Put(Labels names, std::int32_t count) {
        for (std::int32_t i = 0; i < count; ++i) {
            if (m_end - m_at < std::ssize(names))
                return false;
            for (const std::string_view name : names)
                m_labels[static_cast<std::size_t>(m_at++)] = name;
        }
        return count >= 0;
    }
    /// The count just passed; -1 if it is none.
    [[nodiscard]] std::int32_t CountPassed() const try {
        return RecordInteger(m_ship, m_at - 1);
    } catch (const KeshError&) {
        return -1;
    }

private:
    const clsTXTObject& m_ship;
    std::vector<std::string_view> m_labels;
    std::int32_t m_end;
    std::int32_t m_at = 0;
};

} // namespace

std::vector<std::string_view> ShipFieldLabels(const clsTXTObject& ship) {
    Labeller labeller(ship);
    labeller.MoveTo(clsShip::SectionDescriptors);
    if (!labeller.Put(clsTurret::DescriptorLabels(), clsShip::MaxTurrets))
        return labeller.Take();
    labeller.MoveTo(clsShip::SectionTurrets);
    if (ship.size() < clsShip::ConstructedSize ||
        !labeller.Put(clsTurret::ColumnLabels(), labeller.CountPassed()) ||
        !labeller.Put(GroupCountLabel, 1))
        return labeller.Take();
    const std::int32_t groups = labeller.CountPassed();
    for (std::int32_t i = 0; i < groups; ++i)
        if (!labeller.Put(clsGunGroup::ColumnLabels(), 1) ||
            !labeller.Put(clsGun::ColumnLabels(), labeller.CountPassed()))
            break;
    return labeller.Take();
}
