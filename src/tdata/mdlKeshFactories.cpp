#include "tdata/FieldTable.h"

namespace {

using translation::List;
using translation::Number;
using valuetype::Float;
using valuetype::Integer;
using valuetype::String;

constexpr Field FactoryRows[] = {
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
    {17, "Size", Integer, List},
    {18, "HUD icon", String, List},
};

constexpr std::string_view FactorySubtypesRows[] = {
    "SG_FAC_SHIP", "SG_FAC_TECH",    "SG_FAC_BIO",     "SG_FAC_FOOD",  "SG_FAC_POWER",
    "SG_FAC_MINE", "SG_FAC_STORAGE", "SG_FAC_COMPLEX", "SG_FAC_CCKIT",
};

constexpr std::string_view FactorySizeNamesRows[] = {
    "", "Normal", "Medium (M)", "", "", "Large (L)", "", "", "", "", "Extra large (XL)",
};

} // namespace

const FieldTable FactoryFieldNames{Frame::Full, FactoryRows};
const TextTable FactorySubtypes{0, FactorySubtypesRows};
const TextTable FactorySizeNames{0, FactorySizeNamesRows};
