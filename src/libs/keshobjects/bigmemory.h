// Memory for texts and arrays of many megabytes, in pages as large as the system has: with small
// ones, touching them for the first time costs more than all the scanning.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

namespace keshobjects {

/// Uninitialized memory, or null if there is none. Small sizes come from the ordinary heap.
[[nodiscard]] void* allocateBig(std::size_t size) noexcept;
void freeBig(void* memory) noexcept;

struct FreeBig {
    void operator()(void* memory) const noexcept { freeBig(memory); }
};
/// Uninitialized plain data.
template <typename T>
using BigArray = std::unique_ptr<T[], FreeBig>;
/// Throws std::bad_alloc if there is no memory.
template <typename T>
[[nodiscard]] BigArray<T> makeBigArray(std::size_t count) {
    static_assert(std::is_trivially_copyable_v<T>);
    void* const memory = allocateBig(count * sizeof(T));
    if (memory == nullptr)
        throw std::bad_alloc();
    return BigArray<T>(static_cast<T*>(memory));
}

/// For a standard container that grows large.
template <typename T>
struct BigAllocator {
    using value_type = T;
    BigAllocator() = default;
    template <typename Other>
    constexpr BigAllocator(const BigAllocator<Other>& /*other*/) noexcept {}

    [[nodiscard]] T* allocate(std::size_t count) {
        void* const memory = count > static_cast<std::size_t>(-1) / sizeof(T)
                                 ? nullptr
                                 : allocateBig(count * sizeof(T));
        if (memory == nullptr)
            throw std::bad_alloc();
        return static_cast<T*>(memory);
    }
    void deallocate(T* memory, std::size_t /*count*/) noexcept { freeBig(memory); }
    friend bool operator==(BigAllocator /*a*/, BigAllocator /*b*/) noexcept { return true; }
};

} // namespace keshobjects
