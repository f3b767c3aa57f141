#include "core/KeshError.h"
#include "support/loadtext.h"
#include "tdata/clsWare.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>

using support::joined;

namespace {

RecordPtr constructed(std::int32_t size) {
    auto record = std::make_shared<clsTXTObject>();
    record->Construct(size);
    return record;
}

/// A record of 17 values as a file has them, spelled as no number would be written.
RecordPtr loaded(clsTxtParser& parser) {
    EXPECT_TRUE(
        support::load(parser, "14;1;" + support::repeat("0.50;", 17) + "\r\n", otype::Ware));
    return parser.FindIndex(0);
}

} // namespace

TEST(Record, ConstructGivesZerosAndAnEmptyName) {
    const auto record = constructed(5);
    EXPECT_EQ(joined(*record), "0;0;0;0;;");
    EXPECT_EQ(record->ObjectName(), "");
    EXPECT_FALSE(record->Dirty);
    EXPECT_EQ(constructed(0)->ObjectName(), "");
}

struct SetCase {
    const char* spelling;
    KeshValue value;
    bool dirty;
    const char* after;
};

class RecordSet : public testing::TestWithParam<SetCase> {};

TEST_P(RecordSet, KeepsTheSpellingOfAnEqualValue) {
    const auto& [spelling, value, dirty, after] = GetParam();
    clsTxtParser parser;
    ASSERT_TRUE(support::load(
        parser, "1;1;" + std::string(spelling) + ";" + support::repeat("0;", 17), otype::Special));
    const auto record = parser.FindIndex(0);
    record->SetValue(0, value);
    EXPECT_EQ(record->Dirty, dirty);
    EXPECT_EQ(record->ValueText(0), after);
    EXPECT_EQ(record->TakeFormerValues().has_value(), dirty);
}

INSTANTIATE_TEST_SUITE_P(
    All, RecordSet,
    testing::Values(SetCase{"007", 7, false, "007"}, SetCase{"0.50", 0.5, false, "0.50"},
                    SetCase{"1e3", 1000, false, "1e3"}, SetCase{"5", 5.0, false, "5"},
                    SetCase{"5", std::string("5"), true, "5"},
                    SetCase{"abc", std::string("abc"), false, "abc"},
                    SetCase{"abc", std::string("ABC"), true, "ABC"},
                    SetCase{"0.5", 0.25, true, "0.25"},
                    SetCase{"1", 1e15 - 1, true, "999999999999999"}, SetCase{"nan", 0, true, "0"},
                    SetCase{"", std::string(), false, ""}));

TEST(Record, FormerValuesAreThoseBeforeTheFirstChange) {
    clsTxtParser parser;
    const auto record = loaded(parser);
    record->SetValue(3, 9);
    record->SetValue(4, std::string("x"));
    record->InsertSpaceToArray(1, 2);
    auto former = record->TakeFormerValues();
    ASSERT_TRUE(former);
    record->SetValues(*former);
    EXPECT_EQ(joined(*record), support::repeat("0.50;", 17));
    EXPECT_TRUE(record->Values().Written()) << "undo gives the very places back";
    EXPECT_FALSE(record->TakeFormerValues());
}

TEST(Record, CopiesShareNothingThatChanges) {
    clsTxtParser parser;
    const auto record = loaded(parser);
    record->SetValue(0, 1);
    const auto copy = record->Clone();
    copy->SetValue(1, 2);
    record->SetValue(2, 3);
    EXPECT_EQ(joined(*record).substr(0, 15), "1;0.50;3;0.50;0");
    EXPECT_EQ(joined(*copy).substr(0, 15), "1;2;0.50;0.50;0");
    EXPECT_TRUE(copy->Dirty);
    EXPECT_EQ(copy->ID, record->ID);
}

TEST(Record, CopyOfAConstructedRecordIsClean) {
    const auto copy = constructed(4)->Clone();
    EXPECT_FALSE(copy->Dirty);
    const auto named = constructed(4);
    named->SetObjectName("SS_X");
    named->Dirty = false;
    EXPECT_TRUE(named->Clone()->Dirty);
}

TEST(Record, CopyOntoItselfKeepsIt) {
    const auto record = constructed(4);
    record->SetObjectName("SS_X");
    record->CopyTo(*record);
    EXPECT_EQ(joined(*record), "0;0;0;SS_X;");
}

TEST(Record, ARecordInTheMakingHasNoFormerValues) {
    EXPECT_FALSE(constructed(4)->TakeFormerValues());
    EXPECT_FALSE(constructed(4)->Clone()->TakeFormerValues());
}

TEST(Record, OutlivesItsParser) {
    RecordPtr record;
    {
        clsTxtParser parser;
        record = loaded(parser);
    }
    EXPECT_EQ(joined(*record), support::repeat("0.50;", 17));
}

TEST(Record, InsertAndRemoveSpace) {
    const auto record = constructed(5);
    for (int i = 0; i < 5; ++i)
        record->SetValue(i, i);
    record->Dirty = false;
    record->InsertSpaceToArray(1, 2);
    EXPECT_EQ(joined(*record), "0;;;1;2;3;4;");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(record->Value(1)));
    EXPECT_FALSE(record->Dirty);
    record->RemoveSpaceFromArray(1, 3);
    EXPECT_EQ(joined(*record), "0;2;3;4;");
}

TEST(Record, BoundsFailuresNameTheRecordAndChangeNothing) {
    const auto record = constructed(5);
    record->SetObjectName("SS_X");
    const std::vector<std::function<void()>> failing{
        [&] { static_cast<void>(record->Value(5)); },
        [&] { static_cast<void>(record->Value(-1)); },
        [&] { record->SetValue(5, 1); },
        [&] { record->InsertSpaceToArray(0, 1); },
        [&] { record->InsertSpaceToArray(5, 1); },
        [&] { record->InsertSpaceToArray(1, -1); },
        [&] { record->InsertSpaceToArray(1, 2147483647); },
        [&] { record->RemoveSpaceFromArray(0, 1); },
        [&] { record->RemoveSpaceFromArray(1, 4); },
        [&] { record->RemoveSpaceFromArray(2147483647, 1); },
        [&] { static_cast<void>(record->GSubType()); },
        [&] { record->Construct(-1); }};
    for (std::size_t i = 0; i < failing.size(); ++i) {
        try {
            failing[i]();
            ADD_FAILURE() << "case " << i;
        } catch (const KeshError& error) {
            EXPECT_EQ(error.Number(), errnum::Bounds);
            EXPECT_NE(std::string(error.what()).find("SS_X"), std::string::npos);
            EXPECT_EQ(record->GetLastError(), error.what());
        }
    }
    EXPECT_EQ(joined(*record), "0;0;0;0;SS_X;");
    EXPECT_THROW(constructed(0)->SetObjectName("x"), KeshError);
}

// Insert, remove and set at random against a plain vector of texts.
TEST(Record, RandomChangesAgreeWithAPlainModel) {
    std::mt19937 random(7);
    clsTxtParser parser;
    const auto record = loaded(parser);
    std::vector<std::string> model(17, "0.50");
    for (int step = 0; step < 3000; ++step) {
        const auto at = static_cast<std::int32_t>(1 + random() % (model.size() - 1));
        const auto where = model.begin() + at;
        switch (random() % 3) {
        case 0:
            record->InsertSpaceToArray(at, 2);
            model.insert(where, 2, "");
            break;
        case 1:
            if (model.size() > 8 && at + 2 < std::ssize(model)) {
                record->RemoveSpaceFromArray(at, 2);
                model.erase(where, where + 2);
            }
            break;
        default:
            record->SetValue(at, step);
            *where = std::to_string(step);
        }
        std::string expected;
        for (const auto& value : model)
            expected += value + ";";
        ASSERT_EQ(joined(*record), expected) << "step " << step;
    }
}

TEST(Record, OlderTailPositionsCountFromTheEnd) {
    const auto record = constructed(8);
    record->SetVolume(1);
    record->SetPrice(2);
    record->SetPriceVarPrim(3);
    record->SetPriceVarSec(4);
    record->SetWareClass(5);
    EXPECT_EQ(joined(*record), "0;0;0;1;2;3;4;5;");
    EXPECT_EQ(record->Volume() + record->Price() + record->PriceVarPrim() + record->PriceVarSec() +
                  record->WareClass(),
              15);
}

TEST(Ware, RaceIsToldForFactoriesAndDocksOnly) {
    struct Case {
        std::int32_t type;
        KeshValue race;
        const char* text;
    };
    for (const auto& [type, race, text] :
         {Case{otype::Factories, 1, "Argon"}, Case{otype::Docks, 19, "Yaki"},
          Case{otype::Docks, 0, "Unknown value"}, Case{otype::Docks, 20, "Unknown value"},
          Case{otype::Docks, std::string("x"), "Unknown value"},
          Case{otype::Docks, std::numeric_limits<std::int32_t>::min(), "Unknown value"},
          Case{otype::Docks, 1e300, "Unknown value"}, Case{otype::Docks, 1.9, "Boron"},
          Case{otype::Ware, 1, ""}}) {
        const auto record = constructed(20);
        record->otype = type;
        record->SetValue(13, race);
        EXPECT_EQ(clsWare(record).Race(), text);
    }
}

struct TypeCase {
    const char* name;
    std::int32_t type;
};

TEST(ObjectType, IsFoundFromTheFileName) {
    for (const auto& [name, type] :
         {TypeCase{"TShips.pck", 1}, TypeCase{"TShips", 1}, TypeCase{"C:\\x\\MyTShips_old.txt", 1},
          TypeCase{"tships.txt", 1}, TypeCase{"TWareB", 6}, TypeCase{"tware", 6},
          TypeCase{"JobWings.txt", 20}, TypeCase{"Jobs.txt", 19}, TypeCase{"TShips_TLaser.txt", 3},
          TypeCase{"C:\\TShips\\readme.txt", 0}, TypeCase{"x.TShips", 0}, TypeCase{"", 0},
          TypeCase{"01.cat::types\\IconData.pck", 22}, TypeCase{"vfs://types\\TNebula", 18}})
        EXPECT_EQ(ObjectTypeFromFile(name), type) << name;
}
