// T-file texts, XML texts and command lines.
//
// C-style face: text handles are positive 32-bit numbers, 0 is failure, nothing is thrown,
// Kesh_GetLastError tells why (file, and line or offset). Formats: docs/formats.md, "T text", "Jobs
// mode", "XML files".
#pragma once

#include "keshobjects/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

enum KeshObjectsError : std::int32_t {
    KESH_OK = 0,
    KESH_E_READ = 1,  ///< the file driver failed; the reason is its own
    KESH_E_WRITE,     ///< the same while writing
    KESH_E_END,       ///< reading at the end of the text
    KESH_E_NOT_WHOLE, ///< a value is not a whole number in 32 bits
    KESH_E_REMARK,    ///< a remark that never ends
    KESH_E_NUL,       ///< a NUL character in a text
    KESH_E_TOO_BIG,   ///< a text of 4 GB or more
    KESH_E_ENCODING,  ///< an encoding that is not known
    KESH_E_DECODE,    ///< bytes that the declared encoding does not have
    KESH_E_NOT_FOUND, ///< a "vfs://" name that is nowhere
    KESH_E_HANDLE,
    KESH_E_ARGUMENT,
    KESH_E_LANGUAGE_FILE, ///< not a language file, or a broken one
    KESH_E_ID_TAKEN,      ///< another page or string there has the id
    KESH_E_CHARACTER,     ///< a character that XML cannot hold, or bytes that are not UTF-8
};

// Container types (Kesh_GetObjectType)
inline constexpr std::int32_t KESH_TYPE_XML_TEXT = 1; ///< a text that starts with "<"
inline constexpr std::int32_t KESH_TYPE_T_TEXT = 3;

// Token types (Kesh_TXTGetTokenType)
inline constexpr std::int32_t KESH_TOKEN_END = -1;
inline constexpr std::int32_t KESH_TOKEN_LIST_SEPARATOR = 2;
inline constexpr std::int32_t KESH_TOKEN_VALUE = 13;

/// What the first bytes of an XML file tell of its encoding, whatever the declaration says.
/// Decoding gives it; encoding with it gives the file its form back.
enum KeshXmlMark : std::int32_t {
    KESH_XML_AS_DECLARED = 0, ///< no mark; UTF-16 is written with one
    KESH_XML_UTF8 = 1,
    KESH_XML_UTF16_LITTLE = 2,
    KESH_XML_UTF16_BIG = 3,
};

// Value kinds (Kesh_TXTLoadValue)
inline constexpr std::int32_t KESH_VALUE_AS_SHOWN = 0;
inline constexpr std::int32_t KESH_VALUE_WHOLE = 1;
inline constexpr std::int32_t KESH_VALUE_STRING = 3;

/// How the next load treats remarks: 0 they are left out, 1 jobs mode, where no remark sign is
/// special.
void Kesh_TXTIgnoreRemarks(std::int32_t Flag);
/// Copies an open file's unpacked text into memory; nothing depends on the file afterwards. Kinds 0
/// and 1 are T texts, kind 3 is a language file (keshtexts.h). Gives a handle.
std::int32_t Kesh_LoadFromFile(std::int32_t File, std::int32_t Kind);
/// The same from memory; `Name` stands in messages.
std::int32_t Kesh_LoadFromMemory(std::string_view Text, std::string_view Name);
/// KESH_TYPE_XML_TEXT, KESH_TYPE_T_TEXT, or the kind of an object of keshtexts.h.
std::int32_t Kesh_GetObjectType(std::int32_t Object);
/// Frees a text or language file (`Parent` 0), or takes a page or string out of its parent.
std::int32_t Kesh_DeleteHandle(std::int32_t Parent, std::int32_t Object);

/// Reads the next value and steps over it and its ";".
std::int32_t Kesh_TXTLoadValue(std::int32_t Text, std::int32_t Kind, KeshValue& Value);
/// The type of the token at the read position; 0 on failure (a remark that never ends). In jobs
/// mode the end comes only where nothing but blanks and line breaks follows the start of a line.
std::int32_t Kesh_TXTGetTokenType(std::int32_t Text);
/// The token at the read position as text, without stepping over it. In jobs mode right behind a
/// value's ";" it is the raw rest of the line.
std::int32_t Kesh_TXTGetTokenValue(std::int32_t Text, KeshValue& Value);
/// Steps over tokens; over a value also its ";", over a raw rest of line its line break.
std::int32_t Kesh_TXTAdvance(std::int32_t Text, std::int32_t Count);

/// A value's place is the offset of its first character; an empty value's is that of its ";". The
/// value ends before the next ";" (or the end of the text), less trailing blanks and line breaks:
/// the loader blanks out remarks that stand inside or behind a value.
using KeshPlace = std::uint32_t;
/// Reads up to `Count` values as Kesh_TXTLoadValue does and stores their places. Gives the number
/// read, fewer than `Count` only on failure. Sets `Written` to false if the values are not one
/// piece of written form: if a blank, line break or remark stands behind any of them or before any
/// but the first of this call, or a ";" is missing.
std::int64_t Kesh_TXTLoadPlaces(std::int32_t Text, std::int64_t Count, KeshPlace* Places,
                                bool& Written);
/// The place of the value token at the read position, which it does not step over. In a list it
/// ends before the next ",".
std::int32_t Kesh_TXTGetTokenPlace(std::int32_t Text, KeshPlace& Place);
/// The place of the raw rest of line at the read position (jobs mode); it ends before the line
/// break.
std::int32_t Kesh_TXTGetRawPlace(std::int32_t Text, KeshPlace& Place);
/// The whole loaded text; valid until its handle is deleted.
std::string_view Kesh_TXTGetText(std::int32_t Text);
/// The file's name, and "line N of FILE" for a place, for messages. None of these three clears an
/// earlier error.
std::string Kesh_TXTGetName(std::int32_t Text);
std::string Kesh_TXTDescribePlace(std::int32_t Text, KeshPlace Place);

/// Writes to a file handle of the file driver: a text as it stands; a value's spelling and its ";".
std::int32_t Kesh_TXTWriteFile(std::int32_t File, std::string_view Text);
std::int32_t Kesh_TXTWriteValue(std::int32_t File, const KeshValue& Value);

/// The complete text of an XML file at a plain, catalog or "vfs://" path, as UTF-8. The declaration
/// stays as it stands; a byte order mark is not part of the text. Encoded again with its mark it
/// gives the same bytes.
std::int32_t Kesh_DecodeXMLFile(std::string_view Name, std::string& Text, KeshXmlMark& Mark);
/// Writes UTF-8 text with the mark and in its encoding, or without one in the encoding that the
/// declaration names, in the form `FileType` (lornfd). Characters that the encoding lacks become
/// character references.
std::int32_t Kesh_EncodeXMLFile(std::string_view Name, std::string_view Text, KeshXmlMark Mark,
                                std::int32_t FileType);
/// The two halves without a file: bytes to UTF-8 and back.
std::int32_t Kesh_DecodeXML(std::string_view Bytes, std::string_view Name, std::string& Text,
                            KeshXmlMark& Mark);
std::int32_t Kesh_EncodeXML(std::string_view Text, KeshXmlMark Mark, std::string_view Name,
                            std::string& Bytes);

/// Splits a command line at blanks outside quotes. "" inside quotes gives a quote. Before a quote
/// 2n backslashes give n and the quote counts, 2n + 1 give n and a quote character; elsewhere they
/// stand for themselves.
std::vector<std::string> Kesh_CommandLineToArgV(std::string_view CommandLine);
/// Puts arguments into one text that Kesh_CommandLineToArgV splits back into the same.
std::string Kesh_ArgVToCommandLine(const std::vector<std::string>& Arguments);

std::int32_t Kesh_GetLastError();
std::int32_t Kesh_TranslateError(std::int32_t Code, char* Buffer, std::int32_t Size,
                                 std::int32_t* Needed);
