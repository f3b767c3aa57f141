// Unsaved work of a killed program, offered at the next start.
#include "app/OfferRecovery.h"
#include "app/apptest.h"
#include "support/journals.h"
#include "txteditor/RecoveryJournal.h"

namespace {

struct OfferCase {
    const char* Name;
    bool Changed;      ///< the file, by another program
    const char* Asked; ///< a part of the question
    Answer Reply;
    int Journals; ///< left after it
    bool Opens;   ///< a window with the changes
};

class Offer : public AppTest, public testing::WithParamInterface<OfferCase> {
protected:
    frmTXTEditor* open() {
        auto* editor = new frmTXTEditor(frmTXTEditor::Panels());
        editor->MyShow();
        return editor;
    }
    /// Deletes the only record; then the window goes as if it were killed.
    void changeAndDie() {
        frmTXTEditor* editor = open();
        editor->OpenFile(program("TWareT.txt"));
        editor->findChild<QTreeView*>(QStringLiteral("ObjectView"))->selectAll();
        script.Box(QStringLiteral("really want"), Answer::Yes);
        editor->findChild<QAction*>(QStringLiteral("mnuDel"))->trigger();
        ASSERT_TRUE(waitForJournal(1));
        delete editor;
    }
};

TEST_P(Offer, IsTakenLeftOrDropped) {
    const OfferCase& c = GetParam();
    changeAndDie();
    if (c.Changed)
        write("TWareT.txt", "48;0;");
    script.Box(QString::fromLatin1(c.Asked), c.Reply);
    OfferRecovery(nullptr, [this] { return open(); });
    EXPECT_EQ(script.Boxes.back().NoIsDefault, c.Changed) << "Enter must not lose work";
    ASSERT_EQ(editors().size(), c.Opens ? 1 : 0);
    if (c.Opens) {
        EXPECT_TRUE(editors().front()->Parser().CheckDirty());
        EXPECT_EQ(editors().front()->Parser().ByIndex().size(), 0U);
        delete editors().front();
    }
    EXPECT_EQ(FindLeftJournals(RecoveryDirectory()).size(), static_cast<std::size_t>(c.Journals));
    EXPECT_EQ(read("TWareT.txt"), c.Changed ? "48;0;" : wares);
}

INSTANTIATE_TEST_SUITE_P(
    , Offer,
    testing::Values(OfferCase{"Yes", false, "bring them back?", Answer::Yes, 1, true},
                    OfferCase{"No", false, "bring them back?", Answer::No, 0, false},
                    OfferCase{"Cancel", false, "bring them back?", Answer::Cancel, 1, false},
                    OfferCase{"OtherFileDrop", true, "drop them?", Answer::Yes, 0, false},
                    OfferCase{"OtherFileKeep", true, "drop them?", Answer::No, 1, false}),
    [](const auto& tested) { return tested.param.Name; });

} // namespace
