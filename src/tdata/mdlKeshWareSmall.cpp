#include "tdata/FieldTable.h"

namespace {

using translation::Number;
using valuetype::Integer;
using valuetype::String;

constexpr Field PlanetRows[] = {
    {5, "Index"},     {6, "Description"},         {7, "RGB (B)"},   {8, "RGB (G)"},
    {9, "RGB (R)"},   {10, "Scene file", String}, {11, "", String}, {13, "", String},
    {15, "", String}, {17, "", String},           {19, "", String}, {21, "", String},
    {23, "", String}, {25, "", String},
};

constexpr Field SunRows[] = {
    {7, "Scene file", String},
    {8, "Lens flare"},
};

constexpr Field AsteroidRows[] = {
    {6, "Description"},
    {7, "Scene file", String},
    {8, "Explosion effect"},
    {9, "Body explosion effect?"},
    {10, "Debris map scene", String},
    {11, "Volume"},
};

constexpr Field DebrisRows[] = {
    {6, "Description"}, {7, "Scene file", String}, {8, "Explosion effect"},
    {9, "Scene 2?"},    {10, "Scene 3?"},
};

constexpr Field CockpitRows[] = {
    {7, "Scene file", String},
    {8, "Possible lasers"},
};

constexpr Field DefaultRows[] = {
    {5, "Galaxy subtype"},
    {6, "Description"},
    {7, "Scene file", String},
};

constexpr Field BackgroundRows[] = {
    {5, "Galaxy subtype"},          {6, "Description"},
    {7, "Scene file", String},      {24, "", Integer, Number, "m"},
    {25, "", Integer, Number, "m"},
};

} // namespace

const FieldTable PlanetFieldNames{Frame::Full, PlanetRows};
const FieldTable SunFieldNames{Frame::Full, SunRows};
const FieldTable AsteroidFieldNames{Frame::Full, AsteroidRows};
const FieldTable DebrisFieldNames{Frame::Full, DebrisRows};
const FieldTable CockpitFieldNames{Frame::Names, CockpitRows};
const FieldTable DefaultFieldNames{Frame::Full, DefaultRows};
const FieldTable BackgroundFieldNames{Frame::Full, BackgroundRows};
