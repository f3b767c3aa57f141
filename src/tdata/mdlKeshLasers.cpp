#include "tdata/FieldTable.h"

namespace {

using translation::List;
using translation::Number;
using valuetype::Float;
using valuetype::Integer;
using valuetype::String;

constexpr Field LaserRows[] = {
    {6, "Description"},
    {7, "Rate of fire", Integer, Number, "Rnds/min"},
    {8, "Sound"},
    {9, "Projectile", Integer, List},
    {10, "Energy"},
    {11, "Charge rate", Float},
    {12, "HUD icon", String, List},
};

constexpr std::string_view LaserSubtypesRows[] = {
    "SG_LASER_IRE",          "SG_LASER_PAC",          "SG_LASER_MASS",
    "SG_LASER_ARGON_LIGHT",  "SG_LASER_TELADI_LIGHT", "SG_LASER_PARANID_LIGHT",
    "SG_LASER_HEPT",         "SG_LASER_BORON_LIGHT",  "SG_LASER_PBE",
    "SG_LASER_PIRATE_LIGHT", "SG_LASER_TERRAN_LIGHT", "SG_LASER_CIG",
    "SG_LASER_BORON_MEDIUM", "SG_LASER_SPLIT_MEDIUM", "SG_LASER_TERRAN_MEDIUM",
    "SG_LASER_TELADI_AF",    "SG_LASER_ARGON_AF",     "SG_LASER_SPLIT_AF",
    "SG_LASER_PARANID_AF",   "SG_LASER_TERRAN_AF",    "SG_LASER_PPC",
    "SG_LASER_BORON_HEAVY",  "SG_LASER_TELADI_HEAVY", "SG_LASER_PIRATE_HEAVY",
    "SG_LASER_TERRAN_HEAVY", "SG_LASER_ARGON_BEAM",   "SG_LASER_PARANID_BEAM",
    "SG_LASER_TERRAN_BEAM",  "SG_LASER_SPECIAL",      "SG_LASER_UNKNOWN1",
    "SG_LASER_UNKNOWN2",     "SG_LASER_KYON",
};

} // namespace

const FieldTable LaserFieldNames{Frame::Full, LaserRows};
const TextTable LaserSubtypes{0, LaserSubtypesRows};
