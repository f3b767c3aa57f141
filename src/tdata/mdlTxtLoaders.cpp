#include "tdata/mdlTxtLoaders.h"

#include "core/KeshError.h"
#include "core/mdlCommon.h"
#include "tdata/clsShip.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <new>

namespace tdata {
namespace {

// Records come in one block: hundreds of thousands of single allocations would cost more than the
// parsing.
using RecordBlock = std::vector<clsTXTObject, keshobjects::BigAllocator<clsTXTObject>>;

/// A ship's record grows while it is read: each count in it tells how much comes next. `take` is
/// told how many values come, and may end the walk by false; `countAt` gives the count at an index
/// of what was taken. True if the walk came to the record's end.
template <class Take, class CountAt>
bool WalkShip(const Take& take, const CountAt& countAt) {
    constexpr std::int64_t head = clsShip::SectionTurrets + 1; ///< with the count of gun groups
    if (!take(head))
        return false;
    const std::int64_t turrets = std::max(0, countAt(clsShip::FieldTurretCount));
    if (!take(4 * turrets))
        return false;
    const std::int32_t groups = countAt(head - 1 + 4 * turrets);
    std::int64_t at = head + 4 * turrets;
    for (std::int32_t i = 0; i < groups; ++i) {
        if (!take(4))
            return false;
        const std::int64_t guns = std::max(0, countAt(at + 3));
        if (!take(6 * guns))
            return false;
        at += 4 + 6 * guns;
    }
    return take(CommonTailCount);
}

class Loader {
public:
    Loader(std::shared_ptr<clsLoadedText> text, std::int32_t type)
        : m_text(std::move(text)), m_handle(m_text->Handle()), m_type(type) {}

    LoadResult Run();

private:
    using Routine = bool (Loader::*)();

    bool LoadRecords();
    bool LoadJobs();
    bool LoadJobWings();
    bool LoadWareLists();
    bool LoadIconData();
    bool ReadFixed();
    bool ReadShip();
    void ReadWing();
    void ReadIcon();
    [[nodiscard]] std::int32_t FixedSize(); ///< 0 with the error set if such files are refused
    std::int32_t Refuse(std::string text) { return Fail(std::move(text)) ? 1 : 0; }

    [[nodiscard]] bool IsEOF() const { return Kesh_TXTGetTokenType(m_handle) == KESH_TOKEN_END; }
    [[nodiscard]] std::int32_t ReadWhole() const;
    [[nodiscard]] KeshPlace ReadPlace();
    [[nodiscard]] KeshPlace ReadWholePlace() const;
    [[nodiscard]] KeshPlace ReadRawPlace() const;
    [[nodiscard]] KeshPlace ReadNumber(bool& more) const;
    void SkipBlankRestOfLine() const;
    void Advance() const;
    void ReadPlaces(std::int64_t count);
    [[nodiscard]] std::int32_t CountAt(std::int64_t indexInRecord) const;
    /// The start of a value, for messages.
    [[nodiscard]] std::string Shown(KeshPlace place) const {
        return std::string(keshobjects::valueAt(m_text->Text(), place).substr(0, 40));
    }

    void Reserve(std::int64_t records, std::int64_t valuesEach);
    void BeginRecord();
    void AddRecord(ValueForm form);
    [[nodiscard]] clsValueArray ValuesRead(ValueForm form) const;
    bool Fail(std::string text);
    [[nodiscard]] std::string Reason(const std::exception& failure) const;
    void NoteWhatFollows();

    std::shared_ptr<clsLoadedText> m_text;
    std::int32_t m_handle;
    std::int32_t m_type;
    std::int32_t m_nextID = 0;
    std::shared_ptr<RecordBlock> m_block = std::make_shared<RecordBlock>();
    std::size_t m_first = 0; ///< in Places, of the record being read
    bool m_written = true;   ///< it stands in written form so far
    LoadResult m_result;
};

[[noreturn]] void Throw(std::uint32_t number, const std::string& text) {
    throw KeshError(number, "clsTxtParser", text);
}

LoadResult Loader::Run() {
    static constexpr std::pair<std::int32_t, Routine> own[]{
        {otype::Jobs, &Loader::LoadJobs},
        {otype::JobWings, &Loader::LoadJobWings},
        {otype::WareLists, &Loader::LoadWareLists},
        {otype::IconData, &Loader::LoadIconData}};
    const auto* found = std::find_if(std::begin(own), std::end(own),
                                     [this](const auto& row) { return row.first == m_type; });
    try {
        m_result.ok =
            std::invoke(found == std::end(own) ? &Loader::LoadRecords : found->second, *this);
    } catch (const std::exception& failure) {
        Fail((found == std::end(own) ? "Error loading T file:\r\n" : "") + Reason(failure));
    }
    if (m_result.error.empty())
        NoteWhatFollows();
    m_result.lastID = m_nextID;
    return std::move(m_result);
}

bool Loader::Fail(std::string text) {
    m_result.ok = false;
    m_result.error = std::move(text);
    return false;
}

std::string Loader::Reason(const std::exception& failure) const {
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return "Not enough memory for \"" + Kesh_TXTGetName(m_handle) + "\".";
    return failure.what();
}

// Nobody may save the file without a chance to learn that this gets lost.
void Loader::NoteWhatFollows() {
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

bool Loader::LoadRecords() {
    m_result.version = ReadWhole();
    const std::int32_t count = ReadWhole();
    const bool ships = m_type == otype::Ships;
    if (!ships && count > 0 && FixedSize() <= 0)
        return false;
    Reserve(count, ships ? ObjectSize(otype::Ships) : std::max(1, ObjectSize(m_type)));
    for (std::int32_t i = 0; i < count; ++i)
        if (!(ships ? ReadShip() : ReadFixed()))
            return false;
    return count > 0;
}

std::int32_t Loader::FixedSize() {
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

bool Loader::ReadFixed() {
    BeginRecord();
    ReadPlaces(FixedSize());
    AddRecord(ValueForm::AsShown);
    return true;
}

bool Loader::ReadShip() {
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

std::int32_t Loader::CountAt(std::int64_t indexInRecord) const {
    const auto place = m_text->Places[m_first + static_cast<std::size_t>(indexInRecord)];
    const auto number = keshobjects::numberAt(m_text->Text(), place);
    const auto count = number ? keshobjects::roundToInteger(*number) : std::nullopt;
    if (!count)
        Throw(errnum::Loader, "Expected a count, not \"" + Shown(place) + "\" in " +
                                  Kesh_TXTDescribePlace(m_handle, place) + ".");
    return *count;
}

// --- Layouts of their own

bool Loader::LoadJobs() {
    m_result.version = ReadWhole();
    const auto size = JobSize(m_result.version);
    if (!size)
        return Fail("Unsupported version: " + std::to_string(m_result.version));
    SkipBlankRestOfLine();
    while (!IsEOF()) {
        BeginRecord();
        ReadPlaces(*size - 1);
        m_text->Places.push_back(ReadRawPlace());
        AddRecord(ValueForm::LastRaw);
    }
    return true;
}

// Behind the version the line goes on as a raw token, which is no record even in a file of none.
void Loader::SkipBlankRestOfLine() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetRawPlace(m_handle, place) == 0)
        return;
    const auto rest = keshobjects::rawAt(m_text->Text(), place);
    if (std::all_of(rest.begin(), rest.end(), keshobjects::isBlank))
        Advance();
}

bool Loader::LoadJobWings() {
    while (!IsEOF())
        ReadWing();
    return true;
}

void Loader::ReadWing() {
    BeginRecord();
    m_written = false; // lists are written with ";" throughout
    m_text->Places.push_back(ReadWholePlace());
    for (bool more = true; more;)
        m_text->Places.push_back(ReadNumber(more));
    AddRecord(ValueForm::List);
}

bool Loader::LoadWareLists() {
    const std::int32_t count = ReadWhole();
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t wares = ReadWhole();
        BeginRecord();
        ReadPlaces(wares);
        AddRecord(ValueForm::AllText);
    }
    return true;
}

bool Loader::LoadIconData() {
    if (IsEOF())
        return Fail("File is empty");
    BeginRecord();
    AddRecord(ValueForm::Sections);
    const RecordPtr root = m_result.records.back();
    std::vector<KeshPlace> headers;
    do {
        for (int texts = 0; texts < 2; ++texts)
            headers.push_back(ReadPlace());
        for (int numbers = 0; numbers < 3; ++numbers)
            headers.push_back(ReadWholePlace());
        const std::int32_t entries = *keshobjects::integerAt(m_text->Text(), headers.back());
        for (std::int32_t i = 0; i < entries; ++i)
            ReadIcon();
    } while (!IsEOF());
    BeginRecord();
    m_written = false; // the icons stand between the sections
    m_text->Places.insert(m_text->Places.end(), headers.begin(), headers.end());
    root->LoadValues(ValuesRead(ValueForm::Sections));
    return true;
}

void Loader::ReadIcon() {
    const KeshPlace name = ReadPlace();
    static_cast<void>(ReadPlace()); // the game's own number of the entry; nothing reads it
    BeginRecord();
    m_written = false; // the name stands in front of its numbers
    for (int i = 0; i < 4; ++i)
        m_text->Places.push_back(ReadWholePlace());
    m_text->Places.push_back(name);
    AddRecord(ValueForm::LastText);
}

// --- Reading

std::int32_t Loader::ReadWhole() const {
    KeshValue value;
    if (Kesh_TXTLoadValue(m_handle, KESH_VALUE_WHOLE, value) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
    return std::get<std::int32_t>(value);
}

KeshPlace Loader::ReadPlace() {
    KeshPlace place = 0;
    if (Kesh_TXTLoadPlaces(m_handle, 1, &place, m_written) != 1)
        Throw(errnum::ReadValue, KeshErrorText());
    return place;
}

KeshPlace Loader::ReadWholePlace() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetTokenPlace(m_handle, place) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
    static_cast<void>(ReadWhole());
    return place;
}

KeshPlace Loader::ReadRawPlace() const {
    KeshPlace place = 0;
    if (Kesh_TXTGetRawPlace(m_handle, place) == 0)
        Throw(errnum::Loader, "Attempt to read at EOF");
    Advance();
    return place;
}

KeshPlace Loader::ReadNumber(bool& more) const {
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

void Loader::Advance() const {
    if (Kesh_TXTAdvance(m_handle, 1) == 0)
        Throw(errnum::ReadValue, KeshErrorText());
}

void Loader::ReadPlaces(std::int64_t count) {
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

void Loader::Reserve(std::int64_t records, std::int64_t valuesEach) {
    const auto most = static_cast<std::int64_t>(m_text->Text().size()) / valuesEach + 1;
    const auto bound = static_cast<std::size_t>(std::clamp<std::int64_t>(records, 0, most));
    m_block->reserve(bound);
    m_result.records.reserve(bound);
    m_text->Places.reserve(bound * static_cast<std::size_t>(valuesEach));
}

void Loader::BeginRecord() {
    m_first = m_text->Places.size();
    m_written = true;
}

clsValueArray Loader::ValuesRead(ValueForm form) const {
    const auto size = static_cast<std::uint32_t>(m_text->Places.size() - m_first);
    return {m_text, static_cast<std::uint32_t>(m_first), size, form, m_written};
}

void Loader::AddRecord(ValueForm form) {
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

} // namespace

LoadResult LoadTxtRecords(const std::shared_ptr<clsLoadedText>& text, std::int32_t type) {
    return Loader(text, type).Run();
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
