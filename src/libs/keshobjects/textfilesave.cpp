// What a changed language file is saved as: its source with edits.

#include "keshobjects/places.h"
#include "keshobjects/textfile.h"
#include "keshobjects/value.h"
#include "keshobjects/xmltext.h"

#include <algorithm>
#include <optional>

namespace keshobjects {
namespace {

/// What an attribute is to say. One that is not there, or no number, says the same as `absent`.
struct Wanted {
    std::string_view name;
    std::string value;
    std::optional<std::int32_t> absent; ///< of a number

    [[nodiscard]] bool saysTheSame(const std::string& other) const {
        return absent ? readInteger(other).value_or(*absent) == readInteger(value) : other == value;
    }
};

Wanted wantedNumber(std::string_view name, std::int32_t number, std::int32_t absent) {
    return {name, std::to_string(number), absent};
}

std::vector<Wanted> attributesOf(const TextPage& page) {
    return {wantedNumber("id", page.id, -1),
            {"title", page.title, {}},
            {"description", page.description, {}},
            wantedNumber("voice", page.voice, 0)};
}

std::vector<Wanted> attributesOf(const TextString& string) {
    return {wantedNumber("id", string.id, -1)};
}

std::string quoted(std::string_view value) {
    std::string text(1, '"');
    writeXmlAttribute(value, text);
    return text + '"';
}

std::string spelled(const Wanted& attribute) {
    return ' ' + std::string(attribute.name) + '=' + quoted(attribute.value);
}

std::string newTag(std::string_view name, const std::vector<Wanted>& attributes) {
    std::string tag = '<' + std::string(name);
    for (const Wanted& attribute : attributes)
        if (attribute.name != "id" || !attribute.saysTheSame({}))
            tag += spelled(attribute);
    return tag + '>';
}

/// White space from its last line break on; all of it if there is none.
std::string_view fromLineBreak(std::string_view blanks) {
    const std::size_t end = blanks.find_last_of("\r\n");
    if (end == blanks.npos)
        return blanks;
    const bool pair = end > 0 && blanks[end] == '\n' && blanks[end - 1] == '\r';
    return blanks.substr(pair ? end - 1 : end);
}

bool hasLineBreak(std::string_view blanks) {
    return blanks.find_first_of("\r\n") != blanks.npos;
}

} // namespace

/// Collects what changes in a file's source.
class SourceEdits {
public:
    explicit SourceEdits(const TextFile& file) : m_file(file), m_source(file.m_source) {}

    std::string apply() {
        collect();
        std::stable_sort(m_edits.begin(), m_edits.end(), [](const Edit& a, const Edit& b) {
            return std::pair(a.range.begin, a.range.end) < std::pair(b.range.begin, b.range.end);
        });
        std::string written;
        written.reserve(m_source.size());
        std::size_t done = 0;
        for (const Edit& edit : m_edits) {
            written += m_source.substr(done, edit.range.begin - done);
            written += edit.text;
            done = edit.range.end;
        }
        written += m_source.substr(done);
        return written;
    }

private:
    struct Edit {
        SourceRange range;
        std::string text;
    };

    void collect() {
        findLeads();
        for (const SourceRange& range : m_file.m_removed)
            m_edits.push_back({range, {}});
        if (m_file.changed)
            editTag(m_file.m_element, {wantedNumber("language", m_file.language, 0)});
        std::string added;
        for (const auto& page : m_file.pages)
            if (page->element.isNew())
                added += newPage(*page);
            else
                editPage(*page);
        addContent(m_file.m_element, "texts", std::move(added), rootLead());
    }

    void editPage(const TextPage& page) {
        if (page.changed)
            editTag(page.element, attributesOf(page));
        const std::string lead = leadOfLast(page.strings).value_or(m_stringLead);
        std::string added;
        for (const auto& string : page.strings)
            if (string->element.isNew())
                added += newString(*string, lead);
            else if (string->changed)
                editString(*string);
        addContent(page.element, "page", std::move(added), m_pageLead);
    }

    void editString(const TextString& string) {
        const SourceElement& element = string.element;
        editTag(element, attributesOf(string));
        if (textOfElement(sourceOf(element.whole())) == string.text)
            return;
        std::string text;
        writeXmlContent(string.text, text);
        if (element.closed)
            open(element, "string", text);
        else
            m_edits.push_back({element.content(), std::move(text)});
    }

    /// Changes the attributes that say something else than they are to say.
    void editTag(const SourceElement& element, const std::vector<Wanted>& wanted) {
        XmlReader xml(sourceOf(element.tag));
        xml.next();
        const auto offsetOf = [this](const char* at) {
            return static_cast<std::size_t>(at - m_source.data());
        };
        std::size_t end = offsetOf(xml.name().data() + xml.name().size());
        if (!xml.attributes().empty()) {
            const std::string_view last = xml.attributes().back().value;
            end = offsetOf(last.data() + last.size()) + 1;
        }
        for (const Wanted& attribute : wanted) {
            std::string read;
            const auto& there = xml.attributes();
            const auto found =
                std::find_if(there.begin(), there.end(), [&](const XmlReader::Attribute& each) {
                    return each.name == attribute.name;
                });
            if (found != there.end())
                appendXmlAttribute(found->value, read);
            if (attribute.saysTheSame(read))
                continue;
            if (found == there.end()) {
                m_edits.push_back({{end, end}, spelled(attribute)});
                continue;
            }
            const std::size_t value = offsetOf(found->value.data());
            m_edits.push_back(
                {{value - 1, value + found->value.size() + 1}, quoted(attribute.value)});
        }
    }

    /// `<page/>` with content in it.
    void open(const SourceElement& element, const std::string& name, const std::string& content) {
        std::size_t end = element.tag.end - 2;
        while (isBlank(m_source[end - 1]))
            --end;
        m_edits.push_back({{end, element.tag.end}, '>' + content + "</" + name + '>'});
    }

    /// Puts new elements behind everything else in an element; where they are its first content,
    /// the end tag goes to a line like that of the start tag.
    void addContent(const SourceElement& element, const std::string& name, std::string added,
                    std::string_view lead) {
        if (added.empty())
            return;
        const std::string_view before = sourceOf(element.content());
        if (before.empty() && hasLineBreak(added.substr(0, added.find('<'))))
            added += hasLineBreak(lead) ? std::string(lead) : lineBreak() + std::string(lead);
        if (element.closed) {
            open(element, name, added);
            return;
        }
        std::size_t end = element.endTag.begin;
        while (end > element.tag.end && isBlank(m_source[end - 1]))
            --end;
        m_edits.push_back({{end, end}, std::move(added)});
    }

    [[nodiscard]] std::string newPage(const TextPage& page) const {
        std::string text = m_pageLead + newTag("page", attributesOf(page));
        for (const auto& string : page.strings)
            text += newString(*string, m_stringLead);
        return text + m_pageLead + "</page>";
    }

    [[nodiscard]] static std::string newString(const TextString& string, const std::string& lead) {
        std::string text = lead + newTag("string", attributesOf(string));
        writeXmlContent(string.text, text);
        return text + "</string>";
    }

    // --- Line breaks and indentation in front of elements

    [[nodiscard]] std::string_view sourceOf(SourceRange range) const {
        return m_source.substr(range.begin, range.size());
    }

    [[nodiscard]] std::string_view leadAt(std::size_t place) const {
        std::size_t begin = place;
        while (begin > 0 && isBlank(m_source[begin - 1]))
            --begin;
        return fromLineBreak(m_source.substr(begin, place - begin));
    }

    /// In front of the last element of a list that stands in the source.
    template <typename Items>
    [[nodiscard]] std::optional<std::string> leadOfLast(const Items& items) const {
        const auto last = std::find_if(items.rbegin(), items.rend(),
                                       [](const auto& item) { return !item->element.isNew(); });
        return last == items.rend()
                   ? std::nullopt
                   : std::optional<std::string>(leadAt((*last)->element.tag.begin));
    }

    [[nodiscard]] std::string lineBreak() const {
        const std::size_t found = m_source.find_first_of("\r\n");
        if (found == m_source.npos)
            return "\n";
        const bool pair = m_source[found] == '\r' && m_source.substr(found + 1).starts_with('\n');
        return pair ? "\r\n" : std::string(1, m_source[found]);
    }

    [[nodiscard]] std::string_view rootLead() const { return leadAt(m_file.m_element.tag.begin); }

    /// What new pages and strings get where there are no old ones beside them.
    void findLeads() {
        const std::string root(rootLead());
        const auto deeper = [](const std::string& lead) {
            return hasLineBreak(lead) ? lead + ' ' : lead;
        };
        m_pageLead =
            leadOfLast(m_file.pages)
                .value_or(deeper(
                    hasLineBreak(root) || !hasLineBreak(m_source) ? root : lineBreak() + root));
        std::optional<std::string> lead;
        for (auto page = m_file.pages.rbegin(); page != m_file.pages.rend() && !lead; ++page)
            lead = leadOfLast((*page)->strings);
        m_stringLead = lead.value_or(deeper(m_pageLead));
    }

    const TextFile& m_file;
    const std::string_view m_source;
    std::vector<Edit> m_edits;
    std::string m_pageLead;
    std::string m_stringLead;
};

std::string TextFile::written() const {
    return SourceEdits(*this).apply();
}

} // namespace keshobjects
