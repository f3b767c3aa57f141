// Language files: what loads is saved as it was, keeps its meaning through changes, and gives the
// store the same texts. What this reader takes, pugixml takes, too.
#include "keshobjects/keshobjects.h"
#include "keshobjects/keshtexts.h"

#include <cstdlib>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <vector>

namespace {

void check(bool good) {
    if (!good)
        std::abort();
}

std::vector<std::int32_t> childrenOf(std::int32_t object) {
    std::int32_t count = 0;
    check(Kesh_EnumObjects(object, nullptr, 0, count) != 0);
    std::vector<std::int32_t> children(static_cast<std::size_t>(count));
    check(Kesh_EnumObjects(object, children.data(), count, count) != 0);
    return children;
}

struct Texts {
    std::int32_t id = 0;
    std::int32_t voice = 0;
    std::string title;
    std::string text; ///< or description
    friend bool operator==(const Texts&, const Texts&) = default;
};

std::vector<Texts> contentOf(std::int32_t file) {
    std::vector<Texts> all;
    for (const std::int32_t page : childrenOf(file)) {
        Texts info;
        check(Kesh_TREGetPageInfo(page, info.id, info.title, info.text, info.voice) != 0);
        all.push_back(info);
        for (const std::int32_t string : childrenOf(page)) {
            Texts text;
            check(Kesh_TREGetStringInfo(string, text.id, text.voice, text.text) != 0);
            all.push_back(text);
        }
    }
    return all;
}

std::string savedForm(std::int32_t file) {
    std::string bytes;
    check(Kesh_TRESaveToMemory(file, bytes) != 0);
    return bytes;
}

/// Changes, adds and removes as the bytes of the file itself say.
void change(std::int32_t file, std::string_view input) {
    std::size_t at = 0;
    const auto next = [&] { return static_cast<unsigned char>(input[at++ % input.size()]); };
    for (int step = 0; step < 8; ++step) {
        const auto pages = childrenOf(file);
        const auto id = static_cast<std::int32_t>(next()) - 20;
        const std::string_view text = input.substr(next() % input.size(), next());
        const std::int32_t page = pages.empty() || next() % 4 == 0
                                      ? Kesh_CreateObject(file, KESH_TEXT_PAGE, id)
                                      : pages[next() % pages.size()];
        if (page == 0)
            continue;
        const auto strings = childrenOf(page);
        const std::int32_t string = strings.empty() || next() % 3 == 0
                                        ? Kesh_CreateObject(page, KESH_TEXT_STRING, id)
                                        : strings[next() % strings.size()];
        Kesh_TRESetPageInfo(page, id, text, text, id);
        if (string != 0)
            Kesh_TRESetStringInfo(page, string, id, text);
        if (string != 0 && next() % 4 == 0)
            check(Kesh_DeleteHandle(page, string) != 0);
        if (next() % 8 == 0)
            check(Kesh_DeleteHandle(file, page) != 0);
    }
}

/// The store has of each page and id the last.
void checkStore(const std::vector<Texts>& content, std::int32_t file) {
    for (const std::int32_t page : childrenOf(file)) {
        Texts info;
        Kesh_TREGetPageInfo(page, info.id, info.title, info.text, info.voice);
        if (info.id == -1)
            continue; // it has none, or is that page
        for (const std::int32_t string : childrenOf(page)) {
            Texts text;
            Kesh_TREGetStringInfo(string, text.id, text.voice, text.text);
            if (text.id == -1)
                continue;
            const std::int32_t stored = Kesh_TREFindString(KESH_STORE, info.id, text.id);
            check(stored != 0);
            std::string raw;
            std::string last;
            Kesh_TREGetRawString(stored, raw);
            Kesh_TREGetRawString(Kesh_TREFindString(file, info.id, text.id), last);
            check(raw == last);
        }
    }
    check(content.size() >= contentOf(KESH_STORE).size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    Kesh_TREDescServerUnload();
    const std::int32_t file = Kesh_TRELoadFromMemory(input, "fuzz");
    check((file != 0) == (Kesh_TREDescServerLoadMemory(input, "fuzz") != 0));
    if (file == 0) {
        check(Kesh_GetLastError() != KESH_OK);
        return 0;
    }
    pugi::xml_document document;
    check(document.load_buffer(data, size));
    check(savedForm(file) == input);
    checkStore(contentOf(file), file);
    change(file, input);
    const std::string saved = savedForm(file);
    const std::int32_t again = Kesh_TRELoadFromMemory(saved, "again");
    check(again != 0);
    check(contentOf(again) == contentOf(file));
    check(savedForm(again) == saved);
    Kesh_DeleteHandle(0, again);
    Kesh_DeleteHandle(0, file);
    return 0;
}
