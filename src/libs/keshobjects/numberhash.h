// Hashing of numbers that files choose.
#pragma once

#include <cstddef>
#include <cstdint>

namespace keshobjects {

/// Page and string number in one.
constexpr std::uint64_t keyOf(std::int32_t page, std::int32_t id) noexcept {
    return std::uint64_t{static_cast<std::uint32_t>(page)} << 32U | static_cast<std::uint32_t>(id);
}

/// Odd and of chance, so that no file can be made whose numbers all fall on one place of a table.
extern const std::uint64_t chanceMultiplier;

/// The high bits are the good ones.
inline std::uint64_t hashOf(std::uint64_t key) noexcept {
    return (key ^ key >> 29U) * chanceMultiplier;
}

/// For the standard containers.
struct NumberHash {
    std::size_t operator()(std::uint64_t key) const noexcept {
        const std::uint64_t hash = hashOf(key);
        return hash ^ hash >> 32U;
    }
};

} // namespace keshobjects
