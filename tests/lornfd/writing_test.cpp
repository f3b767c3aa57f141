#include "lornfd/packing.h"
#include "lornfd/replacefile.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace {

using namespace lornfd;
namespace fs = std::filesystem;

std::int32_t storedForm(const std::string& name) {
    const std::int32_t file =
        LornFD_OpenFile(name, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const std::int32_t form = LornFD_FileType(file);
    LornFD_CloseFile(file);
    return form;
}

TEST(Writing, FormOfTheTarget) {
    const struct {
        std::int32_t before; ///< form of the existing target; 0 for none
        const char* name;
        std::int32_t asked;
        std::int32_t wanted;
    } cases[] = {{0, "n.txt", LORNFD_AS_IS, LORNFD_PLAIN},
                 {0, "n.pck", LORNFD_AS_IS, LORNFD_ZSTD},
                 {0, "n.PCK", LORNFD_AS_IS, LORNFD_ZSTD},
                 {0, "pck", LORNFD_AS_IS, LORNFD_PLAIN},
                 {0, "n.pck", LORNFD_PLAIN, LORNFD_PLAIN},
                 {LORNFD_PLAIN, "n.pck", LORNFD_AS_IS, LORNFD_PLAIN},
                 {LORNFD_GZIP, "n.txt", LORNFD_AS_IS, LORNFD_GZIP},
                 {LORNFD_ZSTD, "n.txt", LORNFD_AS_IS, LORNFD_ZSTD},
                 {LORNFD_GZIP, "n.txt", LORNFD_ZSTD, LORNFD_ZSTD},
                 {LORNFD_ZSTD, "n.txt", LORNFD_GZIP, LORNFD_GZIP},
                 {LORNFD_ZSTD, "n.txt", LORNFD_PLAIN, LORNFD_PLAIN}};
    for (const std::string& place : {std::string(), std::string("c.cat::types\\")}) {
        for (const auto& wanted : cases) {
            const scratch::Directory directory;
            scratch::makeCatalog(directory / "c.cat", {{"other", "stays"}});
            const std::string name = directory / (place + wanted.name);
            ASSERT_TRUE(wanted.before == 0 || scratch::save(name, "before", wanted.before));
            ASSERT_TRUE(scratch::save(name, "after", wanted.asked)) << scratch::errorText();
            EXPECT_EQ(storedForm(name), wanted.wanted) << name << " " << wanted.before;
            EXPECT_EQ(scratch::load(name), "after");
            EXPECT_EQ(scratch::load(directory / "c.cat::other"), "stays");
        }
    }
}

TEST(Writing, ExistingTargetIsAskedForByCreate) {
    const scratch::Directory directory;
    scratch::makeCatalog(directory / "c.cat", {});
    for (const char* name : {"new.txt", "c.cat::new.txt"}) {
        EXPECT_EQ(
            LornFD_OpenFile(directory / name, LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_PLAIN), 0);
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NOT_FOUND);
        const std::int32_t file = LornFD_OpenFileConvert(directory / name, LORNFD_WRITE,
                                                         LORNFD_OPEN_EXISTING, LORNFD_GZIP);
        ASSERT_NE(file, 0);
        EXPECT_EQ(LornFD_CloseFile(file), 1);
        EXPECT_EQ(storedForm(directory / name), LORNFD_GZIP);
        EXPECT_EQ(LornFD_CloseFile(LornFD_OpenFile(directory / name, LORNFD_WRITE,
                                                   LORNFD_OPEN_EXISTING, LORNFD_PLAIN)),
                  1);
        EXPECT_EQ(scratch::load(directory / name), "");
    }
}

TEST(Writing, TargetsThatCannotBeAreRefusedAtOnce) {
    const scratch::Directory directory;
    fs::create_directory(directory / "folder");
    scratch::writeFile(directory / "broken.cat", "KESHCAT 1 x.dat\nrubbish\n");
    scratch::makeCatalog(directory / "c.cat", {});
    const auto before = directory.names();
    const struct {
        const char* name;
        int code;
    } cases[] = {{"folder", LORNFD_E_OPEN},           {"none\\a.txt", LORNFD_E_WRITE},
                 {"none.cat::a", LORNFD_E_NOT_FOUND}, {"broken.cat::a", LORNFD_E_CATALOG},
                 {"c.cat::..\\a", LORNFD_E_NAME},     {"c.cat::", LORNFD_E_NAME},
                 {"c.cat::c:\\a", LORNFD_E_NAME},     {"c.cat::a\nb", LORNFD_E_NAME}};
    for (const auto& wanted : cases) {
        EXPECT_FALSE(scratch::save(directory / wanted.name, "x")) << wanted.name;
        EXPECT_EQ(LornFD_GetLastError(), wanted.code) << wanted.name << scratch::errorText();
        EXPECT_EQ(directory.names(), before) << wanted.name;
    }
    EXPECT_FALSE(scratch::save(directory / "folder", "x", LORNFD_PLAIN));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_WRITE);
    EXPECT_EQ(directory.names(), before);
}

TEST(Writing, NothingHappensBeforeTheCloseNorByAbandoning) {
    const scratch::Directory directory;
    scratch::makeCatalog(directory / "c.cat", {{"a.txt", "old"}});
    scratch::writeFile(directory / "a.txt", "old");
    const auto before = directory.names();
    for (const char* name : {"a.txt", "c.cat::a.txt", "c.cat::b.txt"}) {
        for (const std::int32_t type : {LORNFD_PLAIN, LORNFD_ZSTD}) {
            const std::string content = scratch::load(directory / name);
            const std::int32_t file =
                LornFD_OpenFile(directory / name, LORNFD_WRITE, LORNFD_CREATE, type);
            EXPECT_EQ(LornFD_WriteFile(file, "new", 3), 1);
            EXPECT_EQ(LornFD_SetEndOfFile(file), 1);
            EXPECT_EQ(scratch::load(directory / name), content);
            EXPECT_EQ(LornFD_AbandonFile(file), 1);
            EXPECT_EQ(scratch::load(directory / name), content);
            EXPECT_EQ(directory.names(), before);
        }
    }
}

TEST(Writing, LargeAndSmallPiecesKeepTheirOrder) {
    const scratch::Directory directory;
    const std::string content = scratch::noise(5'000'000, 4);
    const std::int32_t file =
        LornFD_OpenFile(directory / "a", LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    std::size_t at = 0;
    for (std::size_t size = 1; at < content.size(); size = size * 3 + 1) {
        size = std::min(size, content.size() - at);
        ASSERT_EQ(LornFD_WriteFile(file, content.data() + at, static_cast<std::int64_t>(size)), 1);
        at += size;
    }
    ASSERT_EQ(LornFD_CloseFile(file), 1);
    EXPECT_TRUE(scratch::readFile(directory / "a") == content);
}

TEST(Writing, KeepsModeLinksAndSpelling) {
    const scratch::Directory directory;
    fs::create_directory(directory / "real");
    scratch::writeFile(directory / "real/Target.txt", "old");
    ::chmod((directory / "real/Target.txt").c_str(), 0640);
    fs::create_symlink("real/Target.txt", directory / "link");
    fs::create_symlink("link", directory / "Second");
    fs::create_symlink("real/new.txt", directory / "dangling");
    ASSERT_TRUE(scratch::save(directory / "second", "new")) << scratch::errorText();
    ASSERT_TRUE(scratch::save(directory / "REAL\\target.TXT", "newer")) << scratch::errorText();
    ASSERT_TRUE(scratch::save(directory / "dangling", "made")) << scratch::errorText();
    EXPECT_EQ(scratch::readFile(directory / "real/Target.txt"), "newer");
    EXPECT_EQ(scratch::readFile(directory / "real/new.txt"), "made");
    EXPECT_EQ(fs::read_symlink(directory / "Second"), "link");
    EXPECT_EQ(fs::read_symlink(directory / "dangling"), "real/new.txt");
    struct stat status = {};
    ::stat((directory / "real/Target.txt").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(directory.names(), (std::set<std::string>{"real", "link", "Second", "dangling"}));
    EXPECT_EQ(std::distance(fs::directory_iterator(directory / "real"), {}), 2);
}

TEST(Writing, SecondWriterIsToldWhoHoldsTheFile) {
    const scratch::Directory directory;
    scratch::writeFile(directory / "a.txt", "old");
    const auto first = FileReplacement::begin(directory / "a.txt");
    ASSERT_TRUE(first);
    EXPECT_FALSE(scratch::save(directory / "A.TXT", "second"));
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_LOCKED);
    EXPECT_NE(scratch::errorText().find(std::to_string(::getpid())), std::string::npos);
    EXPECT_TRUE(first->write("first") && first->commit());
    EXPECT_EQ(scratch::readFile(directory / "a.txt"), "first");
}

TEST(Writing, LeftoversOfTheDeadAreTakenOver) {
    const scratch::Directory directory;
    scratch::writeFile(directory / "a.txt.kesh-new", "half a fi");
    scratch::writeFile(directory / "a.txt.kesh-lock", ""); // its writer died before it stood in it
    EXPECT_TRUE(scratch::save(directory / "a.txt", "whole")) << scratch::errorText();
    EXPECT_EQ(directory.names(), std::set<std::string>{"a.txt"});
    EXPECT_EQ(scratch::readFile(directory / "a.txt"), "whole");
}

TEST(Deleting, TakesFilesLinksAndEntries) {
    const scratch::Directory directory;
    scratch::writeFile(directory / "a.txt", "kept");
    fs::create_symlink("a.txt", directory / "link");
    scratch::makeCatalog(directory / "c.cat", {{"a", "1"}, {"b", "2"}});
    EXPECT_EQ(LornFD_DeleteFile(directory / "LINK"), 1);
    EXPECT_EQ(LornFD_DeleteFile(directory / "c.cat::A"), 1);
    EXPECT_EQ(LornFD_GetLastError(), LORNFD_OK);
    EXPECT_EQ(directory.names(), (std::set<std::string>{"a.txt", "c.cat", "c.dat"}));
    EXPECT_EQ(LornFD_FileExists(directory / "c.cat::a"), 0);
    EXPECT_EQ(scratch::load(directory / "c.cat::b"), "2");
    for (const char* name : {"link", "c.cat::a", "none.cat::a"}) {
        EXPECT_EQ(LornFD_DeleteFile(directory / name), 0);
        EXPECT_EQ(LornFD_GetLastError(), LORNFD_E_NOT_FOUND) << name;
    }
    fs::create_directory(directory / "folder");
    EXPECT_EQ(LornFD_DeleteFile(directory / "folder"), 0);
    EXPECT_EQ(directory.names(), (std::set<std::string>{"a.txt", "c.cat", "c.dat", "folder"}));
}

} // namespace
