#include "core/mdlComFunctions.h"

#include "core/mdlCommon.h"
#include "keshobjects/value.h"
#include "lornfd/paths.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::string_view HexDigits = "0123456789abcdefABCDEF";
constexpr double MetresPerMile = 1852;

/// The shortest decimal text that reads back as `value`, without an exponent.
std::string decimalText(double value) {
    std::array<char, 512> buffer{}; // 1e308 has 309 digits, the smallest value some 340
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

/// Adds one to the last digit of a text of digits and at most one point.
void countUp(std::string& digits) {
    for (auto at = digits.rbegin(); at != digits.rend(); ++at) {
        if (*at == '.')
            continue;
        if (*at != '9') {
            ++*at;
            return;
        }
        *at = '0';
    }
    digits.insert(digits.begin(), '1');
}

} // namespace

std::string ParentDir(std::string_view Path) {
    const auto at = Path.rfind('\\');
    return at == Path.npos ? std::string() : std::string(Path.substr(0, at));
}

std::string FileNameOf(std::string_view Path) {
    const auto at = Path.rfind('\\');
    return at == Path.npos ? std::string() : std::string(Path.substr(at + 1));
}

std::string ExtensionOf(std::string_view Path) {
    const auto at = Path.rfind('.');
    return at == Path.npos ? std::string() : std::string(Path.substr(at + 1));
}

std::string BaseName(std::string_view Path, bool WithoutExtension) {
    Path.remove_prefix(Path.rfind('\\') + 1); // npos + 1 is 0
    return std::string(WithoutExtension ? Path.substr(0, Path.rfind('.')) : Path);
}

std::string JoinPath(std::span<const std::string> Parts) {
    std::string path;
    for (std::size_t i = 0; i < Parts.size(); ++i) {
        path += Parts[i];
        if (i + 1 < Parts.size() && !Parts[i].empty() && !Parts[i].ends_with('\\'))
            path += '\\';
    }
    if (path.ends_with('\\'))
        path.pop_back();
    return path;
}

std::string JoinPath(std::initializer_list<std::string> Parts) {
    return JoinPath(std::span(Parts.begin(), Parts.size()));
}

std::string RootOf(std::string_view Path) {
    if (Path.starts_with("\\\\")) {
        const auto share = Path.find('\\', 2);
        return std::string(share == Path.npos ? Path : Path.substr(0, Path.find('\\', share + 1)));
    }
    const bool drive = Path.size() >= 2 && Path[1] == ':' && lornfd::foldCase(Path[0]) >= 'a' &&
                       lornfd::foldCase(Path[0]) <= 'z';
    return drive ? std::string(Path.substr(0, 2)) : std::string();
}

std::string TempPath() {
    return WithBackslashes(QDir::tempPath().toStdString());
}

std::string TrimNull(std::string_view Text) {
    return std::string(Text.substr(0, Text.find('\0')));
}

std::int32_t ReplaceAll(std::string& Text, std::string_view Find, std::string_view With,
                        TextCompare Compare) {
    if (Find.empty() || Find == With)
        return 0;
    const bool noCase = Compare == TextCompare::NoCase;
    const std::string searched = noCase ? lornfd::foldCase(Text) : Text;
    const std::string sought = noCase ? lornfd::foldCase(Find) : std::string(Find);

    std::string result;
    std::int32_t count = 0;
    std::size_t done = 0;
    for (auto at = searched.find(sought); at != std::string::npos;
         at = searched.find(sought, done)) {
        result.append(Text, done, at - done).append(With);
        done = at + sought.size();
        ++count;
    }
    Text = result.append(Text, done);
    return count;
}

void AppendLine(std::string& Text, std::string_view Line, std::string_view Separator) {
    if (!Text.empty() && !Line.empty())
        Text += Separator;
    Text += Line;
}

std::uint32_t ParseHex(std::string_view Text) {
    Text = Text.substr(0, Text.find_first_not_of(HexDigits));
    Text.remove_prefix(Text.size() - std::min<std::size_t>(Text.size(), 8));
    std::uint32_t value = 0;
    std::from_chars(Text.data(), Text.data() + Text.size(), value, 16);
    return value;
}

bool IsHexText(std::string_view Text) {
    return Text.find_first_not_of(HexDigits) == Text.npos;
}

bool IsWholeNumber(std::string_view Text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const auto number = keshobjects::readNumber(Text);
    return number && *number >= Limits::min() && *number <= Limits::max() &&
           std::trunc(*number) == *number;
}

std::string ToHex(std::uint32_t Value, std::int32_t Digits) {
    std::array<char, 8> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), Value, 16);
    std::string text(buffer.data(), end.ptr);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });

    std::size_t wanted = static_cast<std::size_t>(std::max(Digits, 0));
    if (Digits == 0 && Value != 0)
        wanted = text.size() + text.size() % 2;
    return std::string(wanted - std::min(wanted, text.size()), '0') + text;
}

std::int32_t HiWord(std::int32_t N) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(N) >> 16);
}
std::int32_t LoWord(std::int32_t N) {
    return N & 0xFFFF;
}

std::int32_t SwapRB(std::int32_t Colour) {
    const auto others = static_cast<std::uint32_t>(Colour) & 0xFF00FF00U;
    return static_cast<std::int32_t>(others | static_cast<std::uint32_t>(GetRed(Colour)) << 16 |
                                     static_cast<std::uint32_t>(GetBlue(Colour)));
}
std::int32_t SwapBytes(std::int32_t Colour) {
    return SwapRB(Colour);
}

std::string FormatFixed(double Value, std::int32_t Decimals) {
    if (!std::isfinite(Value))
        return decimalText(Value);
    // Rounding the decimal text, not the binary value, is what makes 0.005 the half that a user
    // sees.
    std::string text = decimalText(std::abs(Value));
    const auto decimals = static_cast<std::size_t>(std::max(Decimals, 0));
    const auto point = std::min(text.find('.'), text.size());
    const auto end = point + 1 + decimals;
    const bool up = end < text.size() && text[end] >= '5';
    if (point == text.size())
        text += '.';
    text.resize(end, '0');
    if (up)
        countUp(text);
    if (decimals == 0)
        text.pop_back();
    const bool zero = text.find_first_not_of("0.") == std::string::npos;
    return Value < 0 && !zero ? "-" + text : text;
}

std::string ValueErrorText(std::string_view Name, std::int32_t Kind) {
    constexpr std::array<std::string_view, 3> words = {"whole number", "float number", "string"};
    std::string text = "Entered value is incorrect. It must be ";
    text += words[Kind == 0 || Kind == 1 ? static_cast<std::size_t>(Kind) : 2];
    if (!Name.empty())
        text.append(": ").append(Name);
    return text + ".";
}

std::string TableText(std::span<const std::string_view> Table, std::int64_t Index) {
    const std::string text = TableTextRaw(Table, Index);
    return text.empty() ? "Unknown value" : text;
}

std::string TableTextRaw(std::span<const std::string_view> Table, std::int64_t Index) {
    const bool inside = Index >= 0 && static_cast<std::uint64_t>(Index) < Table.size();
    return inside ? std::string(Table[static_cast<std::size_t>(Index)]) : std::string();
}

std::string FormatDistance(double GameUnits, bool Plain, bool Miles) {
    const double metres = GameUnits / GameUnitsPerMetre;
    if (Miles) {
        // The format of miles ends in a blank of its own.
        const std::string miles = FormatFixed(metres / MetresPerMile, 3);
        return Plain ? miles : miles + "  nm";
    }
    if (Plain)
        return FormatFixed(std::trunc(metres), 0);
    return metres < 1000 ? FormatFixed(std::trunc(metres), 0) + " m"
                         : FormatFixed(metres / 1000, 3) + " km";
}
