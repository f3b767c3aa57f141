// Jobs by their logical fields.
#include "support/gametexts.h"
#include "support/loadtext.h"
#include "tdata/JobFields.h"
#include "tdata/JobIndex.h"
#include "tdata/NewObjectName.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using Changes = std::vector<std::pair<std::int32_t, const char*>>;

/// Zeros, and other values by their logical fields.
RecordPtr jobOf(std::int32_t size, const Changes& values) {
    auto job = std::make_shared<clsTXTObject>();
    job->Construct(size);
    for (const auto& [field, text] : values)
        SetJobValue(*job, field, keshobjects::readValue(text));
    return job;
}

TEST(JobFields, StandWhereTheVersionHasThem) {
    struct Case {
        std::int32_t Size;
        std::int32_t Field;
        std::int32_t Place; ///< -1: outside
        std::optional<std::int32_t> Neighbour;
    };
    const Case cases[] = {
        {117, 35, 35, {}},   {117, 36, 36, 37},   {117, 37, 36, {}},  {117, 54, 53, {}},
        {117, 55, 53, 54},   {117, 56, 54, {}},   {117, 85, 83, {}},  {117, 86, 83, 85},
        {117, 87, 84, {}},   {117, 118, 115, {}}, {119, 54, 54, {}},  {119, 55, 54, 54},
        {119, 119, 118, {}}, {120, 55, 55, {}},   {120, 120, -1, {}}, {120, -1, -1, {}},
        {5, 78, -1, {}},     {0, 0, -1, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.Size << ' ' << c.Field);
        const RecordPtr job = jobOf(c.Size, {});
        EXPECT_EQ(SetJobValue(*job, c.Field, 7), c.Place >= 0);
        EXPECT_EQ(GetJobText(*job, c.Field), c.Place >= 0 ? "7" : "");
        EXPECT_EQ(JobFlagSet(*job, c.Field), c.Place >= 0);
        EXPECT_EQ(JobNeighbour(*job, c.Field), c.Neighbour);
        if (c.Place >= 0) {
            EXPECT_EQ(job->ValueText(c.Place), "7");
        }
    }
}

TEST(JobFields, OnlyNumbersOtherThanZeroSet) {
    const RecordPtr job = jobOf(120, {{19, "1"}, {20, "yes"}, {21, "0.5"}, {22, "-0"}, {27, "2"}});
    EXPECT_EQ(JobFlagsSet(*job, jobflags::Classes), (std::vector<std::int32_t>{0, 2, 8}));
}

TEST(JobNames, AreMadeOfTheirParts) {
    const support::GameTexts texts(
        "<page id=\"17\"><string id=\"5\">Falcon</string><string id=\"6\">Salt run</string>"
        "<string id=\"7\"></string><string id=\"10003\">Hauler</string></page>");
    struct Case {
        Changes Values;
        const char* Name;
    };
    const Case cases[] = {
        {{}, ""},
        {{{6, "6"}}, "Salt run"},
        {{{8, "5"}, {6, "6"}}, "Falcon Salt run"},
        {{{8, "99"}, {6, "7"}}, ""},
        {{{8, "word"}, {6, "6"}}, "Salt run"},
        {{{8, "5"}, {9, "1"}, {86, "1"}, {6, "6"}}, "Falcon Yaki Salt run"},
        {{{9, "1"}, {87, "1"}}, "Pirate"},
        {{{9, "1"}, {78, "1"}, {79, "1"}, {6, "6"}}, "Salt run"}, // two races
        {{{9, "0"}, {78, "1"}, {6, "6"}}, "Salt run"},
        {{{8, "5"}, {10, "1"}, {11, "1"}, {22, "1"}, {12, "1"}, {41, "1"}}, "Falcon M4 Hauler"},
        {{{12, "1"}, {42, "1"}}, "4"}, // a variant without text
    };
    for (const Case& c : cases)
        EXPECT_EQ(JobResourceName(*jobOf(120, c.Values)), c.Name);
    EXPECT_EQ(JobResourceName(*jobOf(3, {})), "");
    EXPECT_EQ(JobVariantName(2147483647), "2147483647");
}

TEST(JobIndex, FindsWingsByTheirNumberAndJobsByTheirNameFirst) {
    struct Case {
        std::int32_t Type;
        const char* Text;
        std::vector<std::pair<std::int32_t, std::int32_t>> Places; ///< of numbers
    };
    const std::string zeros = support::repeat("0;", 118);
    const std::string jobs =
        "10;\r\n5;" + zeros + "Argon patrol\r\n7;" + zeros + "5\r\n7;" + zeros + "x\r\n";
    const Case cases[] = {
        {otype::JobWings, "5;100,7;\r\n7;1,2;\r\n7;3;\r\n", {{5, 0}, {7, 1}, {3, 2}, {100, -1}}},
        {otype::Jobs, jobs.c_str(), {{5, 1}, {7, 1}, {0, -1}}},
    };
    for (const Case& c : cases) {
        clsTxtParser parser;
        ASSERT_TRUE(support::load(parser, c.Text, c.Type));
        const JobIndex index(parser);
        for (const auto& [number, place] : c.Places)
            EXPECT_EQ(index.Find(number), parser.FindIndex(place)) << c.Type << " " << number;
    }
}

TEST(JobNumbers, AreNew) {
    struct Case {
        std::vector<const char*> Taken;
        const char* Next;
        const char* AfterThat;
    };
    const Case cases[] = {
        {{"5", "word", "3", "7.5"}, "6", "7"},
        {{"1", "2147483647", "3"}, "2", "4"},
        {{"2147483646"}, "2147483647", "1"},
    };
    for (const Case& c : cases) {
        std::string text = "10;\r\n";
        for (const char* number : c.Taken)
            text += number + (";" + support::repeat("0;", 118)) + "\r\n";
        clsTxtParser parser;
        ASSERT_TRUE(support::load(parser, text, otype::Jobs));
        EXPECT_EQ(NewObjectName(parser), c.Next);
        const BulkInsert bulk(parser, parser.FindIndex(0));
        EXPECT_EQ(NewObjectName(parser), c.Next) << "records that are set aside count too";
        EXPECT_EQ(NewObjectName(parser), c.AfterThat);
    }
}

} // namespace
