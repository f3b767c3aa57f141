// How stored values read to a person and are entered: what the editors of all record types share. A
// type lists its conversions in a table, a row a field.
#pragma once

#include "tdata/FieldTable.h"
#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a field may be chosen from.
struct ChoiceList {
    std::int32_t First = 0; ///< position of the first row
    std::vector<std::string> Rows = {};
    const TextTable* Keys = nullptr;  ///< what is stored for a row; null: its position
    bool FreeText = false;            ///< takes a text that is no row
    std::string_view Outside = "N/A"; ///< what a position without a row reads as

    /// The row of a position; `Outside` where there is none, "Unknown value" for an empty one.
    [[nodiscard]] std::string At(std::int32_t Position) const;
};

/// A field of a record, which has such a field.
struct StoredField {
    const clsTXTObject& Record;
    std::int32_t Index = 0;
    std::int32_t Version = 0; ///< of the file
    const ChoiceList* Choices = nullptr;

    [[nodiscard]] std::optional<double> Number() const;
};

/// A conversion; both ways give nothing where there is none for this very value or text.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order in which a row is read
struct FieldConversion {
    using ShowFunction = std::optional<std::string> (*)(const StoredField& Field, bool Raw);
    using ReadFunction = std::optional<KeshValue> (*)(const StoredField& Field,
                                                      std::string_view Text);

    std::int32_t Index = 0; ///< in the record; counted from its size if negative
    ShowFunction Show = nullptr;
    ReadFunction Read = nullptr;
    std::string_view Unit = {}; ///< behind what Show gives, unless raw
    std::int32_t List = -1;     ///< of the type's lists; -1 for none

    /// The whole text of a row in an editor.
    [[nodiscard]] std::optional<std::string> Shown(const StoredField& Field, bool Raw) const;
};

/// The row of a field; null if it has none or the record does not reach as far.
[[nodiscard]] const FieldConversion* FindConversion(std::span<const FieldConversion> Rows,
                                                    const clsTXTObject& Record, std::int32_t Index);

/// The conversions of one type in files of one version, with the lists that they choose from.
class FieldConverter {
public:
    FieldConverter(const FieldConverter&) = delete;
    FieldConverter& operator=(const FieldConverter&) = delete;
    virtual ~FieldConverter() = default;

    [[nodiscard]] std::int32_t Version() const noexcept { return m_version; }
    /// What a field may be chosen from, without rows that have no text; empty for one that has no
    /// list.
    [[nodiscard]] std::vector<std::string> Values(const clsTXTObject& Record,
                                                  std::int32_t Index) const;
    /// The text of a value, Raw: without its unit. False, and Text as it was, where the value is
    /// best shown as it is stored.
    bool Translate(const clsTXTObject& Record, std::int32_t Index, std::string& Text,
                   bool Raw) const;
    /// The value for an entered text. False, and Value as it was, for a text that is none.
    bool TranslateBack(const clsTXTObject& Record, const std::string& Text, std::int32_t Index,
                       KeshValue& Value) const;

protected:
    explicit FieldConverter(std::size_t Lists) : m_lists(Lists) {}
    void SetVersion(std::int32_t Version) noexcept { m_version = Version; }
    [[nodiscard]] ChoiceList& List(std::int32_t Index) {
        return m_lists[static_cast<std::size_t>(Index)];
    }
    /// The row of a field, null if it has none.
    [[nodiscard]] virtual const FieldConversion* RowOf(const clsTXTObject& Record,
                                                       std::int32_t Index) const = 0;

private:
    [[nodiscard]] const ChoiceList* ListOf(const FieldConversion& Row) const;
    [[nodiscard]] StoredField FieldOf(const clsTXTObject& Record, std::int32_t Index,
                                      const FieldConversion& Row) const;

    std::vector<ChoiceList> m_lists;
    std::int32_t m_version = 0;
};

/// Without the blanks around it, which are no part of a value.
[[nodiscard]] std::string_view TrimmedValue(std::string_view Text);

// Numbers
/// What a person typed, blanks around it left out.
[[nodiscard]] std::optional<double> EnteredNumber(std::string_view Text);
/// A whole number as a value; nothing if it leaves 32 bits.
[[nodiscard]] std::optional<KeshValue> WholeValue(double Number);
/// To 15 significant digits: the product of decimals without the noise of binary fractions.
[[nodiscard]] double DecimalOf(double Number);
/// With fixed decimals; nothing for what is not finite.
[[nodiscard]] std::optional<std::string> FixedText(double Number, std::int32_t Decimals);
/// The same by the decimal that a number of single precision stands for.
[[nodiscard]] std::optional<std::string> FixedText(float Number, std::int32_t Decimals);

// Conversions
/// A number as it is stored.
[[nodiscard]] std::optional<std::string> ShowNumber(const StoredField& Field, bool Raw);
[[nodiscard]] std::optional<std::string> ShowChoice(const StoredField& Field, bool Raw);
/// A number as it is entered.
[[nodiscard]] std::optional<KeshValue> ReadNumber(const StoredField& Field, std::string_view Text);
/// A number rounded to 32 bits, halves to even.
[[nodiscard]] std::optional<KeshValue> ReadRounded(const StoredField& Field, std::string_view Text);
/// A row, or the number of a position that need not have one. Of rows that read the same the stored
/// one stays, else the first is taken.
[[nodiscard]] std::optional<KeshValue> ReadChoice(const StoredField& Field, std::string_view Text);
