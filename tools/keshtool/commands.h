// The commands. Each gives an exit code and throws Failure where it cannot go on.
#pragma once

#include "tdata/ShipExport.h"
#include "tool.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a command line says beside the command; each command reads its own.
struct Arguments {
    std::vector<std::string> paths;
    std::optional<std::int32_t> fileType; ///< LORNFD_PLAIN, LORNFD_GZIP or LORNFD_ZSTD
    bool json = false;
    bool create = false;
    bool names = false;
    bool all = false;
    bool raw = false;
    std::optional<std::int32_t> index; ///< of one record
    std::int32_t language = 44;        ///< English
    ExportForm form = ExportForm::Table;
};

using Command = ExitCode (*)(GameView&, const Arguments&);

// Records
ExitCode dump(GameView& view, const Arguments& arguments);
ExitCode convert(GameView& view, const Arguments& arguments);
ExitCode exportRecords(GameView& view, const Arguments& arguments);
// Contents
ExitCode cat(GameView& view, const Arguments& arguments);
ExitCode ls(GameView& view, const Arguments& arguments);
// Catalogs
ExitCode pack(GameView& view, const Arguments& arguments);
ExitCode unpack(GameView& view, const Arguments& arguments);
ExitCode put(GameView& view, const Arguments& arguments);
ExitCode rm(GameView& view, const Arguments& arguments);
ExitCode verify(GameView& view, const Arguments& arguments);
// Texts
ExitCode text(GameView& view, const Arguments& arguments);
ExitCode texts(GameView& view, const Arguments& arguments);
// What is wrong with the data
ExitCode check(GameView& view, const Arguments& arguments);
