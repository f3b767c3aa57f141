// IDs for new records.
#pragma once

#include "tdata/clsTXTObject.h"

#include <optional>
#include <span>
#include <string>
#include <unordered_set>

class clsTxtParser;

/// "NEW_OBJECT_" and a number above that of every ID in the file that holds this word. A job's ID
/// is its number: one above the largest, or a free one if there is none above.
[[nodiscard]] std::string NewObjectName(const clsTxtParser& Parser);

/// Gives such names one after the other, each of them new.
class NewNames {
public:
    explicit NewNames(bool Jobs = false) : m_jobs(Jobs) {}

    /// Names of these are taken.
    void Add(std::span<const RecordPtr> Records);
    [[nodiscard]] std::string Next();

private:
    void AddWord(const clsTXTObject& Record);
    void AddNumber(const clsTXTObject& Record);
    [[nodiscard]] std::string NextWord();
    [[nodiscard]] std::string NextNumber();

    bool m_jobs;
    double m_highest = 0;
    std::unordered_set<std::string> m_taken;    ///< two IDs that differ by case only count as one
    std::optional<std::int32_t> m_largest;      ///< of the jobs
    std::int32_t m_free = 1;                    ///< none below is, once the largest is used
    std::unordered_set<std::int32_t> m_numbers; ///< of the jobs
};
