// XML texts: what decodes encodes again, and decodes to the same.
#include "keshobjects/keshobjects.h"

#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string text;
    if (Kesh_DecodeXML(input, "fuzz", text) == 0)
        return Kesh_GetLastError() != KESH_OK ? 0 : (std::abort(), 0);
    if (text.starts_with("\xEF\xBB\xBF")) // a second mark, which becomes the first
        return 0;
    std::string bytes;
    if (Kesh_EncodeXML(text, "fuzz", bytes) == 0) // a mark may stand over a declaration not known
        return Kesh_GetLastError() == KESH_E_ENCODING ? 0 : (std::abort(), 0);
    std::string again;
    if (Kesh_DecodeXML(bytes, "fuzz", again) == 0)
        std::abort();
    // References may have taken the place of characters, once; after that nothing changes.
    std::string stable;
    if (Kesh_EncodeXML(again, "fuzz", stable) == 0 || stable != bytes)
        std::abort();
    return 0;
}
