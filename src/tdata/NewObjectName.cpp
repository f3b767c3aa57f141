#include "tdata/NewObjectName.h"

#include "lornfd/paths.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_set>
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

std::string NewObjectName(const clsTxtParser& Parser) {
    double highest = 0;
    std::unordered_set<std::string> taken; // two IDs that differ by case only count as one
    const std::string base = lornfd::foldCase(BaseWord);
    for (const RecordPtr& record : Parser.ByIndex()) {
        std::string id = lornfd::foldCase(record->ObjectName());
        if (id.find(base) == id.npos)
            continue;
        highest = std::max(highest, NumberOf(record->ObjectName()));
        taken.insert(std::move(id));
    }
    std::string name;
    do
        name = std::string(BaseWord) + "_" + keshobjects::spellNumber(++highest);
    while (taken.contains(lornfd::foldCase(std::string_view(name))));
    return name;
}
