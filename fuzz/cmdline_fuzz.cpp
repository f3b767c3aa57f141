// Command lines: the arguments of any line, put together and split again, are the same.
#include "keshobjects/keshobjects.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    const auto arguments = Kesh_CommandLineToArgV(line);
    if (Kesh_CommandLineToArgV(Kesh_ArgVToCommandLine(arguments)) != arguments)
        std::abort();
    // The line itself as an argument, so that blanks and line breaks come inside one too.
    const std::vector<std::string> one{std::string(line), "x"};
    if (Kesh_CommandLineToArgV(Kesh_ArgVToCommandLine(one)) != one)
        std::abort();
    return 0;
}
