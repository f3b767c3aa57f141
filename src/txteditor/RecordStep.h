// One step from a state of a T file to the next: what undo and redo tell of, and a journal keeps.
#pragma once

#include "tdata/clsValueArray.h"

#include <cstdint>
#include <vector>

struct RecordStep {
    enum class Kind : std::uint8_t { Change, Insert, Remove };

    Kind What = Kind::Change;
    std::int32_t Index = 0; ///< of the record in file order, at the time of the step
    clsValueArray Values;   ///< all values after a Change or Insert; unused for Remove
};

using RecordSteps = std::vector<RecordStep>;
