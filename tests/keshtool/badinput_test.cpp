#include "keshtool/keshtool.h"
#include "lornfd/lornfd.h"

namespace {

struct BadFile {
    const char* what;
    const char* command;
    const char* file; ///< what the command reads
    std::string content;
    const char* place; ///< stands in the message
};

std::string zstdBomb() {
    // A frame header that claims 10 GB, with nothing like it behind.
    std::string frame("\x28\xB5\x2F\xFD\xE0", 5);
    std::uint64_t claimed = std::uint64_t{10} << 30U;
    for (int i = 0; i < 8; ++i, claimed >>= 8U)
        frame += static_cast<char>(claimed & 0xFFU);
    return frame + std::string(1000, '\0');
}

std::string cut(std::int32_t form) {
    const auto whole = lornfd::pack(std::string(1000, 'x') + std::string(Wares), form, "test");
    return std::string(whole->view().substr(0, whole->size() / 2));
}

std::string wrongChecksum() {
    const auto whole = lornfd::pack(Wares, LORNFD_GZIP, "test");
    std::string bytes(whole->view());
    bytes[bytes.size() - 5] = static_cast<char>(bytes[bytes.size() - 5] ^ 1);
    return bytes;
}

std::string ship(const char* turrets) {
    std::string text = "49;1;";
    for (int i = 0; i < 53; ++i)
        text += "0;";
    return text + turrets + ";0;0;0;0;0;0;0;0;0;0;SS_SHIP;";
}

std::string catalogLine(const std::string& line) {
    return "KESHCAT 1 my.dat\n" + line + '\n';
}

std::vector<BadFile> badFiles() {
    const std::string crc = "00000000";
    return {
        {"cut gzip", "dump TWareT.pck", "TWareT.pck", cut(LORNFD_GZIP), ""},
        {"cut zstd", "cat TWareT.pck", "TWareT.pck", cut(LORNFD_ZSTD), ""},
        {"wrong checksum", "cat TWareT.pck", "TWareT.pck", wrongChecksum(), ""},
        {"ten gigabytes", "cat TWareT.pck", "TWareT.pck", zstdBomb(), ""},
        {"empty", "dump TWareT.txt", "TWareT.txt", "", ""},
        {"count of 2^31", "dump TWareT.txt", "TWareT.txt", "31;2147483648;0;", "line 1"},
        {"a NUL", "dump TWareT.txt", "TWareT.txt", std::string("31;1;\n0\0;", 9), "line 2"},
        {"endless remark", "dump TWareT.txt", "TWareT.txt", "31;1;\n\n/* 0;0;", "line 3"},
        {"value of 100 MB", "dump TWareT.txt", "TWareT.txt",
         "31;1;" + std::string(100'000'000, 'x'), ""},
        {"huge turret count", "dump TShips.txt", "TShips.txt", ship("2147483647"), ""},
        {"no T file", "dump unknown.txt", "unknown.txt", std::string(Wares), ""},
        {"XML", "dump TWareT.txt", "TWareT.txt", "<t/>", ""},
        {"old version", "convert TBullets.txt out.txt", "TBullets.txt", "12;1;0;", ""},
        {"no index", "cat my.cat::a.txt", "my.cat", "rubbish", "line 1"},
        {"past the end", "unpack my.cat out", "my.cat", catalogLine("90 10 " + crc + " a.txt"),
         "line 2"},
        {"parent", "unpack my.cat out", "my.cat", catalogLine("0 1 " + crc + " ..\\a.txt"),
         "line 2"},
        {"data file elsewhere", "cat my.cat::a", "my.cat",
         "KESHCAT 1 ../my.dat\n0 1 " + crc + " a\n", "line 1"},
    };
}

TEST_F(Keshtool, BadFilesGiveOneMessageWithFileAndPlace) {
    for (const BadFile& bad : badFiles()) {
        write("my.dat", "0123456789");
        write(bad.file, bad.content);
        const Result result = run(bad.command);
        EXPECT_EQ(result.code, 3) << bad.what;
        EXPECT_EQ(result.out, "") << bad.what;
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << bad.what << ": " << result.err;
        EXPECT_NE(result.err.find(bad.file), std::string::npos) << bad.what << ": " << result.err;
        EXPECT_NE(result.err.find(bad.place), std::string::npos) << bad.what << ": " << result.err;
        EXPECT_LT(result.err.size(), 1000U) << bad.what;
        EXPECT_FALSE(std::filesystem::exists(root + "out.txt")) << bad.what;
    }
}

TEST_F(Keshtool, ABeginningOfAFileIsRefused) {
    const std::size_t lastValue = Wares.find("SS_WARE_B");
    for (std::size_t size = lastValue % 11; size <= lastValue; size += 11) {
        write("TWareT.txt", Wares.substr(0, size));
        const Result result = run("dump TWareT.txt --json");
        EXPECT_EQ(result.code, 3) << size;
        EXPECT_NE(result.err.find("TWareT.txt"), std::string::npos) << result.err;
    }
}

TEST_F(Keshtool, AnUnwritableTargetIsToldAndLeavesTheOldFile) {
    write("TWareT.txt", Wares);
    write("old.txt", "old");
    for (const char* line : {"convert TWareT.txt old.txt/new.txt", "put TWareT.txt no/such/dir.txt",
                             "unpack TWareT.txt out", "pack nowhere my.cat", "put TWareT.txt ."}) {
        const Result result = run(line);
        EXPECT_EQ(result.code, 3) << line;
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
    }
    EXPECT_EQ(read("old.txt"), "old");
}

} // namespace
