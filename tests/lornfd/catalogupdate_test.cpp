#include "lornfd/catalog.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace {

using namespace lornfd;
namespace fs = std::filesystem;

class CatalogChange : public testing::Test {
protected:
    CatalogChange() {
        scratch::makeCatalog(catalog, {{"a", "aaaaaaaaaa"}, {"types\\b", "bbbbbbbbbb"}});
    }
    [[nodiscard]] std::string load(const std::string& entry) const {
        return scratch::load(catalog + "::" + entry);
    }
    /// The names of a catalog's entries in order, with "|" between.
    [[nodiscard]] std::string entries() const {
        std::string names;
        const auto index = CatalogIndex::open(catalog);
        for (std::size_t i = 0; index && i < index->size(); ++i)
            names += std::string(index->entry(i).name) + "|";
        return names;
    }
    [[nodiscard]] std::uintmax_t dataSize() const {
        return fs::file_size(CatalogIndex::open(catalog)->dataPath());
    }

    const scratch::Directory directory;
    const std::string catalog = directory / "c.cat";
};

TEST_F(CatalogChange, PutsReplacesAndTakesOut) {
    auto update = CatalogUpdate::begin(directory / "C.CAT", false);
    ASSERT_TRUE(update);
    EXPECT_TRUE(update->put("types/C", "1"));
    EXPECT_TRUE(update->put("TYPES\\c", "2"));
    EXPECT_TRUE(update->put("A", "3"));
    EXPECT_TRUE(update->remove("types/B"));
    EXPECT_FALSE(update->remove("types\\b"));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NOT_FOUND);
    EXPECT_TRUE(update->put("d", "4"));
    EXPECT_TRUE(update->remove("d"));
    EXPECT_TRUE(update->put("types\\b", ""));
    EXPECT_EQ(entries(), "a|types\\b|") << "nothing changes before the commit";
    ASSERT_TRUE(update->commit()) << scratch::errorText();
    update.reset();
    EXPECT_EQ(entries(), "TYPES\\c|A|types\\b|");
    EXPECT_EQ(load("types\\c") + load("a") + load("types\\b"), "23");
    EXPECT_EQ(directory.names().size(), 2U);
}

TEST_F(CatalogChange, AbandonedLeavesNothing) {
    {
        const auto update = CatalogUpdate::begin(catalog, false);
        EXPECT_TRUE(update->put("a", std::string(3'000'000, 'x')));
        EXPECT_TRUE(update->remove("types\\b"));
    }
    EXPECT_EQ(load("a") + load("types\\b"), "aaaaaaaaaabbbbbbbbbb");
    EXPECT_EQ(dataSize(), 20U);
    {
        const auto update = CatalogUpdate::begin(directory / "new.cat", true);
        EXPECT_TRUE(update->put("a", "x"));
    }
    EXPECT_EQ(directory.names(), (std::set<std::string>{"c.cat", "c.dat"}));
}

TEST_F(CatalogChange, CompactsWhenTheDeadOutweighTheLiving) {
    ::chmod(CatalogIndex::open(catalog)->dataPath().c_str(), 0600);
    const std::int32_t before = LornFD_OpenFile(catalog + "::types\\b", 0, 0, 0);
    ASSERT_TRUE(scratch::save(catalog + "::a", "0123456789"));
    EXPECT_EQ(dataSize(), 30U) << "10 dead bytes against 20 are not worth it";
    ASSERT_TRUE(scratch::save(catalog + "::a", "987654321"));
    EXPECT_EQ(dataSize(), 39U - 20U) << "20 dead bytes against 19 are";
    EXPECT_EQ(entries(), "types\\b|a|");
    EXPECT_EQ(load("types\\b") + load("a"), "bbbbbbbbbb987654321");
    EXPECT_EQ(directory.names().size(), 2U);
    struct stat status = {};
    ::stat(CatalogIndex::open(catalog)->dataPath().c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    EXPECT_EQ(LornFD_ViewFile(before), "bbbbbbbbbb") << "an open entry outlives its data file";
    LornFD_CloseFile(before);
    EXPECT_EQ(LornFD_DeleteFile(catalog + "::a"), 1);
    EXPECT_EQ(LornFD_DeleteFile(catalog + "::types\\b"), 1);
    EXPECT_EQ(dataSize(), 0U);
    EXPECT_EQ(directory.names().size(), 2U);
}

TEST_F(CatalogChange, BytesThatACrashLeftAreNotOverwrittenBlindly) {
    EXPECT_EQ(load("a"), "aaaaaaaaaa"); // so that the catalog is known from before
    scratch::writeFile(directory / "c.dat", scratch::readFile(directory / "c.dat") + "tail");
    ASSERT_TRUE(scratch::save(catalog + "::new", "n"));
    EXPECT_EQ(load("a") + load("types\\b") + load("new"), "aaaaaaaaaabbbbbbbbbbn");
    EXPECT_EQ(dataSize(), 25U);
}

TEST_F(CatalogChange, ForeignFilesKeepTheirNames) {
    scratch::writeFile(directory / "New.dat", "not a data file");
    scratch::writeFile(directory / "c-2.dat", "nor this");
    scratch::makeCatalog(directory / "new.cat", {{"a", "x"}});
    EXPECT_EQ(scratch::load(directory / "new.cat::a"), "x");
    ASSERT_TRUE(scratch::save(catalog + "::a", std::string(5, 'y')));
    ASSERT_TRUE(scratch::save(catalog + "::types\\b", std::string(5, 'z')));
    EXPECT_EQ(load("a") + load("types\\b"), "yyyyyzzzzz");
    EXPECT_EQ(scratch::readFile(directory / "New.dat"), "not a data file");
    EXPECT_EQ(scratch::readFile(directory / "c-2.dat"), "nor this");
}

TEST_F(CatalogChange, IndexOfAnotherProgramIsChanged) {
    scratch::writeFile(directory / "hand.bin", "0123456789");
    scratch::writeFile(directory / "hand.cat", "KESHCAT 1 hand.bin\r\n8 2 45cd12f0 types/x\r\n"
                                               "0 5 00000000 wrong sum\r\n");
    fs::create_symlink("hand.cat", directory / "link.cat");
    ASSERT_TRUE(scratch::save(directory / "link.cat::y", "new")) << scratch::errorText();
    EXPECT_EQ(scratch::readFile(directory / "hand.cat"),
              "KESHCAT 1 hand.bin\n8 2 45cd12f0 types\\x\n0 5 00000000 wrong sum\n10 3 "
              "6be34445 y\n")
        << "what is not changed stays, also where it is damaged";
    EXPECT_TRUE(fs::is_symlink(directory / "link.cat"));
}

TEST_F(CatalogChange, NamesThatAreNotAllowed) {
    const auto update = CatalogUpdate::begin(catalog, false);
    for (const std::string& name :
         {std::string(), std::string("..\\x"), std::string("a\\..\\x"), std::string("/x"),
          std::string("c:x"), std::string("a\nb"), std::string(256, 'x')}) {
        EXPECT_FALSE(update->put(name, "x"));
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NAME) << name;
    }
    EXPECT_TRUE(update->put(std::string(255, 'x'), "x"));
    EXPECT_TRUE(update->put("..a\\b..c\\ d", "x"));
    EXPECT_TRUE(update->commit());
    EXPECT_EQ(load("..A\\b..c\\ d") + load(std::string(255, 'X')), "xx");
}

TEST_F(CatalogChange, ReadAnewOnlyAfterAChange) {
    const auto index = CatalogIndex::open(catalog);
    EXPECT_EQ(CatalogIndex::open(catalog), index);
    const std::string text = scratch::readFile(catalog);
    scratch::writeFile(catalog, text.substr(0, text.size() - 8) + "types\\z\n");
    EXPECT_EQ(load("types\\z"), "bbbbbbbbbb");
    EXPECT_EQ(load("types\\b"), "error 1");
    fs::remove(catalog);
    EXPECT_EQ(load("a"), "error 1");
    for (int i = 0; i < 70; ++i) { // more catalogs than are kept
        const std::string other = directory / ("n" + std::to_string(i) + ".cat");
        scratch::makeCatalog(other, {{"x", std::to_string(i)}});
        EXPECT_EQ(scratch::load(other + "::x"), std::to_string(i));
    }
    EXPECT_EQ(scratch::load(directory / "n0.cat::x"), "0");
}

TEST_F(CatalogChange, BurstOfOpensSeesWhatThisProgramDid) {
    for (int round = 0; round < 5; ++round) {
        const std::string content = "content " + std::to_string(round);
        ASSERT_TRUE(scratch::save(catalog + "::a", content));
        for (int i = 0; i < 100; ++i)
            ASSERT_EQ(load("A"), content);
    }
    EXPECT_EQ(LornFD_DeleteFile(catalog), 1);
    EXPECT_EQ(load("a"), "error 1");
}

TEST_F(CatalogChange, WriterLooksAtTheDiskAlsoInABurst) {
    const std::string text = scratch::readFile(catalog);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(load("a"), "aaaaaaaaaa");
    std::ofstream(catalog) << text.substr(0, text.rfind('\n', text.size() - 2) + 1); // without b
    ASSERT_TRUE(CatalogUpdate::begin(catalog, false)->commit());
    EXPECT_EQ(entries(), "a|");
}

TEST_F(CatalogChange, HandleKeepsTheCatalogAsItWas) {
    EXPECT_EQ(LornFD_OpenCatalog(directory / "none.cat", LORNFD_OPEN_EXISTING), 0);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NOT_FOUND);
    const std::int32_t made = LornFD_OpenCatalog(directory / "made.cat", LORNFD_CREATE);
    ASSERT_NE(made, 0) << scratch::errorText();
    EXPECT_EQ(catalogOfHandle(made)->size(), 0U);
    EXPECT_TRUE(scratch::save(directory / "made.cat::x", "1"));
    EXPECT_EQ(catalogOfHandle(made)->size(), 0U);
    EXPECT_EQ(LornFD_CloseCatalog(made), 1);
    const std::int32_t again = LornFD_OpenCatalog(directory / "made.cat", LORNFD_CREATE);
    EXPECT_EQ(catalogOfHandle(again)->size(), 1U);
    EXPECT_EQ(LornFD_CloseCatalog(again), 1);
}

TEST_F(CatalogChange, ManyPutsAreOneCommit) {
    constexpr int count = 20'000;
    {
        const auto update = CatalogUpdate::begin(catalog, false);
        for (int round = 0; round < 2; ++round)
            for (int i = 0; i < count; ++i)
                ASSERT_TRUE(update->put("n\\" + std::to_string(i), std::to_string(i + round)));
        ASSERT_TRUE(update->commit());
    }
    ASSERT_EQ(CatalogIndex::open(catalog)->size(), count + 2U);
    for (int i = 0; i < count; i += 997)
        EXPECT_EQ(load("n\\" + std::to_string(i)), std::to_string(i + 1));
}

} // namespace
