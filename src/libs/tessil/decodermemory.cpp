#include "tessil/decodermemory.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tessil {

namespace {

/// Stands in front of each block; the blocks are a ring.
struct alignas(std::max_align_t) Block {
    Block* before;
    Block* behind;
    std::size_t bytes;
};

struct Memory {
    Block ring{&ring, &ring, 0};
    MemorySource source{std::calloc, std::free};
    std::size_t taken = 0;
    std::size_t peak = 0;
};

Memory memory;

void give(Block* block) noexcept {
    block->before->behind = block->behind;
    block->behind->before = block->before;
    memory.taken -= block->bytes;
    memory.source.give(block);
}

} // namespace

void* takeMemory(std::size_t bytes) noexcept {
    if (bytes > MaxDecoderMemory - memory.taken)
        return nullptr;
    auto* block = static_cast<Block*>(memory.source.take(1, sizeof(Block) + bytes));
    if (!block)
        return nullptr;
    *block = {memory.ring.before, &memory.ring, bytes};
    block->before->behind = block->behind->before = block;
    memory.taken += bytes;
    memory.peak = std::max(memory.peak, memory.taken);
    return block + 1;
}

void giveMemory(const void* bytes) noexcept {
    if (bytes)
        give(static_cast<Block*>(const_cast<void*>(bytes)) - 1);
}

void giveAllMemory() noexcept {
    while (memory.ring.behind != &memory.ring)
        give(memory.ring.behind);
}

void setMemorySource(const MemorySource& source) noexcept {
    memory.source = source;
}

std::size_t takeMemoryPeak() noexcept {
    return std::exchange(memory.peak, memory.taken);
}

} // namespace tessil
