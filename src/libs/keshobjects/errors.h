// The library's last error.
#pragma once

#include "keshobjects/keshobjects.h"
#include "lornfd/lasterror.h"

#include <new>
#include <string>
#include <string_view>

namespace keshobjects {

/// Of this thread.
lornfd::LastError& lastError();

/// The file driver's own words for its last error.
std::string driverReason();

/// Runs what needs as much memory as a file has. Begins without an error; a lack of memory sets the
/// code.
template <typename Work>
std::int32_t withMemory(KeshObjectsError code, std::string_view file, Work work) {
    lastError().clear();
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return lastError().set(code,
                               {{}, {}, "Not enough memory for \"" + std::string(file) + "\"."});
    }
}

} // namespace keshobjects
