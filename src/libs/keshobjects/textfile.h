// A language file that can be changed: its source text, its pages and strings with their places
// there, and the changes. Saving copies what nobody touched from the source.
#pragma once

#include "keshobjects/languagereader.h"
#include "keshobjects/numberhash.h"
#include "keshobjects/textobjects.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace keshobjects {

/// Where an element stands in the source; of a new one the tag is empty.
struct SourceElement {
    SourceRange tag;
    SourceRange endTag; ///< empty if the tag is closed (`<page/>`)
    bool closed = false;

    [[nodiscard]] bool isNew() const noexcept { return tag.size() == 0; }
    [[nodiscard]] SourceRange whole() const noexcept {
        return {tag.begin, closed ? tag.end : endTag.end};
    }
    [[nodiscard]] SourceRange content() const noexcept {
        return {tag.end, closed ? tag.end : endTag.begin};
    }
};

class TextFile;
class TextPage;

class TextString : public TextObject {
public:
    explicit TextString(TextPage& itsPage);

    TextPage& page;
    SourceElement element;
    bool changed = false;
    std::int32_t id = -1;
    std::string text;
};

class TextPage : public TextObject {
public:
    explicit TextPage(TextFile& itsFile);
    TextString& add();
    /// False if another string than this has the id.
    [[nodiscard]] bool isFree(std::int32_t id, const TextString* except) const noexcept;

    TextFile& file;
    SourceElement element;
    bool changed = false;
    std::int32_t id = -1;
    std::int32_t voice = 0;
    std::string title;
    std::string description;
    std::vector<std::unique_ptr<TextString>> strings;
};

class TextFile : public TextObject {
public:
    /// Null with the last error set if the bytes are no language file.
    static std::unique_ptr<TextFile> load(std::string_view bytes, std::string_view name);
    static std::unique_ptr<TextFile> create(std::int32_t language);

    TextPage& add();
    void remove(TextPage& page);
    static void remove(TextString& string);
    [[nodiscard]] bool isFree(std::int32_t id, const TextPage* except) const noexcept;
    /// The last with that page and id; null if there is none.
    [[nodiscard]] const TextString* find(std::int32_t page, std::int32_t id) const;
    /// To be called when an id changes, and strings come or go.
    void forgetIndex() noexcept { m_index.clear(); }

    /// The file with its changes, as UTF-8.
    [[nodiscard]] std::string written() const;
    [[nodiscard]] KeshXmlMark mark() const noexcept { return m_mark; }
    [[nodiscard]] const std::string& name() const noexcept { return m_name; }

    std::int32_t language = 0;
    bool changed = false; ///< the language
    std::vector<std::unique_ptr<TextPage>> pages;

private:
    friend class SourceEdits;
    TextFile();
    bool read();
    void addString(const LanguageReader& reader);
    void removeSource(const SourceElement& element);

    std::string m_source;
    KeshXmlMark m_mark = KESH_XML_AS_DECLARED;
    std::string m_name;
    SourceElement m_element;
    std::vector<SourceRange> m_removed; ///< with the white space in front
    mutable std::unordered_map<std::uint64_t, const TextString*, NumberHash> m_index;
};

} // namespace keshobjects
