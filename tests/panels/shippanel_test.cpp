// A window with a TShips file in it: what its tabs show, and what clicks and keys change.
#include "panels/shippaneltest.h"
#include "ui/frmText.h"

#include <QAbstractItemModelTester>

namespace {

TEST_F(ShipPanel, ShowsAShipOnNineTabs) {
    useFiles();
    startWith("49", {ship("SHIP_A", {{2, "0.5"},
                                     {5, "SG_SH_M3"},
                                     {7, "30000"},
                                     {8, "500"},
                                     {13, "150"},
                                     {20, "2000"},
                                     {21, "0.25"},
                                     {22, "0"},
                                     {23, "3"},
                                     {26, "2"},
                                     {45, "1"},
                                     {50, "0"},
                                     {52, "OBJ_SHIP_M3"}})});
    EXPECT_EQ(caption(), caption("TShips.txt", QStringLiteral("Ships v.49")));
    pick("ObjectView", 0);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("Argon SHIP_A"));
    QStringList captions;
    for (int tab = 0; tab < tabs()->count(); ++tab)
        captions.append(tabs()->tabText(tab));
    EXPECT_EQ(captions.join(u'|'),
              QStringLiteral("Info|Performance|Model|Weapons|Cockpits (turrets)|Guns|Front lasers|"
                             "Missiles|Wares"));
    EXPECT_TRUE(rows("InfoView")
                    .startsWith(QStringLiteral(
                        "ID=SHIP_A|Class=SG_SH_M3|Type=OBJ_SHIP_M3|Race=Argon|Cargo type=")));
    EXPECT_EQ(column("InfoView").size(), 1 + 9 + 9);
    EXPECT_EQ(view("PerformanceView")->model()->rowCount(), 0) << "hidden tabs wait";
    showTab(1);
    EXPECT_EQ(value("PerformanceView", QStringLiteral("Yaw")), QStringLiteral("30.0 rot/min"));
    EXPECT_EQ(value("PerformanceView", QStringLiteral("Speed")),
              QStringLiteral("60.00 - 72.00 m/s"));
    EXPECT_EQ(value("PerformanceView", QStringLiteral("Max recharge time")),
              QStringLiteral("SH_A x 3 = 16 s"));
    showTab(3);
    EXPECT_EQ(value("WeaponView", QStringLiteral("Shield type")), QStringLiteral("SH_A"));
    EXPECT_EQ(value("WeaponView", QStringLiteral("Weapons recharge rate")),
              QStringLiteral("500.000 W/s"));
    EXPECT_EQ(column("WeaponView", 2).join(u' '), QStringLiteral("22 23 20 21 25 19 53 54 18 24"));
    showTab(8);
    EXPECT_EQ(child<QLineEdit>("WareListIDEdit")->text(), QStringLiteral("030"));
    for (const char* list : {"InfoView", "PerformanceView", "TurView", "GunView"})
        const QAbstractItemModelTester tester(view(list)->model());
}

TEST_F(ShipPanel, SaysThatAShieldNeedsNothingWhenAllOtherRowsStand) {
    useFiles();
    startWith("49", {ship("A", {{13, "150"}, {22, "1"}, {23, "3"}})});
    showTab(1);
    script.Box(QStringLiteral("Error showing object: Division by zero"));
    pick("ObjectView", 0);
    EXPECT_EQ(column("PerformanceView").size(), 12);
    EXPECT_EQ(value("PerformanceView", QStringLiteral("Max recharge time")), QString());
}

struct EntryCase {
    int Tab;
    const char* View;
    const char* Row;
    const char* Entered;
    const char* Said; ///< a refusal, in place and in the dialog
    int Field;
    const char* Stored;
};

TEST_F(ShipPanel, TakesTheSameValuesInPlaceAndInTheDialog) {
    const EntryCase cases[] = {
        {1, "PerformanceView", "Speed", "60.001", "", 7, "30001"},
        {1, "PerformanceView", "Speed", "fast", "must be whole number", 7, "07"},
        {0, "InfoView", "Class", "SG_SH_NEW", "", 5, "SG_SH_NEW"},
        {0, "InfoView", "Class", "M1", "", 5, "SG_SH_M1"},
        {0, "InfoView", "Race", "Boron", "", 45, "2"},
        {2, "ModelView", "Ship scene", "a;b", "semicolon", 16, "016"},
        {0, "InfoView", "ID", "SHIP_B", "already used", 64, "SHIP_A"},
    };
    startWith("50", {ship("SHIP_A", {}), ship("SHIP_B", {})});
    pick("ObjectView", 0);
    const std::string before = record();
    for (const bool inPlace : {true, false})
        for (const EntryCase& c : cases) {
            SCOPED_TRACE(c.Entered);
            showTab(c.Tab);
            if (*c.Said)
                script.Box(QString::fromLatin1(c.Said));
            const QString row = QString::fromLatin1(c.Row);
            if (inPlace) {
                typeInPlace(c.View, row, QString::fromLatin1(c.Entered));
            } else {
                selectField(c.View, row);
                typeValue(QString::fromLatin1(c.Entered));
                key(c.View, Qt::Key_Return);
            }
            EXPECT_EQ(stored(c.Field), c.Stored);
            if (*c.Said) { // it is still open in its place
                if (QWidget* editor = editorIn(c.View))
                    press(editor, Qt::Key_Escape);
                continue;
            }
            trigger("undo");
            EXPECT_EQ(record(), before);
        }
}

TEST_F(ShipPanel, KeepsTheCargoInOrderAndAsksAboutCounts) {
    startWith("49", {ship("A", {{28, "10"}, {29, "20"}})});
    pick("ObjectView", 0);
    script.Box(
        QStringLiteral("\"Cargo max\" was modified to be equal to new \"Cargo min (buy)\" value."));
    typeInPlace("InfoView", QStringLiteral("Cargo min (buy)"), QStringLiteral("30"));
    EXPECT_EQ(stored(29), "30");
    trigger("undo");
    EXPECT_EQ(stored(28) + stored(29), "1020") << "one step";
    const std::string before = record();
    showTab(3);
    view("WeaponView")->setCurrentIndex(view("WeaponView")->model()->index(6, 0));
    script.Box(QStringLiteral("Manually modifying this value can corrupt ship data."), Answer::No);
    key("WeaponView", Qt::Key_Return);
    EXPECT_TRUE(script.Boxes.back().NoIsDefault);
    EXPECT_EQ(record(), before);
}

TEST_F(ShipPanel, AddsEditsAndRemovesTurretsAndGuns) {
    useFiles();
    startWith("49", {ship("A", {}), ship("B", {})});
    pick("ObjectView", 0);
    std::vector<std::string> states;
    const std::string other = record(1);
    const auto addState = [&] {
        clsShip ship(window->Parser().FindIndex(0));
        EXPECT_TRUE(ship.LoadObjects() && ship.Validate());
        states.push_back(record());
    };
    addState();
    showTab(5);
    script.Box(QStringLiteral("There are no turrets on this ship."));
    trigger("newgun");
    showTab(4);
    for (const char* body : {"front", "left"}) {
        answer<frmTurretEdit>({QString::fromLatin1(body), QStringLiteral("7")},
                              QStringLiteral("left"));
        key("TurView", Qt::Key_Insert);
        addState();
    }
    EXPECT_EQ(column("TurView", 6).join(u'|'), QStringLiteral("|left (3)"));
    EXPECT_EQ(column("CockpView", 1), QStringList(QStringLiteral("[cockpit not found]")));
    showTab(5);
    pick("GunGroupView", 1);
    answer<frmGunEdit>({QStringLiteral("3"), QStringLiteral("gun"), QStringLiteral("4"), {}, {}});
    trigger("newgun");
    addState();
    EXPECT_EQ(column("GunView", 1), QStringList(QStringLiteral("3")));
    EXPECT_EQ(stored(19), "3");
    child<QRadioButton>("rbGunView1")->click();
    EXPECT_EQ(view("GunView")->model()->columnCount(), 7);
    EXPECT_EQ(column("GunView", 6), QStringList(QStringLiteral("-1")));
    showTab(3);
    EXPECT_EQ(value("WeaponView", QStringLiteral("Gun group count")), QStringLiteral("2"));
    showTab(5);
    script.Box(QStringLiteral("Do you really want to delete the gun idx=1?"), Answer::Yes);
    key("GunView", Qt::Key_Delete);
    EXPECT_EQ(stored(19), "0");
    addState();
    showTab(4);
    pick("TurView", 0);
    script.Box(QStringLiteral("You can only delete the last turret in the list."));
    trigger("delturret");
    pick("TurView", 1);
    script.Box(QStringLiteral("delete the turret idx=2 (position=left) ?"), Answer::Yes);
    trigger("delturret");
    EXPECT_EQ(column("TurView").size(), 1);
    while (!states.empty()) {
        trigger("undo");
        EXPECT_EQ(record(), states.back());
        states.pop_back();
    }
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    EXPECT_EQ(column("TurView").size(), 0);
    EXPECT_EQ(record(1), other);
}

TEST_F(ShipPanel, RefusesAnEighthTurret) {
    startWith("49", {ship("A", {})});
    pick("ObjectView", 0);
    showTab(4);
    for (int i = 0; i < 7; ++i) {
        answer<frmTurretEdit>({QStringLiteral("body"), QStringLiteral("1")}, QStringLiteral("top"));
        trigger("newturret");
    }
    script.Box(QStringLiteral("Maximum number of turrets is 6 (+ front gun)"));
    trigger("newturret");
    EXPECT_EQ(column("TurView").size(), 7);
}

TEST_F(ShipPanel, ReportsWhatDoesNotFitAndLeadsToIt) {
    write("TShips.txt", file("49", {ship("A", {}), ship("B", {{19, "5"}})}));
    start({}, {panel});
    QTimer::singleShot(0, qApp, [] {
        auto* report = qobject_cast<frmText*>(QApplication::activeModalWidget());
        ASSERT_TRUE(report);
        EXPECT_EQ(report->Text().section(u'\n', 0, 0), QStringLiteral("Ship index 1, name \"B\":"));
        EXPECT_TRUE(report->Text().endsWith(
            QStringLiteral("Section numbers in file: turrets: 0, gun groups: 0, guns: 5.\n\n"
                           "Data in file TShips.txt are probably corrupted.")));
        auto* text = report->findChild<QPlainTextEdit*>();
        QTextCursor cursor = text->textCursor();
        cursor.movePosition(QTextCursor::Down);
        QTest::mouseDClick(text->viewport(), Qt::LeftButton, {}, text->cursorRect(cursor).center());
    });
    window->OpenFile(program("TShips.txt"));
    EXPECT_EQ(window->SelectedObject()->ObjectName(), "B");
}

TEST_F(ShipPanel, ReadOnlyItChangesNothing) {
    startWith("49", {ship("A", {})});
    pick("ObjectView", 0);
    const std::string before = record();
    const std::pair<const char*, const char*> lists[] = {{"InfoView", "Docking slots"},
                                                         {"PerformanceView", "Speed"},
                                                         {"ModelView", "Ship scene"},
                                                         {"WeaponView", "Shield type"}};
    for (int tab = 0; const auto& [list, row] : lists) {
        SCOPED_TRACE(list);
        showTab(tab++);
        panel->SetReadOnly(false);
        beginEntry(list, QString::fromLatin1(row), QStringLiteral("7"));
        panel->SetReadOnly(true); // gives it up
        QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
        EXPECT_FALSE(editorIn(list));
        key(list, Qt::Key_F2);
        EXPECT_FALSE(editorIn(list));
        key(list, Qt::Key_Return); // a dialog would stay
    }
    showTab(4);
    EXPECT_FALSE(child<QAction>("newturret")->isVisible());
    key("TurView", Qt::Key_Insert);
    showTab(8);
    QTest::mouseDClick(child<QLineEdit>("WareListIDEdit"), Qt::LeftButton);
    EXPECT_EQ(record(), before);
}

TEST_F(ShipPanel, TakesWhatIsBeingEnteredBeforeItSaves) {
    startWith("49", {ship("A", {})});
    pick("ObjectView", 0);
    beginEntry("InfoView", QStringLiteral("Docking slots"), QStringLiteral("77"));
    script.Save(FileChoice{native("saved.txt"), 1});
    trigger("save");
    EXPECT_TRUE(
        QString::fromStdString(content(native("saved.txt"))).contains(QStringLiteral(";77;")));
}

} // namespace
