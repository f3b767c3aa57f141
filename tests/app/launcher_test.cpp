// The launcher: what its icons, menus and requests do.
#include "app/IconView.h"
#include "app/apptest.h"
#include "app/frmFiles.h"
#include "app/frmSettings.h"
#include "txteditor/frmEdit.h"
#include "ui/CommonBoxes.h"
#include "ui/ListHelpers.h"
#include "ui/frmAbout.h"
#include "ui/frmText.h"

namespace {

class Launcher : public AppTest {
protected:
    [[nodiscard]] static QAbstractItemView* view(const frmMain& launcher) {
        return launcher.findChild<QAbstractItemView*>(QStringLiteral("View"));
    }
    [[nodiscard]] static QModelIndex icon(const frmMain& launcher, const char* key) {
        return ListFindItem(*view(launcher)->model(), QString::fromLatin1(key));
    }
    static void activate(const frmMain& launcher, const char* key) {
        QAbstractItemView* icons = view(launcher);
        ASSERT_TRUE(icon(launcher, key).isValid()) << key;
        icons->setCurrentIndex(icon(launcher, key));
        QTest::keyClick(icons, Qt::Key_Return);
    }
    [[nodiscard]] static QString icons(const frmMain& launcher) {
        QStringList keys;
        const QAbstractItemModel& model = *view(launcher)->model();
        for (int row = 0; row < model.rowCount(); ++row)
            keys.append(LauncherItems::KeyOf(model.index(row, 0)));
        return keys.join(u' ');
    }
    [[nodiscard]] static QAction* action(const frmMain& launcher, const char* name) {
        return launcher.findChild<QAction*>(QString::fromLatin1(name));
    }
    /// The launcher as it is once it was active: its icons are measured.
    static void show(frmMain& launcher) {
        launcher.MyShow({});
        launcher.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&launcher));
    }
    static void drag(QAbstractItemView& icons, QPoint from, QPoint to) {
        QWidget* area = icons.viewport();
        QTest::mousePress(area, Qt::LeftButton, {}, from);
        for (const QPoint& at : {(from + to) / 2, to}) { // with the button held down
            QMouseEvent move(QEvent::MouseMove, at, area->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, {});
            QCoreApplication::sendEvent(area, &move);
        }
        QTest::mouseRelease(area, Qt::LeftButton, {}, to);
    }
    /// A record of the editor's file changes.
    static void change(frmTXTEditor& editor) { editor.Parser().FindIndex(0)->SetValue(1, 5); }
};

TEST_F(Launcher, ShowsItsIconsAndVersion) {
    const QString version = QString::fromStdString(ProgramVersion());
    frmMain launcher;
    launcher.MyShow({});
    EXPECT_EQ(launcher.windowTitle(), QStringLiteral("Kesh Editor (%1)").arg(version));
    EXPECT_TRUE(launcher.isVisible());
    EXPECT_TRUE(editors().isEmpty());
    activate(launcher, "te");
    ASSERT_EQ(editors().size(), 1);
    EXPECT_EQ(editors()[0]->windowTitle(), QStringLiteral("TXT Editor"));
    activate(launcher, "te");
    EXPECT_EQ(editors().size(), 2);
    meanwhile<frmAbout>([version](frmAbout& about) {
        const auto* text = about.findChild<QTextBrowser*>();
        EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("lornfd ") + version));
        EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("Permission is hereby granted")));
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
    meanwhile<frmSettings>([&](frmSettings& window) {
        auto* directory = window.findChild<QLineEdit*>(QStringLiteral("DataDir"));
        EXPECT_TRUE(directory->isVisible()); // what has to be said first
        directory->setText(native("data"));
        window.findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
    });
    launcher.MyShow({});
    EXPECT_EQ(Settings->DataRoot(), program("data"));
    launcher.ProcessRequest("keshe://vfs://types\\TWareT"); // the view was built at once
    EXPECT_EQ(editors().size(), 1);
}

TEST_F(Launcher, HasAnIconForEachProgramThatIsSet) {
    {
        frmMain launcher;
        EXPECT_EQ(icons(launcher), QStringLiteral("te lorn settings help about"));
    }
    write("config/outfitter.ini", "path=" + native("tool").toUtf8() + "\n");
    Settings->SetCustomProgram(program("my.tool.exe"));
    Settings->SetExt3DViewerPath(program("viewer"));
    frmMain launcher;
    launcher.MyShow({});
    EXPECT_EQ(icons(launcher), QStringLiteral("te lornof lorn custom 3Dviwer settings help about"));
    EXPECT_EQ(icon(launcher, "custom").data().toString(), QStringLiteral("my.tool"));
    EXPECT_EQ(icon(launcher, "3Dviwer").data().toString(), QStringLiteral("viewer"));
    for (const char* key : {"lornof", "lorn", "custom", "3Dviwer"})
        activate(launcher, key);
    EXPECT_EQ(script.Started,
              (QStringList{native("tool/KeshOutfitter.exe"), native("data/kesh.exe"),
                           native("my.tool.exe"), native("viewer")}));
    script.Starts = false;
    for (const char* key : {"lorn", "custom"}) {
        script.Box(QStringLiteral("Error starting program: "));
        activate(launcher, key);
    }
    Settings->SetDataRoot({});
    script.Box(QStringLiteral("Program cannot found registry entry of Kesh Origins."));
    activate(launcher, "lorn");
}

TEST_F(Launcher, FollowsTheSettings) {
    frmMain launcher;
    launcher.MyShow({});
    const auto configure = [&](const char* edit, const char* text) {
        meanwhile<frmSettings>([=](frmSettings& window) {
            window.findChild<QLineEdit*>(QString::fromLatin1(edit))
                ->setText(QString::fromLatin1(text));
            window.findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
        });
        activate(launcher, "settings");
    };
    configure("EditorEdit", "/tools/one.exe");
    configure("Ext3DViewerEdit", "/tools/viewer.exe");
    EXPECT_EQ(icons(launcher), QStringLiteral("te lorn custom 3Dviwer settings help about"));
    view(launcher)->model()->setData(icon(launcher, "custom"), QStringLiteral("Mine"));
    configure("Ext3DViewerEdit", "/tools/viewer.exe");
    EXPECT_EQ(icon(launcher, "custom").data().toString(), QStringLiteral("Mine"));
    configure("EditorEdit", "/tools/two.exe");
    EXPECT_EQ(icon(launcher, "custom").data().toString(), QStringLiteral("two"));
    configure("EditorEdit", "");
    EXPECT_EQ(icons(launcher), QStringLiteral("te lorn 3Dviwer settings help about"));
}

TEST_F(Launcher, ArrangesIconsInCellsOfOneSize) {
    frmMain launcher;
    show(launcher);
    const auto* list = launcher.findChild<IconView*>();
    const QSize cell = list->Cell();
    launcher.resize(3 * cell.width() + 20, 400);
    QCoreApplication::processEvents();
    const QRect first = list->visualRect(icon(launcher, "te"));
    EXPECT_EQ(list->visualRect(icon(launcher, "settings")).top(), first.top());
    EXPECT_GT(list->visualRect(icon(launcher, "help")).top(), first.top()); // wrapped
    EXPECT_EQ(list->visualRect(icon(launcher, "help")).left(), first.left());
    EXPECT_EQ(list->visualRect(icon(launcher, "about")).size(), first.size());
}

TEST_F(Launcher, SnapsAndKeepsIconsThatAreMoved) {
    QPoint corner;
    {
        frmMain launcher;
        show(launcher);
        launcher.resize(600, 500);
        auto* list = launcher.findChild<IconView*>();
        const QPoint before = list->visualRect(icon(launcher, "te")).center();
        drag(*list, before, before + QPoint(100, 150));
        EXPECT_EQ(list->visualRect(icon(launcher, "te")).center(), before); // arranged: stays
        action(launcher, "mnuPopAutoArrange")->trigger();
        EXPECT_FALSE(Settings->AutoArrangeIcons());
        EXPECT_EQ(list->visualRect(icon(launcher, "te")).center(), before); // all stay in place
        const QSize cell = list->Cell();
        drag(*list, before, before + QPoint(cell.width() + 20, 2 * cell.height() + 30));
        corner = list->visualRect(icon(launcher, "te")).topLeft();
        EXPECT_EQ(corner, QPoint(cell.width() + 5, 2 * cell.height() + 5));
        drag(*list, list->visualRect(icon(launcher, "lorn")).center(), QPoint(-50, -50));
        EXPECT_EQ(list->visualRect(icon(launcher, "lorn")).topLeft(), QPoint(5, 5));
        EXPECT_TRUE(editors().isEmpty());
        launcher.close();
    }
    frmMain launcher;
    show(launcher);
    EXPECT_EQ(view(launcher)->visualRect(icon(launcher, "te")).topLeft(), corner);
    action(launcher, "mnuPopAutoArrange")->trigger();
    EXPECT_TRUE(Settings->AutoArrangeIcons());
    EXPECT_LT(view(launcher)->visualRect(icon(launcher, "te")).top(), corner.y());
}

TEST_F(Launcher, StandsStoredNonsense) {
    for (const char* name : {"left", "top", "width", "height"})
        for (const char* key : {"main", "main\\icons\\te"})
            Settings->SaveRegValue(key, name, std::numeric_limits<int>::max());
    Settings->SaveRegValue("main\\icons\\lorn", "caption", std::string(5000, 'x'), false);
    Settings->SetAutoArrangeIcons(false);
    frmMain launcher;
    show(launcher);
    const QAbstractItemView* list = view(launcher);
    EXPECT_EQ(launcher.size(), launcher.size().boundedTo(launcher.screen()->availableSize()));
    for (const char* key : {"te", "lorn", "about"})
        EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(icon(launcher, key))))
            << key;
}

TEST_F(Launcher, PopsUpForTheSelectedIcon) {
    frmMain launcher;
    show(launcher);
    auto* menu = launcher.findChild<QMenu*>(QStringLiteral("mnuPopup"));
    QAbstractItemView* list = view(launcher);
    const auto popUp = [&](QContextMenuEvent::Reason reason) {
        QContextMenuEvent event(reason, QPoint(5, 5), list->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(list->viewport(), &event);
        EXPECT_TRUE(menu->isVisible());
        EXPECT_TRUE(action(launcher, "mnuPopAutoArrange")->isChecked());
        menu->close();
        return action(launcher, "mnuPopRename")->isEnabled();
    };
    EXPECT_TRUE(popUp(QContextMenuEvent::Keyboard));
    action(launcher, "mnuPopRename")->trigger();
    auto* caption = list->findChild<QLineEdit*>();
    ASSERT_TRUE(caption);
    QTest::keyClick(caption, Qt::Key_Escape);
    list->clearSelection();
    EXPECT_FALSE(popUp(QContextMenuEvent::Mouse));
    QTest::keyClick(list, Qt::Key_Return); // nothing is selected
    EXPECT_TRUE(editors().isEmpty());
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
    EXPECT_EQ(view(launcher)->model()->index(1, 0).data(), QVariant(QStringLiteral("Kesh")));
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
    const auto check = [&](QWidget&& window, const char* name) {
        window.show();
        pressF1(&window);
        EXPECT_TRUE(page().endsWith(QLatin1String(name))) << page().toStdString();
    };
    check(frmEdit(), "/help/valueedit.html");
    check(frmSettings(), "/help/settings.html");
    check(frmFiles(), "/help/loadedfiles.html");
    check(frmAbout(), "/help/about.html");
    check(frmText(), "/help/report.html");
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

TEST_F(Launcher, HelpNamesEveryKeyOfTheEditor) {
    QFile page(QCoreApplication::applicationDirPath() + QStringLiteral("/help/txteditor.html"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    const frmTXTEditor editor{frmTXTEditor::Panels()};
    for (const QAction* action : editor.findChildren<QAction*>())
        for (const QKeySequence& keys : action->shortcuts()) {
            const QString word =
                QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(keys.toString()));
            EXPECT_TRUE(text.contains(QRegularExpression(word))) << word.toStdString();
        }
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
}

} // namespace
