// JSON that keeps every value's spelling.
#pragma once

#include "tdata/clsTXTObject.h"

#include <string>
#include <string_view>

/// The bytes as a JSON string; bytes that are not UTF-8 are read as Windows-1252.
std::string jsonText(std::string_view bytes);
/// A JSON number if a JSON reader that writes it again spells it the same, else a JSON string.
std::string jsonValue(const clsTXTObject& record, std::int32_t index);
