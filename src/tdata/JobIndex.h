// Finds jobs, and groups of jobs that fly together, by the numbers that name them.
#pragma once

#include "tdata/clsTxtParser.h"

#include <string>
#include <unordered_map>

class JobIndex {
public:
    /// Of a file Jobs or JobWings as it is now.
    explicit JobIndex(const clsTxtParser& Parser);

    /// The first job with this ObjectName, else the first whose value 0 is this number. Of wing
    /// groups the other way round, as theirs ends with the last of its jobs. None if there is
    /// neither.
    [[nodiscard]] RecordPtr Find(const KeshValue& Number) const;

private:
    using Records = std::unordered_map<std::string, RecordPtr>;

    bool m_wings;
    Records m_byName;
    Records m_byNumber;
};
