#include "keshtool/keshtool.h"
#include "lornfd/lornfd.h"

#include <random>

namespace fs = std::filesystem;

namespace {

std::string randomBytes(std::size_t size) {
    std::mt19937 random(42);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

TEST_F(Keshtool, PackAndUnpackGiveTheSameFiles) {
    const std::map<std::string, std::string> files{
        {"types/TWareT.txt", std::string(Wares)},
        {"t/0001-L044.xml", "<t/>"},
        {"a/b/c/d/deep.bin", randomBytes(3'000'000)},
        {"empty", ""},
        {"with blank/f.txt", "x"},
    };
    for (const auto& [name, content] : files)
        write("in/" + name, content);
    write("in/packed.pck", packed("inner", LORNFD_GZIP));
    for (const char* type : {"", " --type plain", " --type gzip", " --type zstd"}) {
        fs::remove(root + "my.cat");
        fs::remove(root + "my.dat");
        fs::remove_all(root + "out");
        succeed((std::string("pack in my.cat") + type).c_str());
        succeed("unpack my.cat out");
        for (const auto& [name, content] : files)
            EXPECT_TRUE(read("out/" + name) == content) << name << type;
        EXPECT_EQ(read("out/packed.pck"), "inner") << type;
        EXPECT_EQ(output("cat my.cat::a\\b/C\\d\\DEEP.bin"), files.at("a/b/c/d/deep.bin"));
    }
}

TEST_F(Keshtool, PackKeepsOtherEntriesAndLeavesTheCatalogItselfOut) {
    write("in/a.txt", "a");
    succeed("pack in in/my.cat");
    write("in/a.txt", "new");
    write("in/b.txt", "b");
    fs::remove(root + "in/none.txt");
    succeed("pack in in/my.cat");
    succeed("unpack in/my.cat out");
    EXPECT_EQ(read("out/a.txt"), "new");
    EXPECT_EQ(read("out/b.txt"), "b");
    EXPECT_FALSE(fs::exists(root + "out/my.cat"));
}

TEST_F(Keshtool, PackRefusesWhatACatalogCannotHold) {
    write("in/a.txt", "a");
    write("in/A.txt", "A");
    const Result twice = run("pack in my.cat");
    EXPECT_EQ(twice.code, 3);
    EXPECT_NE(twice.err.find("differ only in case"), std::string::npos) << twice.err;
    fs::remove(root + "in/A.txt");
    write("in/b\\c.txt", "b");
    const Result backslash = run("pack in my.cat");
    EXPECT_EQ(backslash.code, 3);
    EXPECT_NE(backslash.err.find("b\\c.txt"), std::string::npos) << backslash.err;
    fs::remove(root + "in/b\\c.txt");
    for (const char* target : {".", "nowhere"}) {
        fs::create_symlink(target, root + "in/link");
        const Result link = run("pack in my.cat");
        EXPECT_EQ(link.code, 3) << "left out without a word: " << target;
        EXPECT_NE(link.err.find("in/link"), std::string::npos) << link.err;
        fs::remove(root + "in/link");
    }
    EXPECT_FALSE(fs::exists(root + "my.cat"));
}

TEST_F(Keshtool, UnpackStaysBelowItsDirectory) {
    write("in/link/a.txt", "a");
    write("in/file.txt", "b");
    write("in/dangling.txt", "d");
    write("in/taken/inner.txt", "e");
    write("in/good.txt", "c");
    write("out/taken", "a file");
    succeed("pack in my.cat");
    write("outside/file.txt", "mine");
    fs::create_directories(root + "out");
    fs::create_directory_symlink(root + "outside", root + "out/link");
    fs::create_symlink(root + "outside/file.txt", root + "out/file.txt");
    fs::create_symlink(root + "outside/new.txt", root + "out/dangling.txt");
    const Result result = run("unpack my.cat out");
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 4) << result.err;
    for (const char* name : {"file.txt", "a.txt", "dangling.txt", "taken"})
        EXPECT_NE(result.err.find(name), std::string::npos) << result.err;
    EXPECT_EQ(read("outside/file.txt"), "mine");
    EXPECT_FALSE(fs::exists(root + "outside/a.txt"));
    EXPECT_FALSE(fs::exists(root + "outside/new.txt"));
    EXPECT_EQ(read("out/good.txt"), "c") << "what can be written is";
}

TEST_F(Keshtool, PutDecidesTheFormThatIsStored) {
    write("plain.txt", "content");
    write("packed.pck", packed("content", LORNFD_GZIP));
    for (const char* source : {"plain.txt", "packed.pck"}) {
        const struct {
            const char* target;
            const char* type;
            std::int32_t form;
        } cases[] = {
            {"new.txt", "", LORNFD_PLAIN},
            {"new.pck", "", LORNFD_ZSTD},
            {"new.pck", " --type gzip", LORNFD_GZIP},
            {"new.pck", "", LORNFD_GZIP}, // keeps what the target has
            {"new.pck", " --type plain", LORNFD_PLAIN},
            {"new.txt", " --type zstd", LORNFD_ZSTD},
        };
        for (const auto& [target, type, form] : cases) {
            const std::string line = std::string("put ") + source + ' ' + target + type;
            succeed(line.c_str());
            EXPECT_EQ(formOf(target), form) << line;
            EXPECT_EQ(output((std::string("cat ") + target).c_str()), "content") << line;
        }
        fs::remove(root + "new.txt");
        fs::remove(root + "new.pck");
    }
}

TEST_F(Keshtool, PutAndRmChangeOneEntry) {
    write("a.txt", "a");
    write("b.txt", "b");
    const Result missing = run("put a.txt my.cat::x\\a.txt");
    EXPECT_EQ(missing.code, 3);
    EXPECT_NE(missing.err.find("my.cat"), std::string::npos);
    EXPECT_FALSE(fs::exists(root + "my.cat"));
    succeed("put --create a.txt my.cat::x\\a.txt");
    succeed("put b.txt my.cat::x/b.txt --create");
    succeed("put b.txt my.cat::X\\A.TXT");
    EXPECT_EQ(output("cat my.cat::x\\a.txt"), "b");
    succeed("rm my.cat::x\\A.txt");
    EXPECT_EQ(run("cat my.cat::x\\a.txt").code, 3);
    EXPECT_EQ(run("rm my.cat::x\\a.txt").code, 3);
    EXPECT_EQ(output("cat my.cat::x\\b.txt"), "b");
}

TEST_F(Keshtool, PutOfAMissingFileMakesNoCatalog) {
    EXPECT_EQ(run("put nowhere.txt my.cat::a.txt --create").code, 3);
    EXPECT_FALSE(fs::exists(root + "my.cat"));
}

} // namespace
