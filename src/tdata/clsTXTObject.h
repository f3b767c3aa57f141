// One record of a T file: an array of loosely typed values without names.
#pragma once

#include "tdata/clsValueArray.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class clsTXTObject {
public:
    std::int32_t otype = 0; ///< object type code
    std::int32_t Index = 0; ///< place in its file, from 0
    std::int32_t ID = 0;    ///< unique in its container, never reused there
    bool Dirty = false;     ///< a value was changed

    // Older positions of the tail, counted from the record's end; the editors go by the tail table
    // instead.
    [[nodiscard]] std::string GSubType() const; ///< value 5 as text
    [[nodiscard]] std::int32_t Volume() const { return TailNumber(5); }
    void SetVolume(std::int32_t value) { SetTailNumber(5, value); }
    [[nodiscard]] std::int32_t Price() const { return TailNumber(4); }
    void SetPrice(std::int32_t value) { SetTailNumber(4, value); }
    [[nodiscard]] std::int32_t PriceVarPrim() const { return TailNumber(3); }
    void SetPriceVarPrim(std::int32_t value) { SetTailNumber(3, value); }
    [[nodiscard]] std::int32_t PriceVarSec() const { return TailNumber(2); }
    void SetPriceVarSec(std::int32_t value) { SetTailNumber(2, value); }
    [[nodiscard]] std::int32_t WareClass() const { return TailNumber(1); }
    void SetWareClass(std::int32_t value) { SetTailNumber(1, value); }
    /// Always empty: names of fields come from the tables by type and index.
    [[nodiscard]] static std::string PropertyName(std::int32_t) { return {}; }

    [[nodiscard]] std::string key() const; ///< "k" + ID
    /// The last value as text; empty for a record of size 0. Valid until the next change.
    [[nodiscard]] std::string_view ObjectName() const;
    void SetObjectName(const std::string& name);

    /// Throws KeshError (errnum::Bounds) for an index outside 0 to size - 1, as all that take an
    /// index.
    [[nodiscard]] KeshValue Value(std::int32_t index) const;
    void SetValue(std::int32_t index, const KeshValue& value);
    /// The value's spelling, valid until the next change.
    [[nodiscard]] std::string_view ValueText(std::int32_t index) const;
    /// The value if it is a number.
    [[nodiscard]] std::optional<double> ValueNumber(std::int32_t index) const {
        return m_values.Number(Checked(index));
    }
    /// The same rounded to a whole number of 32 bits; nothing for one that leaves them.
    [[nodiscard]] std::optional<std::int32_t> ValueInteger(std::int32_t index) const;
    [[nodiscard]] std::int32_t size() const noexcept {
        return static_cast<std::int32_t>(m_values.Size());
    }
    [[nodiscard]] std::string GetLastError() const; ///< of the last operation that failed here

    /// Makes room: `count` unset values at `index`, which must lie from 1 to size - 1. Dirty is
    /// untouched.
    void InsertSpaceToArray(std::int32_t index, std::int32_t count);
    /// `index` at least 1, `index` + `count` at most size - 1.
    void RemoveSpaceFromArray(std::int32_t index, std::int32_t count);
    /// `size` zeros, the last the empty text. Former values are lost.
    void Construct(std::int32_t size);
    /// Copies everything, spelling too; the target is dirty unless all values are a constructed
    /// record's.
    void CopyTo(clsTXTObject& target) const;
    [[nodiscard]] std::shared_ptr<clsTXTObject> Clone() const;
    [[nodiscard]] std::string GetObjectTData() const; ///< each value as text with ";" behind

    // For the loader, the writer and the window's undo
    [[nodiscard]] const clsValueArray& Values() const noexcept { return m_values; }
    void LoadValues(clsValueArray values); ///< of a loader: nothing is remembered, Dirty false
    void SetValues(clsValueArray values);  ///< replaces all as undo does: Dirty is untouched
    /// The value array before the first change since the last call; empty if nothing was changed.
    [[nodiscard]] std::optional<clsValueArray> TakeFormerValues();
    /// Counts how often any record got such values: as long as it stays, there is nothing to take.
    [[nodiscard]] static std::uint64_t TimesRemembered() noexcept { return s_timesRemembered; }

private:
    struct Seldom { ///< kept apart, since hundreds of thousands of records never need it
        std::optional<clsValueArray> former;
        std::string lastError;
    };

    void Remember();
    [[noreturn]] void FailBounds(std::int32_t index, std::int32_t count) const;
    [[nodiscard]] std::uint32_t Checked(std::int32_t index) const {
        if (index < 0 || index >= size())
            FailBounds(index, 0);
        return static_cast<std::uint32_t>(index);
    }
    [[nodiscard]] std::int32_t TailNumber(std::int32_t fromEnd) const {
        return ValueInteger(size() - fromEnd).value_or(0);
    }
    void SetTailNumber(std::int32_t fromEnd, std::int32_t value) {
        SetValue(size() - fromEnd, value);
    }
    Seldom& Rare() const;

    static std::atomic<std::uint64_t> s_timesRemembered;

    clsValueArray m_values;
    mutable std::unique_ptr<Seldom> m_seldom;
};

using RecordPtr = std::shared_ptr<clsTXTObject>;
