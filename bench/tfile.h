// Loading T files, for several groups.
#pragma once

#include "tdata/clsTxtParser.h"
#include "tdata/mdlKeshConst.h"

#include <memory>
#include <string>
#include <string_view>

namespace bench {

/// Parses a file of the file driver to records; ends the program with a message if that fails.
std::unique_ptr<clsTxtParser> loadFile(const std::string& path, std::int32_t type = otype::Ware);
/// The same from a text in memory.
std::unique_ptr<clsTxtParser> loadMemory(std::string_view text);

/// Ends the program with a message and the file driver's reason.
[[noreturn]] void fail(const std::string& what);

/// Writes a file as it is, in the way of the plain C++ library.
void writePlain(const std::string& path, std::string_view content);

} // namespace bench
