// The driver's own last error, one for each thread, and the words for its codes.
#pragma once

#include "lornfd/lasterror.h"
#include "lornfd/lornfd.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace lornfd {

/// The last error of the calling thread.
LastError& lastError();

/// Sets the last error. Gives false, so that a failing function can return it.
bool fail(LornFDError code, const ErrorParts& parts);
/// The same with the system's words as the reason.
bool fail(LornFDError code, std::string_view file, const std::error_code& reason);

/// "offset 12", for messages.
std::string offsetPlace(std::int64_t offset);
/// "line 3", for messages.
std::string linePlace(std::size_t line);

} // namespace lornfd
