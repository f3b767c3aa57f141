#include "keshvfs/gamedirectory.h"

namespace fs = std::filesystem;

namespace {

TEST_F(GameDirectory, FiltersDecideWhatIsShown) {
    for (const auto* name : {"types/a.txt", "types/sub/b.txt", "t/0001-L044.xml", "t/other.xml",
                             "secret/c.txt", "secret/bad::name", "root.txt"})
        write(name);
    catalog("01.cat", {"types\\d.txt", "secret\\e.txt"});
    for (const auto* mask : {"Types\\*", "t\\*-L0?4.xml"})
        KeshVFS_AddVFSFilter(mask);
    createView();
    EXPECT_EQ(found("*"), (Names{"t\\", "types\\"}));
    EXPECT_EQ(found("types\\*"), (Names{"a.txt", "d.txt", "sub\\"}));
    EXPECT_EQ(real("types\\sub\\b"), "types/sub/b.txt");
    EXPECT_EQ(found("t\\*"), Names{"0001-L044.xml"});
    EXPECT_EQ(KeshVFS_Warnings(), "") << "a directory that no filter can match was entered";
}

TEST_F(GameDirectory, NamesThatNoPathCanSpellAreLeftOut) {
    for (const auto* name : {"a.txt", "b::c.txt", "d\\e.txt"})
        write(name);
    createView();
    EXPECT_EQ(found("*"), Names{"a.txt"});
    for (const auto* name : {"b::c.txt", "d\\e.txt"})
        EXPECT_NE(KeshVFS_Warnings().find(name), std::string::npos) << KeshVFS_Warnings();
}

TEST_F(GameDirectory, DirectoriesOfDifferentCaseAreOne) {
    write("types/a.txt", "lower");
    write("Types/A.TXT", "upper");
    write("TYPES/b.txt");
    createView();
    EXPECT_EQ(found("*"), Names{"types\\"});
    EXPECT_EQ(found("tYpes\\*"), (Names{"a.txt", "b.txt"}));
    EXPECT_EQ(real("types\\A.txt"), "types/a.txt");
    EXPECT_EQ(real("types\\b.txt"), "TYPES/b.txt");
}

TEST_F(GameDirectory, LinksAreFollowedButNotInCircles) {
    write("game/types/a.txt");
    write("outside/o.txt");
    write("outside/deep/p.txt");
    const fs::path top(root);
    fs::create_directory_symlink(top / "outside", top / "game/linked");
    fs::create_directory_symlink(top / "game", top / "outside/back");
    fs::create_directory_symlink(top / "game/types", top / "game/types/self");
    fs::create_directory_symlink("..", top / "game/types/parent");
    fs::create_directory_symlink("/", top / "game/everything");
    fs::create_directory_symlink(top / "nowhere", top / "game/dangling");
    fs::create_symlink(top / "outside/o.txt", top / "game/file.txt");
    ASSERT_TRUE(KeshVFS_CreateVFS(root + "/game"));
    EXPECT_EQ(found("*"), (Names{"file.txt", "linked\\", "types\\"}));
    EXPECT_EQ(found("types\\*"), Names{"a.txt"});
    EXPECT_EQ(found("linked\\*"), (Names{"deep\\", "o.txt"}));
    EXPECT_EQ(real("linked\\deep\\p"), "game/linked/deep/p.txt");
}

TEST_F(GameDirectory, LinksThatMultiplyComeToAnEnd) {
    const fs::path top(root);
    for (char a = 'a'; a < 'm'; ++a)
        write(std::string(1, a) + "/file.txt");
    for (char a = 'a'; a < 'm'; ++a)
        for (char b = 'a'; b < 'm'; ++b)
            fs::create_directory_symlink(top / std::string(1, b),
                                         top / std::string(1, a) / ("to" + std::string(1, b)));
    createView();
    EXPECT_EQ(real("a\\tob\\file"), "a/tob/file.txt");
    EXPECT_NE(KeshVFS_Warnings().find("too many links"), std::string::npos);
}

TEST_F(GameDirectory, LongNamesAreCutInTheRecordAndWholeBeside) {
    const std::string part(200, 'd');
    const std::string longest(255, 'f');
    write(part + '/' + part + '/' + longest);
    createView();
    VFSFindData data{};
    const std::int32_t find = KeshVFS_FindFirstFile(part + '\\' + part + "\\*", data);
    ASSERT_TRUE(find);
    EXPECT_EQ(std::string(data.VFSName, sizeof data.VFSName), longest);
    std::string whole = root + '\\' + part + '\\' + part + '\\' + longest;
    std::ranges::replace(whole, '/', '\\');
    EXPECT_EQ(std::string(data.RealName, sizeof data.RealName), whole.substr(0, 255));
    EXPECT_EQ(KeshVFS_GetVFSName(find), longest);
    EXPECT_EQ(KeshVFS_GetRealName(find), whole);
    KeshVFS_FindClose(find);
}

TEST_F(GameDirectory, ShorterNamesEndInAZeroByte) {
    write("long-name.txt");
    write("x.txt");
    createView();
    VFSFindData data{};
    std::fill_n(data.VFSName, sizeof data.VFSName, '#');
    const std::int32_t find = KeshVFS_FindFirstFile("*", data);
    ASSERT_TRUE(KeshVFS_FindNextFile(find, data));
    EXPECT_STREQ(data.VFSName, "x.txt");
    EXPECT_TRUE(std::string(data.RealName).ends_with("\\x.txt"));
    EXPECT_EQ(data.Attributes, 0U);
    KeshVFS_FindClose(find);
}

} // namespace
