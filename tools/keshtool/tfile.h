// T files for commands.
#pragma once

#include "tdata/clsTxtParser.h"
#include "tool.h"

#include <string>
#include <string_view>

/// Loads; throws Failure with a message that names the file. A file without records is loaded, too.
void loadTFile(clsTxtParser& parser, const std::string& path);
/// A failure whose message names the file once.
Failure tFileFailure(const std::string& path, std::string_view reason);
