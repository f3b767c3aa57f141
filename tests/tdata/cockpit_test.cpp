#include "core/KeshError.h"
#include "support/loadtext.h"
#include "tdata/clsCockpitParser.h"

#include <gtest/gtest.h>

using support::repeat;

namespace {

/// Three cockpits by the possible lasers of each, in the file's order C, a, B.
void loadThree(clsTxtParser& parser, const std::string& lasers) {
    const std::string head = "scene;" + repeat("0;", 7) + lasers + ";" + repeat("0;", 9);
    ASSERT_TRUE(support::load(
        parser, "20;3;" + head + "SC_C;" + head + "SC_a;" + head + "SC_B;\r\n", otype::Cockpits));
}

} // namespace

TEST(CockpitParser, CountsPositionsInTheSortedOrder) {
    clsTxtParser parser;
    loadThree(parser, "3");
    clsCockpitParser cockpits;
    EXPECT_EQ(cockpits.FindIndex(0), nullptr) << "nothing is loaded";
    ASSERT_TRUE(cockpits.Load(parser));
    EXPECT_EQ(cockpits.FindIndex(0)->Object->ObjectName(), "SC_a");
    EXPECT_EQ(cockpits.FindIndex(2)->Object->ObjectName(), "SC_C");
    EXPECT_EQ(cockpits.FindIndex(3), nullptr);
    EXPECT_EQ(cockpits.FindIndex(-1), nullptr);
    const auto record = parser.FindIndex(0);
    EXPECT_EQ(cockpits.Find(record->ID)->Object, record);
    EXPECT_EQ(cockpits.Find(99), nullptr);
    const auto created = cockpits.CreateCockpit(parser.CreateObject(record));
    EXPECT_EQ(cockpits.FindIndex(3), created);
}

struct LasersCase {
    const char* stored;
    std::int32_t mask;
};

class CockpitLasers : public testing::TestWithParam<LasersCase> {};

TEST_P(CockpitLasers, AreReadAsASingle) {
    clsTxtParser parser;
    loadThree(parser, GetParam().stored);
    EXPECT_EQ(clsCockpit(parser.FindIndex(0)).CompatibleLasers(), GetParam().mask);
}

INSTANTIATE_TEST_SUITE_P(All, CockpitLasers,
                         testing::Values(LasersCase{"7", 7}, LasersCase{"16777217", 16777216},
                                         LasersCase{"-2147483648", INT32_MIN}, LasersCase{"2.5", 2},
                                         LasersCase{"3.5", 4}));

TEST(Cockpit, ValuesAreSingles) {
    clsTxtParser parser;
    loadThree(parser, "4294967295");
    clsCockpit cockpit(parser.FindIndex(0));
    cockpit.SetValue(3, 0.1F);
    EXPECT_EQ(cockpit.Object->ValueText(3), "0.1");
    EXPECT_EQ(cockpit.Value(3), 0.1F);
    cockpit.Object->SetValue(4, 1e300);
    const auto numberOf = [](const auto& action) {
        try {
            static_cast<void>(action());
            return 0U;
        } catch (const KeshError& error) {
            return error.Number();
        }
    };
    EXPECT_EQ(numberOf([&] { return cockpit.Value(0); }), errnum::TypeMismatch);
    EXPECT_EQ(numberOf([&] { return cockpit.Value(4); }), errnum::Overflow);
    EXPECT_EQ(numberOf([&] { return cockpit.Value(19); }), errnum::Bounds);
    EXPECT_EQ(numberOf([&] { return cockpit.CompatibleLasers(); }), errnum::Overflow);
}
