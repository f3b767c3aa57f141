// Saving in each form, and what a failure leaves behind.
#include "support/cataloguser.h"
#include "txteditor/editortest.h"

#include <cerrno>

namespace {

class Saving : public EditorTest {
protected:
    /// Answers the save dialog; for a file of a catalog that is the catalog's window.
    void choose(const char* name, int filter) {
        if (!caption().contains(QStringLiteral("::")))
            return script.Save(FileChoice{native(name), filter});
        user.Then([name, filter](frmCATDialog& dialog) {
            dialog.findChild<QComboBox*>(QStringLiteral("cmbFilter"))->setCurrentIndex(filter - 1);
            support::CatalogUser::Type(
                dialog, u'\\' + QString::fromLatin1(name).section(QStringLiteral("::"), 1));
        });
    }
    void saveTo(const char* name, int filter, std::optional<Answer> overwrite) {
        choose(name, filter);
        if (overwrite)
            script.Box(QStringLiteral("\"%1\" already exists.\n\nDo you want to overwrite it?")
                           .arg(native(name)),
                       *overwrite);
        trigger("save");
    }
    [[nodiscard]] static std::string unpacked(const std::string& path) {
        const std::int32_t file =
            LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        EXPECT_NE(file, 0) << path;
        std::string text(LornFD_ViewFile(file));
        LornFD_CloseFile(file);
        return text;
    }
    [[nodiscard]] static std::int32_t formOf(const std::string& path) {
        const std::int32_t file =
            LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
        const std::int32_t form = LornFD_FileType(file);
        LornFD_CloseFile(file);
        return form;
    }
    [[nodiscard]] std::string changed() const {
        return written(wares({"WARE_A", "WARE_B"})
                           .replace("0;100;0;0.50;007;5;1e3;7;8;9;10;11;12;13;14;15;WARE_B",
                                    "0;100;0;0.50;12;5;1e3;7;8;9;10;11;12;13;14;15;WARE_B"));
    }
    support::CatalogUser user;
};

struct FormCase {
    const char* Name;
    int Filter;
    std::int32_t Form;
};

TEST_F(Saving, WritesEachFormAndKeepsEverySpelling) {
    const FormCase cases[] = {
        {"new.txt", 1, LORNFD_PLAIN},
        {"new.pck", 2, LORNFD_ZSTD},
        {"mod.cat::types\\TWareT.pck", 3, LORNFD_ZSTD},
        {"mod.cat::types\\TWareT.txt", 3, LORNFD_PLAIN},
    };
    startWithWares();
    EXPECT_TRUE(LornFD_CloseCatalog(LornFD_OpenCatalog(program("mod.cat"), LORNFD_CREATE)));
    editField(1, 4, QStringLiteral("12"));
    for (const FormCase& c : cases) {
        SCOPED_TRACE(c.Name);
        saveTo(c.Name, c.Filter, {});
        EXPECT_EQ(caption(), caption(c.Name));
        EXPECT_EQ(formOf(program(c.Name)), c.Form);
        EXPECT_EQ(unpacked(program(c.Name)), changed());
        EXPECT_EQ(Settings->LoadRecentTFiles().front(), program(c.Name));
    }
    EXPECT_EQ(read("TWareT.txt"), wares({"WARE_A", "WARE_B"}).toStdString());
}

TEST_F(Saving, ProposesTheOwnPlaceAndItsFilter) {
    startWithWares();
    script.Save({});
    trigger("save");
    EXPECT_EQ(script.Files[0].Title, QStringLiteral("Save"));
    EXPECT_EQ(
        script.Files[0].Filter,
        QStringLiteral("Kesh T files - plain (*.txt)|*.txt|Kesh T files - compressed (*.pck)|*.pck|"
                       "Kesh Catalogs (*.cat)|*.cat"));
    EXPECT_EQ(script.Files[0].FileName, native("TWareT.txt"));
    EXPECT_EQ(script.Files[0].FilterIndex, 1);

    saveTo("plain", 2, {}); // the filter gives the missing extension
    EXPECT_EQ(caption(), caption("plain.pck"));
    script.Save({});
    trigger("save");
    EXPECT_EQ(script.Files[2].FilterIndex, 2);

    script.Save(FileChoice{native("mod.cat"), 3});
    script.Box(QStringLiteral("does not exist"), Answer::Yes);
    user.Then([](frmCATDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("cmbFileName"))->currentText(),
                  QStringLiteral("types\\plain.pck"));
        dialog.reject();
    });
    trigger("save");
    EXPECT_EQ(caption(), caption("plain.pck"));
}

TEST_F(Saving, FindsTheRealPlaceOfAFileOfTheView) {
    write("data/types/TWareT.txt", wares({"WARE_A"}));
    KeshVFS_CreateVFS(program("data"));
    start();
    window->OpenFile("vfs://types\\TWareT");
    script.Save(FileChoice{native("data/types/TWareT.txt"), 1});
    script.Box(QStringLiteral("already exists"), Answer::Yes);
    trigger("save");
    EXPECT_EQ(script.Files[0].FileName, native("data/types/TWareT.txt"));
    EXPECT_EQ(read("data/types/TWareT.txt"), written(wares({"WARE_A"})));
}

TEST_F(Saving, LeavesAllAsItWasIfTheFileMayNotBeReplaced) {
    startWithWares();
    editField(1, 4, QStringLiteral("12"));
    saveTo("TWareT.txt", 1, Answer::No);
    EXPECT_EQ(read("TWareT.txt"), wares({"WARE_A", "WARE_B"}).toStdString());
    EXPECT_EQ(caption(), caption("TWareT.txt") + QStringLiteral(" *"));
    saveTo("TWareT.txt", 1, Answer::Yes);
    EXPECT_EQ(read("TWareT.txt"), changed());
    EXPECT_EQ(caption(), caption("TWareT.txt"));
}

TEST_F(Saving, AsksBeforeItDropsWhatTheFileDoesNotCount) {
    const QByteArray counted = wares({"WARE_A", "WARE_B"});
    write("TWareT.txt", counted + "left;over;");
    start("TWareT.txt");
    const auto saveAs = [&](const char* name, Answer answer) {
        script.Save(FileChoice{native(name), 1});
        script.Box(
            QStringLiteral("The count of records (2) ends before line 4 of %1; the rest is not "
                           "read, and saving drops it.\n\nDo you want to save the file "
                           "without it?")
                .arg(native("TWareT.txt")),
            answer);
        trigger("save");
    };
    saveAs("new.txt", Answer::No);
    EXPECT_FALSE(QFile::exists(native("new.txt")));
    saveAs("new.txt", Answer::Yes);
    EXPECT_EQ(read("new.txt"), written(counted));
    saveTo("next.txt", 1, {}); // it is gone now
    EXPECT_EQ(read("next.txt"), written(counted));
}

TEST_F(Saving, AsksBeforeAShipIsSavedThatCannotBeLoaded) {
    write("TShips.txt", "49;1;\r\n" + QByteArray("0;").repeated(64) + "SS_A;\r\n");
    start("TShips.txt");
    editField(0, 53, QStringLiteral("1"));
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        script.Save(FileChoice{native("new.txt"), 1});
        script.Box(
            QStringLiteral("The counts of turrets and guns in SS_A (object 0) do not fit the "
                           "number of its values. A file that is saved like this cannot be "
                           "loaded again.\n\nDo you want to save the file anyway?"),
            answer);
        trigger("save");
        EXPECT_EQ(QFile::exists(native("new.txt")), answer == Answer::Yes);
    }
}

struct FaultCase {
    lornfd::DiskOperation Operation;
    const char* Target;
    const char* Said;
};

TEST_F(Saving, AFailedSaveLosesNothing) {
    using lornfd::DiskOperation;
    const FaultCase cases[] = {
        {DiskOperation::Open, "TWareT.txt", "Error opening file: \n"},
        {DiskOperation::Write, "TWareT.txt", "Error writing data to file: \n"},
        {DiskOperation::Flush, "TWareT.txt", "Error writing data to file: \n"},
        {DiskOperation::Rename, "TWareT.txt", "Error writing data to file: \n"},
        {DiskOperation::Write, "other.pck", "Error writing data to file: \n"},
    };
    for (const FaultCase& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.Operation));
        startWithWares();
        editField(1, 4, QStringLiteral("12"));
        const bool exists = std::string_view(c.Target) == "TWareT.txt";
        const auto overwrite = exists ? std::optional(Answer::Yes) : std::nullopt;
        script.Save(FileChoice{native(c.Target), exists ? 1 : 2});
        if (exists)
            script.Box(QStringLiteral("already exists"), Answer::Yes, [&] {
                lornfd::setFaultHook([&](DiskOperation operation, std::size_t*) {
                    return operation == c.Operation ? ENOSPC : 0;
                });
            });
        else
            lornfd::setFaultHook([&](DiskOperation operation, std::size_t*) {
                return operation == c.Operation ? ENOSPC : 0;
            });
        script.Box(QString::fromLatin1(c.Said));
        trigger("save");
        EXPECT_EQ(caption(), caption("TWareT.txt") + QStringLiteral(" *"));
        EXPECT_TRUE(window->Parser().CheckDirty());
        EXPECT_EQ(read("TWareT.txt"), wares({"WARE_A", "WARE_B"}).toStdString());
        EXPECT_EQ(Settings->LoadRecentTFiles().front(), program("TWareT.txt"));
        EXPECT_GT(script.LastText().size(), 30) << "the reason is told";

        lornfd::setFaultHook({});
        saveTo(c.Target, exists ? 1 : 2, overwrite);
        EXPECT_EQ(unpacked(program(c.Target)), changed());
        EXPECT_FALSE(window->Parser().CheckDirty());
        delete window.data();
        QFile::remove(native("other.pck"));
    }
}

struct DiskChangeCase {
    const char* Target;
    bool Asked;
};

TEST_F(Saving, AsksBeforeItReplacesWhatAnotherProgramWrote) {
    for (const bool catalog : {false, true}) {
        SCOPED_TRACE(catalog);
        const char* target = catalog ? "mod.cat::types\\TWareT.txt" : "TWareT.txt";
        startWithWares();
        if (catalog) {
            choose(target, 1);
            script.Box(QStringLiteral("does not exist"), Answer::Yes);
            trigger("save");
        }
        QApplication::setActiveWindow(nullptr); // an active window asks at once
        clsTFile other;                         // stands for the other program
        ASSERT_EQ(other.Open(program(target)).Kind, clsTFile::Outcome::Done);
        other.Parser.FindIndex(0)->SetValue(1, 12345);
        ASSERT_EQ(other.Save(program(target), LORNFD_PLAIN).Kind, clsTFile::Outcome::Done);
        const std::string theirs = unpacked(program(target));

        choose(target, 1);
        script.Box(QStringLiteral("already exists"), Answer::Yes);
        script.Box(QStringLiteral("was changed by another program"), Answer::No);
        trigger("save");
        EXPECT_EQ(unpacked(program(target)), theirs);

        choose(target, 1);
        script.Box(QStringLiteral("already exists"), Answer::Yes);
        script.Box(QStringLiteral("was changed by another program"), Answer::Yes);
        trigger("save");
        saveTo(target, 1, Answer::Yes); // known again, so no second question
        EXPECT_NE(unpacked(program(target)), theirs);
        delete window.data();
    }
}

TEST_F(Saving, AnotherEntryOfTheCatalogIsNoChange) {
    const char* target = "mod.cat::types\\TWareT.txt";
    startWithWares();
    choose(target, 1);
    script.Box(QStringLiteral("does not exist"), Answer::Yes);
    trigger("save");
    clsTFile other;
    ASSERT_EQ(other.Open(program(target)).Kind, clsTFile::Outcome::Done);
    ASSERT_EQ(other.Save(program("mod.cat::types\\TWareE.txt"), LORNFD_PLAIN).Kind,
              clsTFile::Outcome::Done);
    saveTo(target, 1, Answer::Yes);
}

TEST_F(Saving, ReportsATargetThatCannotBeOpened) {
    startWithWares();
    ASSERT_TRUE(QDir(native(".")).mkdir(QStringLiteral("dir.txt")));
    script.Save(FileChoice{native("dir.txt"), 1});
    script.Box(QStringLiteral("Error"));
    trigger("save");
    EXPECT_EQ(caption(), caption("TWareT.txt"));
}

} // namespace
