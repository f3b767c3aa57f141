// Open-addressed hash from names to entry numbers; it stores hashes, the names stay with the
// entries.
#pragma once

#include "keshvfs/wildcard.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace keshvfs {

using Id = std::uint32_t;
inline constexpr Id NoId = static_cast<Id>(-1);

/// Of a name without regard to case. Under a seed that nobody knows no catalog can be made whose
/// names all fall together.
[[nodiscard]] constexpr std::uint32_t hashName(std::string_view name, bool directory,
                                               std::uint64_t seed) noexcept {
    std::uint64_t hash = seed ^ (directory ? 1U : 0U);
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(foldName(c))) * 0x100000001b3U;
    return static_cast<std::uint32_t>(hash ^ hash >> 32U);
}

class EntryIndex {
public:
    /// The entry with this hash for which `isIt(id)` holds, else NoId.
    template <class Predicate>
    [[nodiscard]] Id find(std::uint32_t hash, Predicate isIt) const {
        if (m_slots.empty())
            return NoId;
        for (std::size_t at = first(hash); m_slots[at].id != NoId; at = next(at))
            if (m_slots[at].hash == hash && isIt(m_slots[at].id))
                return m_slots[at].id;
        return NoId;
    }

    /// Makes room for `count` entries in all.
    void reserve(std::size_t count) {
        std::size_t slots = std::max<std::size_t>(m_slots.size(), 1);
        while (count * 4 > slots * 3)
            slots *= 2;
        if (slots == m_slots.size())
            return;
        std::vector<Slot> former(slots);
        former.swap(m_slots);
        for (const Slot& slot : former)
            if (slot.id != NoId)
                insert(slot.hash, slot.id);
    }

    /// There must be room for it.
    void insert(std::uint32_t hash, Id id) {
        std::size_t at = first(hash);
        while (m_slots[at].id != NoId)
            at = next(at);
        m_slots[at] = {hash, id};
    }

private:
    struct Slot {
        std::uint32_t hash = 0;
        Id id = NoId;
    };

    [[nodiscard]] std::size_t first(std::uint32_t hash) const {
        return hash & (m_slots.size() - 1);
    }
    [[nodiscard]] std::size_t next(std::size_t at) const { return (at + 1) & (m_slots.size() - 1); }

    std::vector<Slot> m_slots; ///< none or a power of two, at most three quarters of them used
};

} // namespace keshvfs
