#include "keshobjects/places.h"

#include "keshobjects/numbers.h"

namespace keshobjects {
namespace {

template <typename Number>
std::optional<Number> readAt(std::string_view text, KeshPlace place) noexcept {
    const char* const last = text.data() + text.size();
    Number number{};
    const char* end = parseNumber(text.data() + place, last, number);
    if (end == nullptr)
        return std::nullopt;
    while (end != last && isBlank(*end))
        ++end;
    return end == last || *end == ';' ? std::optional(number) : std::nullopt;
}

} // namespace

std::string_view trimEnd(std::string_view text) noexcept {
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view valueAt(std::string_view text, KeshPlace place) noexcept {
    const std::string_view rest = text.substr(place);
    return trimEnd(rest.substr(0, rest.find(';')));
}

std::string_view rawAt(std::string_view text, KeshPlace place) noexcept {
    const std::string_view rest = text.substr(place);
    return rest.substr(0, rest.find_first_of("\r\n"));
}

std::optional<double> anyNumberAt(std::string_view text, KeshPlace place) noexcept {
    return readAt<double>(text, place);
}

std::optional<std::int32_t> integerAt(std::string_view text, KeshPlace place) noexcept {
    return readAt<std::int32_t>(text, place);
}

} // namespace keshobjects
