#include "keshtool/keshtool.h"

namespace {

TEST_F(Keshtool, WrongUsageEndsWithTwo) {
    write("a.txt", "a");
    for (const char* line : {"",
                             "nonsense",
                             "dump",
                             "dump a.txt b.txt",
                             "convert a.txt",
                             "export a.txt",
                             "export a.txt b.txt --format html",
                             "cat",
                             "cat a.txt --json",
                             "ls a b",
                             "pack a.txt",
                             "unpack a.txt",
                             "put a.txt",
                             "put a.txt b.txt --type brotli",
                             "put a.txt b.txt --type",
                             "put a.txt b.txt --type 2",
                             "rm",
                             "rm a.txt",
                             "verify",
                             "cat --data",
                             "cat a.txt --mod",
                             "--wrong cat a.txt"}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 2) << line << result.err;
        EXPECT_EQ(result.out, "") << line;
        EXPECT_NE(result.err, "") << line;
    }
    EXPECT_EQ(run("cat a.txt").out, "a") << "untouched by the wrong ones";
}

TEST_F(Keshtool, EveryCommandHasHelp) {
    const std::string help = output("--help");
    for (const char* command :
         {"dump", "convert", "export", "cat", "ls", "pack", "unpack", "put", "rm", "verify"}) {
        EXPECT_NE(help.find(command), std::string::npos);
        const std::string own = output((std::string(command) + " --help").c_str());
        EXPECT_NE(own.find("Usage: keshtool " + std::string(command)), std::string::npos) << own;
    }
    EXPECT_NE(output("put --help").find("--create"), std::string::npos);
}

} // namespace
