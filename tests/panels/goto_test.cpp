// The way from a field to the record that it names, and back, through several windows.
#include "panels/paneltest.h"
#include "tdata/RecordReference.h"
#include "txteditor/Navigator.h"
#include "txteditor/panels/AllPanels.h"

namespace {

QString text(const char* words) {
    return QString::fromUtf8(words);
}

class GoTo : public EditorTest {
protected:
    GoTo() {
        write("data/types/TLaser.txt",
              file("50", {record(23, "LASER_A", {{9, "1"}}), record(23, "LASER_B", {{9, "7"}})}));
        write("data/types/TBullets.txt",
              file("53", {record(47, "BULLET_A"), record(47, "BULLET_B"), record(47, "BULLET_C")}));
        write("data/types/TShips.txt",
              file("49", {record(65, "SHIP_A", {{19, "0"}, {53, "0"}, {54, "0"}}),
                          record(65, "SHIP_B",
                                 {{19, "0"}, {22, "1"}, {30, "1"}, {53, "0"}, {54, "0"}})}));
        write("data/types/TShields.txt", file("50", {record(21, "SH_A"), record(21, "SH_B")}));
        write("data/types/TWareF.txt", file("48", {record(17, "BREAD"), record(17, "CAKE")}));
        write("data/types/WareLists.txt", "2;\r\n1;BREAD;\r\n3;SH_B;NOTHING;CAKE;\r\n");
        write("data/types/JobWings.txt", "5;101,100,999;\r\n");
        write("data/types/Jobs.txt",
              "10;\r\n" + job("100", {{18, "SHIP_B"}, {14, "1"}}) + job("101", {{13, "5"}}));
        EXPECT_NE(KeshVFS_CreateVFS(program("data")), 0);
        Archive = std::make_unique<clsArchive>();
    }
    ~GoTo() override {
        for (const auto& editor : windows)
            delete editor.data();
        Archive.reset();
    }

    using Values = QMap<int, QByteArray>;
    static QByteArray file(const QByteArray& version, const QList<QByteArray>& records) {
        return version + ";" + QByteArray::number(records.size()) + ";\r\n" + records.join("\r\n") +
               "\r\n";
    }
    static QByteArray record(int size, const QByteArray& name, const Values& own = {}) {
        QByteArray line;
        for (int i = 0; i < size - 1; ++i)
            line += own.value(i, "0") + ";";
        return line + name + ";";
    }
    static QByteArray job(const QByteArray& number, Values own) {
        own[0] = number;
        QByteArray line;
        for (int i = 0; i < 119; ++i)
            line += own.value(i, "0") + ";";
        return line + "name\r\n";
    }

    frmTXTEditor* open(const char* path = nullptr) {
        window = new frmTXTEditor(AllPanels());
        windows.append(window);
        window->setAttribute(Qt::WA_DeleteOnClose);
        navigator.Add(window);
        window->MyShow();
        QApplication::setActiveWindow(window);
        if (path)
            window->OpenFile(path);
        return window;
    }
    /// A view of the panel that is shown.
    [[nodiscard]] QTreeView* shownView(const char* name) const {
        for (auto* view : window->findChildren<QTreeView*>(QString::fromLatin1(name)))
            if (view->isVisible())
                return view;
        ADD_FAILURE() << name;
        return nullptr;
    }
    void showTab(const char* panel, int tab) const {
        window->findChild<QWidget*>(QString::fromLatin1(panel))
            ->findChild<QTabWidget*>(text("MainTab"))
            ->setCurrentIndex(tab);
    }
    QModelIndex select(const char* name, const char* label) const {
        QTreeView* view = shownView(name);
        const auto found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole,
                                                text(label), 1, Qt::MatchFixedString);
        EXPECT_FALSE(found.isEmpty()) << label;
        QApplication::setActiveWindow(window);
        view->setFocus();
        view->setCurrentIndex(found.value(0));
        return found.value(0);
    }
    void click(const char* name, const char* label) const {
        QTreeView* view = shownView(name);
        const QModelIndex row = select(name, label);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          view->visualRect(row).center());
        QCoreApplication::processEvents();
    }
    /// "file record" of the window that was opened last, or of another.
    [[nodiscard]] QString where(const frmTXTEditor* editor = nullptr) const {
        const frmTXTEditor& shown = editor ? *editor : *windows.last();
        const RecordPtr selected = shown.SelectedObject();
        const QString path = QString::fromStdString(shown.Parser().FileName);
        return path.section(u'\\', -1) + u' ' +
               QString::fromStdString(selected ? std::string(selected->ObjectName()) : "-");
    }
    void back() const { window->findChild<QAction*>(text("back"))->trigger(); }

    QList<QPointer<frmTXTEditor>> windows;
    Navigator navigator{[this] { return open(); }};
};

struct Way {
    const char* File;
    int Record;
    const char* Panel;
    int Tab; ///< -1 for a panel without
    const char* View;
    const char* Row;
    const char* Where;
};
const Way ways[] = {
    {"TLaser.txt", 0, "WareEdit", -1, "PropView", "Projectile", "TBullets.txt BULLET_B"},
    {"TShips.txt", 1, "ShipEdit", 3, "WeaponView", "Shield type", "TShields.txt SH_B"},
    {"TShips.txt", 1, "ShipEdit", 8, "WareListView", "CAKE", "TWareF.txt CAKE"},
    {"WareLists.txt", 1, "WareListEdit", -1, "WareListView", "SH_B", "TShields.txt SH_B"},
    {"Jobs.txt", 0, "JobEdit", 6, "WareListView", "CAKE", "TWareF.txt CAKE"},
};

TEST_F(GoTo, LeadsFromRowsToRecordsAndBack) {
    for (const Way& way : ways) {
        SCOPED_TRACE(way.Where);
        open(("vfs://types\\" + std::string(way.File)).c_str());
        frmTXTEditor* const first = window;
        pick("ObjectView", way.Record);
        if (way.Tab >= 0)
            showTab(way.Panel, way.Tab);
        const QString start = where(first);
        click(way.View, way.Row);
        ASSERT_NE(windows.last(), first);
        EXPECT_EQ(where(), text(way.Where));
        const auto open = windows.size();
        window = first;
        pick("ObjectView", way.Record == 0 ? 1 : 0);
        window = windows.last();
        back();
        EXPECT_EQ(where(first), start);
        EXPECT_FALSE(navigator.CanGoBack());

        window = first;
        select(way.View, way.Row);
        QTest::keyClick(shownView(way.View), Qt::Key_F12);
        EXPECT_EQ(windows.size(), open) << "the window that has the file is used";
        delete windows.takeLast().data();
        delete windows.takeLast().data();
        navigator.Back(); // opens the first again
        EXPECT_EQ(where(), start);
        delete windows.takeLast().data();
    }
}

/// How a user asks for what a widget names.
struct Ask {
    const char* By;
    void (*Do)(QWidget& Asked, const QPoint& Place);
};
const Ask asks[] = {
    {"Ctrl+click",
     [](QWidget& asked, const QPoint& place) { // of the window, which knows that Ctrl is held
         QWindow* window = asked.window()->windowHandle();
         const QPoint there = asked.mapTo(asked.window(), place);
         QTest::mouseClick(window, Qt::LeftButton, Qt::ControlModifier, there);
         QTest::mouseMove(window, there);
     }},
    {"F12", [](QWidget& asked, const QPoint&) { QTest::keyClick(&asked, Qt::Key_F12); }},
    {"popup",
     [](QWidget& asked, const QPoint& place) {
         QTimer::singleShot(0, qApp, [] {
             auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
             ASSERT_TRUE(menu);
             EXPECT_TRUE(menu->actions().first()->text().startsWith(text("Go to ")));
             menu->setActiveAction(menu->actions().first());
             QTest::keyClick(menu, Qt::Key_Return);
         });
         QContextMenuEvent event(QContextMenuEvent::Mouse, place, asked.mapToGlobal(place));
         QCoreApplication::sendEvent(&asked, &event);
     }},
    {"button",
     [](QWidget& asked, const QPoint&) {
         for (auto* button : asked.window()->findChildren<QToolButton*>())
             if (button->isVisible() && button->defaultAction() &&
                 button->defaultAction()->objectName() == text("mnuGoTo"))
                 return QTest::mouseClick(button, Qt::LeftButton);
         ADD_FAILURE();
     }},
    {"double click", // in a list only
     [](QWidget& asked, const QPoint& place) {
         QTest::mouseDClick(&asked, Qt::LeftButton, {}, place);
     }},
};

TEST_F(GoTo, ListsAndBoxesAreAskedInEveryWay) {
    open("vfs://types\\WareLists.txt");
    frmTXTEditor* const lists = window;
    pick("ObjectView", 1);
    open("vfs://types\\Jobs.txt");
    frmTXTEditor* const jobs = window;
    pick("ObjectView", 0);
    showTab("JobEdit", 1);
    auto* ship = jobs->findChild<QComboBox*>(text("cmbShipTypeID"));
    for (const Ask& ask : asks) {
        SCOPED_TRACE(ask.By);
        window = lists;
        const QTreeView* entries = shownView("WareListView");
        ask.Do(*entries->viewport(), entries->visualRect(select("WareListView", "SH_B")).center());
        QCoreApplication::processEvents();
        EXPECT_EQ(where(), text("TShields.txt SH_B"));
        EXPECT_EQ(entries->selectionModel()->selectedRows().size(), 1);
        navigator.Back();
        if (&ask != std::end(asks) - 1) {
            QApplication::setActiveWindow(jobs);
            ship->setFocus();
            ask.Do(*ship->lineEdit(), {5, 5});
            QCoreApplication::processEvents();
            EXPECT_EQ(where(), text("TShips.txt SHIP_B"));
            navigator.Back();
        }
        EXPECT_FALSE(navigator.CanGoBack());
        while (windows.size() > 2)
            delete windows.takeLast().data();
    }
}

TEST_F(GoTo, UsesTheWindowThatHasTheFileAndShowsWhatAFilterHides) {
    open(program("data/types/TWareF.txt").c_str()); // by another path than the game's
    frmTXTEditor* const wares = window;
    window->findChild<QLineEdit*>(text("FilterEdit"))->setText(text("BREAD"));
    open("vfs://types\\WareLists.txt");
    frmTXTEditor* const lists = window;
    const std::pair<int, const char*> entries[] = {{1, "CAKE"}, {0, "BREAD"}, {1, "CAKE"}};
    for (const auto& [list, ware] : entries) {
        window = lists;
        pick("ObjectView", list);
        click("WareListView", ware);
        EXPECT_EQ(where(wares), text("TWareF.txt ") + text(ware));
        EXPECT_EQ(view("ObjectView")->selectionModel()->selectedRows().size(), 1);
    }
    EXPECT_EQ(windows.size(), 2);
    wares->close(); // a window of the way, which is not needed to return
    for (const int list : {1, 0, 1}) {
        navigator.Back();
        EXPECT_EQ(lists->SelectedObject()->Index, list);
    }
    EXPECT_FALSE(navigator.CanGoBack());
}

TEST_F(GoTo, RemembersAHundredWays) {
    open("vfs://types\\TShields.txt");
    pick("ObjectView", 0);
    const auto go = [&](int index) { navigator.GoTo(*window, {"TShields", index}); };
    go(0);
    EXPECT_FALSE(navigator.CanGoBack()) << "it was there already";
    for (int i = 1; i <= 103; ++i)
        go(i % 2);
    int steps = 0;
    for (; navigator.CanGoBack(); ++steps)
        back();
    EXPECT_EQ(steps, 100);
    EXPECT_EQ(window->SelectedObject()->Index, 1) << "the fourth of them";
}

TEST_F(GoTo, JobsLeadToWingsListsAndShipsAndToEachOther) {
    open("vfs://types\\Jobs.txt");
    frmTXTEditor* const jobs = window;
    pick("ObjectView", 1);
    showTab("JobEdit", 5);
    click("WingsView", "100");
    EXPECT_EQ(windows.size(), 1) << "it stands in the same file";
    EXPECT_EQ(jobs->SelectedObject()->Index, 0);
    showTab("JobEdit", 1);
    auto* ships = jobs->findChild<QComboBox*>(text("cmbShipTypeID"));
    ASSERT_TRUE(ships);
    ships->setFocus();
    QTest::keyClick(ships, Qt::Key_F12);
    EXPECT_EQ(where(), text("TShips.txt SHIP_B"));
    window = jobs;
    showTab("JobEdit", 0);
    click("PropView", "Warelist ID");
    EXPECT_EQ(windows.last()->SelectedObject()->Index, 1);
    EXPECT_EQ(windows.last()->Parser().otype(), otype::WareLists);
    back();
    window = jobs;
    pick("ObjectView", 1);
    click("PropView", "Job wings group ID");
    EXPECT_EQ(windows.last()->Parser().otype(), otype::JobWings);
    EXPECT_EQ(windows.last()->SelectedObject()->Index, 0);
}

TEST_F(GoTo, SaysWhatLeadsNowhere) {
    open("vfs://types\\TLaser.txt");
    frmTXTEditor* const lasers = window;
    pick("ObjectView", 1);
    const QAction* action = shownView("PropView")->findChild<QAction*>(text("mnuGoTo"));
    select("PropView", "Energy");
    EXPECT_FALSE(action->isEnabled());
    EXPECT_EQ(action->text(), text("Go to ..."));
    select("PropView", "Projectile");
    EXPECT_TRUE(action->isEnabled());
    EXPECT_EQ(action->text(), text("Go to TBullets: 7"));
    click("PropView", "Projectile");
    EXPECT_EQ(where(), text("TBullets.txt -"));
    const QString missing = text("The file \"TBullets\" has no such object.");
    EXPECT_EQ(windows.last()->statusBar()->currentMessage(), missing);
    window = lasers;
    click("PropView", "Projectile");
    EXPECT_EQ(lasers->statusBar()->currentMessage(), missing) << "who asked stays where he is";

    QFile::remove(native("data/types/TBullets.txt"));
    windows.last()->close();
    QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
    window = lasers;
    click("PropView", "Projectile");
    EXPECT_EQ(lasers->statusBar()->currentMessage(), text("The game has no file \"TBullets\"."));
    open("vfs://types\\WareLists.txt");
    pick("ObjectView", 1);
    select("WareListView", "NOTHING");
    QTest::keyClick(shownView("WareListView"), Qt::Key_Return);
    EXPECT_EQ(window->statusBar()->currentMessage(), text("There is no ware \"NOTHING\"."));
    EXPECT_FALSE(navigator.CanGoBack());
}

TEST_F(GoTo, ClicksWithCtrlBeginNoEntry) {
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(20); // after which a click on a selected row enters
    open("vfs://types\\TLaser.txt");
    pick("ObjectView", 1);
    for (const char* label : {"Energy", "Projectile"}) {
        QTreeView* fields = shownView("PropView");
        const QPoint place = fields->visualRect(select("PropView", label)).center();
        QTest::mouseClick(fields->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        QTest::mouseDClick(fields->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        QTest::qWait(60);
        EXPECT_FALSE(fields->findChild<QWidget*>(text("ValueEditor"))) << label;
    }
    QApplication::setDoubleClickInterval(interval);
}

TEST_F(GoTo, FindsThePlaceAgainInAChangedFile) {
    open("vfs://types\\TBullets.txt");
    frmTXTEditor* const bullets = window;
    pick("ObjectView", 0);
    script.Box(text("really want to delete"), Answer::Yes);
    trigger("mnuDel");
    open("vfs://types\\TLaser.txt");
    frmTXTEditor* const lasers = window;
    pick("ObjectView", 0);
    click("PropView", "Projectile");
    EXPECT_EQ(where(bullets), text("TBullets.txt BULLET_C")) << "by its place in the open file";
    window = lasers;
    script.Box(text("insert new object"), Answer::Yes);
    trigger("mnuNew");
    pick("ObjectView", 0);
    window = bullets;
    back();
    EXPECT_EQ(where(lasers), text("TLaser.txt LASER_A")) << "the same record, one place on";
    for (QPointer<frmTXTEditor>& editor : windows)
        delete editor.data();
}

TEST_F(GoTo, TakesWhatIsBeingEnteredBefore) {
    open("vfs://types\\TLaser.txt");
    frmTXTEditor* const lasers = window;
    pick("ObjectView", 0);
    select("PropView", "Projectile");
    QTreeView* fields = shownView("PropView");
    QTest::keyClick(fields, Qt::Key_F2);
    auto* entry = fields->findChild<QComboBox*>(text("ValueEditor"));
    ASSERT_TRUE(entry);
    entry->setEditText(text("2"));
    fields->findChild<QAction*>(text("mnuGoTo"))->trigger();
    EXPECT_EQ(where(), text("TBullets.txt BULLET_C"));

    write("own/TLaser.txt", "");
    window = lasers;
    script.Save(FileChoice{native("own/TLaser.txt"), 1});
    script.Box(text("already exists"), Answer::Yes);
    trigger("save");
    const auto count = windows.size();
    navigator.Back();
    EXPECT_EQ(windows.size(), count) << "the same window, under another name now";

    select("PropView", "Energy");
    QTest::keyClick(fields, Qt::Key_F2);
    QTest::keyClicks(fields->findChild<QLineEdit*>(text("ValueEditor")), text("much"));
    script.Box(text("must be whole number"));
    fields->findChild<QAction*>(text("mnuGoTo"))->trigger();
    EXPECT_FALSE(navigator.CanGoBack()) << "it is refused, and goes on";
}

TEST(RecordReference, FieldsThatNameNothingLeadNowhere) {
    clsTXTObject ship;
    ship.otype = otype::Ships;
    ship.Construct(65);
    EXPECT_EQ(ReferenceOf(ship, 22), (RecordAddress{"TShields", 0}));
    for (const char* none : {"-1", "x", "", "99999999999"}) {
        ship.SetValue(30, std::string(none));
        EXPECT_FALSE(ReferenceOf(ship, 30)) << none;
    }
    clsTXTObject job;
    job.otype = otype::Jobs;
    job.Construct(117);
    EXPECT_FALSE(ReferenceOf(job, 13)) << "no wing";
    job.SetValue(13, -1);
    EXPECT_FALSE(ReferenceOf(job, 13));
    EXPECT_FALSE(ReferenceOf(job, 200));
    EXPECT_FALSE(ReferenceOf(job, 18)) << "0";
    job.SetValue(18, std::string());
    EXPECT_FALSE(ReferenceOf(job, 18));
    clsTXTObject nothing;
    nothing.otype = otype::Laser;
    EXPECT_FALSE(ReferenceOf(nothing, 9));
}

} // namespace
