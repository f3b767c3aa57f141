#include "keshobjects/xmltext.h"

#include "keshobjects/encodings.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace keshobjects {
namespace {

constexpr bool isXmlCharacter(char32_t character) noexcept {
    return character == '\t' || character == '\n' || character == '\r' ||
           (character >= 0x20 && character < 0xD800) ||
           (character >= 0xE000 && character < 0xFFFE) ||
           (character >= 0x10000 && character < 0x110000);
}

/// The size of the character of XML at the start of a text that is not empty; 0 if there is none.
std::size_t characterSize(std::string_view text) noexcept {
    const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    if (byte(0) < 0x80)
        return isXmlCharacter(byte(0)) ? 1 : 0;
    // Two bytes have no exception but the overlong ones.
    if (byte(0) >= 0xC2 && byte(0) < 0xE0 && text.size() > 1 && (byte(1) & 0xC0U) == 0x80U)
        return 2;
    std::string_view rest = text;
    const auto character = utf8().take(rest);
    return character && isXmlCharacter(*character) ? text.size() - rest.size() : 0;
}

#if defined(__SSE2__)
/// What kinds of bytes stand in a piece of 64, a bit for each.
struct ByteKinds {
    std::uint64_t control = 0; ///< below the blank, but for tab and line breaks
    std::uint64_t high = 0;    ///< not ASCII
    std::uint64_t first = 0;   ///< of a character of two bytes
    std::uint64_t second = 0;  ///< the second or a later one of a character
};

ByteKinds kindsOf(const char* bytes) noexcept {
    const auto below = [](__m128i block, char first, char count) {
        const __m128i shifted = _mm_sub_epi8(block, _mm_set1_epi8(first));
        return _mm_cmpeq_epi8(_mm_min_epu8(shifted, _mm_set1_epi8(count)), shifted);
    };
    const auto is = [](__m128i block, char c) { return _mm_cmpeq_epi8(block, _mm_set1_epi8(c)); };
    const auto bits = [](__m128i found) {
        return std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(found))};
    };
    constexpr unsigned block = 16;
    ByteKinds kinds;
    for (unsigned at = 0; at < 4 * block; at += block) {
        const __m128i read = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at));
        const __m128i allowed =
            _mm_or_si128(is(read, '\t'), _mm_or_si128(is(read, '\n'), is(read, '\r')));
        kinds.control |= bits(_mm_andnot_si128(allowed, below(read, 0, 0x1F))) << at;
        kinds.high |= bits(read) << at;
        kinds.first |= bits(below(read, '\xC2', '\x1D')) << at;
        kinds.second |= bits(below(read, '\x80', '\x3F')) << at;
    }
    return kinds;
}
#endif

/// Passes what is quickly seen to be characters of XML, from a place where one begins to another:
/// those of one byte and of two, which have no exception but the overlong ones.
std::size_t passQuickly(std::string_view text, std::size_t at) noexcept {
#if defined(__SSE2__)
    constexpr std::size_t piece = 64;
    std::uint64_t open = 0; ///< 1 if a character's first byte was the last of the piece before
    for (; at + piece <= text.size(); at += piece) {
        const ByteKinds kinds = kindsOf(text.data() + at);
        const std::uint64_t wrong = kinds.control | (kinds.high ^ (kinds.first | kinds.second)) |
                                    (kinds.second ^ (kinds.first << 1U | open));
        if (wrong != 0)
            break;
        open = kinds.first >> (piece - 1);
    }
    at -= open;
#else
    static_cast<void>(text);
#endif
    return at;
}

struct Named {
    std::string_view name;
    char character;
};
constexpr Named namedReferences[] = {
    {"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}, {"apos;", '\''}};

/// Takes the reference off a text that begins behind its "&".
std::optional<char32_t> takeReference(std::string_view& text) noexcept {
    if (!text.starts_with('#')) {
        for (const Named& named : namedReferences)
            if (text.starts_with(named.name)) {
                text.remove_prefix(named.name.size());
                return static_cast<char32_t>(named.character);
            }
        return std::nullopt;
    }
    const bool hexadecimal = text.starts_with("#x");
    const char* const end = text.data() + text.size();
    std::uint32_t character = 0;
    const auto [stop, error] =
        std::from_chars(text.data() + (hexadecimal ? 2 : 1), end, character, hexadecimal ? 16 : 10);
    if (error != std::errc() || stop == end || *stop != ';' || !isXmlCharacter(character))
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(stop + 1 - text.data()));
    return character;
}

/// Appends a text as XML reads it, with `lineBreak` for each line break and `tab` for each tab.
void appendRead(std::string_view text, std::string_view special, char lineBreak, char tab,
                std::string& read) {
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find_first_of(special), text.size());
        read += text.substr(0, plain);
        if (plain == text.size())
            return;
        const char found = text[plain];
        text.remove_prefix(plain + 1);
        if (found == '&') {
            if (const auto character = takeReference(text))
                utf8().append(*character, read);
        } else if (found == '\t') {
            read += tab;
        } else {
            if (found == '\r' && text.starts_with('\n'))
                text.remove_prefix(1);
            read += lineBreak;
        }
    }
}

struct Escape {
    char character;
    std::string_view written;
};
// The carriage return and, in attributes, tab and line break would be read as something else.
constexpr Escape escapes[] = {{'&', "&amp;"},  {'<', "&lt;"},   {'>', "&gt;"}, {'\r', "&#13;"},
                              {'"', "&quot;"}, {'\n', "&#10;"}, {'\t', "&#9;"}};

void write(std::string_view text, std::string_view special, std::string& written) {
    for (const char c : text) {
        if (special.find(c) == special.npos)
            written += c;
        else
            written += std::find_if(std::begin(escapes), std::end(escapes), [c](const Escape& row) {
                           return row.character == c;
                       })->written;
    }
}

} // namespace

TextEnd findTextEnd(std::string_view text, std::size_t at) noexcept {
    bool asItReads = true;
#if defined(__SSE2__)
    constexpr std::size_t block = 16;
    for (; at + block <= text.size(); at += block) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + at));
        const auto where = [bytes](char c) {
            return static_cast<std::uint32_t>(
                _mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(c))));
        };
        const std::uint32_t ends = where('<');
        const std::uint32_t special = where('&') | where('\r');
        // Only what stands before the first end counts.
        asItReads = asItReads && (special & (ends - 1) & ~ends) == 0;
        if (ends != 0)
            return {at + static_cast<std::size_t>(std::countr_zero(ends)), asItReads};
    }
#endif
    for (; at < text.size() && text[at] != '<'; ++at)
        asItReads = asItReads && text[at] != '&' && text[at] != '\r';
    return {at, asItReads};
}

std::size_t findNoXmlCharacter(std::string_view text) noexcept {
    constexpr std::size_t slowly = 64;
    for (std::size_t at = passQuickly(text, 0); at < text.size(); at = passQuickly(text, at))
        for (const std::size_t end = std::min(at + slowly, text.size()); at < end;) {
            const std::size_t size = characterSize(text.substr(at));
            if (size == 0)
                return at;
            at += size;
        }
    return text.npos;
}

std::size_t findBadReference(std::string_view text) noexcept {
    for (std::size_t at = text.find('&'); at != text.npos; at = text.find('&', at + 1)) {
        std::string_view rest = text.substr(at + 1);
        if (!takeReference(rest))
            return at;
    }
    return text.npos;
}

void appendXmlContent(std::string_view text, std::string& read) {
    appendRead(text, "&\r", '\n', '\t', read);
}

void appendXmlCData(std::string_view text, std::string& read) {
    appendRead(text, "\r", '\n', '\t', read);
}

void appendXmlAttribute(std::string_view text, std::string& read) {
    appendRead(text, "&\r\n\t", ' ', ' ', read);
}

void writeXmlContent(std::string_view text, std::string& written) {
    write(text, "&<>\r", written);
}

void writeXmlAttribute(std::string_view text, std::string& written) {
    write(text, "&<>\r\"\n\t", written);
}

} // namespace keshobjects
