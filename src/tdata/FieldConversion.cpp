#include "tdata/FieldConversion.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/places.h"
#include "tdata/mdlRecordNumbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int CertainDigits = 15; ///< that a double keeps of any decimal

template <typename Float, typename... Form>
double ThroughText(Float number, Form... form) {
    std::array<char, 64> spelling{};
    const auto end =
        std::to_chars(spelling.data(), spelling.data() + spelling.size(), number, form...).ptr;
    return keshobjects::readNumber({spelling.data(), end}).value_or(double{number});
}

/// The position that the stored value stands for.
std::optional<std::int32_t> StoredPosition(const StoredField& field) {
    const ChoiceList& list = *field.Choices;
    return list.Keys == nullptr
               ? IntegerAt(field.Record, field.Index)
               : FindInList(field.Record.ValueText(field.Index), *list.Keys) + list.First;
}

std::optional<KeshValue> ReadRow(const StoredField& field, std::string_view text) {
    const ChoiceList& list = *field.Choices;
    const auto found = std::find(list.Rows.begin(), list.Rows.end(), text);
    if (text.empty() || found == list.Rows.end())
        return {};
    const auto stored = StoredPosition(field);
    if (stored && list.At(*stored) == text)
        return field.Record.Value(field.Index);
    const auto row = static_cast<std::int32_t>(found - list.Rows.begin());
    return list.Keys == nullptr ? KeshValue(list.First + row)
                                : keshobjects::readValue(list.Keys->At(row));
}

} // namespace

std::string ChoiceList::At(std::int32_t Position) const {
    const std::int64_t row = std::int64_t{Position} - First;
    if (row < 0 || row >= std::ssize(Rows))
        return std::string(Outside);
    const std::string& text = Rows[static_cast<std::size_t>(row)];
    return text.empty() ? "Unknown value" : text;
}

std::optional<double> StoredField::Number() const {
    return NumberAt(Record, Index);
}

std::optional<std::string> FieldConversion::Shown(const StoredField& Field, bool Raw) const {
    auto text = Show(Field, Raw);
    if (text && !Raw)
        text->append(Unit);
    return text;
}

const FieldConversion* FindConversion(std::span<const FieldConversion> Rows,
                                      const clsTXTObject& Record, std::int32_t Index) {
    if (Index < 0 || Index >= Record.size())
        return nullptr;
    const auto found = std::find_if(Rows.begin(), Rows.end(), [&](const FieldConversion& row) {
        return (row.Index < 0 ? Record.size() + row.Index : row.Index) == Index;
    });
    return found == Rows.end() ? nullptr : &*found;
}

// --- The conversions of a type

StoredField FieldConverter::FieldOf(const clsTXTObject& Record, std::int32_t Index,
                                    const FieldConversion& Row) const {
    return {Record, Index, m_version, ListOf(Row)};
}

const ChoiceList* FieldConverter::ListOf(const FieldConversion& Row) const {
    return Row.List < 0 ? nullptr : &m_lists[static_cast<std::size_t>(Row.List)];
}

std::vector<std::string> FieldConverter::Values(const clsTXTObject& Record,
                                                std::int32_t Index) const {
    const FieldConversion* const row = RowOf(Record, Index);
    const ChoiceList* const list = row != nullptr ? ListOf(*row) : nullptr;
    std::vector<std::string> values;
    if (list != nullptr)
        std::copy_if(list->Rows.begin(), list->Rows.end(), std::back_inserter(values),
                     [](const std::string& text) { return !text.empty(); });
    return values;
}

bool FieldConverter::Translate(const clsTXTObject& Record, std::int32_t Index, std::string& Text,
                               bool Raw) const {
    const FieldConversion* const row = RowOf(Record, Index);
    auto shown = row != nullptr ? row->Shown(FieldOf(Record, Index, *row), Raw) : std::nullopt;
    if (shown)
        Text = std::move(*shown);
    return shown.has_value();
}

bool FieldConverter::TranslateBack(const clsTXTObject& Record, const std::string& Text,
                                   std::int32_t Index, KeshValue& Value) const {
    const FieldConversion* const row = RowOf(Record, Index);
    auto read = row != nullptr ? row->Read(FieldOf(Record, Index, *row), Text) : std::nullopt;
    if (read)
        Value = std::move(*read);
    return read.has_value();
}

// --- Numbers

std::string_view TrimmedValue(std::string_view Text) {
    const auto* const first = std::find_if_not(Text.begin(), Text.end(), keshobjects::isBlank);
    return keshobjects::trimEnd({first, Text.end()});
}

std::optional<double> EnteredNumber(std::string_view Text) {
    return keshobjects::readNumber(TrimmedValue(Text));
}

std::optional<KeshValue> WholeValue(double Number) {
    return keshobjects::roundToInteger(Number);
}

double DecimalOf(double Number) {
    return ThroughText(Number, std::chars_format::general, CertainDigits);
}

std::optional<std::string> FixedText(double Number, std::int32_t Decimals) {
    return std::isfinite(Number) ? std::optional(FormatFixed(DecimalOf(Number), Decimals))
                                 : std::nullopt;
}

std::optional<std::string> FixedText(float Number, std::int32_t Decimals) {
    return FixedText(ThroughText(Number), Decimals);
}

// --- Conversions

std::optional<std::string> ShowNumber(const StoredField& Field, bool) {
    return Field.Number() ? std::optional(SpellingAt(Field.Record, Field.Index)) : std::nullopt;
}

std::optional<std::string> ShowChoice(const StoredField& Field, bool) {
    const auto position = IntegerAt(Field.Record, Field.Index);
    return position ? std::optional(Field.Choices->At(*position)) : std::nullopt;
}

std::optional<KeshValue> ReadNumber(const StoredField&, std::string_view Text) {
    return EnteredNumber(Text) ? std::optional(keshobjects::readValue(TrimmedValue(Text)))
                               : std::nullopt;
}

std::optional<KeshValue> ReadRounded(const StoredField&, std::string_view Text) {
    const auto number = EnteredNumber(Text);
    return number ? WholeValue(*number) : std::nullopt;
}

std::optional<KeshValue> ReadChoice(const StoredField& Field, std::string_view Text) {
    if (auto row = ReadRow(Field, Text))
        return row;
    const std::string_view entered = TrimmedValue(Text);
    if (const auto position = keshobjects::readInteger(entered))
        return *position;
    return Field.Choices->FreeText && !entered.empty()
               ? std::optional<KeshValue>(std::string(entered))
               : std::nullopt;
}
