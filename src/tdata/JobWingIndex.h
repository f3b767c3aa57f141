// Finds the wing group that a job's field 13 names.
#pragma once

#include "tdata/clsTxtParser.h"

#include <string>
#include <unordered_map>

class JobWingIndex {
public:
    /// Of the file JobWings as it is now.
    explicit JobWingIndex(const clsTxtParser& Wings);

    /// The first group whose value 0 is this number, else the first with this ObjectName, which is
    /// the last of its jobs; none if there is neither.
    [[nodiscard]] RecordPtr Find(const KeshValue& Number) const;

private:
    using Groups = std::unordered_map<std::string, RecordPtr>;

    Groups m_byName;
    Groups m_byNumber;
};
