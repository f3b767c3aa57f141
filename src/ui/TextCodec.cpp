#include "ui/TextCodec.h"

#include <algorithm>
#include <array>

namespace {

/// Characters 0x80 to 0x9F of Windows-1252; the five unused ones stand for themselves.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isUtf8(std::string_view bytes) {
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

bool isAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QString fromWindows1252(std::string_view bytes) {
    QString text = QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (QChar& c : text)
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0)
            c = QChar(upperControls[c.unicode() - 0x80U]);
    return text;
}

std::optional<char> toWindows1252(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    const auto at = std::find(upperControls.begin(), upperControls.end(), c);
    if (at == upperControls.end())
        return {};
    return static_cast<char>(0x80 + (at - upperControls.begin()));
}

} // namespace

QString ToScreen(std::string_view Bytes) {
    if (isUtf8(Bytes))
        return QString::fromUtf8(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
    return fromWindows1252(Bytes);
}

std::optional<std::string> FromScreen(const QString& Text, TextEncoding Encoding) {
    if (!Text.isValidUtf16())
        return {};
    if (Encoding == TextEncoding::Utf8)
        return Text.toStdString();
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(Text.size()));
    for (const QChar c : Text) {
        const auto byte = toWindows1252(c.unicode());
        if (!byte)
            return {};
        bytes.push_back(*byte);
    }
    return bytes;
}

void EncodingGuess::Add(std::string_view Bytes) {
    if (!m_utf8 || isAscii(Bytes))
        return;
    m_beyondAscii = true;
    m_utf8 = isUtf8(Bytes);
}
