#include "keshobjects/value.h"

#include "keshobjects/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace keshobjects {
namespace {

/// The largest and smallest magnitude that are spelled without an exponent.
constexpr double largestFixed = 1e15;
constexpr double smallestFixed = 1e-15;

template <typename Number>
std::optional<Number> readWhole(std::string_view text) noexcept {
    const char* const last = text.data() + text.size();
    Number number{};
    if (parseNumber(text.data(), last, number) != last)
        return std::nullopt;
    return number;
}

struct Spelling {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int32_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return spellNumber(number); }
    std::string operator()(const std::string& text) const { return text; }
};

std::optional<double> asNumber(const KeshValue& value) noexcept {
    if (const auto* integer = std::get_if<std::int32_t>(&value))
        return *integer;
    if (const auto* real = std::get_if<double>(&value))
        return *real;
    return std::nullopt;
}

} // namespace

std::optional<double> readNumber(std::string_view text) noexcept {
    return readWhole<double>(text);
}

std::optional<std::int32_t> readInteger(std::string_view text) noexcept {
    return readWhole<std::int32_t>(text);
}

std::optional<std::int32_t> roundToInteger(double number) noexcept {
    const double whole = std::nearbyint(number);
    using limits = std::numeric_limits<std::int32_t>;
    return whole >= limits::min() && whole <= limits::max()
               ? std::optional(static_cast<std::int32_t>(whole))
               : std::nullopt;
}

KeshValue readValue(std::string_view text) {
    if (const auto integer = readInteger(text))
        return *integer;
    if (const auto number = readNumber(text))
        return *number;
    return std::string(text);
}

std::string spellNumber(double number) {
    const double size = std::fabs(number);
    const bool fixed = size == 0 || (size >= smallestFixed && size <= largestFixed);
    std::array<char, 64> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                      fixed ? std::chars_format::fixed : std::chars_format::scientific);
    return {buffer.data(), end.ptr};
}

std::string spellValue(const KeshValue& value) {
    return std::visit(Spelling{}, value);
}

bool equalValues(const KeshValue& a, const KeshValue& b) noexcept {
    const auto left = asNumber(a);
    const auto right = asNumber(b);
    return left && right ? *left == *right : a == b;
}

} // namespace keshobjects
