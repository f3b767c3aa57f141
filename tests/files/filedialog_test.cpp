// The way through common dialog and catalog window to one name.
#include "core/KeshError.h"
#include "core/clsSettings.h"
#include "core/surroundings.h"
#include "files/LornFileDialog.h"
#include "keshvfs/keshvfs.h"
#include "support/cataloguser.h"
#include "support/scriptedinterface.h"

namespace {

class Dialogs : public Surroundings {
protected:
    Dialogs() {
        Settings = std::make_unique<clsSettings>();
        QDir(native(".")).mkdir(QStringLiteral("mods"));
        support::putEntry(program("mods/One.CAT"), "types\\TShips.pck", "x");
        Reset();
    }
    ~Dialogs() override {
        KeshVFS_CreateVFS({});
        Settings.reset();
    }

    void Reset() {
        dialog = LornFileDialog(nullptr);
        dialog.Filter = QStringLiteral("Plain (*.txt)|*.txt|Packed (*.pck)|*.pck|"
                                       "Catalogs (*.cat)|*.cat");
        dialog.InitDir = program("data");
    }
    /// The chosen name, or what the failure says.
    std::string show(bool save) {
        try {
            save ? dialog.ShowSave() : dialog.ShowOpen();
            EXPECT_FALSE(dialog.Cancelled);
            return dialog.FileName;
        } catch (const KeshError& error) {
            EXPECT_EQ(error.Number(), 32755U);
            EXPECT_TRUE(dialog.Cancelled);
            return error.what();
        }
    }
    void goUp() {
        user.Then([](frmCATDialog& window) {
            window.findChild<QAction*>(QStringLiteral("leave"))->trigger();
        });
    }
    void cancel() {
        user.Then([](frmCATDialog& window) { window.reject(); });
    }

    const std::string cancelled = "Cancel was pressed.";
    support::Script script;
    support::CatalogUser user;
    LornFileDialog dialog{nullptr};
};

TEST_F(Dialogs, ACatalogLeadsIntoItsWindowAndUpLeadsBack) {
    for (const bool save : {false, true}) {
        SCOPED_TRACE(save);
        Reset();
        const auto choice = [&](std::optional<FileChoice> file) {
            save ? script.Save(std::move(file)) : script.Open(std::move(file));
        };
        dialog.FileName = program("mods/One.CAT") + (save ? "::types\\TShips.pck" : "");
        goUp();
        choice(FileChoice{native("mods/One.CAT"), 3});
        user.Then([&](frmCATDialog& window) {
            const auto filters = window.findChild<QComboBox*>(QStringLiteral("cmbFilter"));
            EXPECT_EQ(filters->count(), save ? 3 : 1);
            EXPECT_EQ(filters->currentIndex(), save ? 2 : 0) << "the one that led there";
            window.findChild<QAction*>(QStringLiteral("leave"))->trigger();
        });
        choice({});
        EXPECT_EQ(show(save), cancelled);
        for (const FileRequest& request : script.Files) {
            EXPECT_EQ(request.Title, save ? QStringLiteral("Save") : QStringLiteral("Open"));
            EXPECT_EQ(request.Directory, native("mods"));
            EXPECT_EQ(request.FileName, QString());
        }
        script.Files.clear();

        dialog.FileName = program("mods/One.CAT");
        cancel();
        EXPECT_EQ(show(save), cancelled);
        user.ThenType({QStringLiteral("types"), QStringLiteral("TShips.pck")});
        dialog.FileName = program("mods/One.CAT");
        EXPECT_EQ(show(save), program("mods/One.CAT") + "::types\\TShips.pck");
    }
}

TEST_F(Dialogs, TheViewIsListedByItsPrefix) {
    write("data/types/TWareT.txt", "x");
    KeshVFS_CreateVFS(program("data"));
    dialog.FileName = "vfs://types\\";
    user.ThenType({QStringLiteral("TWareT")});
    EXPECT_EQ(show(false), "vfs://types\\TWareT.txt");
    dialog.FileName = "vfs://";
    goUp();
    script.Open({});
    EXPECT_EQ(show(false), cancelled);
    EXPECT_EQ(script.Files[0].Directory, native("data"));
}

TEST_F(Dialogs, TheLastDirectoryIsKeptForEachKind) {
    const auto startOf = [&](const char* kind, const char* chosen) {
        Reset();
        dialog.Kind = kind;
        script.Open(chosen ? std::optional(FileChoice{native(chosen), 1}) : std::nullopt);
        show(false);
        return script.Files.back().Directory;
    };
    EXPECT_EQ(startOf("a", "tmp/x.txt"), native("data"));
    EXPECT_EQ(startOf("a", nullptr), native("tmp"));
    EXPECT_EQ(startOf("b", nullptr), native("data"));
    EXPECT_EQ(startOf("", nullptr), native("data"));
    EXPECT_EQ(startOf("a", "mods/One.CAT::types\\TShips.pck"), native("tmp"));
    EXPECT_EQ(startOf("a", nullptr), native("mods"));
    QDir(native("mods")).removeRecursively();
    EXPECT_EQ(startOf("a", nullptr), native("data"));
}

struct SaveCase {
    const char* FileName;
    int Filter;        ///< told
    int Proposed;      ///< filter that the dialog starts with
    const char* Typed; ///< with filter 2
    const char* Saved;
};

TEST_F(Dialogs, ASaveStartsOnTheFilterOfTheNameAndAddsTheExtension) {
    const SaveCase cases[] = {
        {"data/a.PCK", 1, 2, "data/a", "data/a.pck"},
        {"data/a.txt", 3, 1, "data/b.doc", "data/b.doc"},
        {"data/a.doc", 2, 2, "data/dir.x/a", "data/dir.x/a.pck"},
    };
    for (const SaveCase& c : cases) {
        SCOPED_TRACE(c.FileName);
        dialog.FileName = program(c.FileName);
        dialog.FilterIndex = c.Filter;
        script.Save(FileChoice{native(c.Typed), 2});
        EXPECT_EQ(show(true), program(c.Saved));
        EXPECT_EQ(script.Files.back().FilterIndex, c.Proposed);
        EXPECT_EQ(dialog.FilterIndex, 2);
    }
}

TEST_F(Dialogs, OffersToMakeACatalogAndMakesItLast) {
    const QString question =
        QStringLiteral("Catalog \"%1\" does not exist.\n\nDo you want to create it?")
            .arg(native("data/new.cat"));
    dialog.NewEntry = "types\\TShips.pck";
    dialog.FileName = program("data/TShips.pck");
    script.Save(FileChoice{native("data/new"), 3});
    script.Box(question, Answer::No);
    script.Save(FileChoice{native("data/new.cat"), 3});
    script.Box(question, Answer::Yes);
    cancel();
    EXPECT_EQ(show(true), cancelled);
    EXPECT_FALSE(QFile::exists(native("data/new.cat"))) << "nothing is left behind";

    dialog.FileName = program("data/new.cat");
    script.Box(question, Answer::Yes);
    user.Then([&](frmCATDialog& window) { QTest::keyClick(&window, Qt::Key_Return); });
    EXPECT_EQ(show(true), program("data/new.cat") + "::types\\TShips.pck");
    EXPECT_TRUE(QFile::exists(native("data/new.cat")));

    dialog.FileName = program("data/TShips.pck"); // a catalog path typed whole
    script.Save(FileChoice{native("nowhere/new.cat::x.txt"), 3});
    script.Box(QStringLiteral("does not exist"), Answer::Yes);
    script.Box(QStringLiteral("Error opening file ") + native("nowhere/new.cat"));
    script.Save(FileChoice{native("data/other.cat::x.txt"), 3});
    script.Box(QStringLiteral("does not exist"), Answer::Yes);
    EXPECT_EQ(show(true), program("data/other.cat::x.txt"));
    EXPECT_TRUE(QFile::exists(native("data/other.cat")));
}

} // namespace
