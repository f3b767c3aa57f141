// How long a ship's reactor takes to fill its shields.
#pragma once

#include <cstdint>
#include <optional>

struct ShieldRecharge {
    std::int32_t Count = 0;    ///< of shields
    std::int32_t Strength = 0; ///< of a shield
    std::int32_t Need = 0;     ///< of a shield, of the reactor's output
    double Efficiency = 0;
    std::int32_t Reactor = 0; ///< its output
};

/// Whole seconds, when the output fills one batch of shields after the other. Nothing without
/// efficiency or reactor, for more than 100,000 shields, and for numbers that lead nowhere. Throws
/// KeshError (errnum::DivisionByZero) where there are shields to fill that need 0.
[[nodiscard]] std::optional<double> RechargeSeconds(const ShieldRecharge& Input);
