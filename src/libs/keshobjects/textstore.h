// All texts of a language: what its files hold, merged, small and found by a hash.
#pragma once

#include "keshobjects/languagereader.h"
#include "keshobjects/numberhash.h"
#include "keshobjects/textarena.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace keshobjects {

struct StoredString {
    const char* bytes;
    std::uint32_t size;
    std::int32_t id;
    std::int32_t page;  ///< its id
    std::uint32_t next; ///< the next string of the page

    [[nodiscard]] std::string_view text() const noexcept { return {bytes, size}; }
};

struct StoredPage {
    std::int32_t id = 0;
    std::int32_t voice = 0;
    std::string title;
    std::string description;
    std::uint32_t count = 0; ///< of strings
    std::uint32_t first = 0;
    std::uint32_t last = 0;
};

class TextStore {
public:
    /// Adds a file. False with the last error set, and nothing added, if it is broken.
    bool load(std::string_view bytes, std::string_view file);
    /// The language is kept, and the memory for the next load.
    void clear();

    static constexpr std::uint32_t none = 0xFFFFFFFF;
    /// The position of a string, or `none`.
    [[nodiscard]] std::uint32_t find(std::int32_t page, std::int32_t id) const noexcept;
    [[nodiscard]] std::uint32_t size() const noexcept { return m_size; }
    [[nodiscard]] const StoredString& string(std::uint32_t position) const noexcept {
        return m_strings[position / chunkSize][position % chunkSize];
    }
    /// In the order in which they first came.
    [[nodiscard]] const std::vector<StoredPage>& pages() const noexcept { return m_pages; }

    std::int32_t language = 0;
    bool resolving = false; ///< strings are read with their references resolved

private:
    /// A page of the file being loaded; what is missing does not change the page of the store.
    struct NewPage {
        std::int32_t id = 0;
        std::optional<std::int32_t> voice;
        std::optional<std::string> title;
        std::optional<std::string> description;
    };
    /// With the key, so that a lookup needs no look at the string.
    struct Slot {
        std::int32_t page = 0;
        std::int32_t id = 0;
        std::uint32_t behind = 0; ///< the string's position + 1, 0 is free
    };
    using Slots = std::vector<Slot, BigAllocator<Slot>>;
    static constexpr std::uint32_t chunkSize = 1U << 18U; ///< worth large pages

    bool read(LanguageReader& reader, std::vector<NewPage>& pages);
    void append(std::int32_t page, std::int32_t id, std::string_view text);
    void merge(std::uint32_t from, const std::vector<NewPage>& pages);
    void mergePage(const NewPage& page);
    void link(std::uint32_t position, StoredPage& page);
    void reserve(std::size_t strings);
    /// The slot where a string stands, or else would.
    [[nodiscard]] std::size_t slotOf(std::int32_t page, std::int32_t id) const noexcept;
    StoredString& at(std::uint32_t position) noexcept {
        return m_strings[position / chunkSize][position % chunkSize];
    }

    TextArena m_texts;
    std::vector<BigArray<StoredString>> m_strings;
    std::uint32_t m_size = 0;
    static constexpr unsigned groupBits = 8; ///< the smallest table is one group
    /// A power of 2 in number.
    Slots m_slots = Slots(1U << groupBits);
    unsigned m_shift = 64U - groupBits; ///< of a hash to a slot
    std::vector<StoredPage> m_pages;
    std::unordered_map<std::uint64_t, std::uint32_t, NumberHash> m_pageById;
};

inline std::size_t TextStore::slotOf(std::int32_t page, std::int32_t id) const noexcept {
    // Neighbours by number stand side by side, as they are mostly asked for one after the other.
    constexpr std::uint32_t group = 1U << groupBits;
    constexpr std::size_t step = group + 1; // odd, so that it comes to every slot
    const auto number = static_cast<std::uint32_t>(id);
    const std::uint64_t key = keyOf(page, static_cast<std::int32_t>(number / group));
    std::size_t slot = (hashOf(key) >> m_shift) ^ (number % group);
    for (;; slot = (slot + step) & (~std::uint64_t{0} >> m_shift)) {
        const Slot& there = m_slots[slot];
        if ((there.id == id && there.page == page) || there.behind == 0)
            return slot;
    }
}

inline std::uint32_t TextStore::find(std::int32_t page, std::int32_t id) const noexcept {
    return m_slots[slotOf(page, id)].behind - 1;
}

} // namespace keshobjects
