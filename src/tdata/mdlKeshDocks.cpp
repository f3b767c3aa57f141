#include "tdata/FieldTable.h"

namespace {

using translation::List;
using translation::Number;
using valuetype::Float;
using valuetype::Integer;
using valuetype::String;

constexpr Field DockRows[] = {
    {7, "Fly-by sound"},
    {8, "Docking distance", Float},
    {9, "Rendezvous distance", Float},
    {10, "Sound volume"},
    {11, "Scene file", String},
    {12, "Inner scene file", Integer, Number},
    {13, "Race", Integer, List},
    {14, "Explosion effect"},
    {15, "Body exlosion def"},
    {16, "Shield recharge rate"},
    {17, "HUD icon", String, List},
};

constexpr std::string_view DockSubtypesRows[] = {
    "SG_DOCK_TRADE", "SG_DOCK_GONER", "SG_DOCK_PIRATES",
    "SG_DOCK_EQUIP", "SG_DOCK_HQ",    "SG_DOCK_KHAAK",
};

} // namespace

const FieldTable DockFieldNames{Frame::Full, DockRows};
const TextTable DockSubtypes{0, DockSubtypesRows};
