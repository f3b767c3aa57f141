// A window with a WareLists file in it.
#include "panels/paneltest.h"
#include "txteditor/panels/ucWareList.h"

namespace {

using WareListPanel = PanelTest<ucWareList>;

TEST_F(WareListPanel, ShowsTheWaresOfTheListThatIsPicked) {
    write("data/types/TWareB.txt", wares({"SS_BREAD"}));
    openGame();
    startWithFile("WareLists.txt", "2;\r\n2;SS_BREAD;SS_NONE;\r\n1;SS_SALT;\r\n");
    EXPECT_EQ(caption(), caption("WareLists.txt", QStringLiteral("Ware List")));
    EXPECT_EQ(child<QTabWidget>("MainTab")->tabText(1), QStringLiteral("Ware List info"));
    pick("ObjectView", 0);
    EXPECT_EQ(rows("WareListView"), QStringLiteral("SS_BREAD=SS_BREAD|SS_NONE=SS_NONE"));
    pick("ObjectView", 1);
    EXPECT_EQ(rows("WareListView"), QStringLiteral("SS_SALT=SS_SALT"));
    panel->ShowObject({}, otype::WareLists);
    EXPECT_EQ(rows("WareListView"), QString());
}

TEST_F(WareListPanel, FollowsTheRawDataAndAddsNoList) {
    startWithFile("WareLists.txt", "1;\r\n2;SS_BREAD;SS_NONE;\r\n");
    editField(0, 1, QStringLiteral("SS_SALT"));
    EXPECT_EQ(column("WareListView", 1).join(u' '), QStringLiteral("SS_BREAD SS_SALT"));
    trigger("undo");
    EXPECT_EQ(column("WareListView", 1).join(u' '), QStringLiteral("SS_BREAD SS_NONE"));
    script.Box(QStringLiteral("before"), Answer::Yes);
    script.Box(QStringLiteral("none can be added"));
    trigger("mnuNew");
    EXPECT_EQ(window->Parser().ByIndex().size(), 1U);
}

} // namespace
