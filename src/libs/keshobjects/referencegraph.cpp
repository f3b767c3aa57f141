#include "keshobjects/referencegraph.h"

#include <algorithm>

namespace keshobjects {

// A text that another one with its number hides can be asked about, but nothing leads to it.
std::uint32_t ReferenceGraph::add(const Reference& place, std::string_view text) {
    const std::uint32_t found = nodeOf(place);
    if (found != none && m_nodes[found].text.data() == text.data())
        return found;
    m_nodes.push_back({.page = place.page, .text = text});
    return static_cast<std::uint32_t>(m_nodes.size() - 1);
}

std::uint32_t ReferenceGraph::nodeOf(const Reference& reference) {
    const auto [found, isNew] = m_nodeByKey.try_emplace(keyOf(reference.page, reference.id), none);
    const auto text = isNew ? m_lookup(reference) : std::nullopt;
    if (text) {
        found->second = static_cast<std::uint32_t>(m_nodes.size());
        m_nodes.push_back({.page = reference.page, .text = *text});
    }
    return found->second;
}

void ReferenceGraph::findCircles() {
    for (std::uint32_t node = 0; node < m_nodes.size(); ++node)
        if (m_nodes[node].order == none)
            search(node);
}

// Tarjan's strongly connected components, with a stack of its own: texts may lead on for as long as
// there are any.
void ReferenceGraph::search(std::uint32_t start) {
    enter(start);
    while (!m_way.empty()) {
        Step& step = m_way.back();
        const std::uint32_t node = step.node;
        const auto reference = takeNextReference(step.rest, m_nodes[node].page);
        if (!reference) {
            leave(node);
            continue;
        }
        const std::uint32_t next = nodeOf(*reference);
        if (next == none)
            continue;
        if (m_nodes[next].order == none)
            enter(next);
        else if (m_nodes[next].circle == none)
            m_nodes[node].lowest = std::min(m_nodes[node].lowest, m_nodes[next].order);
    }
}

void ReferenceGraph::enter(std::uint32_t node) {
    m_nodes[node].order = m_nodes[node].lowest = m_order++;
    m_open.push_back(node);
    m_way.push_back({node, m_nodes[node].text});
}

void ReferenceGraph::leave(std::uint32_t node) {
    m_way.pop_back();
    if (!m_way.empty()) {
        Node& before = m_nodes[m_way.back().node];
        before.lowest = std::min(before.lowest, m_nodes[node].lowest);
    }
    if (m_nodes[node].lowest != m_nodes[node].order)
        return;
    for (std::uint32_t member = none; member != node;) {
        member = m_open.back();
        m_open.pop_back();
        m_nodes[member].circle = m_circles;
    }
    ++m_circles;
}

std::vector<BadReference> ReferenceGraph::badOnes(std::uint32_t number) const {
    std::vector<BadReference> bad;
    const Node& node = m_nodes[number];
    std::string_view rest = node.text;
    while (const auto reference = takeNextReference(rest, node.page)) {
        const std::uint32_t target = m_nodeByKey.at(keyOf(reference->page, reference->id));
        // A reference to the text itself is in a circle of one.
        if (target == none)
            bad.push_back({*reference, false});
        else if (m_nodes[target].circle == node.circle)
            bad.push_back({*reference, true});
    }
    return bad;
}

} // namespace keshobjects
