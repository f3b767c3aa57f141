#include "keshobjects/languagereader.h"

#include "keshobjects/encodings.h"
#include "keshobjects/errors.h"
#include "keshobjects/lines.h"
#include "keshobjects/value.h"
#include "keshobjects/xmltext.h"

namespace keshobjects {
namespace {

using Token = XmlReader::Token;

std::int32_t failFile(std::string_view file, std::string_view before, std::string reason) {
    return lastError().set(KESH_E_LANGUAGE_FILE,
                           {std::string(file), describeLine(before), std::move(reason)});
}

bool declaresUtf8(std::string_view text) {
    const std::string_view declared = declaredEncoding(text);
    return declared.empty() || findEncoding(declared) == &utf8();
}

} // namespace

bool decodeLanguageFile(std::string_view bytes, std::string_view file, DecodedText& decoded) {
    decoded.mark = findMark(bytes);
    if (decoded.mark == KESH_XML_UTF16_LITTLE || decoded.mark == KESH_XML_UTF16_BIG)
        return failFile(file, {}, "UTF-16") != 0;
    const auto tooBig = [file] {
        return failFile(file, {}, "more than " + std::to_string(maxLanguageBytes) + " bytes") != 0;
    };
    if (bytes.size() > maxLanguageBytes)
        return tooBig();
    decoded.text = bytes.substr(signatureOf(decoded.mark)->bytes.size());
    std::size_t bad = findNoXmlCharacter(decoded.text);
    // A mark tells more than the declaration.
    const bool isUtf8 =
        bad == bytes.npos && (decoded.mark == KESH_XML_UTF8 || declaresUtf8(decoded.text));
    if (!isUtf8) {
        if (Kesh_DecodeXML(bytes, file, decoded.storage, decoded.mark) == 0)
            return false;
        decoded.text = decoded.storage;
        if (decoded.text.size() > maxLanguageBytes)
            return tooBig();
        bad = findNoXmlCharacter(decoded.text);
    }
    return bad == bytes.npos ||
           failFile(file, decoded.text.substr(0, bad), "a character that XML does not have") != 0;
}

void ElementText::clear() noexcept {
    m_view = {};
    m_read.clear();
}

void ElementText::add(const XmlReader& piece, Token kind) {
    const std::string_view text = piece.text();
    if (piece.asItReads() && m_view.empty()) {
        m_view = text;
        return;
    }
    if (m_view.data() != m_read.data())
        m_read = m_view;
    if (piece.asItReads())
        m_read += text;
    else if (kind == Token::Text)
        appendXmlContent(text, m_read);
    else
        appendXmlCData(text, m_read);
    m_view = m_read;
}

std::string textOfElement(std::string_view element) {
    XmlReader xml(element);
    ElementText text;
    for (;;) {
        const Token token = xml.next();
        if (token == Token::Finish || token == Token::Error)
            return std::string(text.view());
        if (token == Token::Text || token == Token::CData)
            text.add(xml, token);
    }
}

LanguageReader::Part LanguageReader::next() {
    for (;;) {
        switch (m_xml.next()) {
        case Token::Start:
            if (const Part part = start(); part != Part::FileEnd)
                return part;
            break;
        case Token::End:
            m_endTag = {m_xml.begin(), m_xml.end()};
            if (m_xml.depth() == 1)
                return Part::PageEnd;
            break;
        case Token::Finish:
            return Part::FileEnd;
        case Token::Error:
            return fail(m_xml.reason(), m_xml.place());
        default:
            break;
        }
    }
}

LanguageReader::Part LanguageReader::fail(const std::string& reason, std::size_t place) const {
    failFile(m_file, m_text.substr(0, place), reason);
    return Part::Failed;
}

void LanguageReader::rememberTag() {
    m_tag = {m_xml.begin(), m_xml.end()};
    m_closed = m_xml.closed();
    m_attributes = m_xml.attributes();
}

/// The part that a start tag begins; FileEnd for an element that is none, which is passed over.
LanguageReader::Part LanguageReader::start() {
    constexpr std::string_view names[] = {"texts", "page", "string"};
    const std::size_t level = m_xml.depth() - 1;
    if (m_xml.name() != names[level]) {
        if (level == 0)
            return fail("a root element other than \"texts\"", m_xml.begin());
        return skipElement() ? Part::FileEnd : Part::Failed;
    }
    if (++m_parts > maxLanguageParts)
        return fail("more than " + std::to_string(maxLanguageParts) + " pages and strings",
                    m_xml.begin());
    rememberTag();
    return level == 0 ? Part::File : level == 1 ? Part::Page : stringText();
}

bool LanguageReader::skipElement() {
    const std::size_t depth = m_xml.depth();
    while (m_xml.depth() >= depth)
        if (m_xml.next() == Token::Error)
            return fail(m_xml.reason(), m_xml.place()) != Part::Failed;
    return true;
}

LanguageReader::Part LanguageReader::stringText() {
    m_value.clear();
    while (m_xml.depth() > 2) {
        const Token token = m_xml.next();
        if (token == Token::Error)
            return fail(m_xml.reason(), m_xml.place());
        if (token == Token::Text || token == Token::CData)
            m_value.add(m_xml, token);
    }
    m_endTag = {m_xml.begin(), m_xml.end()};
    return Part::String;
}

const XmlReader::Attribute* LanguageReader::find(std::string_view name) const noexcept {
    for (const XmlReader::Attribute& attribute : m_attributes)
        if (attribute.name == name)
            return &attribute;
    return nullptr;
}

std::optional<std::string> LanguageReader::attribute(std::string_view name) const {
    const XmlReader::Attribute* const found = find(name);
    if (found == nullptr)
        return std::nullopt;
    std::string read;
    appendXmlAttribute(found->value, read);
    return read;
}

std::optional<std::int32_t> LanguageReader::number(std::string_view name) const {
    const XmlReader::Attribute* const found = find(name);
    if (found == nullptr)
        return std::nullopt;
    const auto plain = readInteger(found->value);
    return plain || found->value.find('&') == found->value.npos ? plain
                                                                : readInteger(*attribute(name));
}

} // namespace keshobjects
