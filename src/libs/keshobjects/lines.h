// Lines of a text, counted when a message needs them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace keshobjects {

/// Line breaks in a text: LF, CR LF, or a CR alone.
std::ptrdiff_t countLineBreaks(std::string_view text) noexcept;
/// "line N" of the first character behind `before`.
std::string describeLine(std::string_view before);

} // namespace keshobjects
