// Records as text, one a line, in the form of their file.
#pragma once

#include "tdata/clsTxtParser.h"

#include <string>
#include <string_view>
#include <vector>

/// Each record with a line end behind it.
[[nodiscard]] std::string TextOfRecords(const std::vector<RecordPtr>& Records);

struct ReadRecords {
    std::vector<RecordPtr> Records; ///< empty if the text is no records of that file
    std::string Reason;
};
/// Reads lines as records of a file of this type and version; empty lines count for nothing.
[[nodiscard]] ReadRecords RecordsOfText(std::string_view Text, const clsTxtParser& File);
