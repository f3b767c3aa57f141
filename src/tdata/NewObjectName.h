// IDs for new records.
#pragma once

#include "tdata/clsTxtParser.h"

#include <string>

/// "NEW_OBJECT_" and a number above that of every ID in the file that holds this word.
[[nodiscard]] std::string NewObjectName(const clsTxtParser& Parser);
