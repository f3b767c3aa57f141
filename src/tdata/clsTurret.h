// One turret of a ship: four values of its record, and a pair of descriptor values for a turret
// proper.
#pragma once

#include "keshobjects/value.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class clsShip;

class clsTurret {
public:
    clsTurret(clsShip& ship, std::int32_t id, std::int32_t offset)
        : m_ship(&ship), m_id(id), m_offset(offset) {}

    /// Names of the four values, and of the descriptor's two.
    [[nodiscard]] static std::span<const std::string_view> ColumnLabels();
    [[nodiscard]] static std::span<const std::string_view> DescriptorLabels();
    [[nodiscard]] static constexpr std::int32_t size() { return 4; }

    [[nodiscard]] clsShip& Ship() const noexcept { return *m_ship; }
    [[nodiscard]] std::int32_t Id() const noexcept { return m_id; }
    [[nodiscard]] std::string key() const { return std::to_string(m_id).insert(0, 1, 'k'); }
    /// Of the first value, in the record.
    [[nodiscard]] std::int32_t Offset() const noexcept { return m_offset; }

    [[nodiscard]] std::int32_t index() const { return Integer(0); } ///< place in the ship, from 1
    [[nodiscard]] std::int32_t SortIndex() const { return index(); }
    /// False for the fixed front cockpit, which has no descriptor.
    [[nodiscard]] bool IsTurret() const { return Integer(1) != 0; }
    /// Value 0 (position in the sorted TCockpits file, from 0) or 1 (side of the ship); 0 for the
    /// front cockpit. Throws KeshError, as all here, for another `i`.
    [[nodiscard]] KeshValue DescriptorValue(std::int32_t i) const;
    /// Also throws (errnum::Forbidden) for the front cockpit.
    void SetDescriptorValue(std::int32_t i, const KeshValue& value);
    /// 0 to 4, the last one being the value behind the section.
    [[nodiscard]] KeshValue Value(std::int32_t i) const;
    void SetValue(std::int32_t i, const KeshValue& value);
    [[nodiscard]] std::int32_t PathIdx() const { return Integer(3); }
    [[nodiscard]] std::string BodyID() const;

    /// True with the text for a side that is set; false for the type and for no side.
    [[nodiscard]] bool TranslateDescValue(std::int32_t i, std::string& text) const;
    /// Of the descriptor pair; means nothing for the front cockpit.
    [[nodiscard]] std::int32_t DescriptorOffset() const;
    /// A turret proper whose index has its place among the ship's pairs.
    [[nodiscard]] bool HasDescriptor() const;
    /// Descriptor value 0, rounded; nothing for a text or beyond 32 bits. Throws as
    /// DescriptorValue.
    [[nodiscard]] std::optional<std::int32_t> Type() const;
    [[nodiscard]] std::int32_t Position() const; ///< 0 for the front cockpit
    /// "front cockpit", the side, or its bare number.
    [[nodiscard]] std::string PositionName() const;

private:
    [[nodiscard]] std::int32_t Integer(std::int32_t i) const;
    [[nodiscard]] std::int32_t PairOffset(std::int32_t i) const;

    clsShip* m_ship;
    std::int32_t m_id;
    std::int32_t m_offset;
};
