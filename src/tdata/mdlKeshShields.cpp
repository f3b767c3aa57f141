#include "tdata/FieldTable.h"

namespace {

using translation::Number;
using valuetype::Integer;
using valuetype::String;

constexpr Field ShieldRows[] = {
    {5, "Index"},
    {7, "Power requirement", String, Number, "kW"},
    {8, "Strength", Integer, Number, "kJ"},
    {9, "Hit effect"},
    {10, "Efficiency"},
};

} // namespace

const FieldTable ShieldFieldNames{Frame::Full, ShieldRows};
