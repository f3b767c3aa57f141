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
/// Before the last "\"; empty if there is none.
[[nodiscard]] std::string ParentDir(std::string_view Path);
/// Behind the last "\"; empty if there is none.
[[nodiscard]] std::string FileNameOf(std::string_view Path);
/// Behind the last "."; empty if there is none.
[[nodiscard]] std::string ExtensionOf(std::string_view Path);
/// Behind the last "\" or all of it; with the flag cut before its last ".".
[[nodiscard]] std::string BaseName(std::string_view Path, bool WithoutExtension);
/// Each part but the last gets a "\" unless it ends in one or is empty; a final "\" is removed.
[[nodiscard]] std::string JoinPath(std::span<const std::string> Parts);
[[nodiscard]] std::string JoinPath(std::initializer_list<std::string> Parts);
/// "C:" of a drive path, "\\server\share" of a network path, else empty.
[[nodiscard]] std::string RootOf(std::string_view Path);
/// The system's temporary path, in the program's form.
[[nodiscard]] std::string TempPath();

// Strings
enum class TextCompare { Binary, NoCase };
/// Up to the first zero character.
[[nodiscard]] std::string TrimNull(std::string_view Text);
/// Replaces in place every occurrence and gives their count; nothing if Find is empty or equals
/// With.
std::int32_t ReplaceAll(std::string& Text, std::string_view Find, std::string_view With,
                        TextCompare Compare = TextCompare::Binary);
/// Appends; the separator stands only between two non-empty texts.
void AppendLine(std::string& Text, std::string_view Line, std::string_view Separator);
[[nodiscard]] constexpr std::int32_t BoolToInt(bool Flag) noexcept {
    return Flag ? 1 : 0;
}
[[nodiscard]] constexpr bool IntToBool(std::int32_t N) noexcept {
    return N != 0;
}

// Numbers
/// Of the leading run of hexadecimal digits, low 32 bits.
[[nodiscard]] std::uint32_t ParseHex(std::string_view Text);
[[nodiscard]] bool IsHexText(std::string_view Text);
/// A number whose real and 32-bit readings agree.
[[nodiscard]] bool IsWholeNumber(std::string_view Text);
/// Upper case, padded with "0" to Digits; with Digits 0 a value other than 0 gets an even number of
/// them.
[[nodiscard]] std::string ToHex(std::uint32_t Value, std::int32_t Digits);
[[nodiscard]] std::int32_t HiWord(std::int32_t N);
[[nodiscard]] std::int32_t LoWord(std::int32_t N);
[[nodiscard]] constexpr std::int32_t GetRed(std::int32_t Colour) noexcept {
    return Colour & 0xFF;
}
[[nodiscard]] constexpr std::int32_t GetGreen(std::int32_t Colour) noexcept {
    return (Colour >> 8) & 0xFF;
}
[[nodiscard]] constexpr std::int32_t GetBlue(std::int32_t Colour) noexcept {
    return (Colour >> 16) & 0xFF;
}
/// Exchange of red (byte 0) and blue (byte 2); byte 3 stays.
[[nodiscard]] std::int32_t SwapRB(std::int32_t Colour);
[[nodiscard]] std::int32_t SwapBytes(std::int32_t Colour);
/// "0.00" style: fixed decimals, padded with zeros, halves rounded away from zero, without locale.
[[nodiscard]] std::string FormatFixed(double Value, std::int32_t Decimals);

/// "Entered value is incorrect. It must be ...": Kind 0 whole number, 1 float number, else string.
[[nodiscard]] std::string ValueErrorText(std::string_view Name, std::int32_t Kind);

// Lookups
/// The text at an index; "Unknown value" if it is outside or empty.
[[nodiscard]] std::string TableText(std::span<const std::string_view> Table, std::int64_t Index);
/// The text at an index; empty if it is outside.
[[nodiscard]] std::string TableTextRaw(std::span<const std::string_view> Table, std::int64_t Index);
template <class T>
[[nodiscard]] std::int32_t IndexInArray(std::span<const T> Array,
                                        const std::type_identity_t<T>& Value) {
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

inline constexpr int GameUnitsPerMetre = 500;
/// A distance in game units with its unit, or bare with Plain; Miles gives nautical miles.
[[nodiscard]] std::string FormatDistance(double GameUnits, bool Plain, bool Miles);
