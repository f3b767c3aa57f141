#include "lornfd/catalog.h"
#include "sample/samplegame.h"
#include "support/loadtext.h"

#include <algorithm>

TEST(LargeData, TextHasTheSizeAskedForAndSevenBytesAValue) {
    const std::string text = sample::largeWareText(1000000);
    EXPECT_GE(text.size(), 1000000u);
    EXPECT_LT(text.size(), 1001000u);
    EXPECT_NEAR(static_cast<double>(text.size()) /
                    static_cast<double>(std::ranges::count(text, ';')),
                7.0, 0.2);
    EXPECT_EQ(text, sample::largeWareText(1000000));
    clsTxtParser parser;
    ASSERT_TRUE(support::load(parser, text, otype::Ware)) << parser.GetLastError();
    EXPECT_EQ(parser.ByIndex().back()->ObjectName(),
              "WARE_" + std::to_string(parser.ByIndex().size() - 1));
}

TEST(LargeData, CatalogAndTreeHaveTheSameFiles) {
    const support::ScratchDir dir;
    std::string error;
    ASSERT_TRUE(sample::writeLargeCatalog(dir / "large.cat", 250, error)) << error;
    ASSERT_TRUE(sample::writeLargeTree(dir / "tree", 250, error)) << error;
    const auto index = lornfd::CatalogIndex::open(dir / "large.cat");
    ASSERT_NE(index, nullptr);
    EXPECT_EQ(index->size(), 250u);
    std::string loose = sample::largeEntryName(249);
    EXPECT_NE(index->find(loose), lornfd::CatalogIndex::npos);
    std::ranges::replace(loose, '\\', '/');
    EXPECT_TRUE(std::filesystem::is_regular_file(dir / ("tree/" + loose)));
}

TEST(LargeData, ScaleMultipliesRecords) {
    const support::ScratchDir dir;
    std::string error;
    ASSERT_TRUE(sample::writeSampleGame(dir / "game", 3, error)) << error;
    clsTxtParser parser;
    ASSERT_TRUE(
        support::load(parser, support::readFile(dir / "game/types/TWareT.txt"), otype::Ware));
    EXPECT_EQ(parser.ByIndex().size(), 36u);
    EXPECT_EQ(parser.ByIndex().back()->ObjectName(), "WARE_CARGO_NETS_3");
}
