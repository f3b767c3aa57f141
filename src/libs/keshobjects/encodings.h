// Encodings of XML files: bytes to characters and back.
#pragma once

#include "keshobjects/keshobjects.h"

#include <optional>
#include <string>
#include <string_view>

namespace keshobjects {

struct Encoding {
    KeshXmlMark mark; ///< that it cannot be read without
    bool holdsAscii;  ///< bytes below 128 are these characters, each in one byte
    /// Takes the first character off `bytes`, which is not empty; none if they are not one.
    std::optional<char32_t> (*take)(std::string_view& bytes) noexcept;
    /// Appends a character; false if the encoding lacks it.
    bool (*append)(char32_t character, std::string& bytes);
};

/// The bytes of a mark, and the encoding that they tell.
struct Signature {
    std::string_view bytes;
    const Encoding* encoding; ///< null for KESH_XML_AS_DECLARED
};

[[nodiscard]] const Encoding& utf8() noexcept;
/// By its name in a declaration, without regard to case; null if it is not known.
[[nodiscard]] const Encoding* findEncoding(std::string_view name) noexcept;
/// The encoding's name in the XML declaration at the start of a text; empty if there is none.
[[nodiscard]] std::string_view declaredEncoding(std::string_view text) noexcept;
/// Null for a number that is no mark.
[[nodiscard]] const Signature* signatureOf(KeshXmlMark mark) noexcept;
/// "0xE4", for messages.
[[nodiscard]] std::string hexByte(char byte);
/// What a file begins with.
[[nodiscard]] KeshXmlMark findMark(std::string_view bytes) noexcept;

} // namespace keshobjects
