#include "tdata/clsCockpit.h"

#include "core/KeshError.h"
#include "tdata/mdlRecordNumbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

float clsCockpit::Value(std::int32_t index) const {
    const double number = RecordNumber(*Object, index);
    if (std::abs(number) > std::numeric_limits<float>::max())
        throw KeshError(errnum::Overflow, "clsCockpit", "Overflow");
    return static_cast<float>(number);
}

// By the shortest spelling of the single: as a double 0.1 would be written 0.10000000149011612.
void clsCockpit::SetValue(std::int32_t index, float value) {
    std::array<char, 32> spelling{};
    const auto end = std::to_chars(spelling.data(), spelling.data() + spelling.size(), value).ptr;
    Object->SetValue(index, keshobjects::readValue({spelling.data(), end}));
}

std::int32_t clsCockpit::CompatibleLasers() const {
    return RoundedInteger(double{Value(FieldLasers)});
}
