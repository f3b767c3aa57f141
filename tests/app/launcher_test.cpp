// The launcher: what its icons, menus and requests do.
#include "app/apptest.h"
#include "txteditor/frmEdit.h"
#include "ui/CommonBoxes.h"

namespace {

class Launcher : public AppTest {
protected:
    [[nodiscard]] static QAbstractItemView* view(const frmMain& launcher) {
        return launcher.findChild<QAbstractItemView*>(QStringLiteral("View"));
    }
    static void activate(const frmMain& launcher, const char* key) {
        QAbstractItemView* icons = view(launcher);
        const auto found = icons->model()->match(icons->model()->index(0, 0), Qt::UserRole,
                                                 QString::fromLatin1(key), 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << key;
        icons->setCurrentIndex(found[0]);
        QTest::keyClick(icons, Qt::Key_Return);
    }
    /// A record of the editor's file changes.
    static void change(frmTXTEditor& editor) { editor.Parser().FindIndex(0)->SetValue(1, 5); }
};

TEST_F(Launcher, ShowsItsIconsAndVersion) {
    frmMain launcher;
    launcher.MyShow({});
    EXPECT_EQ(launcher.windowTitle(), QStringLiteral("Kesh Editor (0.1.0)"));
    EXPECT_TRUE(launcher.isVisible());
    EXPECT_TRUE(editors().isEmpty());
    activate(launcher, "te");
    ASSERT_EQ(editors().size(), 1);
    EXPECT_EQ(editors()[0]->windowTitle(), QStringLiteral("TXT Editor"));
    activate(launcher, "te");
    EXPECT_EQ(editors().size(), 2);
    QTimer::singleShot(0, qApp, [] {
        auto* about = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(about);
        EXPECT_EQ(about->objectName(), QStringLiteral("frmAbout"));
        about->accept();
    });
    activate(launcher, "about");
}

TEST_F(Launcher, AsksForTheDataDirectoryIfThereIsNone) {
    const QString question =
        QStringLiteral("Kesh Editor was unable to find Kesh path in your registry. Do "
                       "you want to set it now manually?");
    Settings->SetDataRoot({});
    {
        frmMain launcher;
        script.Box(question, Answer::No);
        launcher.MyShow({});
        EXPECT_TRUE(launcher.isVisible());
    }
    write("data/types/TWareT.txt", wares);
    frmMain launcher;
    script.Box(question, Answer::Yes);
    script.Text("directory", native("data"));
    launcher.MyShow({});
    EXPECT_EQ(Settings->DataRoot(), program("data"));
    launcher.ProcessRequest("keshe://vfs://types\\TWareT"); // the view was built at once
    EXPECT_EQ(editors().size(), 1);
}

struct RequestCase {
    const char* CommandLine; ///< %1 is the test's directory
    const char* Said;        ///< empty if an editor opens
};

TEST_F(Launcher, OpensWhatARequestNames) {
    const char* const usage =
        "Invalid command line parameters.\n\nUsage: [file type] <file name>\n"
        "File type:\n-TFile - TFiles\n-Map - galaxy map\n-xml - xml text file";
    write("my mod/TWareT.txt", wares);
    write("other.txt", wares);
    const RequestCase cases[] = {
        {"%1\\TWareT.txt", ""},
        {"\"%1\\my mod\\TWareT.txt\"", ""},
        {"-TFile %1/TWareT.txt", ""},
        {"a b c", usage},
        {"%1\\other.txt", "Don't know how to open file \""},
        {"-map x.xml", "The Galaxy Editor is not available"},
        {"-xml x.xml", "The Text Resource Editor is not available"},
    };
    for (const RequestCase& c : cases) {
        SCOPED_TRACE(c.CommandLine);
        frmMain launcher;
        if (*c.Said)
            script.Box(QString::fromLatin1(c.Said));
        const QString line =
            QString::fromLatin1(c.CommandLine).replace(QStringLiteral("%1"), native("."));
        EXPECT_TRUE(launcher.ProcessRequest("keshe://" + line.toStdString()));
        EXPECT_TRUE(launcher.isVisible());
        ASSERT_EQ(editors().size(), *c.Said ? 0 : 1);
        for (frmTXTEditor* editor : editors()) {
            EXPECT_EQ(editor->Parser().ByIndex().size(), 1U);
            delete editor;
        }
    }
}

TEST_F(Launcher, TakesNoOtherTextForARequest) {
    frmMain launcher;
    launcher.showMinimized();
    EXPECT_FALSE(launcher.ProcessRequest("KESHE://x"));
    EXPECT_FALSE(launcher.isMinimized());
}

TEST_F(Launcher, StaysWithWhatIsLeftIfAnEditorDoes) {
    frmMain launcher;
    launcher.MyShow({});
    for (int i = 0; i < 2; ++i)
        launcher.ProcessRequest("keshe://" + program("TWareT.txt"));
    ASSERT_EQ(editors().size(), 2);
    change(*editors()[1]);
    script.Box(QStringLiteral("You have changed data in file"), Answer::Cancel);
    EXPECT_FALSE(launcher.close());
    EXPECT_TRUE(launcher.isVisible());
    ASSERT_GE(editors().size(), 1);
    script.Box(QStringLiteral("You have changed data in file"), Answer::No, [&] {
        launcher.ProcessRequest("keshe://" + program("TWareT.txt")); // one more, meanwhile
    });
    EXPECT_TRUE(launcher.close());
    EXPECT_TRUE(editors().isEmpty());
}

TEST_F(Launcher, KeepsCaptionsButNoEmptyOne) {
    {
        frmMain launcher;
        QAbstractItemModel* items = view(launcher)->model();
        EXPECT_FALSE(items->setData(items->index(0, 0), QString()));
        EXPECT_TRUE(items->setData(items->index(0, 0), QStringLiteral("Objects")));
        launcher.MyShow({});
        launcher.close();
    }
    frmMain launcher;
    EXPECT_EQ(view(launcher)->model()->index(0, 0).data(), QVariant(QStringLiteral("Objects")));
    EXPECT_EQ(view(launcher)->model()->index(1, 0).data(), QVariant(QStringLiteral("Settings")));
}

TEST_F(Launcher, EnterEndsARenameAndStartsNothing) {
    frmMain launcher;
    launcher.MyShow({});
    QAbstractItemView* icons = view(launcher);
    icons->setFocus();
    QTest::keyClick(icons, Qt::Key_F2);
    auto* caption = icons->findChild<QLineEdit*>();
    ASSERT_TRUE(caption);
    caption->setText(QStringLiteral("Objects"));
    QTest::keyClick(caption, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return icons->currentIndex().data().toString() == QStringLiteral("Objects"); }));
    EXPECT_TRUE(editors().isEmpty());
}

TEST_F(Launcher, OpensEditorsInNormalState) {
    Settings->SaveRegValue("TE", "state", 2);
    frmMain launcher;
    launcher.MyShow({});
    activate(launcher, "te");
    ASSERT_EQ(editors().size(), 1);
    EXPECT_EQ(editors()[0]->windowState(), Qt::WindowNoState);
    editors()[0]->setGeometry(30, 40, 700, 500);
    editors()[0]->close();
    activate(launcher, "te");
    EXPECT_EQ(editors()[0]->geometry(), QRect(30, 40, 700, 500));
    editors()[0]->showMaximized();
    editors()[0]->close(); // leaves the place of the normal state
    activate(launcher, "te");
    EXPECT_EQ(editors()[0]->geometry(), QRect(30, 40, 700, 500));
}

TEST_F(Launcher, HelpShowsThePageOfTheWindow) {
    const auto page = [&] { return script.Started.value(script.Started.size() - 1); };
    const auto pressF1 = [](QWidget* window) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_F1);
    };
    frmMain launcher;
    launcher.MyShow({});
    activate(launcher, "help");
    EXPECT_TRUE(page().endsWith(QStringLiteral("/help/index.html"))) << page().toStdString();
    pressF1(&launcher);
    EXPECT_TRUE(page().endsWith(QStringLiteral("/help/launcher.html"))) << page().toStdString();
    activate(launcher, "te");
    pressF1(editors()[0]);
    EXPECT_TRUE(page().endsWith(QStringLiteral("/help/txteditor.html"))) << page().toStdString();
    frmEdit value;
    value.show();
    pressF1(&value);
    EXPECT_TRUE(page().endsWith(QStringLiteral("/help/valueedit.html"))) << page().toStdString();
    script.Box(QStringLiteral("Help is not installed"));
    ShowHelp(&launcher, "nothing.html");
}

TEST(Help, EveryLinkLeadsToAPage) {
    const QDir pages(QCoreApplication::applicationDirPath() + QStringLiteral("/help"));
    const QRegularExpression link(QStringLiteral("href=\"([^\"]+)\""));
    QSet<QString> linked{QStringLiteral("index.html")};
    const QStringList names = pages.entryList({QStringLiteral("*.html")});
    for (const QString& name : names) {
        QFile page(pages.filePath(name));
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        for (auto it = link.globalMatch(text); it.hasNext();)
            linked.insert(it.next().captured(1));
    }
    EXPECT_EQ(linked, QSet<QString>(names.begin(), names.end()));
}

TEST_F(Launcher, ReloadsTheFilesOnDemand) {
    frmMain launcher;
    launcher.MyShow({});
    LoadKeshData(&launcher);
    write("data/types/TWareT.txt", wares);
    EXPECT_FALSE(Archive->GetFile("TWareT"));
    launcher.findChild<QAction*>(QStringLiteral("mnuReload"))->trigger();
    EXPECT_TRUE(Archive->GetFile("TWareT"));
    EXPECT_EQ(launcher.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(launcher.findChild<QAction*>(QStringLiteral("mnuShowVFS"))->isEnabled());
}

} // namespace
