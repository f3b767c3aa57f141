// The library's last error.
#pragma once

#include "keshobjects/keshobjects.h"
#include "lornfd/lasterror.h"

#include <string>

namespace keshobjects {

/// Of this thread.
lornfd::LastError& lastError();

/// The file driver's own words for its last error.
std::string driverReason();

} // namespace keshobjects
