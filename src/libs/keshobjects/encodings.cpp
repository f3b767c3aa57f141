#include "keshobjects/encodings.h"

#include "keshobjects/places.h"
#include "lornfd/paths.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace keshobjects {
namespace {

using namespace std::string_view_literals;

constexpr char32_t firstSurrogate = 0xD800;
constexpr char32_t firstLowSurrogate = 0xDC00;
constexpr char32_t behindSurrogates = 0xE000;
constexpr char32_t firstAstral = 0x10000;
constexpr char32_t behindUnicode = 0x110000;

/// Windows-1252 from 0x80 to 0x9F; 0 where it has no character.
constexpr char16_t windowsCharacters[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr char32_t firstWindows = 0x80;
constexpr char32_t behindWindows = firstWindows + std::size(windowsCharacters);

constexpr unsigned char byteAt(std::string_view bytes, std::size_t at) noexcept {
    return static_cast<unsigned char>(bytes[at]);
}

void appendByte(char32_t byte, std::string& bytes) {
    bytes += static_cast<char>(static_cast<unsigned char>(byte));
}

bool isSurrogate(char32_t character) noexcept {
    return character >= firstSurrogate && character < behindSurrogates;
}

// --- UTF-8

std::optional<char32_t> takeUtf8(std::string_view& bytes) noexcept {
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000}; // by length; less is overlong
    const unsigned char first = byteAt(bytes, 0);
    const auto ones = static_cast<std::size_t>(std::countl_one(first));
    const std::size_t length = ones == 0 ? 1 : ones;
    if (ones == 1 || ones > 4 || length > bytes.size())
        return std::nullopt;
    char32_t character = first & (0xFFU >> ones);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(bytes, i) & 0xC0U) != 0x80U)
            return std::nullopt;
        character = character << 6U | (byteAt(bytes, i) & 0x3FU);
    }
    if (character < smallest[length] || character >= behindUnicode || isSurrogate(character))
        return std::nullopt;
    bytes.remove_prefix(length);
    return character;
}

bool appendUtf8(char32_t character, std::string& bytes) {
    if (character < 0x80) {
        appendByte(character, bytes);
    } else if (character < 0x800) {
        appendByte(0xC0U | character >> 6U, bytes);
        appendByte(0x80U | (character & 0x3FU), bytes);
    } else {
        if (character < firstAstral) {
            appendByte(0xE0U | character >> 12U, bytes);
        } else {
            appendByte(0xF0U | character >> 18U, bytes);
            appendByte(0x80U | (character >> 12U & 0x3FU), bytes);
        }
        appendByte(0x80U | (character >> 6U & 0x3FU), bytes);
        appendByte(0x80U | (character & 0x3FU), bytes);
    }
    return true;
}

// --- UTF-16

template <std::endian Order>
std::optional<char32_t> unitAt(std::string_view bytes, std::size_t at) noexcept {
    if (at + 2 > bytes.size())
        return std::nullopt;
    const char32_t first = byteAt(bytes, at);
    const char32_t second = byteAt(bytes, at + 1);
    return Order == std::endian::big ? first << 8U | second : second << 8U | first;
}

template <std::endian Order>
std::optional<char32_t> takeUtf16(std::string_view& bytes) noexcept {
    auto character = unitAt<Order>(bytes, 0);
    std::size_t length = 2;
    if (character && isSurrogate(*character)) {
        const auto low = unitAt<Order>(bytes, 2);
        if (*character >= firstLowSurrogate || !low || *low < firstLowSurrogate ||
            *low >= behindSurrogates)
            return std::nullopt;
        character =
            firstAstral + ((*character - firstSurrogate) << 10U) + (*low - firstLowSurrogate);
        length = 4;
    }
    bytes.remove_prefix(character ? length : 0);
    return character;
}

template <std::endian Order>
void appendUnit(char32_t unit, std::string& bytes) {
    appendByte(Order == std::endian::big ? unit >> 8U : unit, bytes);
    appendByte(Order == std::endian::big ? unit : unit >> 8U, bytes);
}

template <std::endian Order>
bool appendUtf16(char32_t character, std::string& bytes) {
    if (character < firstAstral) {
        appendUnit<Order>(character, bytes);
    } else {
        const char32_t bits = character - firstAstral;
        appendUnit<Order>(firstSurrogate + (bits >> 10U), bytes);
        appendUnit<Order>(firstLowSurrogate + (bits & 0x3FFU), bytes);
    }
    return true;
}

// --- One byte a character

/// A byte as the encoding's first `Size` characters of Unicode.
template <char32_t Size>
std::optional<char32_t> takeByte(std::string_view& bytes) noexcept {
    const char32_t character = byteAt(bytes, 0);
    if (character >= Size)
        return std::nullopt;
    bytes.remove_prefix(1);
    return character;
}

template <char32_t Size>
bool appendAsByte(char32_t character, std::string& bytes) {
    if (character >= Size)
        return false;
    appendByte(character, bytes);
    return true;
}

std::optional<char32_t> takeWindows(std::string_view& bytes) noexcept {
    char32_t character = byteAt(bytes, 0);
    if (character >= firstWindows && character < behindWindows) {
        character = windowsCharacters[character - firstWindows];
        if (character == 0)
            return std::nullopt;
    }
    bytes.remove_prefix(1);
    return character;
}

bool appendWindows(char32_t character, std::string& bytes) {
    if (character < firstWindows || (character >= behindWindows && character < 0x100)) {
        appendByte(character, bytes);
        return true;
    }
    const auto* const found = std::find(std::begin(windowsCharacters), std::end(windowsCharacters),
                                        static_cast<char16_t>(character));
    if (character >= firstAstral || character < 0x100 || found == std::end(windowsCharacters))
        return false;
    appendByte(firstWindows + static_cast<char32_t>(found - windowsCharacters), bytes);
    return true;
}

// --- Tables

constexpr Encoding utf8Encoding{KESH_XML_AS_DECLARED, true, takeUtf8, appendUtf8};
constexpr Encoding utf16Little{KESH_XML_UTF16_LITTLE, false, takeUtf16<std::endian::little>,
                               appendUtf16<std::endian::little>};
constexpr Encoding utf16Big{KESH_XML_UTF16_BIG, false, takeUtf16<std::endian::big>,
                            appendUtf16<std::endian::big>};
constexpr Encoding windows1252{KESH_XML_AS_DECLARED, true, takeWindows, appendWindows};
constexpr Encoding latin1{KESH_XML_AS_DECLARED, true, takeByte<0x100>, appendAsByte<0x100>};
constexpr Encoding ascii{KESH_XML_AS_DECLARED, true, takeByte<0x80>, appendAsByte<0x80>};

struct Name {
    std::string_view name;
    const Encoding* encoding;
};
constexpr Name names[] = {
    {"utf-8", &utf8Encoding},   {"utf8", &utf8Encoding}, {"utf-16", &utf16Little},
    {"utf-16le", &utf16Little}, {"utf-16be", &utf16Big}, {"windows-1252", &windows1252},
    {"cp1252", &windows1252},   {"iso-8859-1", &latin1}, {"latin1", &latin1},
    {"us-ascii", &ascii},       {"ascii", &ascii},
};

constexpr Signature signatures[] = {
    // by KeshXmlMark
    {{}, nullptr},
    {"\xEF\xBB\xBF"sv, &utf8Encoding},
    {"\xFF\xFE"sv, &utf16Little},
    {"\xFE\xFF"sv, &utf16Big},
};

std::string_view trimStart(std::string_view text) {
    return {std::find_if_not(text.begin(), text.end(), isBlank), text.end()};
}

} // namespace

const Encoding& utf8() noexcept {
    return utf8Encoding;
}

const Encoding* findEncoding(std::string_view name) noexcept {
    const auto* const found =
        std::find_if(std::begin(names), std::end(names), [name](const Name& candidate) {
            return lornfd::equalNoCase(candidate.name, name);
        });
    return found == std::end(names) ? nullptr : found->encoding;
}

const Signature* signatureOf(KeshXmlMark mark) noexcept {
    const auto row = static_cast<std::size_t>(mark);
    return row < std::size(signatures) ? &signatures[row] : nullptr;
}

std::string hexByte(char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return {'0', 'x', digits[value >> 4U], digits[value & 0xFU]};
}

std::string_view declaredEncoding(std::string_view text) noexcept {
    constexpr std::string_view opening = "<?xml";
    constexpr std::string_view attribute = "encoding";
    // A declaration is a line of ASCII, which has the same bytes before and behind a conversion;
    // what is longer is none.
    constexpr std::size_t most = 1000;
    const std::string_view line = text.substr(0, most);
    const auto behindAscii = std::find_if(line.begin(), line.end(),
                                          [](char c) { return static_cast<signed char>(c) < 0; });
    const std::string_view start(line.begin(), behindAscii);
    const std::string_view declaration = start.substr(0, start.find("?>"));
    const std::size_t found = declaration.find(attribute);
    if (!declaration.starts_with(opening) || declaration.size() == start.size() ||
        found == declaration.npos)
        return {};
    std::string_view rest = trimStart(declaration.substr(found + attribute.size()));
    if (!rest.starts_with('='))
        return {};
    rest = trimStart(rest.substr(1));
    if (!rest.starts_with('"') && !rest.starts_with('\''))
        return {};
    const char quote = rest.front();
    rest.remove_prefix(1);
    return rest.substr(0, rest.find(quote));
}

KeshXmlMark findMark(std::string_view bytes) noexcept {
    const auto* const found =
        std::find_if(std::begin(signatures) + 1, std::end(signatures),
                     [bytes](const Signature& row) { return bytes.starts_with(row.bytes); });
    return found == std::end(signatures) ? KESH_XML_AS_DECLARED
                                         : static_cast<KeshXmlMark>(found - signatures);
}

} // namespace keshobjects
