#include "lornfd/foldedsort.h"
#include "lornfd/paths.h"
#include "scratch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <random>
#include <string>

namespace {

using namespace lornfd;

TEST(Paths, NativeFormLeavesTheEntry) {
    const struct {
        const char* given;
        const char* native;
    } cases[] = {{"a\\b/c", "a/b/c"},
                 {"\\game\\01.cat::types\\a.pck", "/game/01.cat::types\\a.pck"},
                 {"a\\b::c\\d::e", "a/b::c\\d::e"},
                 {"::x\\y", "::x\\y"},
                 {"", ""}};
    for (const auto& wanted : cases)
        EXPECT_EQ(nativePath(wanted.given), wanted.native);
}

TEST(Paths, FoundWithoutRegardToCaseExactFirst) {
    const scratch::Directory directory;
    std::filesystem::create_directories(directory / "Mods/Inner");
    scratch::writeFile(directory / "Mods/Inner/Ships.txt", "");
    scratch::writeFile(directory / "Mods/Inner/SHIPS.txt", "");
    std::filesystem::create_symlink("nowhere", directory / "Mods/Dangling");
    const struct {
        const char* given;
        const char* found;
    } cases[] = {{"mods\\inner\\Ships.txt", "Mods/Inner/Ships.txt"},
                 {"MODS/INNER/ships.TXT", "Mods/Inner/SHIPS.txt"},
                 {"mods\\INNER\\new\\Name.txt", "Mods/Inner/new/Name.txt"},
                 {"mods\\dangling", "Mods/Dangling"},
                 {"mods\\inner\\SHIPS.TXT::Types\\X", "Mods/Inner/SHIPS.txt::Types\\X"}};
    for (const auto& wanted : cases)
        EXPECT_EQ(resolvePath(directory / wanted.given), directory / wanted.found);
}

TEST(Paths, ComparesFoldedBytesThenLength) {
    const struct {
        const char* a;
        const char* b;
        int order;
    } cases[] = {{"ABC", "abc", 0}, {"a_b", "aAb", -1},   {"ab", "ABC", -1},
                 {"\xff", "z", 1},  {"\xc4", "\xe4", -1}, {"", "", 0}};
    for (const auto& wanted : cases) {
        EXPECT_EQ(compareNoCase(wanted.a, wanted.b), wanted.order);
        EXPECT_EQ(compareNoCase(wanted.b, wanted.a), -wanted.order);
        EXPECT_EQ(equalNoCase(wanted.a, wanted.b), wanted.order == 0);
    }
}

TEST(Paths, ManyNamesAreSortedAsTwoAre) {
    std::mt19937 random(7);
    for (const std::string start : {"", "objects\\SHIPS_"}) {
        std::vector<std::string> names;
        for (int i = 0; i < 500;
             ++i) { // often the same, and often longer than what is compared first
            std::string name = start;
            for (std::size_t length = random() % 12; length > 0; --length)
                name += std::string_view("aAb_\xE9\0", 6)[random() % 6];
            names.push_back(std::move(name));
        }
        std::vector<std::size_t> sorted(names.size());
        std::iota(sorted.begin(), sorted.end(), std::size_t{0});
        std::vector<std::size_t> expected = sorted;
        std::stable_sort(expected.begin(), expected.end(), [&](std::size_t a, std::size_t b) {
            return compareNoCase(names[a], names[b]) < 0;
        });
        sortNoCase(
            sorted, [&](std::size_t i) -> std::string_view { return names[i]; }, std::less());
        EXPECT_EQ(sorted, expected);
    }
}

} // namespace
