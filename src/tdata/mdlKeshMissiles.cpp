#include "tdata/FieldTable.h"

namespace {

using translation::List;
using translation::Number;
using valuetype::Integer;
using valuetype::String;

constexpr Field MissileRows[] = {
    {7, "Speed", Integer, Number, "m/s"},
    {8, "Acceleration", Integer, Number, "m/s"},
    {9, "Launch sound"},
    {10, "Ambient sound"},
    {11, "Collision type"},
    {12, "Damage"},
    {13, "Blast radius", Integer, Number, "m"},
    {14, "Lifetime", Integer, Number, "s"},
    {15, "Trail effect"},
    {16, "Glow effect"},
    {17, "Explosion sound"},
    {18, "Sound volume (min)"},
    {19, "Sound volume (max)"},
    {20, "Impact effect"},
    {21, "Explosion effect"},
    {22, "Engine trail"},
    {23, "Missile flags"},
    {24, "Fire rate", Integer, Number, "s"},
    {25, "HUD Icon", String, List},
    {26, "Scene file", String},
};

constexpr std::string_view MissileSubtypesRows[] = {
    "SG_MISSILE_LIGHT",         "SG_MISSILE_MEDIUM",      "SG_MISSILE_HEAVY",
    "SG_MISSILE_TR_LIGHT",      "SG_MISSILE_TR_MEDIUM",   "SG_MISSILE_TR_HEAVY",
    "SG_MISSILE_KHAAK",         "SG_MISSILE_BOMBER",      "SG_MISSILE_TORP_CAPITAL",
    "SG_MISSILE_AF_CAPITAL",    "SG_MISSILE_TR_BOMBER",   "SG_MISSILE_TR_TORP_CAPITAL",
    "SG_MISSILE_TR_AF_CAPITAL", "SG_MISSILE_BOARDINGPOD", "SG_MISSILE_DMBF",
};

} // namespace

const FieldTable MissileFieldNames{Frame::Full, MissileRows};
const TextTable MissileSubtypes{0, MissileSubtypesRows};
