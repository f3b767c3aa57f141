#include "bench/tfile.h"

#include "lornfd/lornfd.h"
#include "sample/output.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace bench {

void fail(const std::string& what) {
    std::fprintf(stderr, "kesh_bench: %s: %s\n", what.c_str(), sample::driverError().c_str());
    std::exit(3);
}

std::unique_ptr<clsTxtParser> loadFile(const std::string& path, std::int32_t type) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    if (file == 0)
        fail("cannot open " + path);
    auto parser = std::make_unique<clsTxtParser>();
    if (!parser->Load(file, type))
        fail(parser->GetLastError());
    LornFD_CloseFile(file);
    return parser;
}

std::unique_ptr<clsTxtParser> loadMemory(std::string_view text) {
    Kesh_TXTIgnoreRemarks(0);
    auto parser = std::make_unique<clsTxtParser>();
    if (!parser->LoadFromHandle(Kesh_LoadFromMemory(text, "memory"), otype::Ware))
        fail(parser->GetLastError());
    return parser;
}

void writePlain(const std::string& path, std::string_view content) {
    std::ofstream out(path, std::ios::binary);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    if (!out)
        fail("cannot write " + path);
}

} // namespace bench
