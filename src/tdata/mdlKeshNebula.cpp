#include "tdata/FieldTable.h"

namespace {

using translation::Number;
using valuetype::Integer;
using valuetype::String;

constexpr Field NebulaRows[] = {
    {5, "Galaxy subtype"},
    {6, "Description"},
    {7, "Scene file", String},
    {8, "Outer range", Integer, Number, "m"},
    {9, "Inner range", Integer, Number, "m"},
    {10, "Visibility reduction"},
    {11, "Shield reduction"},
    {12, "Hull reduction"},
    {13, "", String},
    {15, "", String},
    {17, "", String},
    {19, "", String},
    {21, "", String},
    {23, "", String},
    {25, "", String},
    {27, "", String},
};

} // namespace

const FieldTable NebulaFieldNames{Frame::Full, NebulaRows};
