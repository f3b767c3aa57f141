#include "tessil/readers.h"

#include <string>

namespace tessil {

namespace {

struct Kind {
    std::string_view signature;
    Picture (*read)(std::string_view file);
};

constexpr Kind kinds[] = {
    {"DDS ", readDds}, {"\x89PNG\r\n\x1a\n", readPng}, {"\xff\xd8\xff", readJpeg}, {"BM", readBmp},
    {"", readTga},
};

} // namespace

Picture readPicture(std::string_view file) {
    if (file.size() > static_cast<std::uint64_t>(TESSIL_MAX_FILE))
        throw Refusal(TESSIL_E_TOO_BIG, "it has " + std::to_string(file.size()) + " bytes");
    const Kind* kind = kinds;
    while (!file.starts_with(kind->signature))
        ++kind;
    return kind->read(file);
}

} // namespace tessil
