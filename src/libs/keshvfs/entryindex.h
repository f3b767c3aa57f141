// Open-addressed hash from names to entry numbers; it stores hashes, the names stay with the
// entries.
#pragma once

#include <cstdint>
#include <vector>

namespace keshvfs {

using Id = std::uint32_t;
inline constexpr Id NoId = static_cast<Id>(-1);

class EntryIndex {
public:
    EntryIndex() : m_slots(8) {}

    /// The entry with this hash for which `isIt(id)` holds, else NoId.
    template <class Predicate>
    [[nodiscard]] Id find(std::uint32_t hash, Predicate isIt) const {
        for (std::size_t at = first(hash); m_slots[at].id != NoId; at = next(at))
            if (m_slots[at].hash == hash && isIt(m_slots[at].id))
                return m_slots[at].id;
        return NoId;
    }

    void insert(std::uint32_t hash, Id id) {
        if (++m_used * 4 > m_slots.size() * 3)
            grow();
        place({hash, id});
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

    void place(Slot slot) {
        std::size_t at = first(slot.hash);
        while (m_slots[at].id != NoId)
            at = next(at);
        m_slots[at] = slot;
    }

    void grow() {
        std::vector<Slot> former(m_slots.size() * 2);
        former.swap(m_slots);
        for (const Slot& slot : former)
            if (slot.id != NoId)
                place(slot);
    }

    std::vector<Slot> m_slots; ///< a power of two, at most three quarters of them used
    std::size_t m_used = 0;
};

} // namespace keshvfs
