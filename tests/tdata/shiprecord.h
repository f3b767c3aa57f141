// Ship records for tests, also such as no file could be read into.
#pragma once

#include "core/KeshError.h"
#include "support/loadtext.h"
#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"

#include <sstream>
#include <string>

namespace support {

/// A record of these values, each with ";" behind.
inline RecordPtr recordOf(const std::string& text) {
    std::vector<std::string> fields;
    std::istringstream in(text);
    for (std::string field; std::getline(in, field, ';');)
        fields.push_back(field);
    auto record = std::make_shared<clsTXTObject>();
    record->Construct(static_cast<std::int32_t>(fields.size()));
    for (std::size_t i = 0; i < fields.size(); ++i)
        record->SetValue(static_cast<std::int32_t>(i), keshobjects::readValue(fields[i]));
    static_cast<void>(record->TakeFormerValues());
    record->Dirty = false;
    return record;
}

inline constexpr const char* shipTail = "10;11;12;13;14;15;16;17;18;SS_X;";

/// A ship of `guns` guns by its field 19; `sections` are the values from the count of turrets to
/// the last gun.
inline std::string shipText(const std::string& sections, const std::string& guns = "0") {
    return repeat("0;", 19) + guns + ";" + repeat("0;", 33) + sections + shipTail;
}

/// The values from the count of turrets up to the tail.
inline std::string sectionsOf(const clsShip& ship) {
    const std::string text = joined(*ship.Object);
    std::size_t at = 0;
    for (int field = 0; field < clsShip::FieldTurretCount; ++field)
        at = text.find(';', at) + 1;
    return text.substr(at, text.size() - at - std::string(shipTail).size());
}

/// Kind, key and place of every object.
inline std::string objectsOf(const clsShip& ship) {
    std::string text;
    for (const auto& turret : ship.Turrets())
        text += "T" + turret->key() + "@" + std::to_string(turret->Offset()) + " ";
    for (const auto& group : ship.GunGroups()) {
        text += "G" + group->key() + "@" + std::to_string(group->Offset()) + " ";
        for (const auto& gun : group->Guns())
            text += "g" + gun->key() + "@" + std::to_string(gun->Offset()) + " ";
    }
    return text;
}

/// What an error says, as "number source text" with the number in hexadecimal; empty without one.
template <class Action>
std::string errorOf(Action&& action) {
    try {
        action();
        return {};
    } catch (const KeshError& error) {
        std::ostringstream out;
        out << std::hex << error.Number() << ' ' << error.Source() << ' ' << error.what();
        return out.str();
    }
}

} // namespace support
