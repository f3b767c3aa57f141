// Values of a record as numbers, and arithmetic on offsets and counts.
//
// Which way of reading is for what:
//   ValueInteger, ValueNumber of clsTXTObject   a stored number; the index must be right
//   NumberAt, IntegerAt, SpellingAt             what a person is shown: any index, and text that
//                                               spells a number counts as one
//   RecordNumber, RecordInteger                 the structure of a record, where anything else
//                                               than a number is an error
//   GetJobInteger (JobFields.h)                 a logical field of a job; any index
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <optional>
#include <string>

/// A value that is or spells a number; nothing for any other and outside the record.
[[nodiscard]] std::optional<double> NumberAt(const clsTXTObject& Record, std::int32_t Index);
/// The same rounded to 32 bits, halves to even.
[[nodiscard]] std::optional<std::int32_t> IntegerAt(const clsTXTObject& Record, std::int32_t Index);
/// The spelling of a value; empty outside the record.
[[nodiscard]] std::string SpellingAt(const clsTXTObject& Record, std::int32_t Index);

// All that follow throw KeshError.
/// The value as a number, 0 where nothing was set yet; fails with errnum::TypeMismatch on other
/// text.
[[nodiscard]] double RecordNumber(const clsTXTObject& record, std::int32_t index);
/// The same rounded to 32 bits; errnum::Overflow if it leaves them.
[[nodiscard]] std::int32_t RecordInteger(const clsTXTObject& record, std::int32_t index);
/// A number rounded to 32 bits, halves to even; errnum::Overflow if it leaves them.
[[nodiscard]] std::int32_t RoundedInteger(double number);
/// A sum or product that must fit 32 bits; errnum::Overflow if it does not.
[[nodiscard]] std::int32_t CheckedInteger(std::int64_t number);
/// Fails with errnum::General and the text unless 0 <= index <= last.
void CheckListIndex(std::int32_t index, std::int32_t last, const char* source,
                    const char* text = "List index out of bounds.");
