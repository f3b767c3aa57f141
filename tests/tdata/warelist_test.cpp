#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/gametexts.h"
#include "support/loadtext.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlWareList.h"

#include <gtest/gtest.h>

using support::repeat;
using support::writeFile;

namespace {

/// A record of `size` values whose field 6 names a text.
std::string record(int size, const char* name, const char* id) {
    return repeat("0;", 6) + name + ';' + repeat("0;", size - 8) + id + ";\r\n";
}

class WareListTest : public testing::Test {
protected:
    void SetUp() override {
        writeFile(m_dir / "types/TWareB.txt",
                  "1;2;" + record(17, "5", "B1") + record(17, "6", "B2"));
        writeFile(m_dir / "types/TWareT.txt", "1;1;" + record(17, "7", "T1"));
        writeFile(m_dir / "types/TShields.txt", "1;1;" + record(21, "x", "S1"));
        writeFile(m_dir / "types/TMissiles.txt", "47;1;" + record(37, "5", "M1")); // refused
        writeFile(m_dir / "types/TLaser.txt", "1;1;" + record(23, "5", "L1"));
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
        Archive = std::make_unique<clsArchive>();
    }
    void TearDown() override { Archive.reset(); }

    support::ScratchDir m_dir;
};

} // namespace

TEST_F(WareListTest, MergesCopiesInTheOrderThatListsCount) {
    const auto merged = BuildWareList();
    std::string order;
    for (const RecordPtr& ware : merged->ByIndex())
        order += ware->key() + '=' + std::string(ware->ObjectName()) + ' ';
    EXPECT_EQ(order, "k1=B1 k2=B2 k3=T1 k4=S1 k5=L1 ");
    EXPECT_EQ(merged->FindKey("k4")->ObjectName(), "S1");
    merged->FindIndex(0)->SetValue(0, 9);
    EXPECT_EQ(Archive->GetFile("TWareB")->FindIndex(0)->ValueText(0), "0");
}

TEST_F(WareListTest, NamesFallBackToTheID) {
    const auto merged = BuildWareList();
    const WareNames names(BuildWareList());
    const auto expectName = [&](const std::string& id, const char* name) {
        EXPECT_EQ(GetWareName(*merged, id), name);
        EXPECT_EQ(names.Name(id), name);
    };
    expectName("B1", "B1"); // no texts
    const support::GameTexts texts(
        "<page id=\"17\"><string id=\"5\">Wax</string><string id=\"6\"></string></page>");
    expectName("B1", "Wax");
    expectName("L1", "Wax");
    expectName("B2", "B2"); // an empty text
    expectName("T1", "T1"); // a missing one
    expectName("S1", "S1"); // no number
    expectName("b1", "b1"); // no such ware
}
