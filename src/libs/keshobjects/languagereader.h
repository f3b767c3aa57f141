// The parts of a language file in their order, read from its bytes.
#pragma once

#include "keshobjects/keshobjects.h"
#include "keshobjects/xmlreader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace keshobjects {

/// A piece of the source text.
struct SourceRange {
    std::size_t begin = 0;
    std::size_t end = 0;
    [[nodiscard]] std::size_t size() const noexcept { return end - begin; }
};

/// A file's bytes as UTF-8.
struct DecodedText {
    std::string_view text; ///< the bytes themselves if they are UTF-8, else in `storage`
    std::string storage;
    KeshXmlMark mark = KESH_XML_AS_DECLARED;
};

/// False with the last error set for UTF-16, for what does not fit its encoding and for characters
/// that XML does not have.
bool decodeLanguageFile(std::string_view bytes, std::string_view file, DecodedText& decoded);

/// The text of an element as XML reads it, from its pieces.
class ElementText {
public:
    void clear() noexcept;
    void add(const XmlReader& piece, XmlReader::Token kind);
    /// Valid until the next piece. One that reads as it stands is not copied.
    [[nodiscard]] std::string_view view() const noexcept { return m_view; }

private:
    std::string_view m_view;
    std::string m_read;
};

/// The text of the element that `element` consists of.
[[nodiscard]] std::string textOfElement(std::string_view element);

/// A language file may have so many bytes, unpacked and as UTF-8, and so many pages and strings: a
/// hundred times what a game has, and yet no danger to memory.
inline constexpr std::size_t maxLanguageBytes = std::size_t{256} << 20;
inline constexpr std::uint32_t maxLanguageParts = 4'000'000;

class LanguageReader {
public:
    enum class Part { File, Page, String, PageEnd, FileEnd, Failed };

    /// Of a decoded text, which must outlive the reader.
    LanguageReader(std::string_view text, std::string_view file)
        : m_file(file), m_xml(text), m_text(text) {}

    /// The next part; elements that are no part are passed over. Failed has set the last error.
    Part next();

    /// Of File, Page and String: the start tag, and whether it is closed (`<page/>`).
    [[nodiscard]] SourceRange tag() const noexcept { return m_tag; }
    [[nodiscard]] bool closed() const noexcept { return m_closed; }
    /// The end tag of PageEnd, FileEnd and of a String; empty if the start tag is closed.
    [[nodiscard]] SourceRange endTag() const noexcept { return m_endTag; }
    /// An attribute of File, Page or String as XML reads it; none if it is not there. Valid until
    /// the next step.
    [[nodiscard]] std::optional<std::string> attribute(std::string_view name) const;
    /// The same as a whole number of 32 bits; none if it is not there or something else.
    [[nodiscard]] std::optional<std::int32_t> number(std::string_view name) const;
    /// The text of a String as XML reads it, with that of elements inside; valid until the next
    /// step.
    [[nodiscard]] std::string_view text() const noexcept { return m_value.view(); }

private:
    Part fail(const std::string& reason, std::size_t place) const;
    /// As it stands in the tag, or null.
    [[nodiscard]] const XmlReader::Attribute* find(std::string_view name) const noexcept;
    Part start();
    Part stringText();
    bool skipElement();
    void rememberTag();

    std::string m_file;
    std::uint32_t m_parts = 0;
    XmlReader m_xml;
    std::string_view m_text;
    SourceRange m_tag;
    SourceRange m_endTag;
    bool m_closed = false;
    std::vector<XmlReader::Attribute> m_attributes;
    ElementText m_value;
};

} // namespace keshobjects
