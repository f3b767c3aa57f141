// Values of a record as numbers, and arithmetic on offsets and counts. All throw KeshError.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>

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
