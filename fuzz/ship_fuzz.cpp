// Ships: the first line is a record, the bytes behind it are operations in pairs. Whatever the
// counts say, every operation must end, must change all or nothing, and must leave objects that a
// new look at the record gives as well.
#include "core/KeshError.h"
#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlShipLabels.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t mostValues = 1000;
constexpr std::size_t mostOperations = 60;

void check(bool good) {
    if (!good)
        std::abort();
}

RecordPtr recordOf(std::string_view line) {
    std::vector<KeshValue> values;
    while (!line.empty() && values.size() < mostValues) {
        const std::size_t end = std::min(line.find(';'), line.size());
        values.push_back(keshobjects::readValue(line.substr(0, end)));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    auto record = std::make_shared<clsTXTObject>();
    record->Construct(static_cast<std::int32_t>(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i)
        record->SetValue(static_cast<std::int32_t>(i), values[i]);
    static_cast<void>(record->TakeFormerValues());
    return record;
}

std::string offsetsOf(const clsShip& ship) {
    std::string text;
    for (const auto& turret : ship.Turrets())
        text += "T" + std::to_string(turret->Offset());
    for (const auto& group : ship.GunGroups()) {
        text += "G" + std::to_string(group->Offset());
        for (const auto& gun : group->Guns())
            text += "g" + std::to_string(gun->Offset());
    }
    return text;
}

/// True if turrets and groups belong together and stand in order, all inside the record.
bool isSound(clsShip& ship) try {
    const auto& turrets = ship.Turrets();
    const auto& groups = ship.GunGroups();
    if (!ship.LoadObjects() || ship.TurretCount() != std::ssize(turrets) ||
        ship.GunSectionsCount() != std::ssize(groups) || turrets.size() != groups.size() ||
        ship.DynamicDataOffset() + 10 != ship.size())
        return false;
    const auto inDataOrder = [](const auto& a, const auto& b) { return a->Offset() < b->Offset(); };
    if (!std::is_sorted(turrets.begin(), turrets.end(), inDataOrder) ||
        !std::is_sorted(groups.begin(), groups.end(), inDataOrder))
        return false;
    for (std::size_t i = 0; i < turrets.size(); ++i)
        if (turrets[i]->index() != static_cast<std::int32_t>(i) + 1 ||
            groups[i]->SortIndex() != turrets[i]->index() || groups[i]->GunCount() < 0)
            return false;
    return true;
} catch (const KeshError&) {
    return false;
}

class Operations {
public:
    explicit Operations(clsShip& ship) : m_ship(ship) {}

    void Run(std::uint8_t operation, std::uint8_t argument) {
        const bool sound = isSound(m_ship);
        const std::string text = m_ship.Object->GetObjectTData();
        const std::string offsets = offsetsOf(m_ship);
        static_cast<void>(m_ship.Object->TakeFormerValues());
        if (!Tried(operation, argument)) {
            check(m_ship.Object->GetObjectTData() == text);
            check(offsetsOf(m_ship) == offsets);
        }
        Look();
        if (sound && (operation & 7) < 6) {
            const std::string after = offsetsOf(m_ship);
            check(isSound(m_ship) && offsetsOf(m_ship) == after);
        }
        CheckUndo(text);
    }
    /// Everything that only reads.
    void Look() {
        if (!m_ship.Validate())
            check(!m_ship.GetLastError().empty());
        for (const auto& turret : m_ship.Turrets())
            Try([&] { check(!turret->PositionName().empty()); });
        for (const auto& group : m_ship.GunGroups())
            static_cast<void>(group->turret());
        check(std::ssize(ShipFieldLabels(*m_ship.Object)) == m_ship.size());
    }

private:
    template <class Action>
    static bool Try(Action&& action) {
        try {
            action();
            return true;
        } catch (const KeshError&) {
            return false;
        }
    }
    template <class Objects>
    static auto& Pick(const Objects& objects, std::uint8_t argument) {
        if (objects.empty())
            throw KeshError(errnum::Bounds, "fuzz", "none");
        return *objects[argument % objects.size()];
    }
    bool Tried(std::uint8_t operation, std::uint8_t argument) {
        bool done = true;
        return Try([&] { done = Change(operation, argument); }) && done;
    }
    bool Change(std::uint8_t operation, std::uint8_t argument) {
        const auto& groups = m_ship.GunGroups();
        switch (operation & 7) {
        case 0:
            m_ship.MakeNewTurret();
            return true;
        case 1:
            return m_ship.RemoveTurret(Pick(m_ship.Turrets(), argument));
        case 2:
            return m_ship.RemoveTurret(Pick(m_ship.Turrets(), 255 - argument % 2));
        case 3:
        case 4:
            Pick(groups, argument).MakeNewGun();
            return true;
        case 5: {
            clsGunGroup& group = Pick(groups, argument);
            group.RemoveGun(Pick(group.Guns(), static_cast<std::uint8_t>(group.Guns().size() - 1)));
            return true;
        }
        case 6:
            m_ship.SetValue(argument, operation / 8 - 2);
            return true;
        default:
            m_ship.SetValue(clsShip::FieldTurretCount + argument % 16, (operation - 128) << 24);
            return true;
        }
    }
    void CheckUndo(const std::string& text) {
        clsTXTObject& record = *m_ship.Object;
        const clsValueArray now = record.Values();
        if (auto former = record.TakeFormerValues()) {
            record.SetValues(std::move(*former));
            check(record.GetObjectTData() == text);
            record.SetValues(now);
        } else {
            check(record.GetObjectTData() == text);
        }
    }

    clsShip& m_ship;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(input.find('\n'), input.size());
    clsShip ship(recordOf(input.substr(0, end)));
    const bool loaded = ship.LoadObjects();
    const std::string offsets = offsetsOf(ship);
    check(ship.LoadObjects() == loaded && offsetsOf(ship) == offsets);
    Operations operations(ship);
    operations.Look();
    const std::size_t last = std::min(size, end + mostOperations * 2 + 2);
    for (std::size_t i = end + 1; i + 1 < last; i += 2)
        operations.Run(data[i], data[i + 1]);
    return 0;
}
