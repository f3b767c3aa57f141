// Characters of XML texts: which there are, references to them and back. All texts are UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace keshobjects {

/// The offset of the first byte that begins no character of XML: not UTF-8, a control character
/// other than tab and line breaks, or U+FFFE and U+FFFF; npos if there is none.
[[nodiscard]] std::size_t findNoXmlCharacter(std::string_view text) noexcept;

/// Where the text that runs from a place to the next "<" or the end ends.
struct TextEnd {
    std::size_t place;
    bool asItReads; ///< no reference and no carriage return stands in it
};
[[nodiscard]] TextEnd findTextEnd(std::string_view text, std::size_t at) noexcept;

/// The offset of the first "&" that begins neither a character reference nor one of the five named
/// ones; npos if there is none.
[[nodiscard]] std::size_t findBadReference(std::string_view text) noexcept;

/// Appends a text without bad references as XML reads it: references replaced, CR LF and CR as LF;
/// a CDATA section has no references, and in an attribute every tab and line break is a blank.
void appendXmlContent(std::string_view text, std::string& read);
void appendXmlCData(std::string_view text, std::string& read);
void appendXmlAttribute(std::string_view text, std::string& read);

/// Appends a text so that XML reads the same again.
void writeXmlContent(std::string_view text, std::string& written);
void writeXmlAttribute(std::string_view text, std::string& written); ///< for double quotes

} // namespace keshobjects
