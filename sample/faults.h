// Faulty copies of the game's files, for whoever wants to see what a check finds.
#pragma once

#include "sample/output.h"
#include "sample/texts.h"

#include <string>
#include <vector>

namespace sample {

/// A T file of the game as its complete plain text.
struct TFileText {
    std::string name; ///< "TShips", perhaps with its version behind
    std::string content;
};

struct FaultyFiles {
    std::vector<GameFile> files; ///< below "faulty\"
    /// A line for each fault: file, record, ID, field (each may be empty), "error" or "note", with
    /// tabs between.
    std::string list;
};

/// Changes one value at a time in copies of good files.
FaultyFiles faultyFiles(const std::vector<TFileText>& good);

} // namespace sample
