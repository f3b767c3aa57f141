// XML texts: what decodes gives the same bytes when it is encoded again.
#include "keshobjects/keshobjects.h"

#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string text;
    KeshXmlMark mark{};
    if (Kesh_DecodeXML(input, "fuzz", text, mark) == 0)
        return Kesh_GetLastError() != KESH_OK ? 0 : (std::abort(), 0);
    std::string bytes;
    if (Kesh_EncodeXML(text, mark, "fuzz", bytes) == 0 || bytes != input)
        std::abort();
    return 0;
}
