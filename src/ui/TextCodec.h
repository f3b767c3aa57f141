// Between the 8-bit texts of the data and the screen.
//
// Data keep their bytes. Shown, bytes are UTF-8 where they are valid UTF-8, otherwise Windows-1252;
// what a user types goes back in the encoding of its file.
#pragma once

#include <QtCore>

#include <optional>
#include <string>
#include <string_view>

enum class TextEncoding { Windows1252, Utf8 };

QString ToScreen(std::string_view Bytes);
/// Nothing if a character of the text has no place in the encoding.
std::optional<std::string> FromScreen(const QString& Text, TextEncoding Encoding);

/// Finds the encoding of a file piece by piece; no piece may end inside a character.
class EncodingGuess {
public:
    void Add(std::string_view Bytes);
    /// Settled for good: something that is not UTF-8 was seen.
    [[nodiscard]] bool Decided() const noexcept { return !m_utf8; }
    /// UTF-8 if all was valid and not all of it ASCII.
    [[nodiscard]] TextEncoding Result() const noexcept {
        return m_utf8 && m_beyondAscii ? TextEncoding::Utf8 : TextEncoding::Windows1252;
    }

private:
    bool m_utf8 = true;
    bool m_beyondAscii = false;
};
