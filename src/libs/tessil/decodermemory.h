// The memory that the decoder allocates: bounded, cleared, and given back even where it forgets to.
#pragma once

#include <cstddef>

namespace tessil {

/// The decoder never holds more bytes than this. Bringing the largest picture from 16 bits a
/// channel to 8 takes 256 MB; the rest is tables.
inline constexpr std::size_t MaxDecoderMemory = std::size_t{288} << 20;

/// Gives cleared memory, null where there is none or the bound is reached.
void* takeMemory(std::size_t bytes) noexcept;
void giveMemory(const void* block) noexcept;
/// Gives back everything that is still taken.
void giveAllMemory() noexcept;

/// Where the memory comes from: std::calloc and std::free unless a test puts guards in their place.
struct MemorySource {
    void* (*take)(std::size_t count, std::size_t size);
    void (*give)(void* block);
};
void setMemorySource(const MemorySource& source) noexcept;
/// The most that was taken at one time since the last call, in bytes.
std::size_t takeMemoryPeak() noexcept;

} // namespace tessil
