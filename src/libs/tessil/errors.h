// The library's last error.
#pragma once

#include "lornfd/lasterror.h"

namespace tessil {

/// Of this thread.
lornfd::LastError& lastError();

} // namespace tessil
