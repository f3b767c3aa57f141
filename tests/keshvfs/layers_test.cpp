#include "keshvfs/entryindex.h"
#include "keshvfs/gamedirectory.h"
#include "lornfd/lornfd.h"

#include <set>

namespace fs = std::filesystem;

namespace {

TEST_F(GameDirectory, LaterLayersWin) {
    catalog("01.cat", {"types\\a.txt", "types\\b.txt", "types\\c.txt", "types\\d.txt"});
    catalog("02.cat", {"TYPES\\B.txt", "types\\c.txt", "types\\d.txt"});
    write("types/c.txt");
    write("types/d.txt");
    catalog("mods/my.cat", {"types\\D.TXT", "types\\e.txt"});
    createView();
    EXPECT_EQ(real("types\\d.txt"), "types/d.txt");
    ASSERT_TRUE(KeshVFS_AppendCatalog(root + "/mods/my.cat"));

    EXPECT_EQ(real("types\\a.txt"), "01.cat::types/a.txt");
    EXPECT_EQ(real("types\\b.txt"), "02.cat::TYPES/B.txt");
    EXPECT_EQ(real("types\\c.txt"), "types/c.txt");
    EXPECT_EQ(real("types\\d.txt"), "mods/my.cat::types/D.TXT");
    EXPECT_EQ(real("Types/E.txt"), "mods/my.cat::types/e.txt");
    EXPECT_EQ(found("types\\*"), (Names{"a.txt", "B.txt", "c.txt", "D.TXT", "e.txt"}));
}

TEST_F(GameDirectory, CatalogsCountWithoutGapInAnyCase) {
    for (const auto* name : {"01.CAT", "02.cat", "04.cat", "1.cat", "x.cat"})
        catalog(name, {std::string("from") + name[1] + ".txt"});
    createView();
    EXPECT_EQ(real("from1.txt"), "01.CAT::from1.txt");
    EXPECT_EQ(real("from2.txt"), "02.cat::from2.txt");
    EXPECT_EQ(found("from*"), (Names{"from1.txt", "from2.txt"}));
}

TEST_F(GameDirectory, MoreThanNinetyNineCatalogs) {
    catalog("01.cat", {"last.txt"});
    for (int i = 2; i <= 101; ++i)
        fs::copy_file(root + "/01.cat",
                      root + '/' + (i < 10 ? "0" : "") + std::to_string(i) + ".cat");
    createView();
    EXPECT_EQ(real("last.txt"), "101.cat::last.txt");
}

TEST_F(GameDirectory, BrokenCatalogIsTolerated) {
    catalog("01.cat", {"a.txt"});
    write("02.cat", "KESHCAT 1 02.dat\nnonsense\n");
    catalog("03.cat", {"c.txt"});
    createView();
    EXPECT_EQ(real("a.txt"), "01.cat::a.txt");
    EXPECT_EQ(real("c.txt"), "03.cat::c.txt");
    EXPECT_NE(KeshVFS_Warnings().find("02.cat"), std::string::npos) << KeshVFS_Warnings();

    for (const auto* name : {"02.cat", "missing.cat"}) {
        EXPECT_FALSE(KeshVFS_AppendCatalog(root + '/' + name));
        EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_CATALOG);
        EXPECT_NE(errorText().find(name), std::string::npos) << errorText();
        EXPECT_EQ(found("*.txt"), (Names{"a.txt", "c.txt"}));
    }
    fs::remove(root + "/02.cat");
    createView();
    EXPECT_EQ(KeshVFS_Warnings(), "");
}

TEST_F(GameDirectory, AReloadReplacesTheViewAndFindsGoOn) {
    catalog("mod.cat", {"m.txt"});
    write("a.txt");
    write("b.txt");
    createView();
    ASSERT_TRUE(KeshVFS_AppendCatalog(root + "/mod.cat"));
    VFSFindData data{};
    const std::int32_t find = KeshVFS_FindFirstFile("*.txt", data);
    ASSERT_TRUE(find);

    fs::remove(root + "/b.txt");
    createView();
    EXPECT_EQ(found("*.txt"), Names{"a.txt"});
    EXPECT_EQ(rest(find, data), (Names{"a.txt", "b.txt", "m.txt"}));
}

TEST_F(GameDirectory, NoRootIsAnEmptyView) {
    write("here.txt");
    const fs::path former = fs::current_path();
    fs::current_path(root);
    EXPECT_TRUE(KeshVFS_CreateVFS(""));
    EXPECT_EQ(found("*"), Names{});
    fs::current_path(former);

    EXPECT_FALSE(KeshVFS_CreateVFS(root + "/nowhere"));
    EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_DIRECTORY);
    EXPECT_NE(errorText().find("nowhere"), std::string::npos) << errorText();
    EXPECT_EQ(found("*"), Names{});
}

TEST_F(GameDirectory, RootThatReadsAsACatalogIsRefused) {
    write("mods::old/a.txt");
    EXPECT_FALSE(KeshVFS_CreateVFS(root + "/mods::old"));
    EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_DIRECTORY);
    for (const auto& text : {errorText(), KeshVFS_Warnings()})
        EXPECT_NE(text.find(root + "/mods::old: "), std::string::npos) << text;
    EXPECT_EQ(found("*"), Names{});
}

TEST_F(GameDirectory, CatalogWhoseNameReadsAsAnEntryIsRefused) {
    catalog("mods::old/mod.cat", {"types\\a.txt"});
    KeshVFS_CreateVFS(root);
    EXPECT_FALSE(KeshVFS_AppendCatalog(root + "/mods::old/mod.cat"));
    EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_CATALOG);
    EXPECT_NE(errorText().find(root + "/mods::old/mod.cat: "), std::string::npos) << errorText();
    EXPECT_EQ(found("types\\*"), Names{});
}

TEST_F(GameDirectory, DeepEntriesAreLeftOut) {
    const auto deep = [](int parts) {
        std::string name;
        for (int i = 1; i < parts; ++i)
            name += "d\\";
        return name + "f.txt";
    };
    catalog("01.cat", {deep(32), deep(33), "x\\" + deep(32), "last.txt"});
    std::string path = deep(32);
    std::ranges::replace(path, '\\', '/');
    write("loose/" + path.substr(2));
    write("loose/" + path);
    createView();
    EXPECT_EQ(real(deep(32)), "01.cat::" + path);
    EXPECT_EQ(real("loose\\" + deep(31)), "loose/" + path.substr(2));
    EXPECT_EQ(real("last.txt"), "01.cat::last.txt");
    EXPECT_EQ(found(deep(33)), Names{});
    EXPECT_EQ(found("x*"), Names{});
    EXPECT_EQ(found("loose\\" + deep(32)), Names{});
    EXPECT_NE(KeshVFS_Warnings().find("01.cat: 2 entries have more than 32 parts"),
              std::string::npos)
        << KeshVFS_Warnings();
    EXPECT_NE(KeshVFS_Warnings().find(": it lies too deep"), std::string::npos);

    const std::string before = KeshVFS_Warnings();
    const std::int32_t handle = LornFD_OpenCatalog(root + "/01.cat", LORNFD_OPEN_EXISTING);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(listed(handle, "*"), (Names{"d\\", "last.txt"}));
    LornFD_CloseCatalog(handle);
    EXPECT_EQ(KeshVFS_Warnings(), before) << "one warning grew with each listing";
}

TEST(NameHashes, CollisionsDependOnTheSeed) {
    const auto hash = [](int i, std::uint64_t seed) {
        return keshvfs::hashName("types\\file" + std::to_string(i), false, seed) % 0x10000U;
    };
    std::vector<int> falling; // into one slot of many, as an attacker would choose names
    for (int i = 0; i < 1'000'000; ++i)
        if (hash(i, 1) == 0)
            falling.push_back(i);
    ASSERT_GT(falling.size(), 5U);
    std::set<std::uint32_t> slots;
    for (const int i : falling)
        slots.insert(hash(i, 0x9e3779b97f4a7c15U));
    EXPECT_GT(slots.size(), falling.size() / 2);
    EXPECT_EQ(keshvfs::hashName("A/b", true, 1), keshvfs::hashName("a\\B", true, 1));
}

TEST_F(GameDirectory, ListsACatalogAfterItIsClosed) {
    catalog("one.cat", {"types\\TShips.pck", "types\\sub\\deep.txt", "readme.txt"});
    const std::int32_t handle = LornFD_OpenCatalog(root + "/one.cat", LORNFD_OPEN_EXISTING);
    ASSERT_TRUE(handle);
    EXPECT_EQ(listed(handle, "*.pck"), Names{"types\\"});
    EXPECT_EQ(listed(handle, "types\\*.pck"), (Names{"sub\\", "TShips.pck"}));
    EXPECT_EQ(listed(handle, "types\\sub\\*"), Names{"deep.txt"});
    EXPECT_EQ(listed(handle, "types\\tships"), Names{"TShips.pck"});

    VFSFindData data{};
    const std::int32_t context = KeshVFS_CatFindInit(handle);
    LornFD_CloseCatalog(handle);
    EXPECT_FALSE(KeshVFS_CatFindInit(handle));
    EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_HANDLE);
    const std::int32_t find = KeshVFS_CatFindFirstFile(context, "*.txt", data);
    ASSERT_TRUE(find);
    EXPECT_TRUE(KeshVFS_FindClose(context));
    EXPECT_STREQ(data.VFSName, "readme.txt");
    EXPECT_TRUE(KeshVFS_GetRealName(find).ends_with("\\one.cat::readme.txt"));
    EXPECT_EQ(rest(find, data), (Names{"readme.txt", "types\\"}));
}

TEST_F(GameDirectory, ListsTheWholeView) {
    catalog("01.cat", {"types\\TShips.pck", "readme.txt"});
    write("types/TLaser.txt");
    createView();
    const std::int32_t view = KeshVFS_GetVFSHandle();
    EXPECT_EQ(listed(view, "*.txt"), (Names{"readme.txt", "types\\"}));
    EXPECT_EQ(listed(view, "types\\t*"), (Names{"TLaser.txt", "TShips.pck"}));
    EXPECT_EQ(found("*.txt"), Names{"readme.txt"});
}

} // namespace
