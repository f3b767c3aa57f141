// Catalog indexes: what is accepted names bytes of the data file, each once, by names that are
// found.
#include "lornfd/catalog.h"
#include "lornfd/lornfd.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::int64_t dataSize = 1'000'000;

void require(bool holds) {
    if (!holds)
        std::abort();
}

void checkEntries(const lornfd::CatalogIndex& index) {
    std::vector<std::pair<std::int64_t, std::int64_t>> parts;
    for (std::size_t i = 0; i < index.size(); ++i) {
        const lornfd::CatalogEntry entry = index.entry(i);
        require(entry.offset >= 0 && entry.size >= 0 && entry.offset + entry.size <= dataSize);
        require(lornfd::isSafeEntryName(entry.name) && index.find(entry.name) == i);
        if (entry.size > 0)
            parts.emplace_back(entry.offset, entry.offset + entry.size);
    }
    std::ranges::sort(parts);
    require(std::ranges::adjacent_find(parts, [](const auto& a, const auto& b) {
                return b.first < a.second;
            }) == parts.end());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (const auto index =
            lornfd::CatalogIndex::parse(lornfd::Buffer::copyOf(text), dataSize, "fuzz.cat"))
        checkEntries(*index);
    else
        require(LornFD_GetLastError() == LORNFD_E_CATALOG);
    return 0;
}
