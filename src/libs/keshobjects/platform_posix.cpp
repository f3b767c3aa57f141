#include "keshobjects/bigmemory.h"

#include <cstdlib>
#include <sys/mman.h>

namespace keshobjects {
namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;

} // namespace

void* allocateBig(std::size_t size) noexcept {
    if (size < 2 * hugePage)
        return std::malloc(size);
    void* memory = nullptr;
    if (posix_memalign(&memory, hugePage, size) != 0)
        return nullptr;
#if defined(MADV_HUGEPAGE)
    // Only a wish, and only for whole pages: the last one would take more memory than asked for.
    static_cast<void>(madvise(memory, size / hugePage * hugePage, MADV_HUGEPAGE));
#endif
    return memory;
}

void freeBig(void* memory) noexcept {
    std::free(memory);
}

} // namespace keshobjects
