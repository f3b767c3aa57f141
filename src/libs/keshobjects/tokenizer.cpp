#include "keshobjects/tokenizer.h"

#include "keshobjects/lines.h"
#include "keshobjects/places.h"
#include "keshobjects/scan.h"

#include <algorithm>
#include <cstring>

namespace keshobjects {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isLineBreak(char c) noexcept {
    return c == '\r' || c == '\n';
}

bool startsRemark(const char* at) noexcept {
    return at[0] == '/' && (at[1] == '/' || at[1] == '*');
}

} // namespace

std::unique_ptr<Tokenizer> Tokenizer::create(std::size_t size, std::string name, bool remarks) {
    auto made = std::make_unique<Tokenizer>();
    made->m_begin.reset(static_cast<char*>(allocateBig(size + textSlack)));
    if (made->m_begin == nullptr)
        return nullptr;
    made->m_size = size;
    made->m_name = std::move(name);
    made->m_remarks = remarks;
    std::memset(made->m_begin.get() + size, 0, textSlack);
    return made;
}

std::size_t Tokenizer::markSize() const noexcept {
    return text().starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
}

void Tokenizer::start() noexcept {
    m_at = data() + markSize();
}

bool Tokenizer::looksLikeXml() const noexcept {
    const std::string_view behindMark = text().substr(markSize());
    const auto first = std::find_if_not(behindMark.begin(), behindMark.end(), isBlank);
    return first != behindMark.end() && *first == '<';
}

std::size_t Tokenizer::offset(const char* at) const noexcept {
    return static_cast<std::size_t>(at - m_begin.get());
}

std::string Tokenizer::describe(std::size_t place) const {
    return describeLine(text().substr(0, place));
}

std::nullptr_t Tokenizer::fail(KeshObjectsError code, const char* at) noexcept {
    m_failure = {code, offset(at)};
    return nullptr;
}

char* Tokenizer::endOfRemark(char* from) {
    const std::string_view rest(from, static_cast<std::size_t>(end() - from));
    if (from[1] == '/')
        return std::find_if(from, end(), isLineBreak);
    const std::size_t close = rest.find("*/", 2);
    return close == rest.npos ? fail(KESH_E_REMARK, from) : from + close + 2;
}

char* Tokenizer::skipBlanks(char* from) {
    while (from != nullptr)
        if (isBlank(*from))
            ++from;
        else if (m_remarks && startsRemark(from))
            from = endOfRemark(from);
        else
            break;
    return from;
}

/// The ";" (or ",") behind the value that starts at `from`, or the end of the text.
char* Tokenizer::endOfValue(char* from, Stop stop) {
    if (!m_remarks)
        return std::find(from, end(), ';');
    if (stop == Stop::AtListSeparator)
        return dropRemarks(from, stop);
    char* const to = std::find_if(from, end(), [](char c) { return c == ';' || c == '/'; });
    return to == end() || *to == ';' ? to : dropRemarks(to, stop);
}

/// As endOfValue, and closes the value up over the remarks inside it, so that it reads as its
/// spelling alone. What comes free before the end gets blanks, and as many line breaks as the
/// remarks had.
char* Tokenizer::dropRemarks(char* from, Stop stop) {
    char* to = from;
    char* behind = from;
    std::ptrdiff_t lines = 0;
    while (from != end() && *from != ';' && !(*from == ',' && stop == Stop::AtListSeparator)) {
        if (!startsRemark(from)) {
            *to++ = *from++;
            continue;
        }
        behind = endOfRemark(from);
        if (behind == nullptr)
            break;
        lines += countLineBreaks({from, behind});
        from = behind;
    }
    std::fill(to, from - lines, ' ');
    std::fill(from - lines, from, '\n');
    return behind == nullptr ? nullptr : from;
}

void Tokenizer::stepOver(char* endOfValue) noexcept {
    m_behindValue = endOfValue != end();
    m_at = endOfValue + (m_behindValue ? 1 : 0);
}

void Tokenizer::stepBack(KeshPlace place) noexcept {
    m_at = data() + place;
    m_behindValue = false;
}

std::optional<KeshPlace> Tokenizer::value() {
    KeshPlace place;
    bool written = true;
    return values(1, &place, written) == 1 ? std::optional(place) : std::nullopt;
}

std::int64_t Tokenizer::values(std::int64_t count, KeshPlace* places, bool& written) {
    for (std::int64_t read = 0; read < count; ++read) {
        const char* at = m_at;
        const std::int64_t run = cutRun(data(), at, count - read, places + read);
        if (run > 0) {
            m_at += at - m_at;
            m_behindValue = true;
            read += run;
        }
        if (read < count && !oddValue(places[read], read == 0, written))
            return read;
    }
    return std::max<std::int64_t>(count, 0);
}

bool Tokenizer::oddValue(KeshPlace& place, bool first, bool& written) {
    char* const from = skipBlanks(m_at);
    char* const to = from == nullptr ? nullptr : endOfValue(from, Stop::AtEndSign);
    if (to == nullptr)
        return false;
    if (to == end() && from == to) {
        fail(KESH_E_END, from);
        return false;
    }
    const bool blankBefore = !first && from != m_at;
    const bool blankBehind = to != from && isBlank(to[-1]);
    written = written && !blankBefore && !blankBehind && to != end();
    place = static_cast<KeshPlace>(offset(from));
    stepOver(to);
    return true;
}

std::optional<KeshPlace> Tokenizer::raw() {
    if (!atRawToken()) {
        fail(m_remarks ? KESH_E_ARGUMENT : KESH_E_END, m_at);
        return std::nullopt;
    }
    return static_cast<KeshPlace>(offset(m_at));
}

std::optional<std::int32_t> Tokenizer::tokenType() {
    if (atRawToken())
        return KESH_TOKEN_VALUE;
    char* const at = skipBlanks(m_at);
    if (at == nullptr)
        return std::nullopt;
    m_at = at;
    if (at == end())
        return KESH_TOKEN_END;
    return *at == ',' && m_remarks ? KESH_TOKEN_LIST_SEPARATOR : KESH_TOKEN_VALUE;
}

/// The end of the token at the read position, which stands at its first character.
char* Tokenizer::endOfToken(std::int32_t type) {
    switch (type) {
    case KESH_TOKEN_END:
        return fail(KESH_E_END, m_at);
    case KESH_TOKEN_LIST_SEPARATOR:
        return m_at + 1;
    default:
        return atRawToken() ? std::find_if(m_at, end(), isLineBreak)
                            : endOfValue(m_at, Stop::AtListSeparator);
    }
}

std::optional<std::string_view> Tokenizer::token() {
    const auto type = tokenType();
    const char* const to = type ? endOfToken(*type) : nullptr;
    if (to == nullptr)
        return std::nullopt;
    const std::string_view spelling(m_at, to);
    return atRawToken() ? spelling : trimEnd(spelling);
}

bool Tokenizer::advance() {
    const auto type = tokenType();
    char* const to = type ? endOfToken(*type) : nullptr;
    if (to == nullptr)
        return false;
    if (atRawToken()) {
        m_at = behindLineBreak(to);
        m_behindValue = false;
    } else if (type == KESH_TOKEN_VALUE && *to != ',') {
        stepOver(to);
    } else {
        m_at = to;
    }
    return true;
}

char* Tokenizer::behindLineBreak(char* at) const noexcept {
    const auto rest = std::string_view(at, end());
    return at + (rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest.size(), 1));
}

} // namespace keshobjects
