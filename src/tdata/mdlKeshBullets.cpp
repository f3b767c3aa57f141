#include "tdata/FieldTable.h"

namespace {

using translation::List;
using translation::Number;
using valuetype::Float;
using valuetype::Integer;

constexpr Field BulletRows[] = {
    {7, "Shield damage"},
    {8, "Energy used"},
    {9, "Impact sound"},
    {10, "Lifetime", Integer, Number, "s"},
    {11, "Speed", Integer, Number, "m/s"},
    {12, "Bullet flags"},
    {13, "RGB (B)", Integer, Number, "Hexadecimal"},
    {14, "RGB (G)", Integer, Number, "Hexadecimal"},
    {15, "RGB (R)", Integer, Number, "Hexadecimal"},
    {16, "Rapid box width", Float},
    {17, "Rapid box height", Float},
    {18, "Rapid box length", Float},
    {19, "Trail effect"},
    {20, "Impact effect"},
    {21, "Launch effect"},
    {22, "Hull damage"},
    {23, "Engine trail"},
    {24, "Ambient sound"},
    {25, "Sound volume (min)"},
    {26, "Sound volume (max)"},
    {27, "Launch delay"},
    {28, "Reduce tgt spd - percent"},
    {29, "Reduce tgt spd - duration"},
    {30, "Target weapon drain"},
    {31, "Energy"},
    {32, "Duration"},
    {33, "Fragment bullet"},
    {34, "Num fragments"},
    {35, "Charged energy multiplier"},
    {36, "Charged size multiplier"},
    {37, "Ammo", Integer, List},
    {-2, "", Integer, List},
};

} // namespace

const FieldTable BulletFieldNames{Frame::Full, BulletRows};
