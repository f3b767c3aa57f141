// Encodings of XML files: bytes to characters and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace keshobjects {

struct Encoding {
    std::string_view mark; ///< byte order mark that is written; empty for none
    bool holdsAscii;       ///< bytes below 128 are these characters, each in one byte
    /// Takes the first character off `bytes`, which is not empty; none if they are not one.
    std::optional<char32_t> (*take)(std::string_view& bytes) noexcept;
    /// Appends a character; false if the encoding lacks it.
    bool (*append)(char32_t character, std::string& bytes);
};

/// What a text begins with, where that tells its encoding; `mark` is to be skipped.
struct Signature {
    std::string_view mark;
    const Encoding* encoding; ///< null if the beginning tells nothing
};

[[nodiscard]] const Encoding& utf8() noexcept;
/// By its name in a declaration, without regard to case; null if it is not known.
[[nodiscard]] const Encoding* findEncoding(std::string_view name) noexcept;
[[nodiscard]] Signature findSignature(std::string_view bytes) noexcept;

} // namespace keshobjects
