#include "tdata/NewObjectName.h"

#include "lornfd/paths.h"
#include "tdata/JobFields.h"
#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace {

constexpr std::string_view BaseWord = "NEW_OBJECT";
constexpr std::string_view FoldedWord = "new_object";
constexpr double Most = 1e15; ///< larger ones could not be told apart from their successor

/// The number behind the base word in an ID, one sign between; 0 if there is none.
double NumberOf(std::string_view id) {
    const std::size_t found = id.find(BaseWord);
    if (found == id.npos)
        return 0;
    std::string_view number = id.substr(found + BaseWord.size());
    if (number.size() > 1)
        number.remove_prefix(1);
    const double value = std::nearbyint(keshobjects::readNumber(number).value_or(0));
    return value < Most ? value : 0;
}

} // namespace

void NewNames::Add(std::span<const RecordPtr> Records) {
    for (const RecordPtr& record : Records)
        m_jobs ? AddNumber(*record) : AddWord(*record);
}

void NewNames::AddWord(const clsTXTObject& Record) {
    std::string id = lornfd::foldCase(Record.ObjectName());
    if (id.find(FoldedWord) == id.npos)
        return;
    m_highest = std::max(m_highest, NumberOf(Record.ObjectName()));
    m_taken.insert(std::move(id));
}

void NewNames::AddNumber(const clsTXTObject& Record) {
    const KeshValue value = GetJobValue(Record, jobfield::Number);
    const auto* const number = std::get_if<std::int32_t>(&value);
    if (number == nullptr)
        return;
    m_largest = std::max(m_largest.value_or(*number), *number);
    m_numbers.insert(*number);
}

std::string NewNames::Next() {
    return m_jobs ? NextNumber() : NextWord();
}

std::string NewNames::NextWord() {
    std::string name;
    do
        name = std::string(BaseWord) + "_" + keshobjects::spellNumber(++m_highest);
    while (m_taken.contains(lornfd::foldCase(std::string_view(name))));
    return name;
}

std::string NewNames::NextNumber() {
    std::int32_t number = 1;
    if (m_largest && *m_largest < std::numeric_limits<std::int32_t>::max())
        number = *m_largest + 1;
    else
        while (m_numbers.contains(number = m_free))
            ++m_free;
    m_largest = std::max(m_largest.value_or(number), number);
    m_numbers.insert(number);
    return std::to_string(number);
}

std::string NewObjectName(const clsTxtParser& Parser) {
    if (Parser.m_bulk && Parser.m_bulk->Names)
        return Parser.m_bulk->Names->Next();
    auto names = std::make_shared<NewNames>(Parser.otype() == otype::Jobs);
    names->Add(Parser.ByIndex());
    if (Parser.m_bulk) {
        names->Add(Parser.m_bulk->Tail);
        Parser.m_bulk->Names = names;
    }
    return names->Next();
}
