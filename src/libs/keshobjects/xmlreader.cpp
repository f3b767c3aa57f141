#include "keshobjects/xmlreader.h"

#include <algorithm>
#include <array>

namespace keshobjects {
namespace {

using namespace std::string_view_literals;

enum CharacterClass : unsigned char { Blank = 1, NameStart = 2, Name = 4 };

constexpr std::array<unsigned char, 256> makeClasses() {
    std::array<unsigned char, 256> classes{};
    for (std::size_t c = 0; c < classes.size(); ++c) {
        const bool letter =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' || c >= 0x80;
        const bool other = (c >= '0' && c <= '9') || c == '-' || c == '.';
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        classes[c] = static_cast<unsigned char>((letter ? NameStart | Name : 0) |
                                                (other ? Name : 0) | (blank ? Blank : 0));
    }
    return classes;
}
constexpr auto classes = makeClasses();

bool is(char c, CharacterClass wanted) noexcept {
    return (classes[static_cast<unsigned char>(c)] & wanted) != 0;
}

std::string quoted(std::string_view text) {
    constexpr std::size_t most = 40;
    if (text.size() <= most)
        return '"' + std::string(text) + '"';
    std::size_t shown = most;
    while (shown > 0 && (static_cast<unsigned char>(text[shown]) & 0xC0U) == 0x80U)
        --shown; // not inside a character
    return '"' + std::string(text.substr(0, shown)) + "...\"";
}

} // namespace

XmlReader::Token XmlReader::next() {
    if (m_failed)
        return Token::Error;
    m_begin = m_at;
    if (m_pendingEnd) {
        m_pendingEnd = false;
        return close();
    }
    while (m_at < m_text.size()) {
        m_begin = m_at;
        if (m_text[m_at] != '<') {
            const TextEnd end = findTextEnd(m_text, m_at);
            if (!m_open.empty())
                return text(end);
            passBlanks();
            if (m_at < end.place)
                return fail(m_at, "text outside the root element");
            continue;
        }
        const char sign = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
        if (sign != '!' && sign != '?')
            return markup();
        if (rest().starts_with("<![CDATA["))
            return cdata();
        if (!(rest().starts_with("<!--") ? passBehind("<!--", "-->", "remark")
              : sign == '?'              ? passInstruction()
                                         : passDoctype()))
            return Token::Error;
    }
    return finish();
}

XmlReader::Token XmlReader::fail(std::size_t place, std::string reason) {
    m_failed = true;
    m_place = place;
    m_reason = std::move(reason);
    return Token::Error;
}

XmlReader::Token XmlReader::finish() {
    if (!m_open.empty())
        return fail(m_text.size(), "the end where " + quoted(m_open.back()) + " is open");
    return m_rootSeen ? Token::Finish : fail(m_text.size(), "no element");
}

XmlReader::Token XmlReader::text(const TextEnd& end) {
    m_raw = m_text.substr(m_at, end.place - m_at);
    m_asItReads = end.asItReads;
    if (const std::size_t bad = m_asItReads ? m_raw.npos : findBadReference(m_raw);
        bad != m_raw.npos)
        return fail(m_at + bad, "an \"&\" that begins no known reference");
    m_at = end.place;
    return Token::Text;
}

XmlReader::Token XmlReader::cdata() {
    if (m_open.empty())
        return fail(m_at, "text outside the root element");
    const std::size_t start = m_at + "<![CDATA["sv.size();
    if (!passBehind("<![CDATA[", "]]>", "CDATA section"))
        return Token::Error;
    m_raw = m_text.substr(start, m_at - "]]>"sv.size() - start);
    m_asItReads = m_raw.find('\r') == m_raw.npos;
    return Token::CData;
}

bool XmlReader::passBehind(std::string_view opening, std::string_view closing, const char* what) {
    const std::size_t found = m_text.find(closing, m_at + opening.size());
    if (found == m_text.npos) {
        fail(m_at, std::string("a ") + what + " that never ends");
        return false;
    }
    m_at = found + closing.size();
    return true;
}

bool XmlReader::passInstruction() {
    const bool named = m_at + 2 < m_text.size() && is(m_text[m_at + 2], NameStart);
    if (!named)
        fail(m_at, "an instruction without a name");
    return named && passBehind("<?", "?>", "instruction");
}

bool XmlReader::passDoctype() {
    constexpr std::string_view opening = "<!DOCTYPE";
    const auto refuse = [this](const char* reason) {
        fail(m_at, reason);
        return false;
    };
    if (!rest().starts_with(opening) || m_rootSeen)
        return refuse("a \"<!\" that begins nothing known here");
    std::size_t stop = m_text.find_first_of("'\"[<>", m_at + opening.size());
    while (stop != m_text.npos && m_text[stop] != '>') {
        if (m_text[stop] == '[' || m_text[stop] == '<')
            return refuse("a document type with declarations of its own");
        const std::size_t close = m_text.find(m_text[stop], stop + 1);
        stop = close == m_text.npos ? close : m_text.find_first_of("'\"[<>", close + 1);
    }
    if (stop == m_text.npos)
        return refuse("a document type that never ends");
    m_at = stop + 1;
    return true;
}

XmlReader::Token XmlReader::markup() {
    return m_at + 1 < m_text.size() && m_text[m_at + 1] == '/' ? endTag() : startTag();
}

bool XmlReader::passBlanks() noexcept {
    const std::size_t before = m_at;
    while (m_at < m_text.size() && is(m_text[m_at], Blank))
        ++m_at;
    return m_at != before;
}

std::string_view XmlReader::takeName() noexcept {
    const std::size_t start = m_at;
    if (m_at < m_text.size() && is(m_text[m_at], NameStart))
        while (m_at < m_text.size() && is(m_text[m_at], Name))
            ++m_at;
    return m_text.substr(start, m_at - start);
}

XmlReader::Token XmlReader::startTag() {
    ++m_at;
    m_name = takeName();
    m_attributes.clear();
    if (m_name.empty())
        return fail(m_begin, "a \"<\" that begins no tag");
    if (m_open.empty() && m_rootSeen)
        return fail(m_begin, "a second root element");
    if (m_open.size() == maxDepth)
        return fail(m_begin, "more than " + std::to_string(maxDepth) + " elements open");
    for (;;) {
        const bool apart = passBlanks();
        if (m_at == m_text.size())
            return fail(m_begin, "a tag that never ends");
        m_closed = rest().starts_with("/>");
        if (m_closed || m_text[m_at] == '>')
            break;
        if (!apart)
            return fail(m_at, "a character that does not belong into a tag");
        if (!attribute())
            return Token::Error;
    }
    m_at += m_closed ? 2 : 1;
    m_pendingEnd = m_closed;
    m_rootSeen = true;
    m_open.push_back(m_name);
    return Token::Start;
}

bool XmlReader::attribute() {
    const std::size_t start = m_at;
    const auto bad = [this, start](const char* reason) {
        fail(start, reason);
        return false;
    };
    const std::string_view name = takeName();
    if (name.empty())
        return bad("a character that does not belong into a tag");
    passBlanks();
    if (!rest().starts_with('='))
        return bad("an attribute without a value");
    ++m_at;
    passBlanks();
    const char quote = m_at < m_text.size() ? m_text[m_at] : '\0';
    if (quote != '"' && quote != '\'')
        return bad("an attribute's value without quotes");
    // Most values are a few signs long: one look at each is quicker than a search for each sign.
    std::size_t end = m_at + 1;
    bool special = false;
    for (; end < m_text.size() && m_text[end] != quote; ++end)
        special = special || m_text[end] == '<' || m_text[end] == '&';
    if (end == m_text.size())
        return bad("an attribute's value that never ends");
    const std::string_view value = m_text.substr(m_at + 1, end - m_at - 1);
    m_at = end + 1;
    if (special && value.find('<') != value.npos)
        return bad("a \"<\" in an attribute");
    if (special && findBadReference(value) != value.npos)
        return bad("an \"&\" that begins no known reference");
    if (m_attributes.size() == maxAttributes)
        return bad("an attribute too many");
    for (const Attribute& other : m_attributes)
        if (other.name == name)
            return bad("an attribute for the second time");
    m_attributes.push_back({name, value});
    return true;
}

XmlReader::Token XmlReader::endTag() {
    m_at += 2;
    const std::string_view open = m_open.empty() ? std::string_view() : m_open.back();
    // Nearly always the open element ends here.
    if (!m_open.empty() && rest().starts_with(open) &&
        rest().substr(open.size()).starts_with('>')) {
        m_at += open.size();
    } else {
        m_name = takeName();
        passBlanks();
        if (m_open.empty() || open != m_name)
            return fail(m_begin,
                        "the end of " + quoted(m_name) + ", which is not the open element");
        if (!rest().starts_with('>'))
            return fail(m_begin, "a tag that never ends");
    }
    ++m_at;
    return close();
}

XmlReader::Token XmlReader::close() {
    m_name = m_open.back();
    m_open.pop_back();
    return Token::End;
}

} // namespace keshobjects
