#include "tdata/mdlRecordNumbers.h"

#include "core/KeshError.h"

#include <utility>

namespace {

[[noreturn]] void Throw(std::uint32_t number, const std::string& text) {
    throw KeshError(number, "clsTXTObject", text);
}

std::string Described(const clsTXTObject& record, std::int32_t index) {
    return "value " + std::to_string(index) + " is \"" +
           std::string(record.ValueText(index).substr(0, 40)) + "\".";
}

bool Reaches(const clsTXTObject& record, std::int32_t index) {
    return index >= 0 && index < record.size();
}

} // namespace

std::optional<double> NumberAt(const clsTXTObject& Record, std::int32_t Index) {
    return Reaches(Record, Index) ? keshobjects::readNumber(Record.ValueText(Index)) : std::nullopt;
}

std::optional<std::int32_t> IntegerAt(const clsTXTObject& Record, std::int32_t Index) {
    const auto number = NumberAt(Record, Index);
    return number ? keshobjects::roundToInteger(*number) : std::nullopt;
}

std::string SpellingAt(const clsTXTObject& Record, std::int32_t Index) {
    return Reaches(Record, Index) ? std::string(Record.ValueText(Index)) : std::string();
}

double RecordNumber(const clsTXTObject& record, std::int32_t index) {
    if (const auto number = record.ValueNumber(index))
        return *number;
    if (std::holds_alternative<std::monostate>(record.Value(index)))
        return 0;
    // What was set as text may spell a number, and a file that is loaded again gives it as one.
    if (const auto number = keshobjects::readNumber(record.ValueText(index)))
        return *number;
    Throw(errnum::TypeMismatch, "Type mismatch: " + Described(record, index));
}

std::int32_t RecordInteger(const clsTXTObject& record, std::int32_t index) {
    if (const auto whole = keshobjects::roundToInteger(RecordNumber(record, index)))
        return *whole;
    Throw(errnum::Overflow, "Overflow: " + Described(record, index));
}

std::int32_t RoundedInteger(double number) {
    if (const auto whole = keshobjects::roundToInteger(number))
        return *whole;
    Throw(errnum::Overflow, "Overflow");
}

std::int32_t CheckedInteger(std::int64_t number) {
    if (!std::in_range<std::int32_t>(number))
        Throw(errnum::Overflow,
              "Overflow: " + std::to_string(number) + " is no possible place or count.");
    return static_cast<std::int32_t>(number);
}

void CheckListIndex(std::int32_t index, std::int32_t last, const char* source, const char* text) {
    if (index < 0 || index > last)
        throw KeshError(errnum::General, source, text);
}
