// What outlives a crash, and files that another program changes.
#include "support/journals.h"
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"

namespace {

class Recovery : public EditorTest {
protected:
    Recovery() {
        write("TWareT.txt", wares({"A", "B", "C"}));
        start("TWareT.txt", {new FakePanel});
    }
    /// The program is killed after the last of some commands was flushed: no window is closed.
    std::vector<LeftJournal> crash(std::size_t commands = 1) {
        EXPECT_TRUE(waitForJournal(commands));
        delete window.data();
        return FindLeftJournals(RecoveryDirectory());
    }
    /// The next start, which takes the offer.
    FakePanel* recover(LeftJournal left) {
        auto* panel = new FakePanel;
        start({}, {panel});
        window->Recover(std::move(left));
        return panel;
    }
    void save() {
        script.Save(FileChoice{native("TWareT.txt"), 1});
        script.Box(QStringLiteral("already exists"), Answer::Yes);
        trigger("save");
    }
    [[nodiscard]] std::string value(int record, int field) const {
        return std::string(window->Parser().FindIndex(record)->ValueText(field));
    }
};

TEST_F(Recovery, BringsEveryKindOfChangeBack) {
    editField(0, 4, QStringLiteral("8"));
    editField(1, 3, QStringLiteral("text"));
    pickRows(0, 1);
    trigger("mnuCopy");
    script.Box(QStringLiteral("Do you want to insert"), Answer::Yes);
    trigger("mnuPaste");
    pick("ObjectView", 4);
    script.Box(QStringLiteral("really want"), Answer::Yes);
    trigger("mnuDel");
    editField(1, 5, QStringLiteral("77"));
    trigger("undo");
    std::vector<std::string> before;
    for (const RecordPtr& record : window->Parser().ByIndex())
        before.push_back(record->GetObjectTData());

    auto left = crash(6);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_TRUE(left[0].Fits);
    FakePanel* panel = recover(std::move(left[0]));
    std::vector<std::string> after;
    for (const RecordPtr& record : window->Parser().ByIndex())
        after.push_back(record->GetObjectTData());
    EXPECT_EQ(after, before);
    EXPECT_EQ(panel->Known.size(), after.size());
    EXPECT_TRUE(caption().endsWith(QStringLiteral(" *")));
    EXPECT_EQ(column("ObjectView").size(), 4);
    EXPECT_EQ(read("TWareT.txt"), wares({"A", "B", "C"}).toStdString())
        << "nothing is saved unasked";
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B C"));
    EXPECT_FALSE(window->Parser().CheckDirty());
    trigger("redo");
    EXPECT_EQ(value(1, 4), "8");

    // The window that recovered is killed as well; it has undone and redone all six.
    auto again = crash(6 + 6 + 6);
    ASSERT_EQ(again.size(), 1U);
    recover(std::move(again[0]));
    EXPECT_EQ(value(1, 4), "8");
}

TEST_F(Recovery, GoesOnFromTheLastSave) {
    editField(0, 4, QStringLiteral("8"));
    save();
    EXPECT_TRUE(FindLeftJournals(RecoveryDirectory()).empty());
    editField(0, 5, QStringLiteral("9"));
    auto left = crash();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].Commands.size(), 1U);
    recover(std::move(left[0]));
    EXPECT_EQ(value(0, 4), "8");
    EXPECT_EQ(value(0, 5), "9");
    save();
    window->close();
    EXPECT_TRUE(FindLeftJournals(RecoveryDirectory()).empty()) << "closed in the normal way";
}

TEST_F(Recovery, NeverOnAnotherFile) {
    editField(0, 4, QStringLiteral("8"));
    auto left = crash();
    ASSERT_EQ(left.size(), 1U);
    write("TWareT.txt", wares({"A", "X"}));
    script.Box(QStringLiteral("is not as it was when it was changed"));
    recover(std::move(left[0]));
    EXPECT_EQ(names(), QStringLiteral("A X"));
    EXPECT_FALSE(window->Parser().CheckDirty());
    delete window.data();
    left = FindLeftJournals(RecoveryDirectory());
    ASSERT_EQ(left.size(), 1U) << "the journal stays";
    EXPECT_FALSE(left[0].Fits);
}

TEST_F(Recovery, FindsItsFileWhenTheViewHasAnother) {
    delete window.data();
    write("data/types/TWareT.txt", wares({"A"}));
    write("mod/types/TWareT.txt", wares({"X"}));
    ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
    start({}, {new FakePanel});
    window->OpenFile("vfs://types\\TWareT");
    editField(0, 4, QStringLiteral("8"));
    auto left = crash();
    ASSERT_EQ(left.size(), 1U);
    ASSERT_NE(KeshVFS_CreateVFS(program("mod")), 0);
    recover(std::move(left[0]));
    EXPECT_EQ(names(), QStringLiteral("A"));
    EXPECT_EQ(value(0, 4), "8");
    EXPECT_EQ(caption(), caption("data/types/TWareT.txt", QStringLiteral("Things v.1")) +
                             QStringLiteral(" *"));
}

TEST_F(Recovery, NotOnAFileThatIsReadInAnotherForm) {
    delete window.data();
    write("JobWings.txt", "1;2,3;");
    start("JobWings.txt");
    ASSERT_GT(window->Parser().ByIndex().size(), 0U);
    editField(0, 0, QStringLiteral("5"));
    script.Save(FileChoice{native("JobWings.txt"), 1});
    script.Box(QStringLiteral("already exists"), Answer::Yes);
    script.Box(QStringLiteral("form of their own"), Answer::Yes);
    trigger("save");
    editField(0, 0, QStringLiteral("6"));
    const auto left = crash();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_FALSE(left[0].Fits) << "its records would be others";
}

struct DiskCase {
    bool Dirty;
    Answer Reply;
    const char* Names;
};

class OnDisk : public Recovery, public testing::WithParamInterface<DiskCase> {};

TEST_P(OnDisk, AsksOnceAboutAChangeOfAnotherProgram) {
    const DiskCase& c = GetParam();
    if (c.Dirty)
        editField(0, 16, QStringLiteral("MINE"));
    QApplication::setActiveWindow(window);
    script.Box(c.Dirty ? QStringLiteral("Your changes are lost then.")
                       : QStringLiteral("was changed by another program.\nDo you want"),
               c.Reply);
    write("TWareT.txt", wares({"OTHER", "B"}));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !script.Boxes.empty(); })); // the system tells
    EXPECT_EQ(script.Boxes[0].NoIsDefault, c.Dirty) << "Enter must not lose work";
    QEvent active(QEvent::ActivationChange);
    QApplication::sendEvent(window, &active);
    QCoreApplication::processEvents();
    EXPECT_EQ(script.Boxes.size(), 1U);
    EXPECT_EQ(names(), QString::fromLatin1(c.Names));
}

INSTANTIATE_TEST_SUITE_P(, OnDisk,
                         testing::Values(DiskCase{false, Answer::Yes, "OTHER B"},
                                         DiskCase{false, Answer::No, "A B C"},
                                         DiskCase{true, Answer::Yes, "OTHER B"},
                                         DiskCase{true, Answer::No, "MINE B C"}));

} // namespace
