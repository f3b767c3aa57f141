// Language files: the store that merges those of one language, and single files that can be
// changed.
//
// Everything is an object with a handle, a positive 32-bit number: files, their pages, the pages'
// strings. Handle 1 is the store, which is only read and stands wherever a file's handle can.
// Operations give 0 on failure, nothing is thrown, and Kesh_GetLastError tells why. Texts are
// UTF-8. A file is loaded by Kesh_LoadFromFile with kind 3 and freed by Kesh_DeleteHandle(0, file);
// Kesh_DeleteHandle(parent, object) takes a page or string out. Formats: docs/formats.md, "Language
// files".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::int32_t KESH_STORE = 1;

// Kinds of objects (Kesh_CreateObject, Kesh_GetObjectType)
inline constexpr std::int32_t KESH_TEXT_FILE = 7;
inline constexpr std::int32_t KESH_TEXT_PAGE = 8;
inline constexpr std::int32_t KESH_TEXT_STRING = 9;

/// As Kesh_LoadFromFile with kind 3, from memory; `Name` stands in messages.
std::int32_t Kesh_TRELoadFromMemory(std::string_view Bytes, std::string_view Name);
/// A file (`Parent` 0; `Id` is its language), or a page or string at the end of its parent, without
/// an id (-1) if `Id` is 0. An id that is taken there fails.
std::int32_t Kesh_CreateObject(std::int32_t Parent, std::int32_t Kind, std::int32_t Id);
/// The children in their order, as far as `Capacity` goes; `Count` gets how many there are.
std::int32_t Kesh_EnumObjects(std::int32_t Object, std::int32_t* Handles, std::int32_t Capacity,
                              std::int32_t& Count);
/// Writes a file in its own encoding to a handle opened for writing and fixes its length; the
/// caller closes or abandons it. What nobody changed is written byte for byte as it was read.
std::int32_t Kesh_SaveToFile(std::int32_t File, std::int32_t Object);
/// The same into memory.
std::int32_t Kesh_TRESaveToMemory(std::int32_t Object, std::string& Bytes);

std::int32_t Kesh_TRESetLangID(std::int32_t Object, std::int32_t Lang);
std::int32_t Kesh_TREGetLangID(std::int32_t Object);

std::int32_t Kesh_TREGetPageInfo(std::int32_t Page, std::int32_t& Id, std::string& Title,
                                 std::string& Description, std::int32_t& Voice);
/// Fails, changing nothing, for an id that another page of the file has and for characters that XML
/// cannot hold.
std::int32_t Kesh_TRESetPageInfo(std::int32_t Page, std::int32_t Id, std::string_view Title,
                                 std::string_view Description, std::int32_t Voice);
/// `Second` is 0. The text is the raw one; of the store, once its strings are translated, with
/// references resolved, style codes and escapes as they are.
std::int32_t Kesh_TREGetStringInfo(std::int32_t String, std::int32_t& Id, std::int32_t& Second,
                                   std::string& Text);
/// The text as it stands in its file, of the store too.
std::int32_t Kesh_TREGetRawString(std::int32_t String, std::string& Text);
/// Fails as Kesh_TRESetPageInfo does.
std::int32_t Kesh_TRESetStringInfo(std::int32_t Page, std::int32_t String, std::int32_t Id,
                                   std::string_view Text);
/// The string of a file or of the store; 0 without an error if there is none. Of several with one
/// page and id it is the last. One that is found leaves the last error as it was.
std::int32_t Kesh_TREFindString(std::int32_t Object, std::int32_t Page, std::int32_t Id);

/// Resolves references, strips style codes and escapes. References are looked up in the object's
/// file, then in the store. One that is missing, that comes back to itself, lies more than 64 deep
/// or makes the result too long (1 MiB, 10,000 references) reads as "[string PAGE:ID]". `{:ID}`
/// needs a page or string as object.
std::int32_t Kesh_TRETranslateString(std::int32_t Object, std::string_view Text,
                                     std::string& Translated);

// What Kesh_TREFindBadReferences finds.
inline constexpr std::int32_t KESH_REFERENCE_NOWHERE = 1; ///< there is no such string
inline constexpr std::int32_t KESH_REFERENCE_CIRCLE = 2;  ///< it leads back to the string itself
struct KeshBadReference {
    std::int32_t String; ///< where it stands
    std::int32_t Page;   ///< what it names
    std::int32_t Id;
    std::int32_t Kind;
};
/// The bad references in a string of `Object` (a file, or the store), or in all of them with String
/// 0, in their order. They are looked up in the file, then in the store.
std::int32_t Kesh_TREFindBadReferences(std::int32_t Object, std::int32_t String,
                                       std::vector<KeshBadReference>& Found);

/// Adds a file's pages and strings to the store; of two with one page and id the last loaded
/// counts. A file that fails adds nothing.
std::int32_t Kesh_TREDescServerLoadFile(std::int32_t File);
/// The same from memory; `Name` stands in messages.
std::int32_t Kesh_TREDescServerLoadMemory(std::string_view Bytes, std::string_view Name);
/// From now on Kesh_TREGetStringInfo resolves references in the store, each when it is asked for.
std::int32_t Kesh_TREDescServerTranslateStrings();
/// Empties the store; handles into it are void.
std::int32_t Kesh_TREDescServerUnload();
