#include "keshvfs/gamedirectory.h"

namespace {

TEST_F(GameDirectory, MasksGiveWhatMatchesTheLastPart) {
    for (const auto* name :
         {"types/TShips.pck", "types/TShips.txt", "types/TShips", "types/TShields.txt",
          "types/TShips.old.txt", "types/TShips-2.txt", "types/sub/TShips.pck", "types/T_x.txt",
          "t/0001-L044.xml", "t/0001-L044", "t/0001-L0441.xml", "t/44x.pck", "t/440001.xml",
          "objects/TShips/readme", "top.txt"})
        write(name);
    createView();
    const struct {
        const char* mask;
        Names expected;
    } cases[] = {
        {"*", {"objects\\", "t\\", "top.txt", "types\\"}},
        {"TYPES\\tships.TXT", {"TShips.txt"}},
        {"types/TShips.*", {"TShips.old.txt", "TShips.pck", "TShips.txt"}},
        {"types\\tship*", {"TShips", "TShips-2.txt", "TShips.old.txt", "TShips.pck", "TShips.txt"}},
        {"types\\TShips.old", {}},
        {"types\\TShips-2", {"TShips-2.txt"}},
        {"types\\TShi????", {"TShields.txt", "TShips-2.txt"}},
        {"types\\T?x", {"T_x.txt"}},
        {"t\\*-L044", {"0001-L044", "0001-L044.xml"}},
        {"t\\44*", {"440001.xml", "44x.pck"}},
        {"*\\tships", {"TShips\\", "TShips", "TShips.pck", "TShips.txt"}},
        {"types\\*ips.pck", {"TShips.pck"}},
        {"\\types\\\\sub\\", {"sub\\"}},
        {"typ*\\s?b\\*", {"TShips.pck"}},
        {"types\\sub\\..\\TShips.txt", {}},
        {"types\\TShips.txt\\*", {}},
        {"", {}},
        {"\\", {}},
        {"nowhere\\*", {}},
    };
    for (const auto& [mask, expected] : cases) {
        EXPECT_EQ(found(mask), expected) << mask;
        VFSFindData data{};
        if (expected.empty()) {
            EXPECT_FALSE(KeshVFS_FindFirstFile(mask, data));
            EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_NOT_FOUND) << mask;
        }
    }
}

TEST_F(GameDirectory, APlainNameTakesTheTopmostExtension) {
    catalog("01.cat", {"types\\TShips.aaa", "types\\TShips", "types\\TLaser.pck"});
    write("types/TShips.txt");
    catalog("mod.cat", {"types\\tships.zzz"});
    createView();
    EXPECT_EQ(real("types\\TShips"), "types/TShips.txt");
    EXPECT_EQ(real("types\\TLaser"), "01.cat::types/TLaser.pck");
    ASSERT_TRUE(KeshVFS_AppendCatalog(root + "/mod.cat"));
    EXPECT_EQ(real("types\\TShips"), "mod.cat::types/tships.zzz");
    EXPECT_EQ(found("types\\TSHIPS"), (Names{"tships.zzz", "TShips.txt", "TShips", "TShips.aaa"}));
    EXPECT_EQ(real("types\\TShips.aaa"), "01.cat::types/TShips.aaa");
}

TEST_F(GameDirectory, AFileComesBeforeADirectoryOfItsName) {
    write("objects/ship/part.bod");
    catalog("01.cat", {"objects\\ship.bod", "objects\\ship"});
    createView();
    EXPECT_EQ(real("objects\\ship"), "01.cat::objects/ship");
    EXPECT_EQ(found("objects\\ship"), (Names{"ship", "ship.bod", "ship\\"}));
}

TEST_F(GameDirectory, HandlesEndWithTheirClose) {
    write("a.txt");
    createView();
    VFSFindData data{};
    const std::int32_t find = KeshVFS_FindFirstFile("a.txt", data);
    ASSERT_TRUE(find);
    EXPECT_FALSE(KeshVFS_FindNextFile(find, data));
    EXPECT_FALSE(KeshVFS_FindNextFile(find, data)) << "the end stays the end";
    EXPECT_EQ(KeshVFS_GetRealName(find), "");
    EXPECT_TRUE(KeshVFS_FindClose(find));
    for (const std::int32_t bad : {find, 0, -1, KeshVFS_GetVFSHandle()}) {
        EXPECT_FALSE(KeshVFS_FindNextFile(bad, data));
        EXPECT_FALSE(KeshVFS_CatFindFirstFile(bad, "*", data));
        EXPECT_FALSE(KeshVFS_FindClose(bad));
        EXPECT_EQ(KeshVFS_GetLastError(), KESHVFS_E_HANDLE);
        EXPECT_NE(errorText().find(std::to_string(bad)), std::string::npos);
    }
}

} // namespace
