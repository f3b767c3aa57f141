#include "tdata/clsTXTObject.h"

#include "core/KeshError.h"

#include <limits>
#include <utility>

clsTXTObject::Seldom& clsTXTObject::Rare() const {
    if (!m_seldom)
        m_seldom = std::make_unique<Seldom>();
    return *m_seldom;
}

void clsTXTObject::FailBounds(std::int32_t index, std::int32_t count) const {
    auto& text = Rare().lastError;
    text = "Index " + std::to_string(index) + " is outside the record";
    if (count > 0)
        text += " for " + std::to_string(count) + " values";
    text += " (" + std::to_string(size()) + " values, ID \"" + std::string(ObjectName()) + "\").";
    throw KeshError(errnum::Bounds, "clsTXTObject", text);
}

std::string clsTXTObject::GetLastError() const {
    return m_seldom ? m_seldom->lastError : std::string();
}

std::string clsTXTObject::GSubType() const {
    return std::string(ValueText(5));
}

std::string clsTXTObject::key() const {
    return std::to_string(ID).insert(0, 1, 'k');
}

std::string_view clsTXTObject::ObjectName() const {
    return size() == 0 ? std::string_view() : m_values.Spelling(m_values.Size() - 1);
}

void clsTXTObject::SetObjectName(const std::string& name) {
    SetValue(size() - 1, name);
}

KeshValue clsTXTObject::Value(std::int32_t index) const {
    return m_values.Get(Checked(index));
}

void clsTXTObject::SetValue(std::int32_t index, const KeshValue& value) {
    const auto at = Checked(index);
    if (keshobjects::equalValues(m_values.Get(at), value))
        return;
    Remember();
    m_values.Set(at, value);
    Dirty = true;
}

std::string_view clsTXTObject::ValueText(std::int32_t index) const {
    return m_values.Spelling(Checked(index));
}

std::optional<std::int32_t> clsTXTObject::ValueInteger(std::int32_t index) const {
    const auto number = ValueNumber(index);
    return number ? keshobjects::roundToInteger(*number) : std::nullopt;
}

void clsTXTObject::InsertSpaceToArray(std::int32_t index, std::int32_t count) {
    const bool fits = count >= 0 && count <= std::numeric_limits<std::int32_t>::max() - size();
    if (index < 1 || index >= size() || !fits)
        FailBounds(index, count);
    Remember();
    m_values.Insert(static_cast<std::uint32_t>(index), static_cast<std::uint32_t>(count));
}

void clsTXTObject::RemoveSpaceFromArray(std::int32_t index, std::int32_t count) {
    if (index < 1 || count < 0 || index >= size() || count > size() - 1 - index)
        FailBounds(index, count);
    Remember();
    m_values.Remove(static_cast<std::uint32_t>(index), static_cast<std::uint32_t>(count));
}

void clsTXTObject::Construct(std::int32_t size) {
    if (size < 0)
        FailBounds(size, 0);
    Remember();
    m_values = clsValueArray(static_cast<std::uint32_t>(size));
    if (size > 0)
        m_values.Set(static_cast<std::uint32_t>(size - 1), std::string());
}

void clsTXTObject::CopyTo(clsTXTObject& target) const {
    const clsValueArray values = m_values; // the target may be this record
    target.ID = ID;
    target.otype = otype;
    target.Index = Index;
    target.Dirty = Dirty;
    target.Construct(size());
    for (std::uint32_t i = 0; i < values.Size() && !target.Dirty; ++i)
        target.Dirty = !keshobjects::equalValues(target.m_values.Get(i), values.Get(i));
    target.m_values = values;
}

std::shared_ptr<clsTXTObject> clsTXTObject::Clone() const {
    auto copy = std::make_shared<clsTXTObject>();
    CopyTo(*copy);
    return copy;
}

std::string clsTXTObject::GetObjectTData() const {
    std::string data;
    for (std::int32_t i = 0; i < size(); ++i)
        data.append(ValueText(i)) += ';';
    return data;
}

void clsTXTObject::LoadValues(clsValueArray values) {
    m_values = std::move(values);
    Dirty = false;
}

void clsTXTObject::SetValues(clsValueArray values) {
    m_values = std::move(values);
}

std::atomic<std::uint64_t> clsTXTObject::s_timesRemembered{0};

void clsTXTObject::Remember() {
    // A record that is being made has nothing to go back to.
    if (m_values.Size() == 0 || (m_seldom && m_seldom->former))
        return;
    Rare().former = m_values;
    ++s_timesRemembered;
}

std::optional<clsValueArray> clsTXTObject::TakeFormerValues() {
    return m_seldom ? std::exchange(m_seldom->former, std::nullopt) : std::nullopt;
}
