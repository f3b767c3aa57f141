#include "lornfd/lasterror.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lornfd {

LastError::LastError(std::span<const ErrorText> table) : m_table(table) {}

void LastError::clear() noexcept {
    m_code = 0;
    m_text.clear();
}

std::int32_t LastError::set(std::int32_t code, const ErrorParts& parts) {
    const auto row = std::ranges::find(m_table, code, &ErrorText::code);
    m_text = fillErrorText(row != m_table.end() ? row->text : "{reason}", parts);
    m_code = code;
    return 0;
}

std::string LastError::text(std::int32_t code) const {
    if (code == m_code && code != 0)
        return m_text;
    if (code == 0)
        return "No error.";
    const auto row = std::ranges::find(m_table, code, &ErrorText::code);
    return row != m_table.end() ? fillErrorText(row->text, {})
                                : "Unknown error " + std::to_string(code) + ".";
}

std::int32_t LastError::translate(std::int32_t code, char* buffer, std::int32_t size,
                                  std::int32_t* needed) const {
    const std::string whole = text(code);
    const std::size_t length = whole.size() + 1;
    const std::size_t room = buffer && size > 0 ? static_cast<std::size_t>(size) : 0;
    if (needed)
        *needed = static_cast<std::int32_t>(length);
    if (room > 0) {
        const std::size_t shown = std::min(length, room) - 1;
        std::memcpy(buffer, whole.data(), shown);
        buffer[shown] = '\0';
    }
    return length <= room ? 1 : 0;
}

std::string fillErrorText(std::string_view pattern, const ErrorParts& parts) {
    const std::pair<std::string_view, const std::string&> places[] = {
        {"{file}", parts.file}, {"{place}", parts.place}, {"{reason}", parts.reason}};
    std::string filled;
    while (!pattern.empty()) {
        const auto place = std::ranges::find_if(
            places, [&](const auto& candidate) { return pattern.starts_with(candidate.first); });
        if (place != std::end(places)) {
            filled += place->second;
            pattern.remove_prefix(place->first.size());
        } else {
            filled += pattern.front();
            pattern.remove_prefix(1);
        }
    }
    return filled;
}

} // namespace lornfd
