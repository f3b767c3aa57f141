#include "tdata/DataCheck.h"

#include "lornfd/paths.h"
#include "tdata/FieldLookup.h"
#include "tdata/JobFields.h"
#include "tdata/RecordNames.h"
#include "tdata/RecordReference.h"
#include "tdata/clsShip.h"
#include "tdata/clsTurret.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/mdlKeshJobs.h"
#include "tdata/mdlKeshShips.h"
#include "tdata/mdlKeshWare.h"
#include "tdata/mdlWareList.h"

#include <set>
#include <unordered_map>
#include <utility>

namespace {

constexpr std::int32_t AnyFramed = -1; ///< every type with the common head and tail

class Checker {
public:
    Checker(const clsTxtParser& parser, std::string file, CheckReferences& references);

    std::vector<Finding> Run();

private:
    using Record = const clsTXTObject&;
    /// Checks the field at an index of a record.
    using FieldCheck = void (Checker::*)(Record, std::int32_t);
    struct Rule {
        std::int32_t Type;
        std::int32_t Field; ///< from the record's end if negative; logical in a job
        FieldCheck Check;
    };
    static const Rule Rules[];

    // The file, record by record
    void CheckRecord(const RecordPtr& object);
    void CheckFields(Record record);
    void CheckDuplicate(Record record);
    void CheckShip(const RecordPtr& record);
    void CheckTurret(Record record, const clsTurret& turret);
    void CheckWareList(Record record);
    void CheckJobWing(Record record);

    // Fields
    void Subtype(Record record, std::int32_t field);
    void ShipClass(Record record, std::int32_t field);
    void ShipType(Record record, std::int32_t field);
    void Race(Record record, std::int32_t field) { InTable(record, field, RaceNames, "race"); }
    void WareClass(Record record, std::int32_t field) {
        InTable(record, field, DefaultWareClassNames, "ware class");
    }
    void ObjectName(Record record, std::int32_t field);
    void TextId(Record record, std::int32_t field);
    void Refers(Record record, std::int32_t field, const FieldReference& reference);

    // What several of them ask
    void InWords(Record record, std::int32_t field, const TextTable& words, std::string_view what);
    void InTable(Record record, std::int32_t field, const TextTable& table, std::string_view what);
    void InFile(Record record, std::int32_t field, std::string_view key);
    void InFile(Record record, std::int32_t field, const std::string& name, std::string_view key);
    [[nodiscard]] bool Have(std::string_view key);

    [[nodiscard]] static std::string NameOf(Record record, std::int32_t field);
    [[nodiscard]] static std::string Said(Record record, std::int32_t field); ///< name and value
    void Add(Record record, std::int32_t field, std::string text, Severity level = Severity::Error);

    const clsTxtParser& m_parser;
    std::string m_file;
    CheckReferences& m_references;
    std::vector<Rule> m_rules;                            ///< of this file's type
    std::vector<FieldReference> m_links;                  ///< the same
    std::unordered_map<std::string, std::int32_t> m_seen; ///< IDs in lower case
    std::set<std::string, std::less<>> m_missing;         ///< files that a note stands for
    std::vector<Finding> m_findings;
};

const Checker::Rule Checker::Rules[] = {
    {otype::Ships, shipfield::Class, &Checker::ShipClass},
    {otype::Ships, shipfield::CargoClass, &Checker::WareClass},
    {otype::Ships, shipfield::Race, &Checker::Race},
    {otype::Ships, shipfield::Type, &Checker::ShipType},
    {otype::Laser, CommonSubtypeField, &Checker::Subtype},
    {otype::Missiles, CommonSubtypeField, &Checker::Subtype},
    {otype::Factories, CommonSubtypeField, &Checker::Subtype},
    {otype::Factories, 13, &Checker::Race},
    {otype::Docks, CommonSubtypeField, &Checker::Subtype},
    {otype::Docks, 13, &Checker::Race},
    {otype::Wrecks, CommonSubtypeField, &Checker::Subtype},
    {AnyFramed, CommonNameField, &Checker::ObjectName},
    {AnyFramed, -6, &Checker::WareClass},
    {otype::Jobs, jobfield::Description, &Checker::TextId},
    {otype::Jobs, jobfield::ShipName, &Checker::TextId},
};

/// Jobs and wings are known by their first value, ware lists and the root of icons by their place
/// alone (-1), all others by their last value.
std::int32_t IdField(const clsTXTObject& record) {
    const std::int32_t type = record.otype;
    if (type == otype::WareLists || (type == otype::IconData && record.Index == 0))
        return -1;
    const bool numbered = type == otype::Jobs || type == otype::JobWings;
    return numbered && record.size() > 0 ? 0 : record.size() - 1;
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

// --- The file

Checker::Checker(const clsTxtParser& parser, std::string file, CheckReferences& references)
    : m_parser(parser), m_file(std::move(file)), m_references(references) {
    const bool framed = FieldsOf(parser.otype()).Common != Frame::None;
    for (const Rule& rule : Rules)
        if (rule.Type == parser.otype() || (rule.Type == AnyFramed && framed))
            m_rules.push_back(rule);
    for (const FieldReference& reference : FieldReferences())
        if (reference.Type == parser.otype())
            m_links.push_back(reference);
}

std::vector<Finding> Checker::Run() {
    for (const RecordPtr& record : m_parser.ByIndex())
        CheckRecord(record);
    if (!m_parser.LeftOut().empty())
        m_findings.push_back({.File = m_file, .Level = Severity::Note, .Text = m_parser.LeftOut()});
    return std::move(m_findings);
}

void Checker::CheckRecord(const RecordPtr& object) {
    const clsTXTObject& record = *object;
    const std::int32_t type = record.otype;
    CheckFields(record);
    CheckDuplicate(record);
    if (type == otype::Ships)
        CheckShip(object);
    else if (type == otype::WareLists)
        CheckWareList(record);
    else if (type == otype::JobWings)
        CheckJobWing(record);
}

void Checker::CheckFields(Record record) {
    const std::int32_t size = record.size();
    const auto placeOf = [&](std::int32_t field) {
        if (field < 0)
            return size + field;
        return record.otype == otype::Jobs ? JobPhysicalIndex(size, field) : field;
    };
    for (const Rule& rule : m_rules)
        if (const std::int32_t place = placeOf(rule.Field); place >= 0 && place < size)
            (this->*rule.Check)(record, place);
    for (const FieldReference& reference : m_links)
        if (const std::int32_t place = placeOf(reference.Field); place >= 0 && place < size)
            Refers(record, place, reference);
}

void Checker::CheckDuplicate(Record record) {
    const std::int32_t field = IdField(record);
    if (field < 0)
        return;
    const std::string id = keshobjects::spellValue(record.Value(field));
    const auto [first, isNew] =
        m_seen.emplace(lornfd::foldCase(std::string_view(id)), record.Index);
    if (!isNew)
        Add(record, field,
            "The ID " + Quoted(id) + " is also that of object " + std::to_string(first->second) +
                ".");
}

void Checker::CheckShip(const RecordPtr& record) {
    clsShip ship(record);
    const bool loaded = ship.LoadObjects();
    const std::string whyNot = ship.GetLastError();
    if (!ship.Validate())
        Add(*record, -1, ship.GetLastError());
    else if (!loaded)
        Add(*record, -1, whyNot);
    else
        for (const auto& turret : ship.Turrets())
            CheckTurret(*record, *turret);
}

// The pair of descriptors of a turret stands where its index says.
void Checker::CheckTurret(Record record, const clsTurret& turret) {
    for (const std::int32_t field : {turret.Offset(), turret.Offset() + 1})
        if (!record.ValueInteger(field)) {
            Add(record, field, Quoted(record.ValueText(field)) + " is no number.");
            return;
        }
    if (!turret.IsTurret())
        return;
    const std::string name = "The type of turret " + std::to_string(turret.index());
    if (turret.HasDescriptor())
        InFile(record, turret.DescriptorOffset(), name, "TCockpits");
    else
        Add(record, turret.Offset(), name + " has no place in the record.");
}

void Checker::CheckWareList(Record record) {
    bool haveAll = true;
    for (const std::string_view file : MergedWareFiles())
        haveAll = Have(file) && haveAll;
    for (std::int32_t i = 0; haveAll && i < record.size(); ++i)
        if (!m_references.HasWare(record.ValueText(i)))
            Add(record, i, "There is no ware " + Quoted(record.ValueText(i)) + ".");
}

void Checker::CheckJobWing(Record record) {
    if (!Have("Jobs"))
        return;
    for (std::int32_t i = 1; i < record.size(); ++i) {
        const auto number = record.ValueInteger(i);
        if (!number || !m_references.HasJob(*number))
            Add(record, i, "There is no job " + Quoted(record.ValueText(i)) + ".");
    }
}

// --- Fields

void Checker::Subtype(Record record, std::int32_t field) {
    const TextTable& words = SubtypesOf(record.otype);
    if (HasSymbolicSubtype(record.otype, m_parser.Version()))
        InWords(record, field, words, "subtype");
    else
        InTable(record, field, words, "subtype");
}

void Checker::ShipClass(Record record, std::int32_t field) {
    if (m_parser.Version() >= FirstSymbolicShips)
        InWords(record, field, ShipClassKeys, "ship class");
    else
        InTable(record, field, ShipClassKeys, "ship class");
}

void Checker::ShipType(Record record, std::int32_t field) {
    const bool keys = m_parser.Version() >= FirstSymbolicShips;
    InWords(record, field, keys ? ShipObjectTypeKeys : ShipObjectTypeIDs, "ship type");
}

void Checker::Refers(Record record, std::int32_t field, const FieldReference& reference) {
    if (reference.NamesNone(record, field))
        return;
    if (reference.How == FieldReference::By::Index)
        return InFile(record, field, reference.File);
    const bool ship = reference.How == FieldReference::By::ID;
    if (Have(reference.File) && !(ship ? m_references.HasShip(record.ValueText(field))
                                       : m_references.HasJobWing(record.Value(field))))
        Add(record, field,
            Said(record, field) + ", but there is no such " + (ship ? "ship." : "group."));
}

void Checker::TextId(Record record, std::int32_t field) {
    const auto id = record.ValueInteger(field);
    if (!m_references.WithTexts() || (id && *id <= 0))
        return;
    if (!id || !m_references.HasObjectText(*id))
        Add(record, field, Said(record, field) + ", but page 17 has no such text.");
}

void Checker::ObjectName(Record record, std::int32_t field) {
    TextId(record, field);
    // The description has the id behind the name's. Many objects do without.
    const std::int32_t name = record.ValueInteger(field).value_or(0);
    if (!m_references.WithTexts() || name <= 0 || !m_references.HasObjectText(name))
        return;
    const std::int64_t description = std::int64_t{name} + 1;
    if (!std::in_range<std::int32_t>(description) ||
        !m_references.HasObjectText(static_cast<std::int32_t>(description)))
        Add(record, field, "There is no description (text 17:" + std::to_string(description) + ").",
            Severity::Note);
}

// --- What several of them ask

void Checker::InWords(Record record, std::int32_t field, const TextTable& words,
                      std::string_view what) {
    if (FindInList(keshobjects::spellValue(record.Value(field)), words) < 0)
        Add(record, field, Said(record, field) + ", which is no " + std::string(what) + ".");
}

void Checker::InTable(Record record, std::int32_t field, const TextTable& table,
                      std::string_view what) {
    const auto position = record.ValueInteger(field);
    if (!position || !table.Holds(*position))
        Add(record, field, Said(record, field) + ", which is no " + std::string(what) + ".");
}

void Checker::InFile(Record record, std::int32_t field, std::string_view key) {
    InFile(record, field, Quoted(NameOf(record, field)), key);
}

void Checker::InFile(Record record, std::int32_t field, const std::string& name,
                     std::string_view key) {
    if (!Have(key))
        return;
    const std::int32_t count = m_references.CountOf(key);
    const auto position = record.ValueInteger(field);
    if (!position || *position < 0 || *position >= count)
        Add(record, field,
            name + " is " + Quoted(record.ValueText(field)) + ", but " + std::string(key) +
                " has the objects 0 to " + std::to_string(count - 1) + ".");
}

bool Checker::Have(std::string_view key) {
    if (m_references.File(key) != nullptr)
        return true;
    if (m_references.WithGame() && m_missing.emplace(key).second)
        m_findings.push_back(
            {.File = m_file,
             .Level = Severity::Note,
             .Text = std::string(key) + " is not at hand, so what refers to it was not checked."});
    return false;
}

std::string Checker::NameOf(Record record, std::int32_t field) {
    const bool job = record.otype == otype::Jobs;
    const std::int32_t logical = job ? JobLogicalIndex(record.size(), field) : field;
    const std::string name = FieldName(record, logical);
    return name == "Unknown value" ? "Field " + std::to_string(logical) : name;
}

std::string Checker::Said(Record record, std::int32_t field) {
    return Quoted(NameOf(record, field)) + " is " + Quoted(record.ValueText(field));
}

void Checker::Add(Record record, std::int32_t field, std::string text, Severity level) {
    const std::int32_t idField = IdField(record);
    std::string id(idField < 0 ? std::string_view() : record.ValueText(idField));
    m_findings.push_back({m_file, record.Index, std::move(id), field, level, std::move(text)});
}

} // namespace

std::vector<Finding> CheckTFile(const clsTxtParser& Parser, const std::string& File,
                                CheckReferences& References) {
    return Checker(Parser, File, References).Run();
}

std::vector<Finding> CheckMergedWares(CheckReferences& References) {
    std::unordered_map<std::string, std::string_view> files; ///< by ID in lower case
    std::vector<Finding> findings;
    for (const std::string_view key : MergedWareFiles()) {
        const clsTxtParser* const file = References.File(key);
        for (std::size_t i = 0; file != nullptr && i < file->ByIndex().size(); ++i) {
            const clsTXTObject& record = *file->ByIndex()[i];
            const auto [first, isNew] = files.emplace(lornfd::foldCase(record.ObjectName()), key);
            if (isNew || first->second == key)
                continue;
            findings.push_back({"vfs://types\\" + std::string(key), record.Index,
                                std::string(record.ObjectName()), record.size() - 1,
                                Severity::Error,
                                "The ID " + Quoted(record.ObjectName()) + " is also one of " +
                                    std::string(first->second) + "."});
        }
    }
    return findings;
}
