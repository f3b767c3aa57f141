// What is wrong with the game's data, as structures that a tool prints.
#pragma once

#include "tdata/CheckReferences.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <string>
#include <vector>

enum class Severity : std::uint8_t {
    Note,  ///< only unusual
    Error, ///< the game would misread it
};

/// One thing that is wrong, and where.
struct Finding {
    std::string File = {};    ///< as the caller names it
    std::int32_t Record = -1; ///< place in its file; -1 for the file as a whole
    std::string ID = {};      ///< of the record; "page:string" in a language file
    std::int32_t Field = -1;  ///< index in the record; -1 for the record as a whole
    Severity Level = Severity::Error;
    std::string Text = {}; ///< a sentence, perhaps of several lines
};

/// Everything wrong with a loaded T file. What it refers to is looked up in `References`; where a
/// file or the texts are not at hand, references into them are passed over, with a note for a file
/// that a game lacks.
[[nodiscard]] std::vector<Finding> CheckTFile(const clsTxtParser& Parser, const std::string& File,
                                              CheckReferences& References);

/// IDs that two of the game's files of wares, shields, missiles and lasers share: lists name a ware
/// by its ID alone, and the first one counts.
[[nodiscard]] std::vector<Finding> CheckMergedWares(CheckReferences& References);

/// The same as CheckTFile for a language file loaded for editing; references to texts that it lacks
/// are looked up in the store, which should hold its language.
[[nodiscard]] std::vector<Finding> CheckLanguageFile(std::int32_t Texts, const std::string& File);
