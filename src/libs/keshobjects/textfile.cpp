#include "keshobjects/textfile.h"

#include "keshobjects/keshtexts.h"
#include "keshobjects/numberhash.h"
#include "keshobjects/places.h"

#include <algorithm>

namespace keshobjects {
namespace {

/// Any number of items have none (-1).
template <typename Item>
bool noneHas(const std::vector<std::unique_ptr<Item>>& items, std::int32_t id,
             const Item* except) noexcept {
    return id == -1 ||
           std::none_of(items.begin(), items.end(), [&](const std::unique_ptr<Item>& item) {
               return item->id == id && item.get() != except;
           });
}

template <typename Item>
void erase(std::vector<std::unique_ptr<Item>>& items, const Item& item) {
    std::erase_if(items,
                  [&item](const std::unique_ptr<Item>& each) { return each.get() == &item; });
}

} // namespace

TextString::TextString(TextPage& itsPage) : TextObject(KESH_TEXT_STRING), page(itsPage) {}

TextPage::TextPage(TextFile& itsFile) : TextObject(KESH_TEXT_PAGE), file(itsFile) {}

TextString& TextPage::add() {
    file.forgetIndex();
    return *strings.emplace_back(std::make_unique<TextString>(*this));
}

bool TextPage::isFree(std::int32_t wanted, const TextString* except) const noexcept {
    return noneHas(strings, wanted, except);
}

TextFile::TextFile() : TextObject(KESH_TEXT_FILE) {}

std::unique_ptr<TextFile> TextFile::load(std::string_view bytes, std::string_view name) {
    DecodedText decoded;
    if (!decodeLanguageFile(bytes, name, decoded))
        return nullptr;
    std::unique_ptr<TextFile> file(new TextFile);
    file->m_name = name;
    file->m_mark = decoded.mark;
    if (decoded.text.data() == decoded.storage.data())
        file->m_source = std::move(decoded.storage);
    else
        file->m_source = decoded.text;
    return file->read() ? std::move(file) : nullptr;
}

std::unique_ptr<TextFile> TextFile::create(std::int32_t language) {
    return load("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<texts language=\"" +
                    std::to_string(language) + "\">\n</texts>\n",
                "new document");
}

bool TextFile::read() {
    using Part = LanguageReader::Part;
    LanguageReader reader(m_source, m_name);
    for (;;) {
        switch (reader.next()) {
        case Part::File:
            m_element = {reader.tag(), {}, reader.closed()};
            language = reader.number("language").value_or(0);
            break;
        case Part::Page: {
            TextPage& page = add();
            page.element = {reader.tag(), {}, reader.closed()};
            page.id = reader.number("id").value_or(-1);
            page.voice = reader.number("voice").value_or(0);
            page.title = reader.attribute("title").value_or(std::string());
            page.description = reader.attribute("description").value_or(std::string());
            break;
        }
        case Part::String:
            addString(reader);
            break;
        case Part::PageEnd:
            pages.back()->element.endTag = reader.endTag();
            break;
        case Part::FileEnd:
            m_element.endTag = reader.endTag();
            return true;
        case Part::Failed:
            return false;
        }
    }
}

void TextFile::addString(const LanguageReader& reader) {
    TextString& string = pages.back()->add();
    string.element = {reader.tag(), reader.endTag(), reader.closed()};
    string.id = reader.number("id").value_or(-1);
    string.text = reader.text();
}

TextPage& TextFile::add() {
    return *pages.emplace_back(std::make_unique<TextPage>(*this));
}

void TextFile::removeSource(const SourceElement& element) {
    if (element.isNew())
        return;
    SourceRange range = element.whole();
    while (range.begin > 0 && isBlank(m_source[range.begin - 1]))
        --range.begin;
    m_removed.push_back(range);
}

void TextFile::remove(TextPage& page) {
    forgetIndex();
    const SourceRange whole = page.element.whole();
    std::erase_if(m_removed, [&whole](const SourceRange& inside) {
        return inside.begin >= whole.begin && inside.end <= whole.end;
    });
    removeSource(page.element);
    erase(pages, page);
}

void TextFile::remove(TextString& string) {
    TextPage& page = string.page;
    page.file.forgetIndex();
    page.file.removeSource(string.element);
    erase(page.strings, string);
}

bool TextFile::isFree(std::int32_t id, const TextPage* except) const noexcept {
    return noneHas(pages, id, except);
}

const TextString* TextFile::find(std::int32_t page, std::int32_t id) const {
    if (m_index.empty())
        for (const auto& each : pages)
            for (const auto& string : each->strings)
                m_index[keyOf(each->id, string->id)] = string.get();
    const auto found = m_index.find(keyOf(page, id));
    return found == m_index.end() ? nullptr : found->second;
}

} // namespace keshobjects
