#include "json.h"

#include "keshobjects/encodings.h"
#include "keshobjects/value.h"

#include <nlohmann/json.hpp>

#include <variant>

namespace {

std::string toUtf8(std::string_view bytes) {
    const auto& utf8 = keshobjects::utf8();
    const auto* windows = keshobjects::findEncoding("windows-1252");
    std::string text;
    while (!bytes.empty()) {
        const auto byte = static_cast<unsigned char>(bytes.front());
        std::string_view rest = bytes;
        const auto character = windows->take(rest);
        utf8.append(character.value_or(byte),
                    text); // the few bytes without a character stay controls
        bytes.remove_prefix(1);
    }
    return text;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty())
        if (!keshobjects::utf8().take(bytes))
            return false;
    return true;
}

/// Readers make 0 of "-0", and write small reals with an exponent.
bool isKeptByReaders(const std::string& number) {
    return number != "-0" && (number.find('.') == std::string::npos ||
                              nlohmann::json::parse(number).dump() == number);
}

} // namespace

std::string jsonText(std::string_view bytes) {
    return nlohmann::json(isUtf8(bytes) ? std::string(bytes) : toUtf8(bytes)).dump();
}

std::string jsonValue(const clsTXTObject& record, std::int32_t index) {
    std::string spelling(record.ValueText(index));
    const KeshValue value = record.Value(index);
    const bool isNumber = !std::holds_alternative<std::string>(value);
    if (isNumber && keshobjects::spellValue(value) == spelling && isKeptByReaders(spelling))
        return spelling;
    return jsonText(spelling);
}
