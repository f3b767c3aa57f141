#include "keshtool/keshtool.h"
#include "lornfd/lornfd.h"

namespace {

class KeshtoolVerify : public Keshtool {
protected:
    KeshtoolVerify() {
        write("in/types/TWareT.txt", Wares);
        write("in/types/TWareF.pck", packed(Wares, LORNFD_ZSTD));
        write("in/one.txt", "first content");
        write("in/two.pck", packed("second content", LORNFD_GZIP));
    }

    /// Changes the first occurrence of a text in a file.
    void damage(const std::string& name, const std::string& from, const std::string& to) const {
        std::string content = read(name);
        ASSERT_NE(content.find(from), std::string::npos);
        write(name, content.replace(content.find(from), from.size(), to));
    }
};

TEST_F(KeshtoolVerify, GoodFilesGiveNoFinding) {
    succeed("pack in my.cat");
    succeed("verify my.cat in/types/TWareT.txt in/types/TWareF.pck in/two.pck my.cat::one.txt");
    succeed("verify vfs://one vfs://types/TWareF --mod my.cat");
}

TEST_F(KeshtoolVerify, EachBrokenEntryIsALine) {
    write("in/types/TWareT.txt", "31;2;1;2;3;");
    write("in/two.pck", packed("second content", LORNFD_GZIP).substr(0, 15));
    write("in/types/TWareE.txt", "31;0;");
    succeed("pack in my.cat");
    damage("my.dat", "first content", "first cOntent");
    const Result result = run("verify my.cat in/one.txt");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(std::ranges::count(result.out, '\n'), 3) << result.out;
    for (const char* start :
         {"my.cat::one.txt\t", "my.cat::two.pck\t", "my.cat::types\\TWareT.txt\t"})
        EXPECT_NE(result.out.find(start), std::string::npos) << result.out;
}

TEST_F(KeshtoolVerify, AFileThatIsBrokenWholeFailsAndTheOthersAreStillRead) {
    succeed("pack in my.cat");
    damage("my.dat", "first content", "first cOntent");
    write("cut.pck", packed("second content", LORNFD_GZIP).substr(0, 15));
    write("broken.cat", "rubbish");
    const Result result = run("verify cut.pck broken.cat nowhere.txt my.cat");
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 3) << result.err;
    for (const char* name : {"cut.pck", "broken.cat", "nowhere.txt"})
        EXPECT_NE(result.err.find(name), std::string::npos) << result.err;
    EXPECT_NE(result.out.find("my.cat::one.txt\t"), std::string::npos) << result.out;
}

TEST_F(KeshtoolVerify, UnpackGoesOnBehindADamagedEntry) {
    succeed("pack in my.cat");
    damage("my.dat", "first content", "first cOntent");
    const Result result = run("unpack my.cat out");
    EXPECT_EQ(result.code, 3);
    EXPECT_NE(result.err.find("one.txt"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(root + "out/one.txt"));
    EXPECT_EQ(read("out/two.pck"), "second content");
}

} // namespace
