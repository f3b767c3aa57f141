// Adding, copying, cutting, pasting and deleting records, in one window and across windows.
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"

namespace {

constexpr auto insertQuestion =
    "Do you want to insert new object before currenty selected object?\n"
    "Press Yes to insert object before the current one.\nPress No to add object at the end.";

class Clipboard : public EditorTest {
protected:
    Clipboard() {
        write("TWareT.txt", wares({"A", "B", "C", "D"}));
        panel = new FakePanel;
        start("TWareT.txt", {panel});
    }
    /// A second window; the test's helpers then drive that one.
    frmTXTEditor* another(const char* file, FakePanel* fake) {
        frmTXTEditor* const first = window;
        start(file, {fake});
        others.push_back(first);
        return first;
    }
    ~Clipboard() override {
        for (const auto& other : others)
            delete other.data();
    }
    void expectInsert(Answer answer) { script.Box(QString::fromLatin1(insertQuestion), answer); }
    [[nodiscard]] QStringList selectedRows() const {
        QStringList rows;
        for (const QModelIndex& row : view("ObjectView")->selectionModel()->selectedRows())
            rows.append(row.data().toString());
        return rows;
    }

    FakePanel* panel;
    std::vector<QPointer<frmTXTEditor>> others;
};

struct PasteCase {
    const char* About;
    int First, Last; ///< rows copied
    const char* Take;
    int Target; ///< row selected before the paste; -1 for none
    Answer Place;
    const char* Names; ///< after it, in file order
    const char* Undone;
};

class PasteRows : public Clipboard, public testing::WithParamInterface<PasteCase> {};

TEST_P(PasteRows, GivesTheFileAndTakesItBack) {
    const PasteCase& c = GetParam();
    pickRows(c.First, c.Last);
    trigger(c.Take);
    pick("ObjectView", c.Target);
    expectInsert(c.Place);
    trigger("mnuPaste");
    EXPECT_EQ(names(), QString::fromLatin1(c.Names));
    EXPECT_EQ(column("ObjectView").size(), names().split(u' ').size());
    EXPECT_EQ(panel->Known.size(), window->Parser().ByIndex().size());
    for (int i = 0; const RecordPtr& record : window->Parser().ByIndex()) {
        EXPECT_EQ(record->Index, i++);
        EXPECT_EQ(window->Parser().FindKey(record->key()), record);
    }
    if (c.Place == Answer::Cancel)
        return;
    EXPECT_TRUE(caption().endsWith(QStringLiteral(" *")));
    trigger("undo");
    EXPECT_EQ(names(), QString::fromLatin1(c.Undone));
    EXPECT_EQ(panel->Known.size(), window->Parser().ByIndex().size());
    EXPECT_FALSE(window->Parser().CheckDirty());
    EXPECT_FALSE(caption().endsWith(QStringLiteral(" *")));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled()) << "one step";
    trigger("redo");
    EXPECT_EQ(names(), QString::fromLatin1(c.Names));
    EXPECT_TRUE(window->Parser().CheckDirty());
}

INSTANTIATE_TEST_SUITE_P(
    , PasteRows,
    testing::Values(
        PasteCase{"at the end", 1, 1, "mnuCopy", 0, Answer::No, "A B C D NEW_OBJECT_1", "A B C D"},
        PasteCase{"in front", 1, 1, "mnuCopy", 0, Answer::Yes, "NEW_OBJECT_1 A B C D", "A B C D"},
        PasteCase{"cancelled", 1, 1, "mnuCopy", 0, Answer::Cancel, "A B C D", "A B C D"},
        PasteCase{"several", 1, 2, "mnuCopy", 3, Answer::Yes, "A B C NEW_OBJECT_1 NEW_OBJECT_2 D",
                  "A B C D"},
        PasteCase{"a cut keeps its ID", 1, 1, "mnuCut", 3, Answer::Yes, "A C B D", "A B C D"},
        PasteCase{"several cut", 0, 1, "mnuCut", 3, Answer::No, "C D A B", "A B C D"}));

TEST_F(Clipboard, WhatIsCopiedIsTheWholeRecord) {
    pick("ObjectView", 0);
    trigger("mnuCopy");
    expectInsert(Answer::No);
    trigger("mnuPaste");
    const RecordPtr made = window->SelectedObject();
    EXPECT_EQ(made->Index, 4);
    EXPECT_EQ(made->ValueText(3), "0.50");
    EXPECT_EQ(made->ValueText(4), "007");
    EXPECT_EQ(selectedRows(), QStringList{QStringLiteral("NEW_OBJECT_1")});
    expectInsert(Answer::No); // once more
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("A B C D NEW_OBJECT_1 NEW_OBJECT_2"));
    EXPECT_EQ(label("Bar1"), QStringLiteral("6 objects"));
}

TEST_F(Clipboard, TakesRecordsOfAnotherRunningProgram) {
    auto* data = new QMimeData; // as it marks them, but not by this process
    data->setText(QString::fromLatin1(record("FAR")));
    data->setData(QStringLiteral("application/x-kesh-records"), "another");
    QGuiApplication::clipboard()->setMimeData(data);
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("A B C D FAR"));
}

TEST_F(Clipboard, APasteWithoutAFileSaysWhy) {
    pick("ObjectView", 0);
    trigger("mnuCopy");
    others.push_back(window);
    start();
    script.Box(QStringLiteral("This type of file is not recognized."));
    trigger("mnuPaste");
}

TEST_F(Clipboard, Refusals) {
    view("ObjectView")->clearSelection();
    trigger("mnuNew"); // without a selection nothing is asked
    EXPECT_EQ(names(), QStringLiteral("A B C D NEW_OBJECT_1"));
    EXPECT_EQ(window->SelectedObject()->Index, 4);
    trigger("undo");

    pick("ObjectView", 1);
    child<QCheckBox>("chkSort")->setChecked(true);
    expectInsert(Answer::Yes);
    script.Box(QStringLiteral("You cannot insert object into sorted list.\n"
                              "Uncheck the Sort checkbox and insert the object again."));
    trigger("mnuNew");
    child<QCheckBox>("chkSort")->setChecked(false);

    panel->Creations = 1;
    pickRows(0, 1);
    trigger("mnuCopy");
    expectInsert(Answer::Yes);
    script.Box(QStringLiteral("Error creating object: \nno laser file"));
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("A B C D")) << "all or none";
    EXPECT_EQ(panel->Known.size(), 4U);
    EXPECT_FALSE(window->Parser().CheckDirty());

    panel->Keeps = window->Parser().FindIndex(1).get();
    script.Box(QStringLiteral("Do you really want to delete the 2 selected objects ?"),
               Answer::Yes);
    script.Box(QStringLiteral("Error removing object from control."));
    trigger("mnuDel");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_EQ(panel->Known.size(), 4U);
}

TEST_F(Clipboard, APanelThatThrowsLeavesTheFileWhole) {
    pickRows(0, 1);
    trigger("mnuCopy");
    panel->Broken = true; // when the first record is in the file
    expectInsert(Answer::Yes);
    script.Box(QStringLiteral("Error creating object: \nbroken"));
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_EQ(panel->Known.size(), 4U);
    EXPECT_FALSE(window->Parser().CheckDirty());

    script.Box(QStringLiteral("really want"), Answer::Yes);
    trigger("mnuDel");
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_FALSE(window->Parser().CheckDirty());
    EXPECT_TRUE(child<QAction>("redo")->isEnabled());
}

// A change that is told of amid a step must not become a step of its own, before or within that.
TEST_F(Clipboard, APanelThatChangesWhatIsPastedMakesNoOtherStep) {
    panel->Chatty = true;
    pick("ObjectView", 1);
    trigger("mnuCopy");
    expectInsert(Answer::No);
    trigger("mnuPaste");
    EXPECT_EQ(window->Parser().FindIndex(4)->ValueText(2), "54");
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    panel->Chatty = false;
    editField(0, 4, QStringLiteral("8"));
    panel->Chatty = true;
    trigger("undo");
    EXPECT_EQ(window->Parser().FindIndex(0)->ValueText(4), "007");
    EXPECT_TRUE(child<QAction>("redo")->isEnabled());
}

TEST_F(Clipboard, NeedsAPanel) {
    pick("ObjectView", 0);
    trigger("mnuCopy");
    write("TWareE.txt", wares({"E"}));
    auto* none = new FakePanel;
    none->Serves = 5;
    another("TWareE.txt", none);
    script.Box(
        QStringLiteral("This type of file is not recognized. You cannot add objects to it."));
    trigger("mnuPaste");
}

TEST_F(Clipboard, AnotherTypeIsRefusedBeforeAnyQuestion) {
    pick("ObjectView", 0);
    trigger("mnuCopy");
    write("TWareE.txt", wares({"E"}));
    auto* fake = new FakePanel;
    another("TWareE.txt", fake);
    RecordClipboard::Instance().ClipboardObject()->otype = 5;
    script.Box(QStringLiteral("Cannot insert: object types are different."));
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("E"));
}

TEST_F(Clipboard, ACutAcrossWindowsEndsInTheSource) {
    write("TWareE.txt", wares({"E"}));
    auto* fake = new FakePanel;
    frmTXTEditor* source = another("TWareE.txt", fake);
    const QPointer<frmTXTEditor> target = window;
    window = source;
    pickRows(1, 2);
    trigger("mnuCut");
    window = target;
    EXPECT_TRUE(child<QAction>("mnuPaste")->isEnabled());
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("E B C"));
    EXPECT_EQ(names(*source), QStringLiteral("A D"));
    EXPECT_FALSE(child<QAction>("mnuPaste")->isEnabled());
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("E"));
    window = source;
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_EQ(panel->Known.size(), 4U);
    window = target;
}

// Opening a window makes it the source: so the cut record stays where it was.
TEST_F(Clipboard, TheSourceMayBeGone) {
    pick("ObjectView", 1);
    trigger("mnuCut");
    write("TWareE.txt", wares({"E"}));
    frmTXTEditor* const source = another("TWareE.txt", new FakePanel);
    EXPECT_EQ(RecordClipboard::Instance().ClipboardSource(), window);
    script.Box(QStringLiteral("Error removing object from control."));
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("E B"));
    EXPECT_EQ(names(*source), QStringLiteral("A B C D"));

    const QPointer<frmTXTEditor> target = window;
    window = source;
    trigger("mnuCut");
    source->close();
    EXPECT_EQ(RecordClipboard::Instance().ClipboardSource(), nullptr);
    window = target;
    expectInsert(Answer::No);
    script.Box(QStringLiteral("Cannot delete object from source window - maybe it was closed?"));
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("E B B"));
    EXPECT_FALSE(RecordClipboard::Instance().HasObjects());
}

TEST_F(Clipboard, DeletesAndSelectsWhatFollows) {
    pick("ObjectView", 1);
    script.Box(QStringLiteral("Do you really want to delete the selected object B ?"), Answer::No);
    QTest::keyClick(view("ObjectView"), Qt::Key_Delete);
    script.Box(QStringLiteral("Do you really want to delete the selected object B ?"), Answer::Yes);
    QTest::keyClick(view("ObjectView"), Qt::Key_Delete);
    EXPECT_EQ(names(), QStringLiteral("A C D"));
    EXPECT_EQ(window->SelectedObject()->ObjectName(), "C");
    EXPECT_EQ(panel->Shown, window->SelectedObject());
    EXPECT_EQ(label("Bar1"), QStringLiteral("3 objects"));
    editField(1, 4, QStringLiteral("8"));
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B C D"));
    EXPECT_EQ(window->SelectedObject()->ObjectName(), "B") << "what came back is shown";
    trigger("redo");
    trigger("redo");
    EXPECT_EQ(window->Parser().FindIndex(1)->ValueText(4), "8");
}

TEST_F(Clipboard, StructureIsCleanOnlyAsOnTheDisk) {
    pick("ObjectView", 1);
    script.Box(QStringLiteral("really want"), Answer::Yes);
    trigger("mnuDel");
    script.Save(FileChoice{native("TWareT.txt"), 1});
    script.Box(QStringLiteral("already exists"), Answer::Yes);
    trigger("save");
    EXPECT_FALSE(window->Parser().CheckDirty());
    trigger("undo");
    EXPECT_TRUE(window->Parser().CheckDirty());
    trigger("redo");
    EXPECT_FALSE(window->Parser().CheckDirty());
}

TEST_F(Clipboard, TextGoesOutAndComesIn) {
    pickRows(0, 1);
    trigger("mnuCopy");
    const QString text = QGuiApplication::clipboard()->text();
    EXPECT_EQ(text.toStdString(), (record("A") + "\r\n" + record("B") + "\r\n").toStdString());
    QGuiApplication::clipboard()->setText(QString::fromLatin1(record("X") + "\n\n" + record("A")));
    EXPECT_TRUE(child<QAction>("mnuPaste")->isEnabled());
    expectInsert(Answer::Yes);
    trigger("mnuPaste");
    EXPECT_EQ(names(), QStringLiteral("A X NEW_OBJECT_1 B C D"));
    EXPECT_EQ(window->Parser().FindIndex(1)->ValueText(6), "1e3");
    for (const char* bad : {"1;2;3;", "a;b", "48;1;"}) {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(bad));
        script.Box(QStringLiteral("The text on the clipboard holds no objects"));
        trigger("mnuPaste");
    }
    QGuiApplication::clipboard()->setText(QStringLiteral("words"));
    expectInsert(Answer::Cancel); // what was copied here is still there
    trigger("mnuPaste");
}

TEST_F(Clipboard, PopupAtTheReleaseAndByKey) {
    auto* menu = child<QMenu>("mnuPopup");
    QAbstractItemView* list = view("ObjectView");
    const QPoint place = list->visualRect(list->model()->index(2, 0)).center();
    QTest::mousePress(list->viewport(), Qt::RightButton, {}, place);
    EXPECT_FALSE(menu->isVisible());
    QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, place);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(window->SelectedObject()->Index, 2);
    EXPECT_FALSE(child<QAction>("mnuPaste")->isEnabled());
    menu->hide();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(list, &key);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
}

} // namespace
