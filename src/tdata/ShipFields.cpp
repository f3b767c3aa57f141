#include "tdata/ShipFields.h"

#include "core/mdlComFunctions.h"
#include "tdata/RecordNames.h"
#include "tdata/ShieldRecharge.h"
#include "tdata/WeaponSlots.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlKeshWare.h"
#include "tdata/mdlRecordNumbers.h"
#include "textres/ResourceText.h"

#include <cmath>
#include <limits>

namespace {

// Of a shield
constexpr std::int32_t NeedField = 7;
constexpr std::int32_t StrengthField = 8;
constexpr std::int32_t EfficiencyField = 10;

constexpr std::int32_t RacePage = 1266;

constexpr double SecondsPerMinute = 60;

enum ShipList : std::int32_t { Classes, Types, ShieldTypes, Races, CargoSizes, ListCount };

// --- Conversions

std::optional<std::string> ShowTurns(const StoredField& field, bool) {
    const auto turns = field.Number();
    return turns ? FixedText(*turns * SecondsPerMinute, 1) : std::nullopt;
}

std::optional<KeshValue> ReadTurns(const StoredField&, std::string_view text) {
    constexpr double steps = 1e5; ///< that a turn is stored in
    const auto turns = EnteredNumber(text);
    if (!turns)
        return {};
    const double stored = std::nearbyint(DecimalOf(*turns / SecondsPerMinute * steps)) / steps;
    return std::isfinite(stored) ? std::optional<KeshValue>(stored + 0.0) // no "-0"
                                 : std::nullopt;
}

/// At least two digits in front of the point.
std::string TwoDigits(std::string text) {
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    if (text.find('.') == sign + 1)
        text.insert(sign, 1, '0');
    return text;
}

std::optional<std::string> ShowSpeed(const StoredField& field, bool raw) {
    const auto speed = ShipSpeed(field.Record);
    auto text = speed ? FixedText(*speed, 2) : std::nullopt;
    if (!text || raw)
        return text;
    const auto tuned = TunedShipSpeed(field.Record);
    const auto tunedText = tuned ? FixedText(*tuned, 2) : std::nullopt;
    return tunedText ? std::optional(*text + " - " + TwoDigits(*tunedText)) : std::nullopt;
}

std::optional<std::string> ShowAcceleration(const StoredField& field, bool) {
    const auto units = field.Number();
    return units ? FixedText(*units / GameUnitsPerMetre, 3) : std::nullopt;
}

/// A part of a unit takes a whole one.
std::optional<KeshValue> ReadMetres(const StoredField&, std::string_view text) {
    const auto metres = EnteredNumber(text);
    if (!metres)
        return {};
    const double units = DecimalOf(*metres * GameUnitsPerMetre);
    const double whole = std::trunc(units);
    return WholeValue(whole == units ? units : whole + 1);
}

std::optional<std::string> ShowRate(const StoredField& field, bool) {
    const auto energy = NumberAt(field.Record, shipfield::Energy);
    const auto rate = field.Number();
    return energy && rate ? FixedText(*energy * *rate, 3) : std::nullopt;
}

std::optional<KeshValue> ReadRate(const StoredField& field, std::string_view text) {
    const auto energy = NumberAt(field.Record, shipfield::Energy);
    const auto entered = EnteredNumber(text);
    if (!energy || !entered || *entered == 0)
        return {};
    const double seconds = *energy / *entered;
    if (seconds == 0 || !std::isfinite(seconds) || !std::isfinite(1 / seconds))
        return {};
    return 1 / seconds;
}

std::optional<std::string> NotEmpty(std::string text) {
    return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::optional<std::string> ShowClass(const StoredField& field, bool) {
    return NotEmpty(GetShipClassName(field.Record.Value(field.Index), field.Version));
}

std::optional<std::string> ShowType(const StoredField& field, bool) {
    return NotEmpty(GetShipTypeName(field.Record.Value(field.Index), field.Version, false));
}

constexpr FieldConversion Conversions[] = {
    {shipfield::Yaw, ShowTurns, ReadTurns, " rot/min"},
    {shipfield::Pitch, ShowTurns, ReadTurns, " rot/min"},
    {shipfield::Roll, ShowTurns, ReadTurns, " rot/min"},
    {shipfield::Class, ShowClass, ReadChoice, "", Classes},
    {shipfield::Speed, ShowSpeed, ReadMetres, " m/s"},
    {shipfield::Acceleration, ShowAcceleration, ReadMetres, " m/s"},
    {shipfield::Reactor, ShowNumber, ReadNumber, " kW"},
    {shipfield::Energy, ShowNumber, ReadRounded, " W"},
    {shipfield::Recharge, ShowRate, ReadRate, " W/s"},
    {shipfield::Shield, ShowChoice, ReadChoice, "", ShieldTypes},
    {shipfield::CargoClass, ShowChoice, ReadChoice, "", CargoSizes},
    {shipfield::Race, ShowChoice, ReadChoice, "", Races},
    {shipfield::Type, ShowType, ReadChoice, "", Types},
    {-6, ShowChoice, ReadChoice, "", CargoSizes},
};

// --- Lists

ChoiceList ClassChoices(std::int32_t version, bool symbolic) {
    ChoiceList list{.Keys = symbolic ? &ShipClassKeys : nullptr, .FreeText = symbolic};
    for (std::int32_t i = 0; i < std::ssize(ShipClassKeys.Rows); ++i) {
        const KeshValue stored = symbolic ? KeshValue(ListItemRaw(ShipClassKeys, i)) : KeshValue(i);
        const std::string name = GetShipClassName(stored, version);
        list.Rows.push_back(name.empty() ? ListItem(ShipClassLabels, i, true) : name);
    }
    return list;
}

ChoiceList TypeChoices(std::int32_t version, bool symbolic) {
    const TextTable& stored = symbolic ? ShipObjectTypeKeys : ShipObjectTypeIDs;
    ChoiceList list{.Keys = &stored};
    for (const std::string_view key : stored.Rows)
        list.Rows.push_back(GetShipTypeName(keshobjects::readValue(key), version, false));
    return list;
}

std::string RaceName(std::int32_t race) {
    const std::string text = ResourceText(RacePage, race).value_or("");
    return text.empty() ? ListItem(RaceNames, race, true) : text;
}

ChoiceList RaceChoices() {
    ChoiceList list{.First = RaceNames.First};
    for (std::int32_t i = 0; i < std::ssize(RaceNames.Rows); ++i)
        list.Rows.push_back(RaceName(RaceNames.First + i));
    return list;
}

ChoiceList CargoChoices() {
    const auto names = GetWareClassNames();
    return {.Rows = {names.begin(), names.end()}};
}

ChoiceList ShieldChoices(const clsTxtParser* shields) {
    ChoiceList list{.Outside = "Unknown value"};
    if (shields == nullptr)
        list.Rows.assign(ShieldStrengthNames.Rows.begin(), ShieldStrengthNames.Rows.end());
    else
        for (const RecordPtr& shield : shields->ByIndex())
            list.Rows.push_back(RecordName(*shield));
    return list;
}

std::optional<float> Single(double number) {
    return std::abs(number) <= std::numeric_limits<float>::max()
               ? std::optional(static_cast<float>(number))
               : std::nullopt;
}

/// The text of a variation of a ship; empty where it has none.
std::string VariationName(const clsTXTObject& ship) {
    const auto variation = IntegerAt(ship, shipfield::Variation);
    return variation && *variation > 0 ? GetShipVariationName(*variation) : std::string();
}

} // namespace

std::optional<float> ShipSpeed(const clsTXTObject& Ship) {
    const auto units = NumberAt(Ship, shipfield::Speed);
    return units ? Single(*units / GameUnitsPerMetre) : std::nullopt;
}

std::optional<float> TunedShipSpeed(const clsTXTObject& Ship) {
    const auto speed = ShipSpeed(Ship);
    const auto tunings = NumberAt(Ship, shipfield::EngineTuning);
    return speed && tunings ? Single(*speed + *tunings * (double{*speed} / 10)) : std::nullopt;
}

ShipFields::ShipFields() : FieldConverter(ListCount) {}

void ShipFields::LoadFiles() {
    if (m_loaded)
        return;
    m_loaded = true;
    const auto take = [](std::string_view name, File& file) {
        if (auto found = GameFileOf(name))
            file = std::move(found);
    };
    take("TLaser", m_lasers);
    take("TMissiles", m_missiles);
    const File shields = GameFileOf("TShields");
    if (shields)
        m_shields = shields;
    if (const File cockpits = GameFileOf("TCockpits"))
        m_cockpits.Load(*cockpits);
    List(ShieldTypes) = ShieldChoices(shields.get());
    List(Races) = RaceChoices();
    List(CargoSizes) = CargoChoices();
}

void ShipFields::SetVersion(std::int32_t Version) {
    FieldConverter::SetVersion(Version);
    List(Classes) = ClassChoices(Version, Symbolic());
    List(Types) = TypeChoices(Version, Symbolic());
}

bool ShipFields::Symbolic() const noexcept {
    return Version() >= FirstSymbolicShips;
}

RecordPtr ShipFields::Shield(const clsTXTObject& Ship) const {
    const auto index = IntegerAt(Ship, shipfield::Shield);
    return index ? m_shields->FindIndex(*index) : nullptr;
}

// --- Names

std::string ShipFields::DisplayName(const clsTXTObject& Ship) const {
    std::string name = RecordName(Ship);
    AppendLine(name, VariationName(Ship), " ");
    return name;
}

std::string ShipFields::ResourceName(const clsTXTObject& Ship) const {
    return Race(Ship) + " " + DisplayName(Ship);
}

std::string ShipFields::Race(const clsTXTObject& Ship) const {
    return Shown(Ship, shipfield::Race);
}

std::string ShipFields::Class(const clsTXTObject& Ship) const {
    return Shown(Ship, shipfield::Class);
}

std::string ShipFields::Shown(const clsTXTObject& Ship, std::int32_t Index) const {
    std::string text;
    return Translate(Ship, Index, text, false) ? text : SpellingAt(Ship, Index);
}

// --- Conversions

const FieldConversion* ShipFields::RowOf(const clsTXTObject& Ship, std::int32_t Index) const {
    return FindConversion(Conversions, Ship, Index);
}

std::string ShipFields::RechargeTime(const clsTXTObject& Ship) const {
    const RecordPtr shield = Shield(Ship);
    if (!shield)
        return {};
    const auto count = IntegerAt(Ship, shipfield::ShieldCount);
    const auto strength = IntegerAt(*shield, StrengthField);
    const auto need = IntegerAt(*shield, NeedField);
    const auto efficiency = NumberAt(*shield, EfficiencyField);
    const auto reactor = IntegerAt(Ship, shipfield::Reactor);
    if (!count || !strength || !need || !efficiency || !reactor)
        return {};
    const auto seconds = RechargeSeconds({*count, *strength, *need, *efficiency, *reactor});
    return seconds ? RecordName(*shield) + " x " + std::to_string(*count) + " = " +
                         FormatFixed(*seconds, 0) + " s"
                   : std::string();
}
