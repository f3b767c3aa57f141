// Sorting of very many texts without regard to case.
#pragma once

#include "lornfd/paths.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace lornfd {

/// Length of what all texts begin with, without regard to case.
template <class Items, class TextOf>
std::size_t commonStart(const Items& items, TextOf textOf) {
    if (items.empty())
        return 0;
    const std::string_view first = textOf(items.front());
    std::size_t length = first.size();
    for (const auto& item : items) {
        const std::string_view text = textOf(item);
        length = std::min(length, text.size());
        const auto end = std::mismatch(first.begin(), first.begin() + length, text.begin(),
                                       [](char a, char b) { return foldCase(a) == foldCase(b); });
        length = static_cast<std::size_t>(end.first - first.begin());
    }
    return length;
}

/// Eight folded characters from a place on, as a number in the order of compareNoCase.
inline std::uint64_t foldedKey(std::string_view text, std::size_t from) {
    std::uint64_t key = 0;
    for (std::size_t i = from; i < from + 8; ++i)
        key = key << 8U | (i < text.size() ? static_cast<unsigned char>(foldCase(text[i])) : 0U);
    return key;
}

/// Sorts by `textOf(item)` as compareNoCase does, and what it takes for the same by
/// `less(item, item)`. Most texts are told apart by a number, without going to them.
template <class Item, class TextOf, class Less>
void sortNoCase(std::vector<Item>& items, TextOf textOf, Less less) {
    const std::size_t from = commonStart(items, textOf);
    std::vector<std::pair<std::uint64_t, Item>> keyed;
    keyed.reserve(items.size());
    for (Item& item : items)
        keyed.emplace_back(foldedKey(textOf(item), from), std::move(item));
    std::sort(keyed.begin(), keyed.end(), [&](const auto& a, const auto& b) {
        if (a.first != b.first)
            return a.first < b.first;
        const int compared = compareNoCase(textOf(a.second), textOf(b.second));
        return compared != 0 ? compared < 0 : less(a.second, b.second);
    });
    std::transform(keyed.begin(), keyed.end(), items.begin(),
                   [](auto& pair) { return std::move(pair.second); });
}

} // namespace lornfd
