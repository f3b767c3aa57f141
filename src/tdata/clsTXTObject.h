// One record of a T file: an array of loosely typed values without names.
#pragma once

#include "tdata/clsValueArray.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class clsTXTObject {
public:
    std::int32_t otype = 0; ///< object type code
    std::int32_t Index = 0; ///< place in its file, from 0
    std::int32_t ID = 0;    ///< unique in its container, never reused there
    bool Dirty = false;     ///< a value was changed

    // Older positions of the tail, relative to the record's end; the editors go by the tail table instead.
    [[nodiscard]] std::string GSubType() const; ///< value 5 as text
    [[nodiscard]] std::int32_t Volume() const;
    void SetVolume(std::int32_t value);
    [[nodiscard]] std::int32_t Price() const;
    void SetPrice(std::int32_t value);
    [[nodiscard]] std::int32_t PriceVarPrim() const;
    void SetPriceVarPrim(std::int32_t value);
    [[nodiscard]] std::int32_t PriceVarSec() const;
    void SetPriceVarSec(std::int32_t value);
    [[nodiscard]] std::int32_t WareClass() const;
    void SetWareClass(std::int32_t value);
    [[nodiscard]] std::string PropertyName(std::int32_t) const { return {}; }

    [[nodiscard]] std::string key() const; ///< "k" + ID
    [[nodiscard]] std::string ObjectName() const; ///< last value as text; empty for a record of size 0
    [[nodiscard]] std::string_view ObjectNameView() const; ///< the same without a copy, until the next change
    void SetObjectName(const std::string& name);

    /// Throws KeshError (errnum::Bounds) for an index outside 0 to size - 1.
    [[nodiscard]] KeshValue Value(std::int32_t index) const;
    void SetValue(std::int32_t index, const KeshValue& value);
    [[nodiscard]] std::string ValueText(std::int32_t index) const; ///< the value's spelling
    [[nodiscard]] std::optional<double> ValueNumber(std::int32_t index) const; ///< if it is a number
    [[nodiscard]] std::int32_t size() const noexcept;
    [[nodiscard]] std::string GetLastError() const;

    /// Makes room: `count` unset values at `index`, which must lie from 1 to size - 1. Dirty is untouched.
    void InsertSpaceToArray(std::int32_t index, std::int32_t count);
    /// `index` at least 1, `index` + `count` at most size - 1.
    void RemoveSpaceFromArray(std::int32_t index, std::int32_t count);
    /// `size` zeros, the last the empty text. Former values are lost.
    void Construct(std::int32_t size);
    /// Copies everything; the target's Dirty is set if any value differs from a constructed record's.
    void CopyTo(clsTXTObject& target) const;
    [[nodiscard]] std::shared_ptr<clsTXTObject> Clone() const;
    [[nodiscard]] std::string GetObjectTData() const; ///< each value as text with ";" behind

    // For the container and the window's undo
    [[nodiscard]] const clsValueArray& Values() const noexcept { return m_values; }
    void SetValues(clsValueArray values); ///< replaces all; remembers the former like any change
    void LoadValues(clsValueArray values); ///< of a loader: nothing is remembered, Dirty false
    /// The value array before the first change since the last call; empty if nothing changed.
    std::optional<clsValueArray> TakeFormerValues();
    [[nodiscard]] bool HasFormerValues() const noexcept { return m_former != nullptr; }

private:
    void Remember();
    [[nodiscard]] std::uint32_t Checked(std::int32_t index) const;

    clsValueArray m_values;
    std::unique_ptr<clsValueArray> m_former;
};
