// The loaded files window.
#include "app/frmFiles.h"
#include "apptest.h"

#include <QAbstractItemModelTester>

namespace {

class LoadedFiles : public AppTest {
protected:
    LoadedFiles() {
        for (const char* name : {"types/TShips.txt", "types/TWareT.txt", "types/old/TShips.txt",
                                 "maps/a.xml", "readme.txt"})
            write((std::string("data/") + name).c_str(), wares);
        LoadKeshData();
    }
    static QAbstractItemView& view(const frmFiles& window) {
        return *window.findChild<QAbstractItemView*>(QStringLiteral("View"));
    }
    static QStringList rows(const frmFiles& window) {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return window.findChild<QLabel*>(QStringLiteral("lblCount"))
                ->text()
                .startsWith(QStringLiteral("Files:"));
        }));
        QStringList names;
        const QAbstractItemModel& model = *view(window).model();
        for (int row = 0; row < model.rowCount(); ++row)
            names.append(model.index(row, 0).data().toString());
        return names;
    }
    static void filter(const frmFiles& window, const char* text) {
        auto* edit = window.findChild<QLineEdit*>(QStringLiteral("FilterEdit"));
        edit->setText(QString::fromLatin1(text));
        QTest::keyClick(edit, Qt::Key_Return);
    }
};

TEST_F(LoadedFiles, ListsWhatTheFilterLetsThrough) {
    frmFiles window;
    const QAbstractItemModelTester tester(view(window).model());
    window.ShowFiles();
    const std::pair<const char*, const char*> cases[] = {
        {"", "readme.txt maps\\a.xml types\\TShips.txt types\\TWareT.txt types\\old\\TShips.txt"},
        {"types\\", "types\\TShips.txt types\\TWareT.txt types\\old\\TShips.txt"},
        {"TYPES", "types\\TShips.txt types\\TWareT.txt types\\old\\TShips.txt"},
        {"types\\TShips*", "types\\TShips.txt"},
        {"vfs://types/TShips", "types\\TShips.txt"},
        {"t*\\o*\\*", "types\\old\\TShips.txt"},
        {"*.txt", "readme.txt"},
        {"nothing*", ""},
    };
    for (const auto& [text, found] : cases) {
        filter(window, text);
        EXPECT_EQ(rows(window).join(u' '), QString::fromLatin1(found)) << text;
    }
    EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("ActiveModEdit"))->text(),
              QStringLiteral("(none)"));
    write("data/readme2.txt", wares);
    filter(window, "r*");
    LoadKeshData();
    window.Refresh();
    EXPECT_EQ(rows(window).size(), 2);
}

TEST_F(LoadedFiles, SortsCopiesAndOpens) {
    write("config/game.ini", "ModName=mine\n");
    frmFiles window;
    const QAbstractItemModelTester tester(view(window).model());
    window.ShowFiles();
    EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("ActiveModEdit"))->text(),
              QStringLiteral("mine.cat"));
    filter(window, "types\\T*");
    ASSERT_EQ(rows(window).size(), 2);
    auto* header = window.findChild<QTreeView*>()->header();
    view(window).setCurrentIndex(view(window).model()->index(0, 0));
    QApplication::setActiveWindow(&window);
    for (int times = 0; times < 2; ++times)
        QTest::keyClick(&view(window), Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(rows(window).join(u' '), QStringLiteral("types\\TWareT.txt types\\TShips.txt"));
    EXPECT_EQ(view(window).currentIndex().row(), 1); // the selection goes with its row
    filter(window, "types\\T*");
    EXPECT_EQ(rows(window).first(),
              QStringLiteral("types\\TWareT.txt")); // a new list is sorted too
    header->setSortIndicator(-1, Qt::AscendingOrder);
    EXPECT_EQ(rows(window).first(), QStringLiteral("types\\TShips.txt"));

    view(window).setFocus();
    QTest::keyClick(&view(window), Qt::Key_A, Qt::ControlModifier);
    window.findChild<QAction*>(QStringLiteral("mnuCopy"))->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("types\\TShips.txt\t%1\ntypes\\TWareT.txt\t%2\n")
                  .arg(native("data/types/TShips.txt"), native("data/types/TWareT.txt")));

    QStringList opened;
    QObject::connect(&window, &frmFiles::OpenRequested, &window,
                     [&](const std::string& name) { opened.append(QString::fromStdString(name)); });
    view(window).setCurrentIndex(view(window).model()->index(1, 0));
    QTest::keyClick(&view(window), Qt::Key_Return);
    EXPECT_EQ(opened, QStringList{QStringLiteral("types\\TWareT.txt")});
}

TEST_F(LoadedFiles, TheLauncherOpensTheFileInItsEditor) {
    frmMain launcher;
    launcher.MyShow({});
    auto* const show = launcher.findChild<QAction*>(QStringLiteral("mnuShowVFS"));
    show->trigger();
    show->trigger(); // the same window
    ASSERT_EQ(launcher.findChildren<frmFiles*>().size(), 1);
    auto* files = launcher.findChild<frmFiles*>();
    filter(*files, "types\\TWareT");
    ASSERT_EQ(rows(*files).size(), 1);
    view(*files).setCurrentIndex(view(*files).model()->index(0, 0));
    files->findChild<QAction*>(QStringLiteral("mnuOpen"))->trigger();
    ASSERT_EQ(editors().size(), 1);
    write("data/types/TWareT9.txt", wares);
    filter(*files, "types\\TWareT*");
    launcher.findChild<QAction*>(QStringLiteral("mnuReload"))->trigger();
    EXPECT_EQ(rows(*files).size(), 2); // lists the new view
    EXPECT_TRUE(launcher.close());
    EXPECT_FALSE(files->isVisible());
}

} // namespace
