// A window with a WareLists file in it.
#include "panels/monkey.h"
#include "panels/paneltest.h"
#include "txteditor/panels/ucWareList.h"

#include <QSignalSpy>

namespace {

using WareListPanel = PanelTest<ucWareList>;

TEST_F(WareListPanel, ShowsTheWaresOfTheListThatIsPicked) {
    write("data/types/TWareB.txt", wares({"SS_BREAD"}));
    openGame();
    startWithFile("WareLists.txt", "3;\r\n2;SS_BREAD;SS_NONE;\r\n1;SS_SALT;\r\n0;\r\n");
    EXPECT_EQ(caption(), caption("WareLists.txt", QStringLiteral("Ware List")));
    EXPECT_EQ(child<QTabWidget>("MainTab")->tabText(1), QStringLiteral("Ware List info"));
    pick("ObjectView", 0);
    EXPECT_EQ(rows("WareListView"), QStringLiteral("SS_BREAD=SS_BREAD|SS_NONE=SS_NONE"));
    pick("ObjectView", 1);
    EXPECT_EQ(rows("WareListView"), QStringLiteral("SS_SALT=SS_SALT"));
    pick("ObjectView", 2);
    EXPECT_EQ(view("WareListView")->model()->columnCount(), 2);
    EXPECT_EQ(rows("WareListView"), QString());
    QTest::keyClick(view("WareListView"), Qt::Key_Return);
    panel->ShowObject({}, otype::WareLists);
    EXPECT_EQ(rows("WareListView"), QString());
}

TEST_F(WareListPanel, FollowsTheRawDataAndAddsNoList) {
    startWithFile("WareLists.txt", "1;\r\n2;SS_BREAD;SS_NONE;\r\n");
    editField(0, 1, QStringLiteral("SS_SALT"));
    EXPECT_EQ(column("WareListView", 1).join(u' '), QStringLiteral("SS_BREAD SS_SALT"));
    auto* list = child<QTreeView>("WareListView");
    const int narrow = list->columnWidth(1);
    editField(0, 1, QStringLiteral("SS_WITH_A_LONG_NAME_\u00E4"));
    EXPECT_GT(list->columnWidth(1), narrow);
    const QModelIndex row = list->model()->index(1, 0);
    EXPECT_EQ(row.data(Qt::UserRole), QVariant(QStringLiteral("SS_WITH_A_LONG_NAME_\u00E4")));
    EXPECT_TRUE(row.data(Qt::UserRole + 1).toByteArray().endsWith('\xE4'));
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(column("WareListView", 1).join(u' '), QStringLiteral("SS_BREAD SS_NONE"));
    script.Box(QStringLiteral("before"), Answer::Yes);
    script.Box(QStringLiteral("none can be added"));
    trigger("mnuNew");
    EXPECT_EQ(window->Parser().ByIndex().size(), 1U);
}

TEST_F(WareListPanel, ADoubleClickAcrossTwoRowsLeadsNowhere) {
    startWithFile("WareLists.txt", "1;\r\n2;SS_BREAD;SS_SALT;\r\n");
    pick("ObjectView", 0);
    auto* list = child<QTreeView>("WareListView");
    const QSignalSpy asked(panel, &ObjectEditor::GoToAsked);
    for (const int row : {1, 0}) {
        list->setCurrentIndex(list->model()->index(0, 0)); // where the first click was
        const QPointF place = list->visualRect(list->model()->index(row, 0)).center();
        QMouseEvent second(QEvent::MouseButtonDblClick, place, list->viewport()->mapToGlobal(place),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list->viewport(), &second);
        EXPECT_EQ(asked.count(), row == 0 ? 1 : 0);
    }
}

TEST_F(WareListPanel, LivesThroughClicksWithBrokenFiles) {
    write("data/types/TWareB.txt", "48;9;\r\n1;2;\r\n");
    write("data/types/TLaser.txt", "");
    openGame();
    startWithFile("WareLists.txt", "3;\r\n2;;\xE9;\r\n0;\r\n1;SS_SALT;\r\n");
    const std::string before = record() + record(1) + record(2);
    Monkey monkey(3);
    for (int step = 0; step < 150; ++step) {
        if (step % 10 == 0)
            pick("ObjectView", monkey.Below(3));
        monkey.Step(*panel);
    }
    EXPECT_EQ(record() + record(1) + record(2), before);
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

} // namespace
