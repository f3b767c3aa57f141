// IDs for new records.
#pragma once

#include "tdata/clsTxtParser.h"

#include <span>
#include <string>
#include <unordered_set>

/// "NEW_OBJECT_" and a number above that of every ID in the file that holds this word.
[[nodiscard]] std::string NewObjectName(const clsTxtParser& Parser);

/// Gives such names one after the other, each of them new.
class NewNames {
public:
    /// Names of these are taken.
    void Add(std::span<const RecordPtr> Records);
    [[nodiscard]] std::string Next();

private:
    double m_highest = 0;
    std::unordered_set<std::string> m_taken; ///< two IDs that differ by case only count as one
};
