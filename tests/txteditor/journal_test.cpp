// What a killed program leaves: every cut, every flipped byte, saves in the middle, full disks.
#include "lornfd/faults.h"
#include "support/loadtext.h"
#include "txteditor/RecoveryJournal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <random>

namespace {

using Kind = RecordStep::Kind;
using namespace std::string_literals;

JournalBase baseOf(const std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    JournalBase base{"vfs://types\\TWare", path, MarkOf(file), 6};
    LornFD_CloseFile(file);
    return base;
}

/// Values of every form a loader gives, and set ones of every kind.
std::vector<clsValueArray> valuesOfEachKind() {
    std::vector<clsValueArray> all(1);
    const std::pair<const char*, std::int32_t> texts[] = {
        {"14;1;\r\n007; 0.50;1e3;;0;0;0;0;0;0;0;0;0;0;0;0;SS_X;\n", otype::Ware},
        {"1;2;5;3;", otype::WareLists},
        {"1;2,3,4;\n", otype::JobWings},
        {"A;text;1;2;1;IC;0;1;2;3;4;", otype::IconData}};
    for (const auto& [text, type] : texts) {
        clsTxtParser parser;
        EXPECT_TRUE(support::load(parser, text, type)) << type << parser.GetLastError();
        for (const RecordPtr& record : parser.ByIndex())
            all.push_back(record->Values());
    }
    clsValueArray own(4);
    own.Set(0, "5"s);
    own.Set(1, 0.1);
    own.Set(2, "\xff\0;//\n\xe4"s);
    own.Insert(1, 2);
    all.push_back(own);
    return all;
}

std::vector<RecordSteps> randomCommands(unsigned seed, int count) {
    const auto values = valuesOfEachKind();
    std::mt19937 random(seed);
    std::vector<RecordSteps> commands(static_cast<std::size_t>(count));
    for (RecordSteps& steps : commands)
        for (unsigned i = 0; i <= random() % 3; ++i) {
            const auto what = static_cast<Kind>(random() % 3);
            steps.push_back(
                {what, static_cast<std::int32_t>(random() % 0x80000000U),
                 what == Kind::Remove ? clsValueArray() : values[random() % values.size()]});
        }
    return commands;
}

bool same(const RecordStep& a, const RecordStep& b) {
    return a.What == b.What && a.Index == b.Index && a.Values.SameAs(b.Values);
}

/// True if what was read is a beginning of what was written.
bool begins(const std::vector<RecordSteps>& read, const std::vector<RecordSteps>& written) {
    return read.size() <= written.size() &&
           std::equal(read.begin(), read.end(), written.begin(), [](const auto& a, const auto& b) {
               return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
           });
}

TEST(JournalFormat, DamageTakesAtMostTheTail) {
    const JournalBase base{"a", "b", ContentMark{5, 7}, otype::Ware};
    const auto commands = randomCommands(1, 12);
    std::string bytes = std::string(JournalSignature) + JournalEntry(base);
    std::vector<std::size_t> ends;
    for (const RecordSteps& steps : commands)
        ends.push_back((bytes += JournalEntry(steps)).size());
    const JournalContent whole = ReadJournal(bytes);
    ASSERT_EQ(whole.Parts.size(), 1U);
    EXPECT_EQ(whole.Parts[0].Base, base);
    EXPECT_TRUE(begins(whole.Parts[0].Commands, commands));
    EXPECT_EQ(whole.Length, bytes.size());
    const auto sound = [&](std::size_t length) {
        return static_cast<std::size_t>(std::ranges::upper_bound(ends, length) - ends.begin());
    };
    const auto check = [&](const std::string& damaged, std::size_t at) {
        const JournalContent content = ReadJournal(damaged);
        const auto read =
            content.Parts.empty() ? std::vector<RecordSteps>() : content.Parts[0].Commands;
        EXPECT_EQ(read.size(), sound(at)) << at;
        EXPECT_TRUE(begins(read, commands)) << at;
    };
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        check(bytes.substr(0, at), at);
        std::string flipped = bytes;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << at % 8));
        check(flipped, at);
        check(bytes.substr(0, at) + std::string(64, '\0'), at); // a block that was never written
    }
}

TEST(JournalFormat, StepsMustNameRecords) {
    const auto fits = [](std::initializer_list<std::pair<Kind, int>> steps) {
        std::vector<RecordSteps> commands;
        for (const auto& [kind, index] : steps)
            commands.push_back({{kind, index, {}}});
        return StepsFit(2, commands);
    };
    EXPECT_TRUE(fits({{Kind::Change, 1}, {Kind::Insert, 2}, {Kind::Remove, 2}, {Kind::Insert, 0}}));
    EXPECT_TRUE(fits({{Kind::Remove, 1}, {Kind::Remove, 0}, {Kind::Insert, 0}}));
    EXPECT_FALSE(fits({{Kind::Change, 2}}));
    EXPECT_FALSE(fits({{Kind::Insert, 3}}));
    EXPECT_FALSE(fits({{Kind::Remove, 1}, {Kind::Change, 1}}));
    EXPECT_FALSE(fits({{Kind::Change, -1}}));
}

class Journals : public testing::Test {
protected:
    Journals() { support::writeFile(file, "before"); }
    ~Journals() override { lornfd::setFaultHook({}); }
    [[nodiscard]] std::vector<LeftJournal> left() const { return FindLeftJournals(state); }
    [[nodiscard]] std::string onlyFile() const {
        for (const auto& entry : std::filesystem::directory_iterator(state))
            if (entry.path().extension() == ".journal")
                return entry.path().string();
        return {};
    }
    [[nodiscard]] bool bare() const {
        return !std::filesystem::exists(state) || std::filesystem::is_empty(state);
    }
    /// Notes commands and lets the "program" be killed, which leaves the file and no holder.
    void leave(const std::vector<RecordSteps>& steps) const {
        RecoveryJournal journal(state);
        journal.Begin([base = baseOf(file)] { return base; });
        for (const RecordSteps& each : steps) {
            journal.Append(each);
            EXPECT_EQ(journal.Flush(), "");
        }
    }

    const support::ScratchDir directory;
    const std::string state = directory / "state/recovery";
    const std::string file = directory / "TWare.txt";
    const std::vector<RecordSteps> commands = randomCommands(2, 4);
};

TEST_F(Journals, AreMadeHeldAndDiscardedWithTheirWindow) {
    RecoveryJournal journal(state);
    journal.Begin([base = baseOf(file)] { return base; });
    EXPECT_EQ(journal.Flush(), "");
    EXPECT_TRUE(bare()) << "nothing was changed";
    journal.Append(commands[0]);
    EXPECT_EQ(journal.Flush(), "");
    EXPECT_TRUE(left().empty()) << "its window lives";
    journal.Begin([base = baseOf(file)] { return base; }); // another document in the same window
    EXPECT_TRUE(bare());
    journal.Append(commands[1]);
    journal.Append({});
    EXPECT_EQ(journal.Flush(), "");
    EXPECT_FALSE(bare());
    journal.Discard();
    EXPECT_TRUE(bare());
}

TEST_F(Journals, AreOfferedOnceAndGoOn) {
    leave({commands[0], commands[1]});
    support::writeFile(onlyFile(), support::readFile(onlyFile()) + "torn");
    {
        auto found = left();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_TRUE(left().empty()) << "another start is asking already";
        EXPECT_TRUE(found[0].Fits);
        EXPECT_EQ(found[0].Base, baseOf(file));
        EXPECT_EQ(found[0].Commands.size(), 2U);
        RecoveryJournal journal(state);
        journal.TakeOver(std::move(found[0]));
        journal.Append(commands[2]);
        EXPECT_EQ(journal.Flush(), "");
    }
    auto again = left();
    ASSERT_EQ(again.size(), 1U);
    EXPECT_EQ(again[0].Commands.size(), 3U);
    EXPECT_TRUE(begins(again[0].Commands, commands));
    again[0].File.Remove();
    EXPECT_TRUE(bare());
}

TEST_F(Journals, SayIfTheirBaseIsGone) {
    leave(commands);
    support::writeFile(file, "beforE");
    EXPECT_FALSE(left().at(0).Fits);
    std::filesystem::remove(file);
    EXPECT_FALSE(left().at(0).Fits);
    EXPECT_EQ(left().at(0).Commands.size(), commands.size());
}

TEST_F(Journals, DamagedOnesStayAndTheOthersAreFound) {
    leave(commands);
    for (const char* content : {"", "KESHJNL1", "KESHJNL2.", "\x1f\x8b\x08"})
        support::writeFile(state + "/damaged" + std::to_string(std::strlen(content)) + ".journal",
                           content);
    const std::string bareLock = state + "/bare.journal.lock";
    support::writeFile(bareLock, "");
    std::filesystem::last_write_time(bareLock, std::filesystem::file_time_type::clock::now() -
                                                   std::chrono::seconds(10));
    EXPECT_EQ(left().size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(state + "/damaged3.journal"));
    EXPECT_FALSE(std::filesystem::exists(bareLock));
}

/// Killed before, in the middle of, or behind a save: never offered twice, never lost.
TEST_F(Journals, FollowASave) {
    const auto saveUntil = [&](int stage) {
        support::writeFile(file, "before");
        RecoveryJournal journal(state);
        journal.Begin([base = baseOf(file)] { return base; });
        journal.Append(commands[0]);
        JournalBase after = baseOf(file);
        const std::int32_t handle =
            LornFD_OpenFile(file, LORNFD_WRITE, LORNFD_OPEN_EXISTING, LORNFD_GZIP);
        LornFD_WriteFile(handle, "", 0);
        for (const std::string part : {"aft", "er"})
            LornFD_WriteFile(handle, part.data(), std::ssize(part));
        after.Content = MarkOf(handle);
        EXPECT_EQ(journal.AnnounceSave(after), "");
        stage > 0 ? LornFD_CloseFile(handle) : LornFD_AbandonFile(handle);
        if (stage > 1)
            journal.Begin([after] { return after; });
        if (stage != 1) {
            journal.Append(commands[1]);
            EXPECT_EQ(journal.Flush(), "");
        }
    };
    for (const auto& [stage, offered] : {std::pair(0, 2U), std::pair(1, 0U), std::pair(2, 1U)}) {
        saveUntil(stage);
        auto found = left();
        ASSERT_EQ(found.size(), offered == 0 ? 0U : 1U) << stage;
        for (LeftJournal& each : found) {
            EXPECT_TRUE(each.Fits) << stage;
            EXPECT_EQ(each.Commands.size(), offered) << stage;
            each.File.Remove();
        }
        EXPECT_TRUE(bare()) << stage;
    }
}

TEST_F(Journals, FailuresAreToldOnceAndTriedAgain) {
    using lornfd::DiskOperation;
    for (const auto failing : {DiskOperation::Open, DiskOperation::Write, DiskOperation::Flush}) {
        int bytesLeft = 20;
        lornfd::setFaultHook([&, failing](DiskOperation operation, std::size_t* bytes) {
            if (operation != failing)
                return 0;
            if (bytes && bytesLeft > 0) {
                *bytes = static_cast<std::size_t>(std::exchange(bytesLeft, 0)); // a torn write
                return 0;
            }
            return ENOSPC;
        });
        {
            RecoveryJournal journal(state);
            journal.Begin([base = baseOf(file)] { return base; });
            journal.Append(commands[0]);
            EXPECT_NE(journal.Flush().find("No space left"), std::string::npos);
            journal.Append(commands[1]);
            EXPECT_EQ(journal.Flush(), "") << "told already";
            lornfd::setFaultHook({});
            EXPECT_EQ(journal.Flush(), "");
        }
        auto found = left();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].Commands.size(), 2U);
        EXPECT_TRUE(begins(found[0].Commands, commands));
        found[0].File.Remove();
    }
    support::writeFile(directory / "plain", "");
    RecoveryJournal nowhere(directory / "plain/recovery");
    nowhere.Begin([base = baseOf(file)] { return base; });
    nowhere.Append(commands[0]);
    EXPECT_NE(nowhere.Flush(), "");
}

} // namespace
