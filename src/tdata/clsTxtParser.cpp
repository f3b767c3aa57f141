#include "tdata/clsTxtParser.h"

#include "core/KeshError.h"
#include "core/mdlCommon.h"
#include "lornfd/foldedsort.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "tdata/NewObjectName.h"
#include "tdata/RecordWriter.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlTxtLoaders.h"

#include <algorithm>
#include <new>
#include <unordered_set>
#include <utility>

namespace {

bool NameBefore(const clsTXTObject* a, const clsTXTObject* b) {
    return lornfd::compareNoCase(a->ObjectName(), b->ObjectName()) < 0;
}

} // namespace

void clsTxtParser::Reset() {
    m_byIndex.clear();
    m_byName.clear();
    m_byId.clear();
    m_text.reset();
    m_lastError.clear();
    m_leftOut.clear();
    m_version = 0;
    m_nextID = 0;
    m_dirty = false;
    m_parsed = false;
}

bool clsTxtParser::SetError(std::string Text) {
    m_lastError = std::move(Text);
    return false;
}

std::string_view clsTxtParser::LoadedText() const noexcept {
    return m_text ? m_text->Text() : std::string_view();
}

bool clsTxtParser::Load(std::int32_t FileHandle, std::int32_t Type) {
    Reset();
    m_otype = Type;
    Kesh_TXTIgnoreRemarks(Type == otype::Jobs ? 1 : 0);
    const std::int32_t text = Kesh_LoadFromFile(FileHandle, 1);
    if (Kesh_GetLastError() != 0)
        return SetError(KeshErrorText());
    return LoadFromHandle(text, Type);
}

bool clsTxtParser::LoadFromHandle(std::int32_t Text, std::int32_t Type) {
    Reset();
    m_otype = Type;
    m_text = std::make_shared<clsLoadedText>(Text);
    if (Kesh_GetObjectType(Text) != KESH_TYPE_T_TEXT)
        return SetError("Invalid container type.");
    if (Type == otype::None)
        return SetError("Unrecognized T file.");
    auto result = tdata::LoadTxtRecords(m_text, Type);
    m_byIndex = std::move(result.records);
    m_version = result.version;
    m_nextID = result.lastID;
    m_lastError = std::move(result.error);
    m_leftOut = std::move(result.leftOut);
    m_parsed = result.ok;
    return m_parsed;
}

// --- Saving

bool clsTxtParser::Save(std::int32_t FileHandle) {
    m_lastError.clear();
    std::vector<clsTXTObject*> dirty;
    bool saved = SaveAs(FileHandle, dirty);
    if (LornFD_SetEndOfFile(FileHandle) == 0 && saved)
        saved = SetError(LornFDErrorText());
    if (saved) {
        m_leftOut.clear();
        m_dirty = false;
        for (clsTXTObject* const record : dirty)
            record->Dirty = false;
    }
    return saved;
}

bool clsTxtParser::SaveAs(std::int32_t FileHandle, std::vector<clsTXTObject*>& Dirty) {
    try {
        return WriteRecords(FileHandle, Dirty);
    } catch (const std::bad_alloc&) {
        return SetError("Not enough memory to save \"" + LornFD_FileName(FileHandle) + "\".");
    }
}

// One pass over the records: there may be a million, and passing over them costs more than what is
// done with each.
bool clsTxtParser::WriteRecords(std::int32_t FileHandle, std::vector<clsTXTObject*>& Dirty) {
    const bool jobs = m_otype == otype::Jobs;
    RecordWriter out(FileHandle);
    if (jobs)
        out << std::to_string(m_version) << ";" << RecordWriter::LineEnd;
    else
        out << "// Created with " << ProgramID() << RecordWriter::LineEnd
            << std::to_string(m_version) << ";" << std::to_string(m_byIndex.size()) << ";"
            << RecordWriter::LineEnd;
    for (const auto& record : m_byIndex) {
        if (!CheckWritable(*record))
            return false;
        jobs ? out.WriteJob(*record) : out.WriteRecord(*record);
        if (record->Dirty)
            Dirty.push_back(record.get());
    }
    return out.Flush() ? jobs || !m_byIndex.empty() : SetError(KeshErrorText());
}

// What a window or tool set without looking must not make the file unreadable.
bool clsTxtParser::CheckWritable(const clsTXTObject& Record) {
    if (Record.size() == 0)
        return SetError("Record " + std::to_string(Record.Index) + " (key " + Record.key() +
                        ") has no values, so it cannot be written.");
    if (const auto index = Record.Values().FirstUnwritable(m_otype == otype::Jobs))
        return SetError(
            "Value " + std::to_string(*index) + " of " + std::string(Record.ObjectName()) +
            " (object " + std::to_string(Record.Index) + ") holds signs that cannot be written: " +
            std::string(Record.ValueText(static_cast<std::int32_t>(*index)).substr(0, 40)));
    return true;
}

std::string clsTxtParser::Misfit() const {
    const auto misfit =
        m_otype != otype::Ships
            ? m_byIndex.end()
            : std::find_if_not(m_byIndex.begin(), m_byIndex.end(),
                               [](const auto& record) { return tdata::ShipFits(*record); });
    return misfit == m_byIndex.end()
               ? std::string()
               : "The counts of turrets and guns in " + std::string((*misfit)->ObjectName()) +
                     " (object " + std::to_string((*misfit)->Index) +
                     ") do not fit the number of its values. A file that is saved like this cannot "
                     "be loaded again.";
}

// --- Finding

RecordPtr clsTxtParser::FindKey(std::string_view Key) const {
    if (Key.empty() || lornfd::foldCase(Key.front()) != 'k')
        return {};
    const auto id = keshobjects::readInteger(Key.substr(1));
    const RecordPtr found = id ? Find(*id) : RecordPtr();
    return found && Key.substr(1) == std::string_view(found->key()).substr(1) ? found : RecordPtr();
}

RecordPtr clsTxtParser::Find(std::int32_t ID) const {
    if (m_byId.empty())
        for (const auto& record : m_byIndex)
            m_byId.emplace(record->ID, record.get());
    const auto found = m_byId.find(ID);
    if (found == m_byId.end())
        return {};
    const auto index = found->second->Index;
    RecordPtr here = FindIndex(index);
    return here.get() == found->second
               ? here
               : m_bulk->Tail[static_cast<std::size_t>(index) - m_bulk->From];
}

RecordPtr clsTxtParser::FindID(std::string_view Name) const {
    const auto found =
        std::find_if(m_byIndex.begin(), m_byIndex.end(),
                     [&](const RecordPtr& record) { return record->ObjectName() == Name; });
    return found == m_byIndex.end() ? RecordPtr() : *found;
}

RecordPtr clsTxtParser::FindIndex(std::int32_t Index) const {
    return Index >= 0 && Index < std::ssize(m_byIndex) ? m_byIndex[static_cast<std::size_t>(Index)]
                                                       : RecordPtr();
}

// The names are fetched once: asking the records in each comparison takes three times as long. Of
// one name the first in the file comes first.
const std::vector<clsTXTObject*>& clsTxtParser::ByName() const {
    if (!m_byName.empty())
        return m_byName;
    std::vector<std::pair<std::string_view, std::size_t>> named;
    named.reserve(m_byIndex.size());
    for (std::size_t i = 0; i < m_byIndex.size(); ++i)
        named.emplace_back(m_byIndex[i]->ObjectName(), i);
    lornfd::sortNoCase(
        named, [](const auto& entry) { return entry.first; },
        [](const auto& a, const auto& b) { return a.second < b.second; });
    m_byName.reserve(named.size());
    for (const auto& entry : named)
        m_byName.push_back(m_byIndex[entry.second].get());
    return m_byName;
}

bool clsTxtParser::CheckDirty() const {
    return m_dirty || std::any_of(m_byIndex.begin(), m_byIndex.end(),
                                  [](const auto& record) { return record->Dirty; });
}

// --- Changing

bool clsTxtParser::RemoveObject(const RecordPtr& Record) {
    if (!Record || Find(Record->ID) != Record)
        return false;
    const auto position = Record->Index; // the argument may be the element that goes
    std::erase(m_byName, Record.get());
    m_byId.erase(Record->ID);
    m_byIndex.erase(m_byIndex.begin() + position);
    Renumber(static_cast<std::size_t>(position));
    m_dirty = true;
    return true;
}

bool clsTxtParser::RemoveObjects(std::span<const RecordPtr> Records) {
    std::unordered_set<const clsTXTObject*> gone;
    for (const RecordPtr& record : Records)
        if (!Holds(record) || !gone.insert(record.get()).second)
            return false;
    if (gone.empty())
        return true;
    std::erase_if(m_byName, [&](const clsTXTObject* record) { return gone.contains(record); });
    for (const clsTXTObject* const record : gone)
        m_byId.erase(record->ID);
    std::erase_if(m_byIndex, [&](const RecordPtr& record) { return gone.contains(record.get()); });
    Renumber(0);
    m_dirty = true;
    return true;
}

RecordPtr clsTxtParser::CreateObject(const RecordPtr& After) {
    return AddNew(PositionBehind(After));
}

RecordPtr clsTxtParser::CreateObjectBefore(const RecordPtr& Before) {
    return AddNew(Holds(Before) ? static_cast<std::size_t>(Before->Index) : m_byIndex.size());
}

RecordPtr clsTxtParser::AddNew(std::size_t Position) {
    if (m_bulk)
        Position = m_byIndex.size();
    auto record = std::make_shared<clsTXTObject>();
    record->ID = ++m_nextID;
    record->otype = m_otype;
    InsertAt(Position, record);
    m_dirty = true;
    return record;
}

void clsTxtParser::AddObjectP(RecordPtr Record, const RecordPtr& After) {
    InsertAt(PositionBehind(After), std::move(Record));
}

void clsTxtParser::RestoreObject(RecordPtr Record, std::int32_t Index) {
    InsertAt(static_cast<std::size_t>(std::clamp<std::int64_t>(Index, 0, std::ssize(m_byIndex))),
             std::move(Record));
    m_dirty = true;
}

void clsTxtParser::RestoreObjects(std::span<const RecordPtr> Records) {
    std::vector<RecordPtr> merged;
    merged.reserve(m_byIndex.size() + Records.size());
    auto there = m_byIndex.begin();
    for (const RecordPtr& record : Records) {
        const auto before = static_cast<std::ptrdiff_t>(record->Index) - std::ssize(merged);
        const auto stop = there + std::clamp<std::ptrdiff_t>(before, 0, m_byIndex.end() - there);
        merged.insert(merged.end(), there, stop);
        there = stop;
        merged.push_back(record);
    }
    merged.insert(merged.end(), there, m_byIndex.end());
    m_byIndex = std::move(merged);
    m_byName.clear();
    m_byId.clear();
    Renumber(0);
    m_dirty = true;
}

void clsTxtParser::InsertAt(std::size_t Position, RecordPtr Record) {
    if (Record->ID < 0 || Find(Record->ID))
        throw KeshError(errnum::General, "clsTxtParser",
                        "There is a record of key " + Record->key() + " already.");
    if (!m_byName.empty()) {
        // A walk, since renames may have left the order unsorted.
        const auto greater = [&](const clsTXTObject* other) {
            return NameBefore(Record.get(), other);
        };
        m_byName.insert(std::find_if(m_byName.begin(), m_byName.end(), greater), Record.get());
    }
    m_byId.emplace(Record->ID, Record.get());
    m_byIndex.insert(m_byIndex.begin() + static_cast<std::ptrdiff_t>(Position), std::move(Record));
    Renumber(Position);
}

void clsTxtParser::Renumber(std::size_t From) {
    for (std::size_t i = From; i < m_byIndex.size(); ++i)
        m_byIndex[i]->Index = static_cast<std::int32_t>(i);
}

bool clsTxtParser::Holds(const RecordPtr& Record) const {
    return Record && FindIndex(Record->Index) == Record;
}

std::size_t clsTxtParser::PositionBehind(const RecordPtr& Record) const {
    return Holds(Record) ? static_cast<std::size_t>(Record->Index) + 1 : m_byIndex.size();
}

// --- Many at once

BulkInsert::BulkInsert(clsTxtParser& Parser, const RecordPtr& Before) : m_parser(Parser) {
    auto bulk = std::make_unique<clsTxtParser::Bulk>();
    auto& records = Parser.m_byIndex;
    if (Parser.Holds(Before)) {
        const auto place = records.begin() + Before->Index;
        bulk->Tail.assign(place, records.end());
        static_cast<void>(Parser.Find(0)); // finding by ID goes on for those as well
        records.erase(place, records.end());
    }
    bulk->From = records.size();
    Parser.m_byName.clear();
    Parser.m_bulk = std::move(bulk);
}

BulkInsert::~BulkInsert() {
    auto& records = m_parser.m_byIndex;
    const std::size_t end = records.size();
    records.insert(records.end(), m_parser.m_bulk->Tail.begin(), m_parser.m_bulk->Tail.end());
    m_parser.m_bulk.reset();
    m_parser.Renumber(end);
}
