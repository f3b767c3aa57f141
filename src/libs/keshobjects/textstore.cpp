#include "keshobjects/textstore.h"

#include "keshobjects/errors.h"

#include <algorithm>
#include <bit>

namespace keshobjects {

// --- Arena

const char* TextArena::keep(std::string_view text) {
    char* to = nullptr;
    if (text.size() > blockSize / 8) {
        to = m_large.emplace_back(makeBigArray<char>(text.size())).get();
        ++m_now.large;
    } else {
        if (text.size() > m_now.left) {
            if (m_now.blocks == m_blocks.size())
                m_blocks.push_back(makeBigArray<char>(blockSize));
            m_now.free = m_blocks[m_now.blocks++].get();
            m_now.left = blockSize;
        }
        to = m_now.free;
        m_now.free += text.size();
        m_now.left -= text.size();
    }
    std::copy(text.begin(), text.end(), to);
    return to;
}

void TextArena::goBack(const Mark& mark) noexcept {
    m_now = mark;
    m_large.resize(mark.large);
}

// --- Store

namespace {
std::uint64_t pageKey(std::int32_t page) noexcept {
    return keyOf(page, 0);
}
} // namespace

bool TextStore::load(std::string_view bytes, std::string_view file) {
    DecodedText decoded;
    if (!decodeLanguageFile(bytes, file, decoded))
        return false;
    LanguageReader reader(decoded.text, file);
    const TextArena::Mark mark = m_texts.mark();
    const std::uint32_t from = m_size;
    try {
        std::vector<NewPage> pages;
        if (read(reader, pages)) {
            reserve(m_size);
            merge(from, pages);
            return true;
        }
    } catch (...) {
        m_size = from;
        m_texts.goBack(mark);
        throw;
    }
    m_size = from;
    m_texts.goBack(mark);
    return false;
}

void TextStore::clear() {
    m_texts.clear();
    m_size = 0;
    std::fill(m_slots.begin(), m_slots.end(), Slot());
    m_pages.clear();
    m_pageById.clear();
    resolving = false;
}

bool TextStore::read(LanguageReader& reader, std::vector<NewPage>& pages) {
    using Part = LanguageReader::Part;
    std::optional<std::int32_t> page;
    for (;;) {
        switch (reader.next()) {
        case Part::Page:
            page = reader.number("id");
            if (page)
                pages.push_back({*page, reader.number("voice"), reader.attribute("title"),
                                 reader.attribute("description")});
            break;
        case Part::String:
            if (const auto id = reader.number("id"); id && page)
                append(*page, *id, reader.text());
            break;
        case Part::FileEnd:
            return true;
        case Part::Failed:
            return false;
        default:
            break;
        }
    }
}

void TextStore::append(std::int32_t page, std::int32_t id, std::string_view text) {
    if (m_size / chunkSize == m_strings.size())
        m_strings.push_back(makeBigArray<StoredString>(chunkSize));
    at(m_size) = {m_texts.keep(text), static_cast<std::uint32_t>(text.size()), id, page, 0};
    ++m_size;
}

void TextStore::reserve(std::size_t strings) {
    const std::size_t wanted = std::bit_ceil(strings + strings / 2);
    if (wanted <= m_slots.size())
        return;
    Slots(wanted).swap(m_slots);
    m_shift = 64U - static_cast<unsigned>(std::countr_zero(wanted));
    for (const StoredPage& page : m_pages)
        for (std::uint32_t position = page.first, i = 0; i < page.count; ++i) {
            const StoredString& string = at(position);
            m_slots[slotOf(string.page, string.id)] = {string.page, string.id, position + 1};
            position = string.next;
        }
}

/// Puts the strings read since `from` into table and pages. One that was there takes the new text.
void TextStore::merge(std::uint32_t from, const std::vector<NewPage>& pages) {
    m_pages.reserve(m_pages.size() + pages.size());
    for (const NewPage& page : pages)
        mergePage(page);
    const std::uint32_t end = m_size;
    StoredPage* current = nullptr;
    m_size = from;
    for (std::uint32_t i = from; i < end; ++i) {
        const StoredString read = at(i);
        Slot& slot = m_slots[slotOf(read.page, read.id)];
        if (slot.behind != 0) {
            StoredString& known = at(slot.behind - 1);
            known.bytes = read.bytes;
            known.size = read.size;
            continue;
        }
        at(m_size) = read;
        if (current == nullptr || current->id != read.page)
            current = &m_pages[m_pageById.find(pageKey(read.page))->second];
        link(m_size, *current);
        slot = {read.page, read.id, ++m_size};
    }
}

void TextStore::mergePage(const NewPage& page) {
    const auto [known, isNew] =
        m_pageById.try_emplace(pageKey(page.id), static_cast<std::uint32_t>(m_pages.size()));
    if (isNew)
        m_pages.emplace_back().id = page.id;
    StoredPage& merged = m_pages[known->second];
    merged.voice = page.voice.value_or(merged.voice);
    merged.title = page.title.value_or(merged.title);
    merged.description = page.description.value_or(merged.description);
}

void TextStore::link(std::uint32_t position, StoredPage& page) {
    if (page.count++ == 0)
        page.first = position;
    else
        at(page.last).next = position;
    page.last = position;
}

} // namespace keshobjects
