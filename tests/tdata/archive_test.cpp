#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/loadtext.h"
#include "tdata/clsArchive.h"

#include <gtest/gtest.h>

using support::repeat;
using support::writeFile;

namespace {

class ArchiveTest : public testing::Test {
protected:
    void SetUp() override {
        writeFile(m_dir / "types/TWareB.txt", "14;1;" + repeat("0;", 16) + "SS_A;\r\n");
        writeFile(m_dir / "types/TSuns.txt", "14;0;\r\n");
        writeFile(m_dir / "types/TBullets.txt", "52;1;" + repeat("0;", 47));
        writeFile(m_dir / "types/TGates.txt", "14;1;1;");
        writeFile(m_dir / "types/Jobs.txt", "8;\r\n" + repeat("1;", 116) + "a // b\r\n");
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
    }

    support::ScratchDir m_dir;
    clsArchive m_archive;
};

} // namespace

TEST_F(ArchiveTest, ParsesAFileOnceUntilCleared) {
    const auto first = m_archive.GetFile("TWareB");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->FileName, "types\\TWareB");
    EXPECT_EQ(first->FindIndex(0)->ObjectName(), "SS_A");
    std::filesystem::remove(m_dir / "types/TWareB.txt");
    EXPECT_EQ(m_archive.GetFile("twareb"), first);
    EXPECT_TRUE(m_archive.IsFileLoaded("TWareB"));
    EXPECT_TRUE(m_archive.IsFileLoaded("types\\TWareB.pck"));
    m_archive.Clear();
    EXPECT_FALSE(m_archive.IsFileLoaded("TWareB"));
    EXPECT_EQ(m_archive.GetFile("TWareB"), nullptr);
}

TEST_F(ArchiveTest, JobsAreReadWithTheirRawNames) {
    const auto jobs = m_archive.GetFile("Jobs");
    ASSERT_NE(jobs, nullptr);
    EXPECT_EQ(jobs->FindIndex(0)->ObjectName(), "a // b");
}

TEST_F(ArchiveTest, FailuresAreKeptAndTriedAgain) {
    EXPECT_EQ(m_archive.GetFile("TShips"), nullptr);
    EXPECT_EQ(m_archive.GetLastError(),
              "Error loading types\\TShips:\r\n\r\nFile not found in VFS");
    EXPECT_EQ(m_archive.GetFile("TLaser"), nullptr);
    EXPECT_EQ(m_archive.NotLoadedFiles(),
              "types\\TShips: File not found in VFS\r\ntypes\\TLaser: File not found in VFS");
    EXPECT_TRUE(m_archive.ParseError());
    EXPECT_EQ(m_archive.LoadError(), "True");
    writeFile(m_dir / "types/TLaser.txt", "1;1;" + repeat("0;", 23));
    ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(m_dir.path())), 0);
    EXPECT_NE(m_archive.GetFile("TLaser"), nullptr);
    m_archive.ClearErrors();
    EXPECT_EQ(m_archive.NotLoadedFiles() + m_archive.GetLastError(), "");
    EXPECT_FALSE(m_archive.ParseError());
}

TEST_F(ArchiveTest, FilesThatDoNotParseAreNotKept) {
    EXPECT_EQ(m_archive.GetFile("TSuns"), nullptr);
    EXPECT_EQ(m_archive.GetLastError(), "");
    EXPECT_EQ(m_archive.GetFile("TBullets"), nullptr);
    EXPECT_NE(m_archive.GetLastError().find("ver. 52"), std::string::npos);
    EXPECT_EQ(m_archive.GetFile("TGates"), nullptr);
    EXPECT_FALSE(m_archive.IsFileLoaded("TGates"));
    EXPECT_EQ(m_archive.NotLoadedFiles(), "");
}
