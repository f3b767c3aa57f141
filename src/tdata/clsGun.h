// One entry of a gun group: six values of the ship's record, for one or more guns of the same kind.
#pragma once

#include "keshobjects/value.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class clsGunGroup;

class clsGun {
public:
    clsGun(clsGunGroup& group, std::int32_t id, std::int32_t offset)
        : m_group(&group), m_id(id), m_offset(offset) {}

    /// Names of the six values.
    [[nodiscard]] static std::span<const std::string_view> ColumnLabels();
    [[nodiscard]] static constexpr std::int32_t size() { return 6; }

    [[nodiscard]] clsGunGroup& Group() const noexcept { return *m_group; }
    [[nodiscard]] std::int32_t Id() const noexcept { return m_id; }
    [[nodiscard]] std::string key() const { return std::to_string(m_id).insert(0, 1, 'k'); }
    /// Of the first value, in the record.
    [[nodiscard]] std::int32_t Offset() const noexcept { return m_offset; }
    void SetOffset(std::int32_t offset) noexcept { m_offset = offset; }

    /// Running number of the entry's first gun in the ship, from 1.
    [[nodiscard]] std::int32_t index() const { return Integer(0); }
    /// How many guns the entry stands for.
    [[nodiscard]] std::int32_t GunCount() const { return Integer(1); }
    /// Reads 0 to 5 and writes 0 to 6, one behind the entry; throws KeshError outside.
    [[nodiscard]] KeshValue Value(std::int32_t i) const;
    void SetValue(std::int32_t i, const KeshValue& value);
    /// No value of a gun has a translation.
    [[nodiscard]] static bool TranslateValue(std::int32_t, std::string&) { return false; }

private:
    [[nodiscard]] std::int32_t Integer(std::int32_t i) const;

    clsGunGroup* m_group;
    std::int32_t m_id;
    std::int32_t m_offset;
};
