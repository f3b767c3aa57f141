#include "tdata/WareConversions.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/places.h"
#include "tdata/FieldLookup.h"
#include "tdata/RecordNames.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshWare.h"
#include "tdata/mdlRecordNumbers.h"

#include <cmath>

namespace {

constexpr double SecondsPerMinute = 60;
constexpr double Thousand = 1000;
constexpr double FirstInnerScene = 4300; ///< that field 12 of a station is counted from

std::optional<KeshValue> DecimalValue(double number) {
    return std::isfinite(number) ? std::optional<KeshValue>(DecimalOf(number) + 0.0) // no "-0"
                                 : std::nullopt;
}

std::optional<std::string> WholeText(double number) {
    return FixedText(std::nearbyint(number), 0);
}

// --- Shown as text, or not at all

std::optional<std::string> ShowNothing(const StoredField&, bool) {
    return {};
}

std::optional<std::string> ShowText(const StoredField& field, bool) {
    std::string text = SpellingAt(field.Record, field.Index);
    return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::optional<KeshValue> ReadText(const StoredField&, std::string_view text) {
    return std::string(TrimmedValue(text)); // "007" is no number
}

// --- Scaled numbers

template <int Scale>
std::optional<std::string> ShowWhole(const StoredField& field, bool) {
    const auto number = field.Number();
    return number ? WholeText(DecimalOf(*number / Scale)) : std::nullopt;
}

template <int Scale>
std::optional<std::string> ShowTenths(const StoredField& field, bool) {
    const auto number = field.Number();
    return number ? FixedText(*number / Scale, 1) : std::nullopt;
}

template <int Scale>
std::optional<KeshValue> ReadScaled(const StoredField&, std::string_view text) {
    const auto number = EnteredNumber(text);
    return number ? DecimalValue(*number * Scale) : std::nullopt;
}

template <int Scale>
std::optional<KeshValue> ReadScaledWhole(const StoredField&, std::string_view text) {
    const auto number = EnteredNumber(text);
    return number ? WholeValue(DecimalOf(*number * Scale)) : std::nullopt;
}

std::optional<std::string> ShowDistance(const StoredField& field, bool raw) {
    const auto units = field.Number();
    return units ? std::optional(FormatDistance(*units, raw, false)) : std::nullopt;
}

/// Kilojoules, in the prefix that leaves less than a thousand.
std::optional<std::string> ShowEnergy(const StoredField& field, bool raw) {
    const auto kilojoules = field.Number();
    if (!kilojoules || raw)
        return ShowNumber(field, raw);
    double energy = *kilojoules * Thousand;
    std::int32_t prefix = 0;
    for (; energy >= Thousand && SIPrefixes.Holds(prefix + 1); ++prefix)
        energy /= Thousand;
    if (!std::isfinite(energy))
        return {};
    return keshobjects::spellNumber(DecimalOf(energy) + 0.0) + " " +
           ListItemRaw(SIPrefixes, prefix) + "J";
}

/// Stored as the milliseconds from one round to the next; 0 fires not at all.
std::optional<std::string> ShowFireRate(const StoredField& field, bool raw) {
    const auto wait = field.Number();
    if (!wait)
        return {};
    if (*wait == 0)
        return "0";
    auto text = WholeText(DecimalOf(SecondsPerMinute * (Thousand / *wait)));
    if (text && !raw)
        text->append(" rnd/min");
    return text;
}

std::optional<KeshValue> ReadFireRate(const StoredField&, std::string_view text) {
    const auto rate = EnteredNumber(text);
    return rate && *rate != 0 ? WholeValue(DecimalOf(Thousand / (*rate / SecondsPerMinute)))
                              : std::nullopt;
}

std::optional<std::string> ShowInnerScene(const StoredField& field, bool) {
    const auto number = field.Number();
    return number ? std::optional(keshobjects::spellNumber(*number + FirstInnerScene))
                  : std::nullopt;
}

std::optional<KeshValue> ReadInnerScene(const StoredField&, std::string_view text) {
    const auto scene = EnteredNumber(text);
    return scene ? WholeValue(*scene - FirstInnerScene) : std::nullopt;
}

// --- Bits

std::optional<std::string> ShowHexadecimal(const StoredField& field, bool) {
    const auto number = IntegerAt(field.Record, field.Index);
    return number ? std::optional(ToHex(static_cast<std::uint32_t>(*number), 0).insert(0, "0x"))
                  : std::nullopt;
}

std::optional<KeshValue> ReadHexadecimal(const StoredField&, std::string_view text) {
    constexpr std::size_t mostDigits = 8;
    std::string_view digits = TrimmedValue(text);
    if (digits.starts_with("0x") || digits.starts_with("0X"))
        digits.remove_prefix(2);
    if (digits.empty() || digits.size() > mostDigits || !IsHexText(digits))
        return {};
    return static_cast<std::int32_t>(ParseHex(digits));
}

// --- Lists

/// As it is stored where the list has no such row, which may be for want of a file.
std::optional<std::string> ShowRow(const StoredField& field, bool raw) {
    const auto position = IntegerAt(field.Record, field.Index);
    const bool held = position && *position >= 0 && *position < std::ssize(field.Choices->Rows);
    return held ? ShowChoice(field, raw) : std::nullopt;
}

/// The number of a bullet goes before a bullet whose name is a number.
std::optional<KeshValue> ReadBullet(const StoredField& field, std::string_view text) {
    auto position = ReadRounded(field, text);
    return position ? position : ReadChoice(field, text);
}

std::optional<KeshValue> ReadAmmo(const StoredField& field, std::string_view text) {
    auto choice = ReadChoice(field, text);
    return choice ? choice : ReadRounded(field, text);
}

/// A word in the newer files, its position in the older ones.
std::optional<KeshValue> ReadSubtype(const StoredField& field, std::string_view text) {
    if (!HasSymbolicSubtype(field.Record.otype, field.Version))
        return ReadRounded(field, text);
    return TrimmedValue(text).empty() ? std::nullopt : ReadText(field, text);
}

// --- Tables

using namespace warelist;

constexpr FieldConversion ShieldRows[] = {
    {7, ShowNumber, ReadRounded, " kW"},
    {8, ShowEnergy, ReadRounded},
};

constexpr FieldConversion LaserRows[] = {
    {7, ShowFireRate, ReadFireRate},
    {9, ShowRow, ReadBullet, "", Bullets},
    {12, ShowText, ReadText, "", Icons},
};

constexpr FieldConversion BulletRows[] = {
    {10, ShowTenths<1000>, ReadScaledWhole<1000>, " s"},
    {11, ShowWhole<GameUnitsPerMetre>, ReadScaled<GameUnitsPerMetre>, " m/s"},
    {13, ShowHexadecimal, ReadHexadecimal},
    {14, ShowHexadecimal, ReadHexadecimal},
    {15, ShowHexadecimal, ReadHexadecimal},
    {37, ShowRow, ReadAmmo, "", Ammo},
};

constexpr FieldConversion MissileRows[] = {
    {7, ShowWhole<GameUnitsPerMetre>, ReadScaled<GameUnitsPerMetre>, " m/s"},
    {8, ShowWhole<GameUnitsPerMetre>, ReadScaled<GameUnitsPerMetre>, " m/s"},
    {13, ShowWhole<GameUnitsPerMetre>, ReadScaled<GameUnitsPerMetre>, " m"},
    {14, ShowWhole<1000>, ReadScaled<1000>, " s"},
    {24, ShowTenths<1000>, ReadScaledWhole<1000>, " s"},
    {25, ShowText, ReadText, "", Icons},
};

constexpr FieldConversion FactoryRows[] = {
    {12, ShowInnerScene, ReadInnerScene},
    {13, ShowChoice, ReadChoice, "", Races},
    {17, ShowChoice, ReadChoice, "", Sizes},
    {18, ShowText, ReadText, "", Icons},
};

constexpr FieldConversion DockRows[] = {
    {12, ShowInnerScene, ReadInnerScene},
    {13, ShowChoice, ReadChoice, "", Races},
    {17, ShowText, ReadText, "", Icons},
};

constexpr FieldConversion BackgroundRows[] = {
    {24, ShowDistance, ReadScaled<GameUnitsPerMetre>},
    {25, ShowDistance, ReadScaled<GameUnitsPerMetre>},
};

constexpr FieldConversion NebulaRows[] = {
    {8, ShowDistance, ReadScaled<GameUnitsPerMetre>},
    {9, ShowDistance, ReadScaled<GameUnitsPerMetre>},
};

constexpr FieldConversion CommonRows[] = {
    {CommonSubtypeField, ShowNothing, ReadSubtype, "", Subtypes},
    {-6, ShowChoice, ReadChoice, "", WareClasses},
};

constexpr FieldConversion AnyField{0, ShowNothing, ReadNumber};

struct TypeRows {
    std::int32_t Type;
    std::span<const FieldConversion> Rows;
};
constexpr TypeRows Types[] = {
    {otype::Shields, ShieldRows},         {otype::Laser, LaserRows},
    {otype::Bullets, BulletRows},         {otype::Missiles, MissileRows},
    {otype::Factories, FactoryRows},      {otype::Docks, DockRows},
    {otype::Backgrounds, BackgroundRows}, {otype::Nebula, NebulaRows},
};

} // namespace

std::span<const FieldConversion> OwnWareConversions(std::int32_t Type) {
    for (const TypeRows& type : Types)
        if (type.Type == Type)
            return type.Rows;
    return {};
}

const FieldConversion* WareConversion(const clsTXTObject& Record, std::int32_t Index) {
    if (Index < 0 || Index >= Record.size())
        return nullptr;
    if (const auto* own = FindConversion(OwnWareConversions(Record.otype), Record, Index))
        return own;
    const auto* common = FindConversion(CommonRows, Record, Index);
    return common != nullptr ? common : &AnyField;
}
