// T texts: the first byte chooses jobs mode, the others are the text. Every way of reading it must
// end, and reading by places must give what reading one by one gives.
#include "keshobjects/keshobjects.h"
#include "keshobjects/places.h"

#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::int32_t load(std::string_view input) {
    Kesh_TXTIgnoreRemarks(input.front() & 1);
    return Kesh_LoadFromMemory(input.substr(1), "fuzz");
}

void check(bool good) {
    if (!good)
        std::abort();
}

std::vector<std::string> readByPlaces(std::string_view input) {
    const std::int32_t text = load(input);
    std::vector<KeshPlace> places(input.size() + 1);
    bool written = true;
    const auto count =
        Kesh_TXTLoadPlaces(text, static_cast<std::int64_t>(places.size()), places.data(), written);
    std::vector<std::string> values;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        const std::string_view value = keshobjects::valueAt(Kesh_TXTGetText(text), places[i]);
        check(keshobjects::numberAt(Kesh_TXTGetText(text), places[i]) ==
              keshobjects::readNumber(value));
        check(keshobjects::integerAt(Kesh_TXTGetText(text), places[i]) ==
              keshobjects::readInteger(value));
        values.emplace_back(value);
    }
    check(Kesh_GetLastError() != KESH_OK);
    check(!Kesh_TXTDescribePlace(text, 0).empty());
    Kesh_DeleteHandle(0, text);
    return values;
}

std::vector<std::string> readOneByOne(std::string_view input) {
    const std::int32_t text = load(input);
    std::vector<std::string> values;
    KeshValue value;
    while (Kesh_TXTLoadValue(text, KESH_VALUE_STRING, value) != 0)
        values.push_back(std::get<std::string>(value));
    Kesh_DeleteHandle(0, text);
    return values;
}

/// Every operation in turn, as the bytes of the text itself say.
void walk(std::string_view input) {
    const std::int32_t text = load(input);
    static_cast<void>(Kesh_GetObjectType(text));
    for (const char c : input) {
        KeshValue value;
        KeshPlace place = 0;
        bool written = true;
        switch (c & 7) {
        case 0:
        case 1:
        case 2:
            Kesh_TXTLoadValue(text, c & 3, value);
            break;
        case 3:
            Kesh_TXTLoadPlaces(text, 1, &place, written);
            break;
        case 4:
            if (Kesh_TXTGetRawPlace(text, place) != 0) {
                Kesh_TXTGetTokenValue(text, value);
                check(keshobjects::rawAt(Kesh_TXTGetText(text), place) ==
                      std::get<std::string>(value));
            }
            break;
        case 5:
            Kesh_TXTGetTokenType(text);
            break;
        case 6:
            Kesh_TXTGetTokenValue(text, value);
            break;
        default:
            Kesh_TXTAdvance(text, 1);
        }
    }
    Kesh_DeleteHandle(0, text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    if (input.empty())
        return 0;
    if (const std::int32_t text = load(input)) {
        Kesh_DeleteHandle(0, text);
        check(readByPlaces(input) == readOneByOne(input));
        walk(input);
    } else {
        check(Kesh_GetLastError() == KESH_E_NUL);
    }
    return 0;
}
