// Lets a test make the driver's disk operations fail.
#pragma once

#include <cstddef>
#include <functional>

namespace lornfd {

enum class DiskOperation { Open, Write, Flush, Rename, FlushDirectory };

/// Asked before each operation. Gives 0 to go on, else the errno to fail with. For Write, `bytes`
/// is the size of this write and may be lowered (a short write).
using FaultHook = std::function<int(DiskOperation, std::size_t* bytes)>;

/// Installs a hook for the process; an empty one takes it away. Not for use outside tests.
void setFaultHook(FaultHook hook);

} // namespace lornfd
