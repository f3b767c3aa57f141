// A value of a T file: a whole number, a real number, text, or nothing yet; its grammar and
// spelling.
//
// A number is an optional sign, digits with at most one point and at least one digit, and an
// optional exponent. "nan", "inf", hexadecimal and what leaves the range of a double are text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

using KeshValue = std::variant<std::monostate, std::int32_t, double, std::string>;

namespace keshobjects {

/// The number that the whole of `text` spells, if it does.
std::optional<double> readNumber(std::string_view text) noexcept;
/// The whole number in 32-bit range that the whole of `text` spells (sign and digits only).
std::optional<std::int32_t> readInteger(std::string_view text) noexcept;
/// A number rounded to a whole one, halves to even; nothing if that leaves 32 bits.
std::optional<std::int32_t> roundToInteger(double number) noexcept;
/// What a spelling means: integer, real or text.
KeshValue readValue(std::string_view text);

/// The shortest spelling that reads back the same, without exponent from 1e-15 to 1e15, a whole
/// number without a point.
std::string spellNumber(double number);
/// The spelling of any value; nothing gives the empty text.
std::string spellValue(const KeshValue& value);

/// Numbers compare as numbers, texts byte by byte; a number and a text are never equal.
bool equalValues(const KeshValue& a, const KeshValue& b) noexcept;

} // namespace keshobjects
