#include "tdata/WareRows.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/places.h"
#include "tdata/FieldConversion.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlRecordNumbers.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

using Kind = WareRow::Kind;

constexpr std::int32_t Last = -2; ///< the field next to last, counted from the record's end

/// Rows of the fields From to To; pairs of dust in steps of two.
struct Part {
    Kind What = Kind::Field;
    std::int32_t From = 0;
    std::int32_t To = From;
};

constexpr Part Field(std::int32_t from, std::int32_t to) {
    return {Kind::Field, from, to};
}
constexpr Part Field(std::int32_t field) {
    return {Kind::Field, field, field};
}

constexpr Part GeneralView[] = {Field(0, Last)};

constexpr Part ShieldView[] = {Field(0, 6), Field(8), Field(7), {Kind::ChargeTime}, Field(9, Last)};

constexpr Part BulletView[] = {Field(22),     Field(7),      Field(8),      Field(10),
                               Field(11),     {Kind::Range}, Field(12),     Field(37),
                               Field(24, 26), Field(9),      Field(20, 21), Field(19),
                               Field(23),     Field(15),     Field(14),     Field(13),
                               {Kind::Color}, Field(16, 18), Field(27, 36), Field(38, Last)};

constexpr Part PlanetView[] = {
    Field(0, 9), {Kind::Color}, Field(10), {Kind::DustBody, 11, 25}, Field(27, Last)};

constexpr Part NebulaView[] = {Field(0, 12), {Kind::DustBody, 13, 27}, Field(27, Last)};

using namespace waretrait;

struct View {
    std::int32_t Type;
    std::span<const Part> Parts;
    std::uint32_t Traits;
    std::int32_t Icon = -1;
};
constexpr View Views[] = {
    {otype::Shields, ShieldView, Plain | Creatable | Names},
    {otype::Laser, GeneralView, Plain | Creatable | Names | Description, 12},
    {otype::Bullets, BulletView, Plain | Creatable},
    {otype::Missiles, GeneralView, Plain | Creatable | Names | Description, 25},
    {otype::Ware, GeneralView, Plain | Creatable | Names | Description},
    {otype::Factories, GeneralView, Plain | Creatable | Names | Races | Description, 18},
    {otype::Special, GeneralView, Creatable | Names | Description},
    {otype::Docks, GeneralView, Creatable | Names | Description, 17},
    {otype::Wrecks, GeneralView, Names | Description},
    {otype::Gates, GeneralView, Names | Description},
    {otype::Planets, PlanetView, Names | Description},
    {otype::Suns, GeneralView, Names | Description},
    {otype::Asteroids, GeneralView, Names | Description},
    {otype::Debris, GeneralView, Names | Description},
    {otype::Backgrounds, GeneralView, Names | Description},
    {otype::Nebula, NebulaView, Names | Description},
};

const View* ViewOf(std::int32_t type) {
    const auto* found = std::ranges::find(Views, type, &View::Type);
    return found == std::end(Views) ? nullptr : found;
}

void Append(std::vector<WareRow>& rows, const Part& part, std::int32_t size) {
    const bool dust = part.What == Kind::DustBody;
    if (part.What != Kind::Field && !dust) {
        rows.push_back({part.What});
        return;
    }
    const std::int32_t last = part.To < 0 ? size + part.To : part.To + (dust ? 1 : 0);
    for (std::int32_t field = part.From; field <= std::min(last, size - 2); ++field) {
        const bool second = dust && (field - part.From) % 2 == 1;
        rows.push_back({second ? Kind::DustDensity : part.What, field});
    }
}

std::int32_t FirstColorField(const clsTXTObject& record) {
    constexpr std::int32_t ofBullet = 13;
    constexpr std::int32_t ofPlanet = 7;
    const std::int32_t first = record.otype == otype::Bullets   ? ofBullet
                               : record.otype == otype::Planets ? ofPlanet
                                                                : -1;
    return first + 3 < record.size() ? first : -1;
}

} // namespace

bool HasWareRows(std::int32_t Type) {
    return ViewOf(Type) != nullptr;
}

bool HasWareTrait(std::int32_t Type, std::uint32_t Trait) {
    const View* const view = ViewOf(Type);
    return view != nullptr && (view->Traits & Trait) != 0;
}

std::vector<WareRow> WareRows(const clsTXTObject& Record) {
    const View* const view = ViewOf(Record.otype);
    if (view == nullptr || Record.size() == 0)
        return {};
    std::vector<WareRow> rows{{Kind::ID}, {Kind::Name}};
    for (const Part& part : view->Parts)
        Append(rows, part, Record.size());
    return rows;
}

std::int32_t IconField(std::int32_t Type) {
    const View* const view = ViewOf(Type);
    return view != nullptr ? view->Icon : -1;
}

std::optional<std::string> ChargeTime(const clsTXTObject& Shield) {
    constexpr double step = 60;
    constexpr std::string_view units[] = {"s", "min", "h"};
    const auto strength = NumberAt(Shield, 8);
    const auto need = NumberAt(Shield, 7);
    if (!strength || !need || *need == 0)
        return {};
    double time = *strength / *need;
    std::size_t unit = 0;
    for (; time >= step && unit + 1 < std::size(units); ++unit)
        time /= step;
    auto text = FixedText(time, 1);
    if (!text)
        return {};
    if (text->ends_with(".0"))
        text->resize(text->size() - 2);
    return text->append(" ").append(units[unit]);
}

std::optional<std::string> BulletRange(const clsTXTObject& Bullet) {
    constexpr double perSecond = 1000;
    constexpr double perKilometre = 1000;
    const auto lifetime = NumberAt(Bullet, 10);
    const auto speed = NumberAt(Bullet, 11);
    if (!lifetime || !speed)
        return {};
    const double metres =
        std::nearbyint(DecimalOf(*lifetime / perSecond * (*speed / GameUnitsPerMetre))) + 0.0;
    if (!std::isfinite(metres))
        return {};
    return metres < perKilometre
               ? keshobjects::spellNumber(metres) + " m"
               : keshobjects::spellNumber(DecimalOf(metres / perKilometre)) + " km";
}

std::optional<std::int32_t> ColorOfRecord(const clsTXTObject& Record) {
    constexpr std::int32_t most = 0xFF;
    const std::int32_t first = FirstColorField(Record);
    if (first < 0)
        return {};
    std::int32_t color = 0;
    for (std::int32_t i = 0; i < 3; ++i) { // blue stands first
        const auto part = IntegerAt(Record, first + i);
        if (!part || *part < 0 || *part > most)
            return {};
        color = color << 8 | *part;
    }
    return color;
}

bool SetColorOfRecord(clsTXTObject& Record, std::int32_t Color) {
    const std::int32_t first = FirstColorField(Record);
    if (first < 0)
        return false;
    const std::int32_t parts[] = {GetBlue(Color), GetGreen(Color), GetRed(Color)};
    for (std::int32_t i = 0; i < 3; ++i)
        Record.SetValue(first + i, parts[i]);
    return true;
}
