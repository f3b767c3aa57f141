#include "core/KeshError.h"
#include "core/mdlCommon.h"
#include "tdata/TxtLoader.h"
#include "tdata/clsGun.h"
#include "tdata/clsGunGroup.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlKeshConst.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <new>

namespace tdata {
namespace {

/// A ship's record grows while it is read: each count in it tells how much comes next. `take` is
/// told how many values come, and may end the walk by false; `countAt` gives the count at an index
/// of what was taken. True if the walk came to the record's end.
template <class Take, class CountAt>
bool WalkShip(const Take& take, const CountAt& countAt) {
    constexpr std::int64_t turret = clsTurret::size();
    constexpr std::int64_t group = clsGunGroup::size();
    constexpr std::int64_t gun = clsGun::size();
    constexpr std::int64_t head = clsShip::SectionTurrets + 1; ///< with the count of gun groups
    if (!take(head))
        return false;
    const std::int64_t turrets = std::max(0, countAt(clsShip::FieldTurretCount));
    if (!take(turret * turrets))
        return false;
    std::int64_t at = head + turret * turrets;
    const std::int32_t groups = countAt(at - 1);
    for (std::int32_t i = 0; i < groups; ++i) {
        if (!take(group))
            return false;
        const std::int64_t guns = std::max(0, countAt(at + group - 1));
        if (!take(gun * guns))
            return false;
        at += group + gun * guns;
    }
    return take(CommonTailCount);
}

} // namespace

LoadResult TxtLoader::Run() {
    static constexpr std::pair<std::int32_t, Routine> own[]{
        {otype::Jobs, &TxtLoader::LoadJobs},
        {otype::JobWings, &TxtLoader::LoadJobWings},
        {otype::WareLists, &TxtLoader::LoadWareLists},
        {otype::IconData, &TxtLoader::LoadIconData}};
    const auto* found = std::find_if(std::begin(own), std::end(own),
                                     [this](const auto& row) { return row.first == m_type; });
    try {
        m_result.ok =
            std::invoke(found == std::end(own) ? &TxtLoader::LoadRecords : found->second, *this);
    } catch (const std::exception& failure) {
        Fail((found == std::end(own) ? "Error loading T file:\r\n" : "") + Reason(failure));
    }
    if (m_result.error.empty())
        NoteWhatFollows();
    m_result.lastID = m_nextID;
    return std::move(m_result);
}

void TxtLoader::Throw(std::uint32_t number, const std::string& text) {
    throw KeshError(number, "clsTxtParser", text);
}

bool TxtLoader::Fail(std::string text) {
    m_result.ok = false;
    m_result.error = std::move(text);
    return false;
}

std::string TxtLoader::Reason(const std::exception& failure) const {
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return "Not enough memory for \"" + Kesh_TXTGetName(m_handle) + "\".";
    return failure.what();
}

// Nobody may save the file without a chance to learn that this gets lost.
void TxtLoader::NoteWhatFollows() {
    if (IsEOF())
        return;
    KeshPlace place = 0;
    m_result.leftOut = Kesh_TXTGetTokenPlace(m_handle, place) == 0
                           ? KeshErrorText()
                           : "The count of records (" + std::to_string(m_result.records.size()) +
                                 ") ends before " + Kesh_TXTDescribePlace(m_handle, place) +
                                 "; the rest is not read, and saving drops it.";
}

// --- The common layout

bool TxtLoader::LoadRecords() {
    m_result.version = ReadWhole();
    const std::int32_t count = ReadWhole();
    if (count <= 0)
        return false;
    const bool ships = m_type == otype::Ships;
    const std::int32_t size = ships ? ObjectSize(m_type) : FixedSize();
    if (size <= 0)
        return false;
    Reserve(count, size);
    for (std::int32_t i = 0; i < count; ++i)
        if (!(ships ? ReadShip() : ReadFixed(size)))
            return false;
    return true;
}

std::int32_t TxtLoader::FixedSize() {
    struct Oldest {
        std::int32_t type;
        std::int32_t version;
    };
    static constexpr Oldest refused[]{{otype::Bullets, 53}, {otype::Missiles, 48}};
    for (const auto& rule : refused)
        if (m_type == rule.type && m_result.version < rule.version)
            return Refuse(
                "This is old version of the file (ver. " + std::to_string(m_result.version) +
                ").\r\n\r\nIt is not supported by this version of " + ProgramTitle() + ".");
    constexpr std::int32_t oldNebulaVersion = 13;
    constexpr std::int32_t oldNebulaSize = 27;
    if (m_type == otype::Nebula && m_result.version <= oldNebulaVersion)
        return oldNebulaSize;
    const std::int32_t size = ObjectSize(m_type);
    return size > 0 ? size : Refuse("Unknown size of entries in file. Cannot load.");
}

bool TxtLoader::ReadFixed(std::int32_t size) {
    BeginRecord();
    ReadPlaces(size);
    AddRecord(ValueForm::AsShown);
    return true;
}

bool TxtLoader::ReadShip() {
    try {
        BeginRecord();
        WalkShip([this](std::int64_t count) { return ReadPlaces(count), true; },
                 [this](std::int64_t index) { return CountAt(index); });
        AddRecord(ValueForm::AsShown);
        return true;
    } catch (const std::exception& failure) {
        return Fail("Error loading ship:\r\n" + Reason(failure));
    }
}

std::int32_t TxtLoader::CountAt(std::int64_t indexInRecord) const {
    const auto place = m_text->Places[m_first + static_cast<std::size_t>(indexInRecord)];
    const auto number = keshobjects::numberAt(m_text->Text(), place);
    const auto count = number ? keshobjects::roundToInteger(*number) : std::nullopt;
    if (!count)
        Throw(errnum::Loader, "Expected a count, not \"" + Shown(place) + "\" in " +
                                  Kesh_TXTDescribePlace(m_handle, place) + ".");
    return *count;
}

// --- Reading

std::int32_t TxtLoader::ReadWhole() const {
    KeshValue value;
    if (Kesh_TXTLoadValue(m_handle, KESH_VALUE_WHOLE, value) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
    return std::get<std::int32_t>(value);
}

KeshPlace TxtLoader::ReadPlace() {
    KeshPlace place = 0;
    if (Kesh_TXTLoadPlaces(m_handle, 1, &place, m_written) != 1)
        Throw(errnum::ReadValue, KeshErrorText());
    return place;
}

KeshPlace TxtLoader::ReadWholePlace() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetTokenPlace(m_handle, place) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
    static_cast<void>(ReadWhole());
    return place;
}

KeshPlace TxtLoader::ReadRawPlace() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetRawPlace(m_handle, place) == 0)
        Throw(errnum::Loader, "Attempt to read at EOF");
    Advance();
    return place;
}

KeshPlace TxtLoader::ReadNumber(bool& more) const {
    KeshValue token;
    KeshPlace place = 0;
    const auto type = Kesh_TXTGetTokenType(m_handle);
    if (Kesh_TXTGetTokenValue(m_handle, token) == 0 || Kesh_TXTGetTokenPlace(m_handle, place) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
    const std::string& spelling = std::get<std::string>(token);
    const auto refuse = [&](const char* why) { // finding the line takes long
        Throw(errnum::Loader,
              why + spelling.substr(0, 40) + " in " + Kesh_TXTDescribePlace(m_handle, place));
    };
    if (type != KESH_TOKEN_VALUE)
        refuse("Unexpected here: ");
    if (!keshobjects::readInteger(spelling))
        refuse("Expected number, not ");
    Advance();
    more = Kesh_TXTGetTokenType(m_handle) == KESH_TOKEN_LIST_SEPARATOR;
    if (more)
        Advance();
    return place;
}

void TxtLoader::Advance() const {
    if (Kesh_TXTAdvance(m_handle, 1) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
}

void TxtLoader::ReadPlaces(std::int64_t count) {
    if (count <= 0)
        return;
    auto& places = m_text->Places;
    const std::size_t before = places.size();
    // Each value takes at least its ";", so a count that the file merely claims asks for no more
    // than that.
    const auto most = static_cast<std::int64_t>(m_text->Text().size()) + 1;
    places.resize(before + static_cast<std::size_t>(std::min(count, most)));
    const auto read =
        Kesh_TXTLoadPlaces(m_handle, std::min(count, most), places.data() + before, m_written);
    if (read != count)
        Throw(errnum::ReadValue, KeshErrorText());
    // A gap in front of these values is one inside the record if they are not its first.
    if (before != m_first && m_text->Text()[places[before] - 1] != ';')
        m_written = false;
    if (places.size() - m_first >
        static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        Throw(errnum::Loader, "A record has more values than fit.");
}

// --- Records

void TxtLoader::Reserve(std::int64_t records, std::int64_t valuesEach) {
    const auto most = static_cast<std::int64_t>(m_text->Text().size()) / valuesEach + 1;
    const auto bound = static_cast<std::size_t>(std::clamp<std::int64_t>(records, 0, most));
    m_block->reserve(bound);
    m_result.records.reserve(bound);
    m_text->Places.reserve(bound * static_cast<std::size_t>(valuesEach));
}

void TxtLoader::BeginRecord() {
    m_first = m_text->Places.size();
    m_written = true;
}

clsValueArray TxtLoader::ValuesRead(ValueForm form) const {
    const auto size = static_cast<std::uint32_t>(m_text->Places.size() - m_first);
    return {m_text, static_cast<std::uint32_t>(m_first), size, form, m_written};
}

void TxtLoader::AddRecord(ValueForm form) {
    if (m_block->size() == m_block->capacity()) {
        // Records that are handed out never move: a full block stays as it is, the next one is
        // larger.
        const std::size_t next = std::clamp<std::size_t>(m_result.records.size(), 16, 4096);
        m_block = std::make_shared<RecordBlock>();
        m_block->reserve(next);
    }
    clsTXTObject& record = m_block->emplace_back();
    record.LoadValues(ValuesRead(form));
    // Ships and jobs count ware lists from 0, everything else counts from 1.
    record.ID = m_type == otype::WareLists ? m_nextID : m_nextID + 1;
    ++m_nextID;
    record.otype = m_type;
    record.Index = static_cast<std::int32_t>(m_result.records.size());
    m_result.records.emplace_back(m_block, &record);
}

LoadResult LoadTxtRecords(const std::shared_ptr<clsLoadedText>& text, std::int32_t type) {
    return TxtLoader(text, type).Run();
}

bool ShipFits(const clsTXTObject& record) {
    std::int64_t taken = 0;
    bool counts = true;
    const auto countAt = [&](std::int64_t index) {
        const auto text = record.ValueText(static_cast<std::int32_t>(index));
        const auto number = keshobjects::readNumber(text);
        const auto count = number ? keshobjects::roundToInteger(*number) : std::nullopt;
        counts = counts && count;
        return count.value_or(0);
    };
    const auto take = [&](std::int64_t count) {
        taken += count;
        return counts && taken <= record.size();
    };
    return WalkShip(take, countAt) && taken == record.size();
}

} // namespace tdata
