#include "tdata/NewObjectName.h"

#include "lornfd/paths.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace {

constexpr std::string_view BaseWord = "NEW_OBJECT";
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
    const std::string base = lornfd::foldCase(BaseWord);
    for (const RecordPtr& record : Records) {
        std::string id = lornfd::foldCase(record->ObjectName());
        if (id.find(base) == id.npos)
            continue;
        m_highest = std::max(m_highest, NumberOf(record->ObjectName()));
        m_taken.insert(std::move(id));
    }
}

std::string NewNames::Next() {
    std::string name;
    do
        name = std::string(BaseWord) + "_" + keshobjects::spellNumber(++m_highest);
    while (m_taken.contains(lornfd::foldCase(std::string_view(name))));
    return name;
}

std::string NewObjectName(const clsTxtParser& Parser) {
    if (Parser.m_bulk && Parser.m_bulk->Names)
        return Parser.m_bulk->Names->Next();
    auto names = std::make_shared<NewNames>();
    names->Add(Parser.ByIndex());
    if (Parser.m_bulk) {
        names->Add(Parser.m_bulk->Tail);
        Parser.m_bulk->Names = names;
    }
    return names->Next();
}
