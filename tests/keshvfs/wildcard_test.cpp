#include "keshvfs/wildcard.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace keshvfs;

namespace {

std::string randomText(std::mt19937& random, const std::string& alphabet) {
    std::string text(random() % 9, ' ');
    for (char& c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}

/// The rule in its plainest words; slow.
bool matchesByRule(std::string_view name, std::string_view mask) {
    if (mask.empty())
        return name.empty();
    const bool firstFits =
        !name.empty() && (mask[0] == '?' || sameName(name.substr(0, 1), mask.substr(0, 1)));
    if (mask[0] == '*')
        return matchesByRule(name, mask.substr(1)) ||
               (!name.empty() && matchesByRule(name.substr(1), mask));
    return firstFits && matchesByRule(name.substr(1), mask.substr(1));
}

TEST(Wildcard, AgreesWithTheRule) {
    std::mt19937 random(20240917);
    int matches = 0;
    for (int i = 0; i < 100'000; ++i) {
        const std::string mask = randomText(random, "aB*?\\");
        const std::string name = randomText(random, "aAb/");
        matches += matchesMask(name, mask) ? 1 : 0;
        EXPECT_EQ(matchesMask(name, mask), matchesByRule(name, mask))
            << '"' << name << "\" against \"" << mask << '"';
    }
    EXPECT_GT(matches, 1000);
}

TEST(Wildcard, NeverRulesOutADirectoryWithAMatchInIt) {
    std::mt19937 random(7);
    int matches = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::string mask = randomText(random, "aB*?\\");
        const std::string start = randomText(random, "aA\\") + '\\';
        const std::string name = start + randomText(random, "ab") + "a";
        if (matchesMask(name, mask)) {
            ++matches;
            EXPECT_TRUE(canMatchBelow(start, mask)) << start << " with " << mask;
        }
    }
    EXPECT_GT(matches, 100);
    EXPECT_FALSE(canMatchBelow("objects\\", "types\\*"));
    EXPECT_FALSE(canMatchBelow("types\\sub\\", "types\\a.txt"));
    EXPECT_FALSE(canMatchBelow("types\\", "types\\"));
}

TEST(Wildcard, ManyStarsTakeNoTime) {
    std::string mask;
    for (int i = 0; i < 100; ++i)
        mask += "*a";
    EXPECT_FALSE(matchesMask(std::string(250, 'a') + 'b', mask));
}

TEST(Wildcard, OrderPutsUnderscoresBeforeLetters) {
    EXPECT_TRUE(nameLess("T_x", "TAx"));
    EXPECT_TRUE(nameLess("t_x", "TAx"));
    EXPECT_TRUE(nameLess("ab", "ABC"));
    EXPECT_FALSE(nameLess("AB", "ab"));
    EXPECT_TRUE(nameLess("z", "\xE4"));
}

} // namespace
