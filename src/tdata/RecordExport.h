// One record, to be read.
#pragma once

#include "tdata/clsTXTObject.h"

#include <cstdint>
#include <string>

/// Writes a line for each value, with its index and name, to an open file handle and fixes its
/// length; the caller closes or abandons. Gives the driver's error, empty if there was none.
[[nodiscard]] std::string ExportRecord(std::int32_t FileHandle, const clsTXTObject& Record);
