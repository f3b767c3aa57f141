// Which references between texts lead nowhere or in a circle.
#pragma once

#include "keshobjects/numberhash.h"
#include "keshobjects/references.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace keshobjects {

struct BadReference {
    Reference reference;
    bool circle; ///< it leads back to the text, else nowhere
};

/// Texts and all that their references lead to. Time and memory grow with the number of references.
class ReferenceGraph {
public:
    /// The lookup must give the same texts as long as this lives.
    explicit ReferenceGraph(const TextLookup& lookup) : m_lookup(lookup) {}

    /// Adds a text that is asked about; gives its number for `badOnes`.
    std::uint32_t add(const Reference& place, std::string_view text);
    /// To be called when all are added.
    void findCircles();
    /// The bad references of an added text in their order.
    [[nodiscard]] std::vector<BadReference> badOnes(std::uint32_t number) const;

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    struct Node {
        std::int32_t page = 0;
        std::string_view text;
        std::uint32_t order = none;  ///< in which the search came here
        std::uint32_t lowest = none; ///< order of the first node that this one leads back to
        std::uint32_t circle = none; ///< nodes with the same number lead to each other
    };
    /// A node on the way of the search, and what is left of its text.
    struct Step {
        std::uint32_t node;
        std::string_view rest;
    };

    [[nodiscard]] std::uint32_t nodeOf(const Reference& reference);
    void search(std::uint32_t start);
    void enter(std::uint32_t node);
    void leave(std::uint32_t node);

    TextLookup m_lookup;
    std::vector<Node> m_nodes;
    std::unordered_map<std::uint64_t, std::uint32_t, NumberHash>
        m_nodeByKey; ///< `none`: there is no such text
    std::vector<Step> m_way;
    std::vector<std::uint32_t> m_open; ///< nodes that may still be part of a circle
    std::uint32_t m_order = 0;
    std::uint32_t m_circles = 0;
};

} // namespace keshobjects
