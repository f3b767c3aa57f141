// Steps that are named, so that an unexpected failure can say where it happened.
#pragma once

#include <functional>
#include <span>
#include <string>

struct Phase {
    std::string Name; ///< of the call that comes next; shown to the user as it stands
    std::function<void()> Run;
};

/// Runs the steps in order. A failure leaves as a KeshError with the number of loaders, `Source`,
/// and the text "(phase): description".
void RunPhases(std::span<const Phase> Phases, const std::string& Source);
