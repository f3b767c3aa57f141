// The values of one record: places in a loaded text until something changes, cells of its own after
// that.
//
// Copying is cheap and shares; a copy is what undo keeps. A cell that is not set anew keeps its
// place, so its spelling.
#pragma once

#include "keshobjects/value.h"
#include "tdata/clsLoadedText.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// How the places of a record read.
enum class ValueForm : std::uint8_t {
    AsShown,  ///< number or text by its spelling
    AllText,  ///< every value is text (ware lists)
    LastText, ///< the last value is text (icon entries)
    LastRaw,  ///< the last value is the raw rest of its line, text (jobs)
    List,     ///< a value ends before "," too (job wings)
    Sections, ///< the first two of each five values are text (the root of icons)
};

/// How one value reads.
enum class ValueKind : std::uint8_t {
    AsSpelled, ///< number or text by its spelling
    Text,      ///< text, even if it spells a number
    Unset,     ///< room without a value yet
};

/// What tells a value from another: enough to make the same one again.
struct SpelledValue {
    std::string_view Spelling;
    ValueKind Kind = ValueKind::AsSpelled;
};

class clsValueArray {
public:
    clsValueArray() = default;
    /// `size` places of `text` from `first` on. `written`: the values stand in written form, in one
    /// piece.
    clsValueArray(std::shared_ptr<const clsLoadedText> text, std::uint32_t first,
                  std::uint32_t size, ValueForm form, bool written);
    /// `size` cells, each the whole number 0.
    explicit clsValueArray(std::uint32_t size);
    /// Copies of values that were told by Spelling and Kind; SameAs the array that told them.
    explicit clsValueArray(std::span<const SpelledValue> values);

    [[nodiscard]] std::uint32_t Size() const noexcept { return m_size; }
    [[nodiscard]] KeshValue Get(std::uint32_t index) const;
    /// Valid until the next change; an unset cell spells the empty text.
    [[nodiscard]] std::string_view Spelling(std::uint32_t index) const;
    [[nodiscard]] ValueKind Kind(std::uint32_t index) const;
    [[nodiscard]] std::optional<double> Number(std::uint32_t index) const {
        return !m_cells && m_form == ValueForm::AsShown
                   ? keshobjects::numberAt(m_text->Text(), PlaceAt(index))
                   : SpelledNumber(index);
    }

    void Set(std::uint32_t index, const KeshValue& value);
    void Insert(std::uint32_t index, std::uint32_t count); ///< unset cells
    void Remove(std::uint32_t index, std::uint32_t count);

    /// The record as the file has it, all values with their ";", if it stands there in one piece.
    [[nodiscard]] std::optional<std::string_view> Written() const;

    /// The first value of its own that would not read back as it was set, if written; `jobs` as a
    /// job's.
    [[nodiscard]] std::optional<std::uint32_t> FirstUnwritable(bool jobs) const;

    /// Same number of values, each of the same kind and spelling.
    [[nodiscard]] bool SameAs(const clsValueArray& other) const;

private:
    struct Own {
        std::string spelling;
        bool text; ///< set as text, even if it spells a number
    };
    using Cell = std::variant<std::monostate, KeshPlace, Own>;

    [[nodiscard]] KeshPlace PlaceAt(std::uint32_t index) const {
        return m_text->Places[m_first + index];
    }
    [[nodiscard]] std::optional<double> SpelledNumber(std::uint32_t index) const;
    [[nodiscard]] bool IsTextPlace(std::uint32_t index) const noexcept;
    [[nodiscard]] std::string_view PlaceSpelling(std::uint32_t index) const;
    [[nodiscard]] bool IsText(std::uint32_t index) const { return Kind(index) == ValueKind::Text; }
    std::vector<Cell>& OwnCells(); ///< made, or copied from a shared one, before a change

    std::shared_ptr<const clsLoadedText> m_text;
    std::shared_ptr<std::vector<Cell>> m_cells; ///< null while every value is at its place
    std::uint32_t m_first = 0;
    std::uint32_t m_size = 0;
    ValueForm m_form = ValueForm::AsShown;
    bool m_written = false;
};
