// The catalog window: what it lists, what may be typed, how it is left.
#include "core/clsSettings.h"
#include "core/surroundings.h"
#include "files/CatalogModel.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/cataloguser.h"
#include "support/scriptedinterface.h"

#include <QAbstractItemModelTester>

namespace {

class WithSettings : public Surroundings {
protected:
    WithSettings() { Settings = std::make_unique<clsSettings>(); }
    ~WithSettings() override { Settings.reset(); }
};

class CatalogWindow : public WithSettings {
protected:
    CatalogWindow() {
        for (const char* entry : {"types\\TShips.pck", "types\\TWareT.txt", "types\\b.PCK",
                                  "types\\old\\TShips.txt", "types.old\\x.txt", "readme.txt"})
            support::putEntry(catalog, entry, entry);
        dialog.Title = QStringLiteral("Open");
        dialog.Filter = QStringLiteral("All Files (*.*)|*.*|Texts (*.txt)|*.txt|"
                                       "Both (*.txt; *.pck)|*.txt;*.pck|Catalogs (*.cat)|*.cat");
    }
    ~CatalogWindow() override { KeshVFS_CreateVFS({}); }

    template <class W>
    W* child(const char* name) const {
        auto* found = dialog.findChild<W*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    [[nodiscard]] QString rows() const {
        QStringList texts;
        const QAbstractItemModel* model = child<QTreeView>("FileView")->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data().toString());
        return texts.join(u' ');
    }
    [[nodiscard]] QString name() const { return child<QComboBox>("cmbFileName")->currentText(); }
    [[nodiscard]] QString levels() const {
        QStringList texts;
        for (int i = 0; i < child<QComboBox>("cmbDir")->count(); ++i)
            texts.append(child<QComboBox>("cmbDir")->itemText(i));
        return texts.join(u'|');
    }
    void choose(const char* combo, int item) const {
        child<QComboBox>(combo)->setCurrentIndex(item);
        Q_EMIT child<QComboBox>(combo)->activated(item);
    }
    void click(int row, bool twice = false) const {
        auto* view = child<QTreeView>("FileView");
        const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(child<QTreeView>("FileView"), key, modifiers);
    }
    void open(const std::string& from) { dialog.ShowOpen(from, nullptr); }

    const std::string catalog = program("mod.cat");
    support::Script script;
    support::CatalogUser user;
    frmCATDialog dialog;
};

struct TypedCase {
    const char* Start; ///< entry
    const char* Typed; ///< texts with "|" between
    const char* Chosen;
};

TEST_F(CatalogWindow, TakesWhatIsTyped) {
    const TypedCase cases[] = {
        {"", "types|TShips", "types\\TShips.pck"},
        {"", "TYPES/tshipS.PCK", "types\\TShips.pck"},
        {"", "types\\old/TShips.txt", "types\\old\\TShips.txt"},
        {"types\\old\\gone.txt", "..\\TWareT.txt", "types\\TWareT.txt"},
        {"types\\old\\gone.txt", "..|..|..|./x/../readme.txt", "readme.txt"},
        {"types\\", "../../../readme.txt", "readme.txt"},
        {"types\\old\\", "\\readme.txt", "readme.txt"},
        {"types\\gone\\", "gone\\..\\b.pck", "types\\b.PCK"},
        {"", "types|*.txt|TWareT.txt", "types\\TWareT.txt"},
        {"", "Types\\*.txt|TWareT.txt", "types\\TWareT.txt"},
    };
    for (const TypedCase& c : cases)
        for (const bool view : {false, true}) {
            SCOPED_TRACE(std::string(c.Start) + " " + c.Typed);
            if (view) {
                KeshVFS_CreateVFS(program("data"));
                ASSERT_TRUE(KeshVFS_AppendCatalog(catalog));
            }
            const std::string from = view ? "vfs://" : catalog;
            dialog.FileName = c.Start;
            user.ThenType(QString::fromLatin1(c.Typed).split(u'|'));
            open(from);
            EXPECT_EQ(dialog.ModalResult(), 0);
            EXPECT_EQ(dialog.FileName, (view ? from : from + "::") + c.Chosen);
        }
}

TEST_F(CatalogWindow, StaysWhereNothingCanBeChosen) {
    user.Then([&](frmCATDialog& window) {
        for (const char* typed :
             {"gone.txt", "types\\gone", "gone\\*.txt", "..\\..\\etc", "..\\.."}) {
            const bool top = std::string_view(typed) == "..\\..";
            if (!top)
                script.Box(QStringLiteral("File %1 does not exist.").arg(QLatin1String(typed)));
            user.Type(window, QString::fromLatin1(typed));
            EXPECT_EQ(levels(), QStringLiteral("mod.cat"));
        }
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Open - Catalog mod.cat"));
        user.Type(window, {});
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    open(catalog);
    EXPECT_EQ(dialog.ModalResult(), 2);
    EXPECT_EQ(dialog.FileName, "");
}

TEST_F(CatalogWindow, ListsDirectoriesFirstAndWhatTheFilterLetsThrough) {
    const QAbstractItemModelTester tester(child<QTreeView>("FileView")->model());
    dialog.FileName = "types\\";
    dialog.FilterIndex = 2;
    user.Then([&](frmCATDialog&) {
        EXPECT_EQ(rows(), QStringLiteral("old TWareT.txt"));
        choose("cmbFilter", 2);
        EXPECT_EQ(rows(), QStringLiteral("old b.PCK TShips.pck TWareT.txt"));
        auto* view = child<QTreeView>("FileView");
        click(2);
        key(Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(rows(), QStringLiteral("old b.PCK TShips.pck TWareT.txt"));
        key(Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(rows(), QStringLiteral("old TWareT.txt TShips.pck b.PCK"));
        EXPECT_EQ(view->currentIndex().data(), QStringLiteral("TShips.pck"));
        key(Qt::Key_Backspace);
        EXPECT_EQ(rows(), QStringLiteral("types.old types readme.txt"));
        EXPECT_EQ(view->currentIndex().data(), QStringLiteral("types")) << "where it came from";
        choose("cmbFilter", 3);
        EXPECT_EQ(rows(), QStringLiteral("types.old types readme.txt")) << "no catalogs in there";
    });
    open(catalog);
}

TEST_F(CatalogWindow, IsWalkedByMouseAndKeys) {
    user.Then([&](frmCATDialog& window) {
        EXPECT_EQ(rows(), QStringLiteral("types types.old readme.txt"));
        EXPECT_FALSE(child<QAction>("up")->isEnabled());
        EXPECT_FALSE(child<QAction>("leave")->isEnabled());
        key(Qt::Key_Down);
        EXPECT_EQ(name(), QStringLiteral("types"));
        key(Qt::Key_Return);
        EXPECT_EQ(levels(), QStringLiteral("mod.cat|    types"));
        EXPECT_EQ(name(), QString());
        click(0, true);
        EXPECT_EQ(levels(), QStringLiteral("mod.cat|    types|        old"));
        QTest::keyClick(&window, Qt::Key_Up, Qt::AltModifier);
        EXPECT_EQ(levels(), QStringLiteral("mod.cat|    types"));
        choose("cmbDir", 0);
        EXPECT_EQ(levels(), QStringLiteral("mod.cat"));

        support::putEntry(catalog, "new.txt", "new");
        click(2);
        QTest::keyClick(&window, Qt::Key_F5);
        EXPECT_EQ(rows(), QStringLiteral("types types.old new.txt readme.txt"));
        EXPECT_EQ(name(), QStringLiteral("readme.txt"));
        EXPECT_EQ(child<QTreeView>("FileView")->currentIndex().row(), 3);
        key(Qt::Key_Home);
        key(Qt::Key_R); // type ahead
        EXPECT_EQ(name(), QStringLiteral("readme.txt"));
        click(2);
        EXPECT_EQ(name(), QStringLiteral("new.txt"));
        click(2, true);
    });
    open(catalog);
    EXPECT_EQ(dialog.FileName, catalog + "::new.txt");
}

TEST_F(CatalogWindow, TakesAFileNamedAsADirectory) {
    support::putEntry(catalog, "types", "x");
    user.Then([&](frmCATDialog&) {
        EXPECT_EQ(rows(), QStringLiteral("types types.old readme.txt types"));
        click(3, true);
    });
    open(catalog);
    EXPECT_EQ(dialog.FileName, catalog + "::types");
}

TEST_F(CatalogWindow, LeavesACatalogThatIsGoneWhenListedAgain) {
    user.Then([&](frmCATDialog& window) {
        ASSERT_TRUE(QFile::remove(native("mod.cat")));
        script.Box(QStringLiteral("Error opening file %1:\n\n").arg(native("mod.cat")));
        QTest::keyClick(&window, Qt::Key_F5);
    });
    open(catalog);
    EXPECT_EQ(dialog.ModalResult(), 1);
}

TEST_F(CatalogWindow, GivesBackNamesOfAnyBytes) {
    support::putEntry(catalog, "\xE9t\xE9.txt", "x");
    user.Then([&](frmCATDialog&) {
        EXPECT_EQ(rows().section(u' ', -1), QStringLiteral("\u00E9t\u00E9.txt"));
        click(3, true);
    });
    open(catalog);
    EXPECT_EQ(dialog.FileName, catalog + "::\xE9t\xE9.txt");

    dialog.FileName.clear();
    user.Then([&](frmCATDialog& window) { // the one chosen last stands first
        child<QComboBox>("cmbFileName")->setCurrentIndex(0);
        QTest::keyClick(&window, Qt::Key_Return);
    });
    open(catalog);
    EXPECT_EQ(dialog.FileName, catalog + "::\xE9t\xE9.txt");
}

struct SaveCase {
    const char* Start;
    int Filter;
    const char* Typed; ///< none: Enter at once
    const char* Chosen;
    int FilterAfter;
};

TEST_F(CatalogWindow, AddsTheExtensionInASave) {
    const SaveCase cases[] = {
        {"types\\TWareT.txt", 2, nullptr, "types\\TWareT.txt", 2},
        {"types\\TWareT.txt", 2, "new", "types\\new.txt", 2},
        {"types\\TWareT.txt", 3, "old|new", "types\\old\\new.txt", 3},
        {"types\\mine.txt", 2, "old|", "types\\old\\mine.txt", 2},
        {"new\\deep\\T.pck", 2, nullptr, "new\\deep\\T.pck", 2},
        {"types\\TWareT.pck", 4, "new", "types\\new.pck", 4},
        {"types\\TWareT.pck", 1, "new", "types\\new", 1},
        {"types\\TWareT.pck", 9, "new.txt", "types\\new.txt", 4},
    };
    for (const SaveCase& c : cases) {
        SCOPED_TRACE(std::string(c.Start) + " " + (c.Typed ? c.Typed : ""));
        dialog.FileName = c.Start;
        dialog.FilterIndex = c.Filter;
        user.Then([&](frmCATDialog& window) {
            EXPECT_EQ(child<QPushButton>("btnOK")->text(), QStringLiteral("&Save"));
            if (!c.Typed)
                QTest::keyClick(&window, Qt::Key_Return);
            else
                for (const QString& text : QString::fromLatin1(c.Typed).split(u'|'))
                    text.isEmpty() ? QTest::keyClick(&window, Qt::Key_Return)
                                   : user.Type(window, text);
        });
        dialog.ShowSave(catalog);
        EXPECT_EQ(dialog.FileName, catalog + "::" + c.Chosen);
        EXPECT_EQ(dialog.FilterIndex, c.FilterAfter);
    }
}

TEST_F(CatalogWindow, KeepsTheProposedNameAndRefusesUnsafeOnes) {
    dialog.FileName = "types\\mine.txt";
    dialog.Title.clear();
    user.Then([&](frmCATDialog& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Save As - Catalog mod.cat"));
        click(0, true);
        EXPECT_EQ(name(), QStringLiteral("mine.txt"));
        for (const QString& typed :
             {QStringLiteral("C:x.txt"), QString(300, u'x'), QStringLiteral("a::b")}) {
            script.Box(QStringLiteral("\"%1\" cannot be a name in a catalog.").arg(typed));
            user.Type(window, typed);
        }
    });
    dialog.ShowSave(catalog);
    EXPECT_EQ(dialog.ModalResult(), 2);
}

TEST_F(CatalogWindow, GoesBackFromACatalogAndFromOneThatDoesNotOpen) {
    dialog.CanGoUp = true;
    user.Then([&](frmCATDialog&) { child<QAction>("leave")->trigger(); });
    open(catalog);
    EXPECT_EQ(dialog.ModalResult(), 1);
    EXPECT_EQ(dialog.FileName, "");

    write("broken.cat", "no catalog");
    script.Box(QStringLiteral("Error opening file %1:\n\n").arg(native("broken.cat")));
    open(program("broken.cat"));
    EXPECT_EQ(dialog.ModalResult(), 1);
    EXPECT_GT(script.LastText().size(), native("broken.cat").size() + 30) << "the reason is told";
}

} // namespace
