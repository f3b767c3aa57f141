// Cuts a loaded text into records: one loader for the common layout, four for files of their own
// layout. Layouts: docs/formats.md, "T files".
#pragma once

#include "tdata/clsTxtParser.h"

namespace tdata {

/// What a loader found; what it read before an error stays in it.
struct LoadResult {
    std::vector<RecordPtr> records; ///< with ID, Index and otype set
    std::int32_t version = 0;
    std::int32_t lastID = 0;
    bool ok = false;
    std::string error;   ///< empty together with !ok for a file of 0 records
    std::string leftOut; ///< as clsTxtParser::LeftOut
};

/// Reads all records of `text` as files of an object type have them. Never throws.
LoadResult LoadTxtRecords(const std::shared_ptr<clsLoadedText>& text, std::int32_t type);

/// True if a ship has as many values as its counts of turrets, gun groups and guns ask for.
[[nodiscard]] bool ShipFits(const clsTXTObject& record);

} // namespace tdata
