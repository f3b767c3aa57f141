// Settings files: what is read from any bytes, written and read again, is the same.
#include "core/SettingsFile.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const SettingsMap map = ReadSettings(text);
    if (ReadSettings(WriteSettings(map)) != map)
        std::abort();
    return 0;
}
