#include "tdata/ShieldRecharge.h"

#include "core/KeshError.h"
#include "keshobjects/value.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int32_t MostShields = 100'000;

/// A batch takes whole seconds, and the very first of them counts twice.
double WholeSeconds(double seconds) {
    const double whole = std::trunc(seconds);
    if (whole == seconds)
        return whole;
    return whole + (whole >= 1 ? 1 : 2);
}

/// Shields that are filled at a time. More than are left to fill is all right: the time is that of
/// a whole batch.
std::int64_t BatchSize(const ShieldRecharge& input) {
    const std::int64_t fed = std::int64_t{input.Reactor} / input.Need;
    return std::min<std::int64_t>(fed == 0 ? 1 : fed, input.Count);
}

double FillInBatches(const ShieldRecharge& input, std::int64_t batch) {
    const std::int64_t used = std::min<std::int64_t>(batch * input.Need, input.Reactor);
    const std::int64_t left = input.Reactor - used;
    const auto shields = static_cast<double>(batch);
    const double rate = static_cast<double>(used) * input.Efficiency;
    const double spare = static_cast<double>(left) * input.Efficiency;
    std::int32_t power = input.Strength;
    double total = 0;
    for (std::int64_t remaining = input.Count; remaining >= 1; remaining -= batch) {
        const double seconds = shields * power / rate;
        power = input.Strength;
        if (left > 0) // what the batch does not take already goes into the next one
            power = keshobjects::roundToInteger(power - spare * seconds).value_or(power);
        total += WholeSeconds(seconds);
    }
    return total;
}

} // namespace

std::optional<double> RechargeSeconds(const ShieldRecharge& Input) {
    if (Input.Efficiency == 0 || Input.Reactor == 0 || Input.Count > MostShields)
        return {};
    if (Input.Count < 1)
        return 0;
    if (Input.Need == 0)
        throw KeshError(errnum::DivisionByZero, "ShieldRecharge", "Division by zero");
    const std::int64_t batch = BatchSize(Input);
    const double total = batch < 1 ? std::nan("") : FillInBatches(Input, batch);
    return std::isfinite(total) ? std::optional(total) : std::nullopt;
}
