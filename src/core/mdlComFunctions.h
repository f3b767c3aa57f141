// Paths, strings, numbers, small lookups and values with units. Plain routines without state or
// windows.
//
// A path inside the program has "\" throughout; files/mdlPaths.h brings a platform's path into that
// form.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// Paths
std::string ParentDir(std::string_view Path);   ///< before the last "\"; empty if there is none
std::string FileNameOf(std::string_view Path);  ///< behind the last "\"; empty if there is none
std::string ExtensionOf(std::string_view Path); ///< behind the last "."; empty if there is none
/// Behind the last "\" or all of it; with the flag cut before its last ".".
std::string BaseName(std::string_view Path, bool WithoutExtension);
/// Each part but the last gets a "\" unless it ends in one or is empty; a final "\" is removed.
std::string JoinPath(std::span<const std::string> Parts);
std::string JoinPath(std::initializer_list<std::string> Parts);
/// "C:" of a drive path, "\\server\share" of a network path, else empty.
std::string RootOf(std::string_view Path);
std::string TempPath(); ///< the system's temporary path, in the program's form

// Strings
enum class TextCompare { Binary, NoCase };
std::string TrimNull(std::string_view Text); ///< up to the first zero character
/// Replaces in place every occurrence and gives their count; nothing if Find is empty or equals
/// With.
std::int32_t ReplaceAll(std::string& Text, std::string_view Find, std::string_view With,
                        TextCompare Compare = TextCompare::Binary);
/// Appends; the separator stands only between two non-empty texts.
void AppendLine(std::string& Text, std::string_view Line, std::string_view Separator);
constexpr std::int32_t BoolToInt(bool Flag) noexcept {
    return Flag ? 1 : 0;
}
constexpr bool IntToBool(std::int32_t N) noexcept {
    return N != 0;
}

// Numbers
std::uint32_t
ParseHex(std::string_view Text); ///< of the leading run of hexadecimal digits, low 32 bits
bool IsHexText(std::string_view Text);
bool IsWholeNumber(std::string_view Text); ///< a number whose real and 32-bit readings agree
/// Upper case, padded with "0" to Digits; with Digits 0 a value other than 0 gets an even number of
/// them.
std::string ToHex(std::uint32_t Value, std::int32_t Digits);
std::int32_t HiWord(std::int32_t N);
std::int32_t LoWord(std::int32_t N);
constexpr std::int32_t GetRed(std::int32_t Colour) noexcept {
    return Colour & 0xFF;
}
constexpr std::int32_t GetGreen(std::int32_t Colour) noexcept {
    return (Colour >> 8) & 0xFF;
}
constexpr std::int32_t GetBlue(std::int32_t Colour) noexcept {
    return (Colour >> 16) & 0xFF;
}
/// Exchange of red (byte 0) and blue (byte 2); byte 3 stays.
std::int32_t SwapRB(std::int32_t Colour);
std::int32_t SwapBytes(std::int32_t Colour);
/// "0.00" style: fixed decimals, padded with zeros, halves rounded away from zero, without locale.
std::string FormatFixed(double Value, std::int32_t Decimals);

/// "Entered value is incorrect. It must be ...": Kind 0 whole number, 1 float number, else string.
std::string ValueErrorText(std::string_view Name, std::int32_t Kind);

// Lookups
std::string TableText(std::span<const std::string_view> Table,
                      std::int64_t Index); ///< or "Unknown value"
std::string TableTextRaw(std::span<const std::string_view> Table, std::int64_t Index); ///< or empty
template <class T>
std::int32_t IndexInArray(std::span<const T> Array, const std::type_identity_t<T>& Value) {
    for (std::size_t i = 0; i < Array.size(); ++i)
        if (Array[i] == Value)
            return static_cast<std::int32_t>(i);
    return -1;
}
template <class T>
bool FindInArray(std::span<const T> Array, const std::type_identity_t<T>& Value,
                 std::int32_t& Position) {
    Position = IndexInArray(Array, Value);
    return Position >= 0;
}
/// Inserts before the first element whose SortIndex() is greater, else at the end.
template <class T>
void AddSorted(std::vector<std::shared_ptr<T>>& Collection, std::shared_ptr<T> Object) {
    auto at = Collection.begin();
    while (at != Collection.end() && (*at)->SortIndex() <= Object->SortIndex())
        ++at;
    Collection.insert(at, std::move(Object));
}

/// A distance in game units (500 a metre) with its unit, or bare with Plain; Miles gives nautical
/// miles.
std::string FormatDistance(double GameUnits, bool Plain, bool Miles);
