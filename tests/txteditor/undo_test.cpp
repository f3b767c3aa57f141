// Undo and redo of changes, through saves and selections.
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"

namespace {

class Undo : public EditorTest {
protected:
    [[nodiscard]] std::string value(int record, int field) const {
        return std::string(window->Parser().FindIndex(record)->ValueText(field));
    }
    [[nodiscard]] bool dirty() const { return window->Parser().CheckDirty(); }
    [[nodiscard]] bool dirty(int record) const { return window->Parser().FindIndex(record)->Dirty; }
    void save() {
        script.Save(FileChoice{native("TWareT.txt"), 1});
        script.Box(QStringLiteral("already exists"), Answer::Yes);
        trigger("save");
    }
};

TEST_F(Undo, GivesValuesBackWithTheirSpelling) {
    startWithWares();
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    editField(0, 4, QStringLiteral("8"));
    editField(1, 3, QStringLiteral("text"));
    EXPECT_EQ(caption(), caption("TWareT.txt") + QStringLiteral(" *"));
    trigger("undo");
    EXPECT_EQ(value(1, 3), "0.50");
    EXPECT_TRUE(dirty());
    EXPECT_FALSE(dirty(1));
    EXPECT_EQ(window->SelectedObject()->Index, 1) << "what was taken back is shown";
    trigger("undo");
    EXPECT_EQ(value(0, 4), "007");
    EXPECT_EQ(column("ObjectDataView", 1)[4], QStringLiteral("007"));
    EXPECT_EQ(caption(), caption("TWareT.txt"));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    trigger("redo");
    trigger("redo");
    EXPECT_EQ(value(0, 4), "8");
    EXPECT_EQ(value(1, 3), "text");
    EXPECT_TRUE(dirty(0) && dirty(1));
    EXPECT_FALSE(child<QAction>("redo")->isEnabled());
}

TEST_F(Undo, KnowsWhatTheFileOnDiskHolds) {
    startWithWares();
    editField(0, 4, QStringLiteral("8"));
    save();
    EXPECT_FALSE(dirty());
    trigger("undo"); // the disk has 8
    EXPECT_TRUE(dirty(0));
    editField(1, 4, QStringLiteral("9")); // the saved state cannot be reached any more
    trigger("undo");
    EXPECT_FALSE(dirty(1));
    EXPECT_TRUE(dirty(0));
    editField(0, 4, QStringLiteral("8"));
    trigger("undo");
    trigger("redo");
    EXPECT_FALSE(dirty(0)) << "as on the disk again";
}

TEST_F(Undo, EndsWithTheFile) {
    startWithWares();
    write("TWareE.txt", wares({"E"}));
    editField(0, 4, QStringLiteral("8"));
    script.Box(QStringLiteral("You have changed"), Answer::No);
    window->OpenFile(program("TWareE.txt"));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

TEST_F(Undo, ARefusedOrEqualValueIsNoStep) {
    startWithWares();
    script.Box(QStringLiteral("semicolon"));
    editField(0, 4, QStringLiteral(";"));
    editField(0, 4, QStringLiteral("7"));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    EXPECT_FALSE(dirty());
}

TEST_F(Undo, CatchesWhatAPanelChanges) {
    auto* panel = new FakePanel;
    startWithWares({panel});
    pick("ObjectView", 0);
    panel->Change(window->SelectedObject(), 1, 200, true);
    EXPECT_TRUE(child<QAction>("undo")->isEnabled());
    EXPECT_EQ(column("ObjectView", 1)[0], QStringLiteral("class 200"));
    panel->Change(window->SelectedObject(), 1, 300, false);
    pick("ObjectView", 1); // caught at the next selection
    trigger("undo");
    EXPECT_EQ(value(0, 1), "200");
    EXPECT_EQ(panel->Reset, window->Parser().FindIndex(0));
    trigger("undo");
    EXPECT_EQ(value(0, 1), "100");

    for (int record : {0, 1})
        window->Parser().FindIndex(record)->SetValue(2, 77);
    pick("ObjectView", 1);
    trigger("undo"); // both are one step
    EXPECT_EQ(value(0, 2), "0");
    EXPECT_EQ(value(1, 2), "0");
    EXPECT_FALSE(dirty());
}

} // namespace
