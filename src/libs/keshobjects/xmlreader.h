// The tags and texts of an XML document, with the places where they stand.
//
// A saver that must keep every byte nobody touched needs those places, which no document model
// gives, so the reader is our own: one pass, no memory but for the open elements' names. It refuses
// what is not well-formed; document types with declarations of their own are refused as well, so
// that no entity is ever expanded.
#pragma once

#include "keshobjects/xmltext.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace keshobjects {

class XmlReader {
public:
    enum class Token { Start, End, Text, CData, Finish, Error };
    struct Attribute {
        std::string_view name;
        std::string_view value; ///< as it stands between its quotes
    };
    /// Elements open at one time; more is an error.
    static constexpr std::size_t maxDepth = 64;
    /// Attributes of one element, likewise.
    static constexpr std::size_t maxAttributes = 256;

    /// Of a text of characters of XML, which must outlive the reader.
    explicit XmlReader(std::string_view text) noexcept : m_text(text) {}

    /// Steps to the next tag or text; remarks and instructions are passed over. After Finish and
    /// Error it stays there. An element `<a/>` gives a start and an empty end.
    Token next();

    [[nodiscard]] std::string_view name() const noexcept { return m_name; }
    /// Of a start.
    [[nodiscard]] const std::vector<Attribute>& attributes() const noexcept { return m_attributes; }
    /// The start is an element without content, `<a/>`.
    [[nodiscard]] bool closed() const noexcept { return m_closed; }
    /// A text as it stands, its references good; without the signs around CDATA.
    [[nodiscard]] std::string_view text() const noexcept { return m_raw; }
    /// The text reads as it stands: it holds nothing that XML replaces.
    [[nodiscard]] bool asItReads() const noexcept { return m_asItReads; }
    /// Where the token begins and ends.
    [[nodiscard]] std::size_t begin() const noexcept { return m_begin; }
    [[nodiscard]] std::size_t end() const noexcept { return m_at; }
    /// Elements open, with that of a start, without that of an end.
    [[nodiscard]] std::size_t depth() const noexcept { return m_open.size(); }

    /// After Error: why, and where.
    [[nodiscard]] const std::string& reason() const noexcept { return m_reason; }
    [[nodiscard]] std::size_t place() const noexcept { return m_place; }

private:
    Token fail(std::size_t place, std::string reason);
    Token text(const TextEnd& end);
    Token markup();
    Token startTag();
    Token endTag();
    Token close();
    Token cdata();
    Token finish();
    bool attribute();
    bool passBehind(std::string_view opening, std::string_view closing, const char* what);
    bool passInstruction();
    bool passDoctype();
    bool passBlanks() noexcept;
    std::string_view takeName() noexcept;
    [[nodiscard]] std::string_view rest() const noexcept { return m_text.substr(m_at); }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_begin = 0;
    std::string_view m_name;
    std::string_view m_raw;
    std::vector<Attribute> m_attributes;
    std::vector<std::string_view> m_open;
    bool m_asItReads = false;
    bool m_closed = false;
    bool m_pendingEnd = false; ///< of an element without content
    bool m_rootSeen = false;
    bool m_failed = false;
    std::string m_reason;
    std::size_t m_place = 0;
};

} // namespace keshobjects
