#include "app/Phases.h"

#include "core/KeshError.h"

void RunPhases(std::span<const Phase> Phases, const std::string& Source) {
    for (const Phase& phase : Phases) {
        try {
            phase.Run();
        } catch (const std::exception& failure) {
            throw KeshError(errnum::Loader, Source, "(" + phase.Name + "): " + failure.what());
        }
    }
}
