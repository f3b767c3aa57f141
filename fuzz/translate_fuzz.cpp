// References, style codes and escapes: every line of the input is a string of the store. Reading
// any of them must end and stay within its bound.
#include "keshobjects/keshobjects.h"
#include "keshobjects/keshtexts.h"
#include "keshobjects/references.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void check(bool good) {
    if (!good)
        std::abort();
}

std::string escaped(std::string_view line) {
    std::string text;
    for (const char c : line)
        if (c == '<' || c == '&' || static_cast<unsigned char>(c) < ' ' || (c & '\x80') != 0)
            text += '?';
        else
            text += c;
    return text;
}

/// Strings 0, 1, ... of page 1.
std::int32_t fillStore(std::string_view input) {
    std::string xml = "<texts><page id='1'>";
    std::int32_t count = 0;
    for (; !input.empty() && count < 40; ++count) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        xml += "<string id='" + std::to_string(count) + "'>" + escaped(input.substr(0, end)) +
               "</string>";
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    check(Kesh_TREDescServerLoadMemory(xml + "</page></texts>", "fuzz") != 0);
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The longest bracket form is "[string -2147483648:-2147483648]", of "{:1}".
    constexpr std::size_t growth = 8;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    Kesh_TREDescServerUnload();
    const std::int32_t count = fillStore(input);
    Kesh_TREDescServerTranslateStrings();
    std::string raw;
    std::string resolved;
    std::string translated;
    for (std::int32_t id = 0; id < count; ++id) {
        const std::int32_t string = Kesh_TREFindString(KESH_STORE, 1, id);
        std::int32_t page = 0;
        std::int32_t other = 0;
        check(Kesh_TREGetRawString(string, raw) != 0);
        check(Kesh_TREGetStringInfo(string, other, page, resolved) != 0 && other == id);
        check(Kesh_TRETranslateString(string, raw, translated) != 0);
        const std::size_t bound = keshobjects::maxExpansion + growth * raw.size();
        check(resolved.size() <= bound && translated.size() <= bound);
        std::vector<KeshBadReference> bad;
        check(Kesh_TREFindBadReferences(KESH_STORE, string, bad) != 0);
        if (raw.find('{') == raw.npos)
            check(resolved == raw && bad.empty());
        if (!bad.empty())
            check(resolved.find("[string ") != resolved.npos);
    }
    check(Kesh_TRETranslateString(KESH_STORE, input, translated) != 0);
    return 0;
}
