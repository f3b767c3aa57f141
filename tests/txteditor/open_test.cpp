// Opening files, the list of records, and what is shown of one.
#include "support/cataloguser.h"
#include "txteditor/editortest.h"

#include <QMimeData>

namespace {

class Opening : public EditorTest {
protected:
    support::CatalogUser user;
};

TEST_F(Opening, ShowsTheRecordsAndTheSelectedOne) {
    startWithWares();
    EXPECT_EQ(caption(), caption("TWareT.txt"));
    EXPECT_EQ(column("ObjectView"),
              QStringList({QStringLiteral("WARE_A"), QStringLiteral("WARE_B")}));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 objects"));
    EXPECT_EQ(column("ObjectDataView"), QStringList());

    pick("ObjectView", 1);
    EXPECT_EQ(label("lblObjectName"), QStringLiteral("WARE_B"));
    EXPECT_EQ(label("Bar0"), QStringLiteral("Selected object index: 1"));
    EXPECT_EQ(column("ObjectDataView", 1).mid(3, 2),
              QStringList({QStringLiteral("0.50"), QStringLiteral("007")}));
    child<QLineEdit>("WatchFrom")->setText(QStringLiteral("15"));
    child<QLineEdit>("WatchTo")->setText(QStringLiteral("99"));
    EXPECT_EQ(column("WatchList"),
              QStringList({QStringLiteral("15. 15"), QStringLiteral("16. WARE_B")}));

    pick("ObjectDataView", 3);
    pick("ObjectView", 0);
    EXPECT_EQ(view("ObjectDataView")->currentIndex().row(), 3)
        << "the field stays while records change";
    EXPECT_FALSE(child<QTabWidget>("MainTab")->isTabEnabled(1));
}

TEST_F(Opening, SortsByNameAndKeepsTheSelection) {
    write("TWareT.txt", wares({"b", "_", "A"}));
    start("TWareT.txt");
    pick("ObjectView", 0);
    child<QCheckBox>("chkSort")->setChecked(true);
    EXPECT_EQ(column("ObjectView"),
              QStringList({QStringLiteral("_"), QStringLiteral("A"), QStringLiteral("b")}));
    EXPECT_EQ(view("ObjectView")->selectionModel()->selectedRows().value(0).row(), 2);
    EXPECT_EQ(label("lblObjectName"), QStringLiteral("b"));

    window->close();
    delete window.data();
    start("TWareT.txt"); // the next window sorts as well
    EXPECT_TRUE(child<QCheckBox>("chkSort")->isChecked());
}

TEST_F(Opening, AsksForAFileAndTakesOneFromACatalogOrTheView) {
    write("TWareT.txt", wares({"WARE_A"}));
    start();
    script.Open({});
    trigger("open");
    EXPECT_EQ(caption(), QStringLiteral("TXT Editor"));
    EXPECT_FALSE(child<QAction>("save")->isEnabled());
    EXPECT_EQ(script.Files[0].Title, QStringLiteral("Open"));
    EXPECT_EQ(script.Files[0].Filter,
              QStringLiteral("Kesh T files (*.txt; *.pck; *.cat)|*.txt;*.pck;*.cat|"
                             "Lorn Catalogs (*.cat)|*.cat|All files (*.*)|*.*"));
    EXPECT_EQ(script.Files[0].Directory, native("data"));

    script.Open(FileChoice{native("TWareT.txt"), 1});
    trigger("open");
    EXPECT_EQ(caption(), caption("TWareT.txt"));

    script.Save(FileChoice{native("data/01.cat::types\\TWareT.pck"), 3});
    script.Box(QStringLiteral("does not exist"), Answer::Yes);
    trigger("save");
    script.Open(FileChoice{native("data/01.cat"), 2});
    user.ThenType({QStringLiteral("types"), QStringLiteral("TWareT.pck")});
    trigger("open");
    EXPECT_EQ(caption(), caption("data/01.cat::types\\TWareT.pck"));

    KeshVFS_CreateVFS(program("data"));
    user.ThenType({QStringLiteral("types"), QStringLiteral("TWareT")});
    trigger("vfs://");
    EXPECT_EQ(caption(), QStringLiteral("TXT Editor - [vfs://types\\TWareT.pck (unknown)]"));
    user.Then([](frmCATDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Select file - Catalog vfs://"));
        EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("cmbDir"))->currentText(),
                  QStringLiteral("    types"))
            << "the last directory";
    });
    trigger("vfs://");
}

struct FailureCase {
    const char* Name;
    const char* Content; ///< none for a file that is not there
    const char* Said;
};

TEST_F(Opening, SaysWhyAFileCannotBeOpened) {
    const FailureCase cases[] = {
        {"TWareT.txt", nullptr, "Error opening file: \n%1\n"},
        {"TWareT.txt", "48;2;\r\n1;2;3;\r\n",
         "Error loading from file: \n%1\nError loading T file:"},
        {"Nothing.txt", "48;0;", "Error loading from file: \n%1\nUnrecognized T file."},
        {"TMissiles.txt", "47;1;1;", "Error loading from file: \n%1\nThis is old version"},
    };
    for (const FailureCase& c : cases) {
        SCOPED_TRACE(c.Said);
        Settings->SaveRecentTFiles({program(c.Name), program("other.txt")});
        if (c.Content)
            write(c.Name, c.Content);
        start();
        script.Box(QString::fromLatin1(c.Said).arg(native(c.Name)));
        window->OpenFile(program(c.Name));
        EXPECT_EQ(caption(), QStringLiteral("TXT Editor"));
        EXPECT_EQ(label("Bar1"), QStringLiteral("0 objects"));
        EXPECT_EQ(script.Boxes.back().Title, QStringLiteral("TXT Editor"));
        EXPECT_FALSE(window->findChild<QAction*>(QString::fromStdString(program(c.Name))));
        EXPECT_TRUE(window->findChild<QAction*>(QString::fromStdString(program("other.txt"))));
        delete window.data();
    }
}

TEST_F(Opening, KeepsWhatIsOpenIfTheNextFileIsNowhere) {
    startWithWares();
    script.Box(QStringLiteral("File vfs://types\\TShips not found."));
    window->OpenFile("vfs://types\\TShips");
    script.Box(QStringLiteral("Error opening file: "));
    window->OpenFile(program("TDocks.txt"));
    EXPECT_EQ(caption(), caption("TWareT.txt"));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 objects"));
}

TEST_F(Opening, LeavesAnEmptyWindowAfterABrokenFile) {
    startWithWares();
    pick("ObjectView", 1);
    write("TDocks.txt", "47;9;1;");
    script.Box(QStringLiteral("Error loading from file: "));
    window->OpenFile(program("TDocks.txt"));
    EXPECT_EQ(caption(), QStringLiteral("TXT Editor"));
    EXPECT_EQ(column("ObjectView"), QStringList());
    EXPECT_EQ(column("ObjectDataView"), QStringList());
    EXPECT_FALSE(child<QAction>("save")->isEnabled());
    window->OpenFile(program("TWareT.txt"));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 objects"));
}

TEST_F(Opening, ListsRecentFilesNewestFirst) {
    write("TWareE.txt", wares({"E"}));
    startWithWares();
    window->OpenFile(program("TWareE.txt"));
    window->OpenFile(program("TWareT.txt"));
    const auto actions = child<QMenu>("mnuOpen")->actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->objectName(), QStringLiteral("vfs://"));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), QStringLiteral("1 - ") + native("TWareT.txt"));
    EXPECT_EQ(actions[3]->objectName().toStdString(), program("TWareE.txt"));
    actions[3]->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return caption() == caption("TWareE.txt"); }));

    script.Box(QStringLiteral("Error opening file: "));
    window->OpenFile(program("gone.txt"));
    Settings->SaveRecentTFiles({program("A.txt"), program("B.txt"), program("b.TXT")});
    window->OpenFile(program("TWareT.txt"));
    QStringList names;
    for (const QAction* action : child<QMenu>("mnuOpen")->actions().mid(2))
        names.append(action->objectName().section(u'\\', -1));
    EXPECT_EQ(names, QStringList({QStringLiteral("TWareT.txt"), QStringLiteral("A.txt"),
                                  QStringLiteral("B.txt")}))
        << "what a shorter list left behind comes once";
}

TEST_F(Opening, TakesADroppedFile) {
    write("TWareT.txt", wares({"WARE_A"}));
    start();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(native("TWareT.txt")), QUrl::fromLocalFile(native("other"))});
    QWidget* target = view("ObjectView")->viewport();
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                    Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction); // whose giver would delete the file
    QApplication::sendEvent(target, &drop);
    QCoreApplication::processEvents(); // behind the drop
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_EQ(caption(), caption("TWareT.txt"));
}

TEST_F(Opening, EveryActionHasAKeyOfItsOwn) {
    start();
    QSet<QString> names;
    QSet<QString> keys;
    for (const QAction* action : window->findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
        EXPECT_FALSE(names.contains(action->objectName())) << action->objectName().toStdString();
        names.insert(action->objectName());
        if (action->shortcutContext() == Qt::WidgetShortcut)
            continue; // a key of one list
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_FALSE(keys.contains(key.toString())) << key.toString().toStdString();
            keys.insert(key.toString());
        }
    }
    for (const char* name : {"open", "save", "kesh", "desc", "about"})
        EXPECT_TRUE(child<QToolBar>("MainToolbar")
                        ->actions()
                        .contains(window->findChild<QAction*>(QString::fromLatin1(name))))
            << name;
}

} // namespace
