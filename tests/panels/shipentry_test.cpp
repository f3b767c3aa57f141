// What becomes of an entry, or of what is on view, when something else happens.
#include "panels/shippaneltest.h"

namespace {

/// Values from the count of turrets on: one turret with its group of one gun.
QMap<int, QByteArray> armed(const QByteArray& turretIndex, const QByteArray& guns) {
    return {{19, "1"},
            {53, "1;1;" + turretIndex + ";body;1"},
            {54, "1;1;" + guns + ";1;1;1;1;gun;1;;-1"}};
}

TEST_F(ShipPanel, AnotherShipEndsAnEntryThatWasRefused) {
    startWith("49", {ship("A", {}), ship("B", {})});
    pick("ObjectView", 0);
    const std::string before = record() + record(1);
    beginEntry("InfoView", QStringLiteral("Cargo max"), QStringLiteral("many"));
    script.Box(QStringLiteral("must be whole number"));
    pick("ObjectView", 1);
    EXPECT_TRUE(view("ObjectView")->hasFocus());
    QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    EXPECT_FALSE(editorIn("InfoView"));
    EXPECT_EQ(record() + record(1), before);
    EXPECT_EQ(value("InfoView", QStringLiteral("ID")), QStringLiteral("B"));
}

TEST_F(ShipPanel, OpeningAFileTakesWhatIsBeingEntered) {
    startWith("49", {ship("A", {})});
    write("other/TShips.txt", file("49", {ship("C", {})}));
    pick("ObjectView", 0);
    beginEntry("InfoView", QStringLiteral("Docking slots"), QStringLiteral("77"));
    script.Box(QStringLiteral("save"), Answer::Cancel); // there is something to save now
    window->OpenFile(program("other/TShips.txt"));
    EXPECT_EQ(value("InfoView", QStringLiteral("Docking slots")), QStringLiteral("77"));
}

TEST_F(ShipPanel, ASecondClickEntersInTheRowAndADoubleClickInTheDialogAlone) {
    startWith("49", {ship("A", {})});
    pick("ObjectView", 0);
    selectField("InfoView", QStringLiteral("Docking slots"));
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(20);
    bool alone = true;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, window,
                     [&] { alone = alone && !editorIn("InfoView"); });
    poll.start(1);
    QAbstractItemView* list = view("InfoView");
    const QPoint place = list->visualRect(list->currentIndex()).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    for (int i = 0; i < 100 && !editorIn("InfoView"); ++i)
        QTest::qWait(5);
    EXPECT_TRUE(editorIn("InfoView"));
    press(editorIn("InfoView"), Qt::Key_Escape);
    alone = true;
    QTimer::singleShot(100, qApp, [&] { // an entry in the row would have opened by now
        QApplication::activeModalWidget()->close();
    });
    EXPECT_FALSE(editorIn("InfoView"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    QApplication::setDoubleClickInterval(interval);
    EXPECT_TRUE(alone);
}

TEST_F(ShipPanel, ShowsNothingOfAnotherShipWhereOneCannotBeRead) {
    useFiles();
    startWith("49",
              {ship("A", armed("0", "1")), ship("B", armed("x", "1")), ship("C", armed("0", "y"))});
    pick("ObjectView", 0);
    for (const int tab : {4, 5})
        showTab(tab);
    pick("GunGroupView", 0);
    EXPECT_EQ(column("GunView").size(), 1);
    script.Box(QStringLiteral("Error loading ship data."));
    pick("ObjectView", 2);
    EXPECT_EQ(column("GunGroupView").size() + column("GunView").size(), 0);
    showTab(4);
    EXPECT_EQ(column("TurView").size(), 1);
    script.Box(QStringLiteral("ucShip->ShowTurrets: Error while displaying turret data"));
    pick("ObjectView", 1);
    EXPECT_EQ(column("TurView").size() + column("CockpView").size(), 0);
    QTest::keyClick(child<QWidget>("TurretPlan"), Qt::Key_Down);
}

TEST_F(ShipPanel, AnUnchangedCountLeavesTurretsAndGunsUsable) {
    startWith("49", {ship("A", armed("0", "1"))});
    pick("ObjectView", 0);
    for (const int tab : {5, 4, 3})
        showTab(tab);
    script.Box(QStringLiteral("Manually modifying this value"), Answer::Yes);
    beginEntry("WeaponView", QStringLiteral("Turret count"), {});
    press(editorIn("WeaponView"), Qt::Key_Escape);
    showTab(5);
    pick("GunGroupView", 0);
    EXPECT_EQ(column("GunView").size(), 1);
    showTab(4);
    pick("TurView", 0);
    script.Box(QStringLiteral("delete the turret idx=1"), Answer::Yes);
    trigger("delturret");
    EXPECT_EQ(column("TurView").size(), 0);
}

} // namespace
