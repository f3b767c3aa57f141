#include "keshobjects/numberhash.h"

#include <exception>
#include <random>

namespace keshobjects {
namespace {

std::uint64_t drawMultiplier() noexcept {
    try {
        std::random_device chance;
        return std::uint64_t{chance()} << 32U | chance() | 1U;
    } catch (const std::exception&) {
        return 0x9E3779B97F4A7C15U; // the golden ratio spreads well over numbers that nobody chose
    }
}

} // namespace

const std::uint64_t chanceMultiplier = drawMultiplier();

} // namespace keshobjects
