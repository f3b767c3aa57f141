#include "keshobjects/keshobjects.h"

#include <gtest/gtest.h>

#include <random>

using Arguments = std::vector<std::string>;

namespace {

TEST(CommandLine, Splits) {
    const struct {
        std::string_view line;
        Arguments arguments;
    } rows[] = {
        {"", {}},
        {" \t ", {}},
        {"a", {"a"}},
        {" a  b\tc ", {"a", "b", "c"}},
        {R"("a b" c)", {"a b", "c"}},
        {R"(a"b c"d)", {"ab cd"}},
        {R"("")", {""}},
        {R"(a "" b)", {"a", "", "b"}},
        {R"("""")", {"\""}},
        {R"("a""b" c)", {"a\"b", "c"}},
        {R"(\"a)", {"\"a"}},
        {R"("a\"b")", {"a\"b"}},
        {R"("a\\" b)", {"a\\", "b"}},
        {R"("a\\\" b")", {"a\\\" b"}},
        {R"(C:\dir\file.txt \\server\x)", {"C:\\dir\\file.txt", "\\\\server\\x"}},
        {R"(C:\dir\)", {"C:\\dir\\"}},
        {R"("C:\my dir\\" x)", {"C:\\my dir\\", "x"}},
        {R"("C:\my dir\" x)", {"C:\\my dir\" x"}},
        {R"("not closed )", {"not closed "}},
        {"\"", {""}},
        {"\\", {"\\"}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Kesh_CommandLineToArgV(row.line), row.arguments) << row.line;
}

TEST(CommandLine, PlainArgumentsStayAsTheyAre) {
    EXPECT_EQ(Kesh_ArgVToCommandLine({"-TFile", "C:\\a\\b.txt", "c d\\"}),
              "-TFile C:\\a\\b.txt \"c d\\\\\"");
}

TEST(CommandLine, AnyArgumentsComeBack) {
    std::mt19937 random(9);
    constexpr std::string_view characters = "a\\\" \t\r\n\xC4'";
    for (int round = 0; round < 20000; ++round) {
        Arguments arguments(random() % 5);
        for (std::string& argument : arguments)
            for (unsigned length = random() % 8; length > 0; --length)
                argument += characters[random() % characters.size()];
        const std::string line = Kesh_ArgVToCommandLine(arguments);
        ASSERT_EQ(Kesh_CommandLineToArgV(line), arguments) << line;
    }
}

} // namespace
