// All ships of a file, for a spreadsheet or to be read.
#pragma once

#include "tdata/ShipFields.h"
#include "tdata/clsTxtParser.h"

#include <cstdint>
#include <string>

enum class ExportForm {
    Table = 1,   ///< a line for each ship, ";" behind each cell
    Records = 2, ///< a line for each value, with its name
};

/// Writes the ships in their plain order to an open file handle and fixes its length; the caller
/// closes or abandons. False with the driver's Error if a write fails. No content of a ship does.
[[nodiscard]] bool ExportShips(std::int32_t FileHandle, const clsTxtParser& Ships,
                               const ShipFields& Fields, ExportForm Form, std::string& Error);
