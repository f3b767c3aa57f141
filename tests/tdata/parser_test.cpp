#include "core/KeshError.h"
#include "core/mdlCommon.h"
#include "support/loadtext.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

using support::joined;
using support::load;
using support::repeat;
using support::save;

namespace {

std::string all(const clsTxtParser& parser) {
    std::string text;
    for (const auto& record : parser.ByIndex())
        text += joined(*record) + "|";
    return text;
}

/// Ware records that carry just a name.
std::string wares(const std::vector<std::string>& names) {
    std::string text = "14;" + std::to_string(names.size()) + ";";
    for (const auto& name : names)
        text += repeat("0;", 16) + name + ";\r\n";
    return text;
}

std::string namesByName(const clsTxtParser& parser) {
    std::string text;
    for (const auto* record : parser.ByName())
        text.append(record->ObjectName()) += ' ';
    return text;
}

/// A ship of `turrets` turrets and gun groups with the given numbers of gun entries.
std::string ship(int turrets, const std::vector<int>& groups, const std::string& name) {
    std::string text = repeat("0;", 53) + std::to_string(turrets) + ";" + repeat("7;", 4 * turrets);
    text += std::to_string(groups.size()) + ";";
    for (const int guns : groups)
        text += "1;1;1;" + std::to_string(guns) + ";" + repeat("9;", 6 * guns);
    return text + repeat("0;", 9) + name + ";";
}

} // namespace

struct SizeCase {
    const char* what;
    std::int32_t type;
    int version;
    int size; ///< 0: refused
};

class RecordSize : public testing::TestWithParam<SizeCase> {};

TEST_P(RecordSize, FollowsTypeAndVersion) {
    const auto& [what, type, version, size] = GetParam();
    const int values = size == 0 ? 50 : size;
    const std::string record = repeat("1;", values - 1) + "SS_A;";
    clsTxtParser parser;
    const bool ok = load(parser, std::to_string(version) + ";2;" + record + record, type);
    ASSERT_EQ(ok, size != 0) << parser.GetLastError();
    if (ok) {
        EXPECT_EQ(all(parser), record + "|" + record + "|");
        EXPECT_EQ(parser.Version(), version);
    } else {
        EXPECT_EQ(parser.GetLastError(),
                  "This is old version of the file (ver. " + std::to_string(version) +
                      ").\r\n\r\nIt is not supported by this version of Kesh Editor.");
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, RecordSize,
    testing::Values(SizeCase{"laser", 3, 1, 23}, SizeCase{"bullets", 4, 53, 47},
                    SizeCase{"old bullets", 4, 52, 0}, SizeCase{"missiles", 5, 48, 37},
                    SizeCase{"old missiles", 5, 47, 0}, SizeCase{"backgrounds", 17, 1, 38},
                    SizeCase{"nebula", 18, 14, 36}, SizeCase{"old nebula", 18, 13, 27}),
    [](const auto& test) {
        std::string name = test.param.what;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });

struct FailCase {
    std::int32_t type;
    std::string text;
    std::string error; ///< must occur in it
};

class LoadFailure : public testing::TestWithParam<FailCase> {};

TEST_P(LoadFailure, SaysWhy) {
    const auto& [type, text, error] = GetParam();
    clsTxtParser parser;
    EXPECT_FALSE(load(parser, text, type));
    EXPECT_FALSE(parser.Parsed());
    EXPECT_NE(parser.GetLastError().find(error), std::string::npos) << parser.GetLastError();
    EXPECT_EQ(parser.GetLastError().empty(), error.empty());
}

INSTANTIATE_TEST_SUITE_P(
    All, LoadFailure,
    testing::Values(
        FailCase{0, "1;1;0;", "Unrecognized T file."},
        FailCase{6, "<universe/>", "Invalid container type."}, FailCase{6, "14;0;", ""},
        FailCase{6, "14;-3;", ""},
        FailCase{99, "1;1;0;", "Unknown size of entries in file. Cannot load."},
        FailCase{6, "", "Error loading T file:\r\n"},
        FailCase{6, "x;1;", "Error loading T file:\r\n"},
        FailCase{6, "14;2147483647;1;2;", "test.txt"},
        FailCase{6, "14;2;" + repeat("0;\n", 20), "line 2"},
        FailCase{1, "49;1;" + repeat("0;", 53) + "x;" + repeat("0;", 20),
                 "Error loading ship:\r\nExpected a count, not \"x\""},
        FailCase{1, "49;1;" + repeat("0;", 53) + "2147483647;" + repeat("0;", 20),
                 "Error loading ship:\r\n"},
        FailCase{1, "49;1;" + repeat("0;", 53) + "1e300;" + repeat("0;", 20),
                 "Error loading ship:\r\nExpected a count"},
        FailCase{1, "49;1;" + repeat("0;", 54) + "2147483647;" + repeat("0;", 20),
                 "Error loading ship:\r\n"},
        FailCase{1, "49;1;" + repeat("0;", 54) + "1;0;0;0;2147483647;" + repeat("0;", 20),
                 "Error loading ship:\r\n"},
        FailCase{19, "7;\r\n", "Unsupported version: 7"}, FailCase{19, "8;\r\n1;2;", "test.txt"},
        FailCase{20, "1;2,x;", "Expected number, not x"},
        FailCase{20, "1;2,;", "Expected number, not "}, FailCase{20, "1;,2;", "Unexpected here: ,"},
        FailCase{20, "a;1;", "\"a\" in line 1"}, FailCase{20, "1;2,/* never", "remark"},
        FailCase{20, "1;2 /* never", "remark"}, FailCase{21, "1;2;SS_A;", "test.txt"},
        FailCase{22, "", "File is empty"}, FailCase{22, "a;b;1;2;x;", "\"x\" in line 1"},
        FailCase{22, "a;b;1;2;1;n;0;1;2;3;", "test.txt"}));

TEST(Ships, RecordLengthFollowsItsCounts) {
    const std::vector<std::string> ships{ship(0, {}, "SS_0"), ship(2, {1, 0, 3}, "SS_1"),
                                         ship(7, {2, 2}, "SS_2")};
    clsTxtParser parser;
    ASSERT_TRUE(
        load(parser, "49;3;" + ships[0] + "\n" + ships[1] + ships[2] + "9;9;", otype::Ships))
        << parser.GetLastError();
    EXPECT_EQ(all(parser), ships[0] + "|" + ships[1] + "|" + ships[2] + "|");
    EXPECT_EQ(parser.FindIndex(0)->size(), 65);
}

TEST(Ships, AreSavedWithoutTheGapsBetweenTheirSections) {
    const std::string record = ship(2, {1, 1}, "SS_1");
    for (std::size_t at = record.find(';') + 1; at < record.size(); at = record.find(';', at) + 1) {
        std::string gap = record;
        gap.insert(at, "\n");
        clsTxtParser parser;
        ASSERT_TRUE(load(parser, "49;1;" + gap, otype::Ships));
        ASSERT_EQ(save(parser),
                  "// Created with " + ProgramID() + "\r\n49;1;\r\n" + record + "\r\n")
            << "gap at " << at;
    }
}

TEST(Ships, CountsThatDoNotFitTheValuesAreTold) {
    clsTxtParser parser;
    ASSERT_TRUE(
        load(parser, "49;2;" + ship(0, {}, "SS_0") + ship(2, {1, 3}, "SS_1"), otype::Ships));
    EXPECT_EQ(parser.Misfit(), "");
    const struct {
        int index;
        KeshValue value;
        bool fits;
    } cases[] = {{53, 1, false},
                 {53, -1, false},
                 {53, "many", false},
                 {53, "2", true},
                 {53, 2147483647, false},
                 {54 + 8, 3, false},
                 {54 + 8, -5, false},
                 {55 + 8 + 3, 2, false},
                 {55 + 8 + 3, 2147483647, false},
                 {0, "hull", true},
                 {54 + 8, 2147483647, false}};
    const RecordPtr record = parser.FindIndex(1);
    for (const auto& c : cases) {
        const KeshValue former = record->Value(c.index);
        record->SetValue(c.index, c.value);
        const std::string told = parser.Misfit();
        EXPECT_EQ(told.empty(), c.fits) << c.index << ' ' << record->ValueText(c.index);
        EXPECT_TRUE(c.fits || told.find("SS_1 (object 1)") != told.npos) << told;
        record->SetValue(c.index, former);
    }
}

TEST(Ships, NegativeCountsReadNothing) {
    const std::string record = repeat("0;", 53) + "-5;-1;" + repeat("0;", 10);
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, "49;1;" + record, otype::Ships));
    EXPECT_EQ(all(parser), record + "|");
}

TEST(Jobs, FieldCountsByVersionAndRawNames) {
    for (const auto& [version, fields] :
         {std::pair{8, 117}, std::pair{9, 119}, std::pair{10, 120}}) {
        const std::string head = repeat("1;", fields - 1);
        const std::vector<std::string> names{"", "a // b; c, /* d", "  spaced  ", "last"};
        std::string text = std::to_string(version) + ";\r\n";
        for (const auto& name : names)
            text += head + name + "\r\n";
        clsTxtParser parser;
        ASSERT_TRUE(load(parser, text, otype::Jobs)) << parser.GetLastError();
        ASSERT_EQ(parser.ByIndex().size(), names.size());
        for (int i = 0; i < std::ssize(names); ++i) {
            EXPECT_EQ(parser.FindIndex(i)->size(), fields);
            EXPECT_EQ(parser.FindIndex(i)->ObjectName(), names[static_cast<std::size_t>(i)]);
        }
        EXPECT_EQ(save(parser), text);
    }
}

TEST(Jobs, AFileWithoutJobsLoads) {
    for (const char* text : {"8;", "8;\r\n", "8; \n\n "}) {
        clsTxtParser parser;
        EXPECT_TRUE(load(parser, text, otype::Jobs)) << parser.GetLastError();
        EXPECT_EQ(save(parser), "8;\r\n");
    }
}

TEST(Jobs, ANameThatSpellsANumberIsText) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, "8;\r\n" + repeat("1;", 116) + "12\r\n", otype::Jobs));
    EXPECT_EQ(parser.FindIndex(0)->Value(116), KeshValue(std::string("12")));
    parser.FindIndex(0)->SetValue(0, 2);
    EXPECT_EQ(parser.FindIndex(0)->Value(116), KeshValue(std::string("12")));
}

TEST(Wings, NumbersKeepTheirSpelling) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, "1;007,+2, 3; /* second */ 4;5;", otype::JobWings))
        << parser.GetLastError();
    EXPECT_EQ(all(parser), "1;007;+2;3;|4;5;|");
    EXPECT_EQ(save(parser),
              "// Created with " + ProgramID() + "\r\n0;2;\r\n1;007;+2;3;\r\n4;5;\r\n");
}

TEST(WareLists, CountFromZeroAndHoldTexts) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, "3; 2;SS_A;5; 0; -1; 9;9;", otype::WareLists))
        << parser.GetLastError();
    EXPECT_EQ(all(parser), "SS_A;5;|||");
    EXPECT_EQ(parser.FindIndex(0)->key(), "k0");
    EXPECT_EQ(parser.FindIndex(0)->Value(1), KeshValue(std::string("5")));
    EXPECT_EQ(parser.CreateObject({})->key(), "k4");
}

TEST(IconData, RootCollectsTheSectionHeaders) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, "ship.tga;12;256;07;2; A;0;1;2;3;4; 5;0;5;6;7;008; ware.tga;t;1;2;0;",
                     otype::IconData))
        << parser.GetLastError();
    EXPECT_EQ(all(parser), "ship.tga;12;256;07;2;ware.tga;t;1;2;0;|1;2;3;4;A;|5;6;7;008;5;|");
    EXPECT_EQ(parser.FindIndex(0)->key(), "k1");
    EXPECT_EQ(parser.FindIndex(0)->Value(1), KeshValue(std::string("12")));
    EXPECT_EQ(parser.FindIndex(2)->Value(4), KeshValue(std::string("5")));
    EXPECT_FALSE(parser.CheckDirty());
}

TEST(Save, KeepsEverySpellingButTheLayout) {
    const std::string record =
        "007;0.50;1e3;+5;-0;nan;;a b;0x10;.5;5.;1E-2;00;a\\b.bod;\xFF\xE4;9;SS_A;";
    clsTxtParser parser;
    ASSERT_TRUE(load(parser,
                     "// other first line\n14;3;\n" + record +
                         "\n007; 0.50;\n/* gone; */1e3;+5;-0;nan;;a b;0x10;.5;5.;1E-2;" +
                         "00;a\\b.bod;\xFF\xE4;9 // also gone\n;SS_A ;" +
                         record.substr(0, record.size() - 1),
                     otype::Ware))
        << parser.GetLastError();
    const std::string head = "// Created with " + ProgramID() + "\r\n14;3;\r\n";
    EXPECT_EQ(save(parser), head + record + "\r\n" + record + "\r\n" + record + "\r\n");

    parser.FindIndex(1)->SetValue(1, 0.75);
    EXPECT_TRUE(parser.CheckDirty());
    std::string changed = record;
    changed.replace(4, 4, "0.75");
    EXPECT_EQ(save(parser), head + record + "\r\n" + changed + "\r\n" + record + "\r\n");
    EXPECT_FALSE(parser.CheckDirty());
}

TEST(Save, RefusesWhatWouldNotReadBack) {
    struct Case {
        std::int32_t type;
        std::int32_t index;
        const char* value;
        bool refused;
    };
    const std::string ware = wares({"SS_A"});
    const std::string job = "8;\r\n" + repeat("1;", 116) + "job\r\n";
    for (const auto& [type, index, value, refused] :
         {Case{6, 0, "a;b", true}, Case{6, 0, "a//b", true}, Case{6, 0, "/*", true},
          Case{6, 0, " a", true}, Case{6, 16, "a\n", true}, Case{6, 0, "a/b", false},
          Case{6, 0, "a b", false}, Case{6, 0, "", false}, Case{19, 0, "a//b", false},
          Case{19, 0, "a;b", true}, Case{19, 116, "a; // b ", false},
          Case{19, 116, "a\nb", true}}) {
        clsTxtParser parser;
        ASSERT_TRUE(load(parser, type == otype::Jobs ? job : ware, type));
        parser.FindIndex(0)->SetValue(index, std::string(value));
        const support::ScratchDir dir;
        const std::int32_t file =
            LornFD_OpenFileConvert(dir / "x.txt", LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_PLAIN);
        EXPECT_EQ(parser.Save(file), !refused) << value;
        EXPECT_EQ(parser.GetLastError().find("Value " + std::to_string(index)) == 0, refused)
            << value;
        EXPECT_EQ(parser.CheckDirty(), refused);
        EXPECT_NE(LornFD_AbandonFile(file), 0);
    }
}

TEST(Save, RefusesNothingAndRecordsOfNothing) {
    const std::string job = "8;\r\n" + repeat("1;", 116) + "job\r\n";
    for (const auto& [type, text, remove, error] :
         {std::tuple{otype::Ware, wares({"A"}), true, ""},
          std::tuple{otype::Ware, wares({"A"}), false, "Record 1 (key k2) has no values"},
          std::tuple{otype::WareLists, std::string("2;1;A;0;"), false, "Record 1 (key k1)"},
          std::tuple{otype::Jobs, job, false, "Record 1 (key k2)"}}) {
        clsTxtParser parser;
        ASSERT_TRUE(load(parser, text, type));
        if (remove) {
            ASSERT_TRUE(parser.RemoveObject(parser.FindIndex(0)));
        } else {
            static_cast<void>(parser.CreateObject({}));
        }
        const support::ScratchDir dir;
        const std::int32_t file =
            LornFD_OpenFileConvert(dir / "x.txt", LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_PLAIN);
        EXPECT_FALSE(parser.Save(file));
        EXPECT_EQ(parser.GetLastError().substr(0, std::string_view(error).size()), error);
        EXPECT_EQ(parser.GetLastError().empty(), std::string_view(error).empty());
        EXPECT_TRUE(parser.CheckDirty());
        EXPECT_NE(LornFD_AbandonFile(file), 0);
        EXPECT_FALSE(std::filesystem::exists(dir / "x.txt"));
    }
}

TEST(Load, EveryPrefixOfAFileEndsInAnAnswer) {
    const std::string icons = "a.tga;b;256;256;1;A;0;1;2;3;4;";
    const std::string jobs = "8;\r\n" + repeat("1;", 116) + "name\r\n";
    for (const auto& [type, text] :
         {std::pair{otype::Ware, "// x\r\n" + wares({"A", "B"})},
          std::pair{otype::Ships, "49;1;" + ship(1, {1}, "S")}, std::pair{otype::Jobs, jobs},
          std::pair{otype::JobWings, std::string("1;2,3;\r\n4;5;")},
          std::pair{otype::WareLists, std::string("2;2;A;B;1;C;")},
          std::pair{otype::IconData, icons}})
        for (std::size_t length = 0; length < text.size(); ++length) {
            clsTxtParser parser;
            const bool ok = load(parser, text.substr(0, length), type);
            EXPECT_EQ(ok, parser.Parsed());
            EXPECT_TRUE(ok || !parser.GetLastError().empty()) << type << " cut at " << length;
        }
}

TEST(Load, CountsInTheFileDecideWhatIsRead) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"A"}) + wares({"B"}), otype::Ware));
    EXPECT_EQ(parser.ByIndex().size(), 1U);
    EXPECT_EQ(parser.GetLastError(), "");
    EXPECT_FALSE(load(parser, "14;3;" + wares({"A", "B"}).substr(5), otype::Ware));
    EXPECT_EQ(parser.ByIndex().size(), 2U) << "what was read before the error stays";
}

TEST(Load, SaysWhereTheCountLeavesSomethingOut) {
    const std::string none = "14;0;";
    const std::string one = wares({"A"});
    for (const auto& [type, text, place] :
         {std::tuple{otype::Ware, one, ""}, std::tuple{otype::Ware, one + " // only this\n", ""},
          std::tuple{otype::Ware, one + "\n 5;", "(1) ends before line 3 of test.txt"},
          std::tuple{otype::Ware, one + ",", "line 2 of test.txt"},
          std::tuple{otype::Ware, one + "/* never", "The remark that begins in line 2"},
          std::tuple{otype::Ware, none + "7;", "(0) ends before line 1"},
          std::tuple{otype::Ware, std::string("14;2;0;"), ""}, // an error of its own
          std::tuple{otype::Ships, "49;1;" + ship(1, {1}, "S") + "\n\n0;", "line 3 of test.txt"},
          std::tuple{otype::WareLists, std::string("1;1;A;\n1;B;"), "line 2 of test.txt"},
          std::tuple{otype::JobWings, std::string("1;2;"), ""},
          std::tuple{otype::Jobs, std::string("8;\r\n"), ""}}) {
        clsTxtParser parser;
        static_cast<void>(load(parser, text, type));
        const bool found = parser.LeftOut().find(place) != std::string::npos;
        EXPECT_TRUE(found && parser.LeftOut().empty() == std::string_view(place).empty())
            << text << ": " << parser.LeftOut();
        ASSERT_TRUE(load(parser, one, otype::Ware));
        EXPECT_EQ(parser.LeftOut(), "") << "of the file before";
    }
}

TEST(Container, ByNameIsSortedOnceAndKeepsArrivalOrder) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"abc", "b_", "ABC", "ba", "aBC"}), otype::Ware));
    EXPECT_EQ(namesByName(parser), "abc ABC aBC b_ ba ");
    parser.FindIndex(0)->SetObjectName("zzz");
    EXPECT_EQ(namesByName(parser), "zzz ABC aBC b_ ba ");
}

TEST(Container, LookupsByKeyIdAndIndex) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"A", "B", "B"}), otype::Ware));
    EXPECT_EQ(parser.FindKey("k2"), parser.FindIndex(1));
    EXPECT_EQ(parser.FindKey("K2"), parser.FindIndex(1));
    for (const char* missing :
         {"", "k", "k0", "k4", "k02", "k+2", "2", "kk2", "k-1", "k99999999999"})
        EXPECT_EQ(parser.FindKey(missing), nullptr) << missing;
    EXPECT_EQ(parser.FindID("B"), parser.FindIndex(1));
    EXPECT_EQ(parser.FindID("b"), nullptr);
    EXPECT_EQ(parser.FindIndex(3), nullptr);
    EXPECT_EQ(parser.FindIndex(-1), nullptr);
}

TEST(Container, RemovesOnlyItsOwnRecords) {
    clsTxtParser parser;
    clsTxtParser other;
    ASSERT_TRUE(load(parser, wares({"A", "B"}), otype::Ware));
    ASSERT_TRUE(load(other, wares({"A", "B"}), otype::Ware));
    EXPECT_FALSE(parser.RemoveObject(other.FindIndex(0)));
    EXPECT_FALSE(parser.RemoveObject({}));
    EXPECT_FALSE(parser.CheckDirty());
    const RecordPtr a = parser.FindIndex(0);
    EXPECT_TRUE(parser.RemoveObject(a));
    EXPECT_FALSE(parser.RemoveObject(a));
    EXPECT_EQ(parser.Find(1), nullptr);
    EXPECT_EQ(parser.Find(2)->Index, 0);
    EXPECT_TRUE(parser.CheckDirty());
    EXPECT_EQ(parser.CreateObject({})->ID, 3) << "IDs are not used again";
}

TEST(Container, AnchorsFromElsewhereMeanTheEnd) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"A", "B", "C"}), otype::Ware));
    const RecordPtr gone = parser.FindIndex(2);
    ASSERT_TRUE(parser.RemoveObject(gone));
    ASSERT_TRUE(parser.RemoveObject(parser.FindIndex(1)));
    EXPECT_EQ(parser.CreateObject(gone)->Index, 1);
    EXPECT_EQ(parser.CreateObjectBefore(gone)->Index, 2);
}

TEST(Container, KeysStayUnique) {
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"A", "B"}), otype::Ware));
    const RecordPtr twin = parser.FindIndex(0)->Clone();
    EXPECT_THROW(parser.AddObjectP(twin, {}), KeshError);
    twin->ID = -1;
    EXPECT_THROW(parser.AddObjectP(twin, {}), KeshError);
    twin->ID = 2147483647;
    parser.AddObjectP(twin, {});
    EXPECT_EQ(parser.Find(2147483647), twin);
    EXPECT_EQ(parser.Find(1), parser.FindIndex(0));
}

// Additions, removals and restores at random: both orders, numbering and lookups agree with a plain
// list.
TEST(Container, RandomChangesKeepOrdersAndNumbers) {
    std::mt19937 random(11);
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"d", "b", "C", "a"}), otype::Ware));
    std::vector<RecordPtr> model = parser.ByIndex();
    static_cast<void>(parser.ByName());
    for (int step = 0; step < 1500; ++step) {
        const auto at = model.empty() ? 0 : static_cast<std::ptrdiff_t>(random() % model.size());
        if (model.size() > 20 || (!model.empty() && random() % 2 == 0)) {
            const RecordPtr gone = model[static_cast<std::size_t>(at)];
            ASSERT_TRUE(parser.RemoveObject(gone));
            if (random() % 2 == 0)
                parser.RestoreObject(gone, static_cast<std::int32_t>(at));
            else
                model.erase(model.begin() + at);
        } else {
            const bool behind = random() % 2 == 0;
            const RecordPtr anchor =
                model.empty() ? RecordPtr() : model[static_cast<std::size_t>(at)];
            const RecordPtr made =
                behind ? parser.CreateObject(anchor) : parser.CreateObjectBefore(anchor);
            model.insert(anchor ? model.begin() + at + (behind ? 1 : 0) : model.end(), made);
        }
        ASSERT_EQ(parser.ByIndex(), model);
        ASSERT_EQ(parser.ByName().size(), model.size());
        for (int i = 0; i < std::ssize(model); ++i) {
            ASSERT_EQ(model[static_cast<std::size_t>(i)]->Index, i);
            ASSERT_EQ(parser.Find(model[static_cast<std::size_t>(i)]->ID),
                      model[static_cast<std::size_t>(i)]);
        }
    }
}

// Many at once must leave what one by one leaves.
TEST(Container, BulkOperationsAgreeWithSingleOnes) {
    std::mt19937 random(5);
    clsTxtParser parser;
    ASSERT_TRUE(load(parser, wares({"d", "NEW_OBJECT_7", "C", "a", "e", "b"}), otype::Ware));
    for (int round = 0; round < 50; ++round) {
        std::vector<RecordPtr> model = parser.ByIndex();
        const std::size_t at = random() % (model.size() + 1);
        const RecordPtr before = at < model.size() ? model[at] : RecordPtr();
        std::vector<RecordPtr> made;
        {
            const BulkInsert bulk(parser, before);
            for (int i = 0; i < 5; ++i) {
                made.push_back(parser.CreateObjectBefore(i % 2 == 0 ? before : RecordPtr()));
                made.back()->Construct(3);
                made.back()->SetObjectName(NewObjectName(parser));
                if (before) {
                    EXPECT_EQ(parser.Find(before->ID), before);
                }
            }
        }
        EXPECT_EQ(made[0]->ObjectName(), "NEW_OBJECT_" + std::to_string(8 + round * 5));
        model.insert(model.begin() + static_cast<std::ptrdiff_t>(at), made.begin(), made.end());
        ASSERT_EQ(parser.ByIndex(), model);
        ASSERT_EQ(parser.Find(made[2]->ID), made[2]);

        std::vector<RecordPtr> gone;
        for (const RecordPtr& record : model)
            if (random() % 3 == 0)
                gone.push_back(record);
        std::vector<RecordPtr> twice = gone;
        twice.insert(twice.end(), gone.begin(), gone.end());
        EXPECT_EQ(parser.RemoveObjects(twice), gone.empty());
        ASSERT_EQ(parser.ByIndex(), model);
        ASSERT_TRUE(parser.RemoveObjects(gone));
        EXPECT_EQ(parser.ByIndex().size() + gone.size(), model.size());
        for (int i = 0; const RecordPtr& record : parser.ByIndex())
            EXPECT_EQ(record->Index, i++);
        parser.RestoreObjects(gone);
        ASSERT_EQ(parser.ByIndex(), model);
        EXPECT_EQ(parser.ByName().size(), model.size());
        EXPECT_EQ(parser.Find(model.back()->ID), model.back());
    }
}
