// Pictures: whatever the bytes are, a bitmap or an error that tells why. DevIL is not instrumented,
// so its memory gets guards: a page behind each block that cannot be touched.
#include "tessil/decodermemory.h"
#include "tessil/tessil.h"

#include <cstdlib>
#include <cstring>
#include <libdeflate.h>
#include <string>
#include <sys/mman.h>

namespace {

constexpr std::size_t Page = 4096;
constexpr unsigned char Gap = 0xa5; ///< fills what alignment leaves between a block and its guard

void require(bool holds) {
    if (!holds)
        std::abort();
}

/// Stands in the first page of a mapping.
struct Mapping {
    std::size_t size;
    std::size_t block;
};

std::size_t roundUp(std::size_t value, std::size_t step) {
    return (value + step - 1) / step * step;
}

/// A block ends as near to the guard as its alignment allows.
void* takeGuarded(std::size_t count, std::size_t size) {
    const Mapping mapping{2 * Page + roundUp(count * size, Page), count * size};
    void* all =
        mmap(nullptr, mapping.size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED)
        return nullptr;
    std::memcpy(all, &mapping, sizeof mapping);
    char* guard = static_cast<char*>(all) + mapping.size - Page;
    mprotect(guard, Page, PROT_NONE);
    char* block = guard - roundUp(mapping.block, alignof(std::max_align_t));
    std::memset(block + mapping.block, Gap,
                static_cast<std::size_t>(guard - block) - mapping.block);
    return block;
}

void giveGuarded(void* block) {
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    void* all = reinterpret_cast<void*>(address / Page * Page - Page);
    Mapping mapping{};
    std::memcpy(&mapping, all, sizeof mapping);
    for (std::size_t i = mapping.block; (address + i) % Page != 0; ++i)
        require(static_cast<unsigned char*>(block)[i] == Gap);
    munmap(all, mapping.size);
}

std::size_t big32(const std::string& file, std::size_t at) {
    std::size_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(file[at + i]);
    return value;
}

/// Makes the checksums of a PNG file right; without that nothing changed gets behind them.
void repairPng(std::string& file) {
    for (std::size_t at = 8; file.starts_with("\x89PNG") && file.size() >= at + 12;) {
        const std::size_t length = big32(file, at);
        if (length > file.size() - at - 12)
            return;
        const std::uint32_t checksum = libdeflate_crc32(0, file.data() + at + 4, length + 4);
        for (std::size_t i = 0; i < 4; ++i)
            file[at + 8 + length + i] = static_cast<char>(checksum >> (24 - 8 * i));
        at += length + 12;
    }
}

void checkBitmap(std::int32_t bitmap) {
    TESSILBitmap data{};
    require(TESSIL_GetBitmap(bitmap, data) == 1);
    require(data.Width > 0 && data.Width <= TESSIL_MAX_SIDE && data.Height > 0 &&
            data.Height <= TESSIL_MAX_SIDE);
    const std::int64_t pixels = std::int64_t{data.Width} * data.Height;
    require(pixels <= TESSIL_MAX_PIXELS);
    volatile std::uint8_t last = data.Pixels[pixels * 4 - 1];
    static_cast<void>(last);
    require(TESSIL_DeleteBitmap(bitmap) == 1);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    tessil::setMemorySource({takeGuarded, giveGuarded});
    require(TESSIL_Init() == 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(reinterpret_cast<const char*>(data), size);
    repairPng(file);
    const std::int32_t bitmap = TESSIL_ConvertToHBitmap(file, "fuzz.dds");
    if (bitmap != 0)
        checkBitmap(bitmap);
    else
        require(TESSIL_GetLastError() >= TESSIL_E_KIND &&
                TESSIL_GetLastError() <= TESSIL_E_TOO_BIG);
    return 0;
}
