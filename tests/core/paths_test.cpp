#include "core/mdlComFunctions.h"
#include "core/surroundings.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"

TEST(PathForms, EnterAndLeaveTheProgram) {
    struct Row {
        const char* entered;
        const char* inside;
    };
    const Row rows[] = {
        {"/home/x/T.txt", "\\home\\x\\T.txt"},
        {"vfs://types/TShips.pck", "vfs://types\\TShips.pck"},
        {"/game/01.cat::types/T.pck", "\\game\\01.cat::types\\T.pck"},
        {"C:\\mods/tships.txt", "C:\\mods\\tships.txt"},
        {"", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FromPlatform(row.entered), row.inside);
        EXPECT_EQ(FromPlatform(row.inside), row.inside) << "not stable";
    }
    EXPECT_EQ(ShownPath("vfs://types\\TShips.pck"), "vfs://types\\TShips.pck");
#ifndef _WIN32
    EXPECT_EQ(ShownPath("\\home\\x\\T.txt"), "/home/x/T.txt");
    EXPECT_EQ(ShownPath("\\game\\01.cat::types\\T.pck"), "/game/01.cat::types\\T.pck");
#endif
}

class View : public Surroundings {
protected:
    View() {
        write("data/types/TShips.txt", "x");
        write("data/types/TLaser.pck", "x");
        write("data/types/TOnly.d/inner.txt", "x");
        KeshVFS_ClearFilters();
        EXPECT_NE(KeshVFS_CreateVFS(program("data")), 0) << KeshVFS_Warnings();
    }
    ~View() override { KeshVFS_CreateVFS(""); }
};

TEST_F(View, FindsRealPlacesOfNames) {
    EXPECT_EQ(FindInVFS("types\\TShips.txt").value_or("none"), program("data/types/TShips.txt"));
    EXPECT_EQ(FindInVFS("vfs://types\\tships").value_or("none"), program("data/types/TShips.txt"));
    EXPECT_EQ(FindInVFS("types\\TLaser").value_or("none"), program("data/types/TLaser.pck"));
    EXPECT_FALSE(FindInVFS("types\\TOnly.d")) << "a directory is no file";
    EXPECT_FALSE(FindInVFS("types\\TNone"));
    EXPECT_FALSE(FindInVFS("vfs://"));
    for (const char* mask : {"types\\*", "types\\TShips.tx?", "t*\\TShips.txt", "vfs://types\\TL*"})
        EXPECT_FALSE(FindInVFS(mask)) << mask;

    EXPECT_EQ(RealPath("\\some\\file.txt").value_or("none"), "\\some\\file.txt");
    EXPECT_EQ(RealPath("01.cat::types\\T.pck").value_or("none"), "01.cat::types\\T.pck");
    EXPECT_EQ(RealPath("vfs://types\\TShips.txt").value_or("none"),
              program("data/types/TShips.txt"));
    EXPECT_FALSE(RealPath("vfs://types\\TNone.txt"));
}

TEST_F(View, SearchGivesNamesThatAreLongerThanTheRecord) {
    const std::string directory(200, 'd');
    const std::string name = std::string(200, 'n') + ".txt";
    write(("data/types/" + directory + "/" + name).c_str(), "x");
    ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
    VfsSearch search("types\\" + directory + "\\*");
    ASSERT_TRUE(search.Found());
    EXPECT_EQ(search.Name(), name);
    EXPECT_EQ(BaseName(search.RealName(), false), name);
    search.Next();
    EXPECT_FALSE(search.Found());
    search.Next();
    EXPECT_EQ(search.Name(), "");
}
