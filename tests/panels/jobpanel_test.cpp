// A window with a Jobs file in it.
#include "panels/monkey.h"
#include "panels/paneltest.h"
#include "support/gametexts.h"
#include "tdata/mdlKeshJobs.h"
#include "txteditor/panels/ucJob.h"

#include <random>

namespace {

constexpr int sizes[] = {120, 119, 117};

struct BoxRow {
    const char* Name;
    int First;
    int Count;
    int Tab;
    const char* Captions;
};
constexpr BoxRow boxRows[] = {
    {"chkShipNameFlags", 9, 4, jobtabs::Info, "Race,Corporation,Ship Type,Variant Name"},
    {"chkShipClass", 19, 9, jobtabs::Ship, "M1,M2,M3,M4,M5,M6,TP,TS,TL"},
    {"chkShipRace", 28, 10, jobtabs::Ship,
     "Argon,Boron,Split,Paranid,Teladi,Xenon,Pirates,Khaak,Goner,Yaki"},
    {"chkShipVariant", 38, 17, jobtabs::Ship,
     "Basic,1,2,Hauler,Tug && tow,5,6,7,8,9,10,11,12,13,14,15,16"},
    {"chkSectorFlags", 58, 6, jobtabs::Sector,
     "Is owner's sector,Is core sector,Has shipyard,Has owner's stations,Not enemy sector,Is "
     "border sector"},
    {"chkSectorFlagsInverted", 64, 1, jobtabs::Sector, "Invert sector flags"},
    {"chkSectorCreationFlags", 67, 5, jobtabs::Sector,
     "Create in shipyard,Create in gate,Create inside sector,Create outside sector,Create NULL"},
    {"chkOwnerRace", 78, 10, jobtabs::Race,
     "Argon,Boron,Split,Paranid,Teladi,Xenon,Khaak,Goner,Yaki,Pirate"},
    {"chkWeaponAllowDrones", 90, 1, jobtabs::Weapons, "Fighter Drones"},
    {"chkWeaponForbid", 91, 5, jobtabs::Weapons,
     "Impulse Ray Emmiter,Particle Accelerator Cannon,High Energy Plasma Thrower,Photon Pulse "
     "Cannon,Kyon Emmiter"},
    {"chkWeaponAllow", 96, 8, jobtabs::Weapons,
     "Mass Driver,PSG,Ion Disruptor,Flak,IH,Mining las.,Tug,Repair las."},
    {"chkPlacementVarious", 110, 5, jobtabs::Sector,
     "Is invincible,Is hidden pirate,Destroy OOS,Rebuild in new sector,Fly average speed"},
};

class JobPanel : public PanelTest<ucJob> {
protected:
    using Values = QMap<int, QByteArray>; ///< by logical field

    /// A job whose zeros have a spelling of their own, and whose name may hold anything.
    static QByteArray job(int size, const Values& own) {
        QByteArray text;
        for (int place = 0; place < size - 1; ++place)
            text += own.value(JobLogicalIndex(size, place), "00") + ";";
        return text + own.value(119, "Night; ferry // by \xE4");
    }
    static QByteArray version(int size) { return size == 120 ? "10" : size == 119 ? "9" : "8"; }
    /// In a new window.
    void startWith(int size, const QList<Values>& jobs) {
        if (window) {
            delete window.data();
            panel = new ucJob;
        }
        QByteArray text = version(size) + ";\r\n";
        for (const Values& values : jobs)
            text += job(size, values) + "\r\n";
        startWithFile("Jobs.txt", text);
        if (size < 120)
            script.Box(QStringLiteral("Warning - this is old Job file (ver. %1)\n\nIt's possible "
                                      "that not all user controls will behave correctly.")
                           .arg(QString::fromLatin1(version(size))));
        pick("ObjectView", 0);
    }
    [[nodiscard]] QCheckBox* box(const BoxRow& row, int place) const {
        const QByteArray number = row.Count > 1 ? QByteArray::number(place) : QByteArray();
        return child<QCheckBox>((row.Name + number).constData());
    }
    /// The logical field's value in the record.
    [[nodiscard]] std::string field(int logical, int index = 0) const {
        const RecordPtr found = window->Parser().FindIndex(index);
        return std::string(found->ValueText(JobPhysicalIndex(found->size(), logical)));
    }
    [[nodiscard]] QComboBox* ships() const { return child<QComboBox>("cmbShipTypeID"); }
    [[nodiscard]] QString summary() const { return label("lblSummary"); }
    void useShips() {
        QByteArray text = "49;4;\r\n";
        for (const char* own : {"SHIP_A;7;1;0;SG_SH_M3", "SHIP_B;7;19;3;SG_SH_TL_P",
                                "F\xE4HRE;99;2;0;0", "SHIP_C;7;1;0;SG_SH_M7"}) {
            const QList<QByteArray> parts = QByteArray(own).split(';');
            for (int i = 0; i < 64; ++i)
                text += (i == 5    ? parts[4]
                         : i == 6  ? parts[1]
                         : i == 45 ? parts[2]
                         : i == 50 ? parts[3]
                                   : "0") +
                        ";";
            text += parts[0] + ";\r\n";
        }
        write("data/types/TShips.txt", text);
        write("data/types/JobWings.txt",
              "5;100,7,6;\r\n6;" + QByteArray("100,").repeated(2999) + "100;\r\n");
        write("data/types/WareLists.txt", "1;\r\n1;SS_SALT;\r\n");
        openGame();
    }
};

TEST_F(JobPanel, ShowsTheFieldsOfAJob) {
    const support::GameTexts texts("<page id=\"17\"><string id=\"5\">Falcon</string>"
                                   "<string id=\"6\">Salt run</string></page>");
    Settings->SetLoadDescriptions(true);
    startWith(120, {{{0, "100"},
                     {1, "RUN"},
                     {2, "3"},
                     {3, "2"},
                     {6, "6"},
                     {8, "5"},
                     {17, "60"},
                     {18, ""},
                     {21, "1"},
                     {22, "1"},
                     {28, "1"},
                     {85, "1"},
                     {65, "4"},
                     {89, "25"}}});
    EXPECT_EQ(caption(), caption("Jobs.txt", QStringLiteral("Jobs v.10")));
    EXPECT_EQ(child<QTabWidget>("MainTab")->tabText(1), QStringLiteral("Job info"));
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("Falcon Salt run"));
    child<QRadioButton>("rbName2")->click();
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("100 - Falcon Salt run"));
    EXPECT_TRUE(
        rows("PropView").startsWith(QStringLiteral("ID=100|Name=RUN|Description text=Salt run|")));
    EXPECT_EQ(column("PropView", 2).join(u' '),
              QStringLiteral("0 1  6 4 5 2 3 13 14 15 16 17 55 56 57 109 73"));
    EXPECT_EQ(child<QLineEdit>("ShipNameIDEdit")->text(), QStringLiteral("5"));
    EXPECT_EQ(label("lblShipName"), QStringLiteral("Falcon"));
    EXPECT_EQ(summary(), QStringLiteral("up to 3, 2 in a sector; M3, M4 of Argon; owned by Goner; "
                                        "sector 4, 0; respawns after 60"));
    showTab(jobtabs::Weapons);
    EXPECT_EQ(column("EquipView", 2).join(u' '), QStringLiteral("88 89 106 107 108 74 75 76 77"));
    EXPECT_EQ(value("EquipView", QStringLiteral("Laser")), QStringLiteral("25"));
    panel->ShowObject({}, otype::Jobs);
    EXPECT_EQ(rows("EquipView") + summary() + label("lblShipName"), QString());
    EXPECT_FALSE(ships()->isEnabled());
}

TEST_F(JobPanel, ShowsAllOfALongSummary) {
    Values set{{18, "A_SHIP_OF_SUCH_A_LONG_NAME_THAT_IT_FILLS_A_LINE_OF_ITS_OWN"}};
    for (const BoxRow& row : boxRows)
        for (int place = 0; place < row.Count; ++place)
            set[row.First + place] = "1";
    startWith(120, {set});
    const auto* text = child<QLabel>("lblSummary");
    const int wide = text->height();
    window->resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_GT(text->height(), wide);
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

TEST_F(JobPanel, EachBoxStandsForItsField) {
    for (const int size : sizes) {
        startWith(size, {{}});
        const std::string before = record();
        for (const BoxRow& row : boxRows)
            for (int place = 0; place < row.Count; ++place) {
                SCOPED_TRACE(testing::Message() << size << row.Name << place);
                showTab(row.Tab);
                box(row, place)->setFocus();
                QTest::keyClick(box(row, place), Qt::Key_Space);
                QStringList values = QString::fromLatin1(before).split(u';');
                values[JobPhysicalIndex(size, row.First + place)] = QStringLiteral("1");
                EXPECT_EQ(QString::fromLatin1(record()), values.join(u';'));
                EXPECT_TRUE(box(row, place)->isChecked());
                trigger("undo");
                EXPECT_EQ(record(), before);
                EXPECT_FALSE(box(row, place)->isChecked());
            }
        EXPECT_FALSE(child<QAction>("undo")->isEnabled());
    }
}

TEST_F(JobPanel, CallsItsBoxesByNameAndByTheTextsOfVariants) {
    const auto captions = [this](const BoxRow& row) {
        QStringList texts;
        for (int place = 0; place < row.Count; ++place)
            texts.append(box(row, place)->text());
        return texts.join(u',');
    };
    {
        const support::GameTexts texts("<page id=\"17\"><string id=\"10003\">Hauler</string>"
                                       "<string id=\"10004\">Tug &amp; tow</string></page>");
        startWith(120, {{}});
        for (const BoxRow& row : boxRows)
            EXPECT_EQ(captions(row), QString::fromLatin1(row.Captions));
    }
    window->OpenFile(program("Jobs.txt")); // with other texts
    EXPECT_TRUE(captions(boxRows[3]).startsWith(QStringLiteral("Basic,1,2,3,4,5,")));
}

TEST_F(JobPanel, ABoxForAMissingFieldShowsItsNeighbour) {
    startWith(117, {{{37, "1"}}});
    const BoxRow& races = boxRows[2];
    EXPECT_TRUE(box(races, 8)->isChecked());
    EXPECT_TRUE(box(races, 8)->toolTip().contains(QStringLiteral("Yaki")));
    const auto hue = static_cast<int>(column("PropView").indexOf(QStringLiteral("Color - Hue")));
    EXPECT_TRUE(view("PropView")
                    ->model()
                    ->index(hue, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("field 54")));
    showTab(jobtabs::Ship);
    QTest::keyClick(box(races, 8), Qt::Key_Space);
    EXPECT_FALSE(box(races, 9)->isChecked());
}

TEST_F(JobPanel, KeepsWhatIsNeitherYesNorNoUntilAClick) {
    struct Case {
        const char* Stored;
        bool Shown;
        const char* Clicked;
    };
    const std::string longText = std::string(99, 'x') + "\xC3\xA4"; // the tip ends in a letter
    const Case cases[] = {{"2", true, "0"},
                          {"yes", false, "1"},
                          {"", false, "1"},
                          {"0.5", true, "0"},
                          {longText.c_str(), false, "1"}};
    for (const Case& c : cases) {
        startWith(120, {{{78, c.Stored}}});
        showTab(jobtabs::Race);
        QCheckBox* race = child<QCheckBox>("chkOwnerRace0");
        EXPECT_EQ(race->isChecked(), c.Shown);
        EXPECT_EQ(field(78), c.Stored);
        EXPECT_TRUE(race->toolTip().contains(QString::fromUtf8(c.Stored).left(99)));
        EXPECT_FALSE(race->toolTip().contains(QChar(0xC3)));
        QTest::keyClick(race, Qt::Key_Space);
        EXPECT_EQ(field(78), c.Clicked);
        trigger("undo");
        EXPECT_EQ(field(78), c.Stored);
    }
}

TEST_F(JobPanel, OneClassificationAtATime) {
    startWith(119, {{{115, "1"}, {116, "x"}}});
    showTab(jobtabs::Ship);
    EXPECT_TRUE(child<QRadioButton>("rbShipClassification0")->isChecked());
    const std::string before = record();
    QTest::keyClick(child<QRadioButton>("rbShipClassification2"), Qt::Key_Space);
    EXPECT_EQ(field(115) + field(116) + field(117) + field(118), "00100");
    trigger("undo");
    EXPECT_EQ(record(), before);
    EXPECT_TRUE(child<QRadioButton>("rbShipClassification0")->isChecked());
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

TEST_F(JobPanel, EntersFieldsOfEachVersion) {
    struct Case {
        const char* View;
        const char* Row;
        int Tab;
        int Field;
        const char* Entered;
    };
    const Case cases[] = {
        {"PropView", "Script function file", jobtabs::Info, 4, "dir/file//x"},
        {"PropView", "Name", jobtabs::Info, 1, "two words"},
        {"PropView", "Color - Saturation", jobtabs::Info, 56, "-1"},
        {"PropView", "NPC ID", jobtabs::Info, 109, "7"},
        {"EquipView", "Laser", jobtabs::Weapons, 89, "40"},
    };
    for (const int size : sizes) {
        startWith(size, {{}});
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << size << c.Row);
            showTab(c.Tab);
            const QString row = QString::fromLatin1(c.Row);
            typeInPlace(c.View, row, QString::fromLatin1(c.Entered) + u' ');
            EXPECT_EQ(field(c.Field), c.Entered);
            EXPECT_EQ(value(c.View, row), QString::fromLatin1(c.Entered));
            trigger("undo");
            selectField(c.View, row);
            typeValue(QString::fromLatin1(c.Entered));
            key(c.View, Qt::Key_Return);
            EXPECT_EQ(field(c.Field), c.Entered);
        }
        showTab(jobtabs::Sector);
        typeValue(QStringLiteral("33"));
        QTest::mouseDClick(child<QLineEdit>("ChanceDockedEdit"), Qt::LeftButton);
        EXPECT_EQ(field(72), "33");
        EXPECT_EQ(child<QLineEdit>("ChanceDockedEdit")->text(), QStringLiteral("33"));
    }
}

TEST_F(JobPanel, ARefusedEntryIsToldOnceByOneAction) {
    const auto click = [&](QWidget* widget, QPoint place, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(widget, Qt::LeftButton, keys, place);
    };
    const auto row = [&](Qt::KeyboardModifiers keys) {
        click(view("PropView")->viewport(),
              view("PropView")->visualRect(view("PropView")->model()->index(8, 1)).center(), keys);
    };
    struct Case {
        const char* Name;
        std::function<void()> Action;
        bool Stays; ///< what was typed
    };
    const Case cases[] = {
        {"Enter", [&] { press(editorIn("PropView"), Qt::Key_Return); }, true},
        {"Tab", [&] { press(editorIn("PropView"), Qt::Key_Tab); }, true},
        {"box",
         [&] {
             click(box(boxRows[0], 0), {5, 5});
         },
         true},
        {"row", [&] { row({}); }, true},
        {"row with Ctrl", [&] { row(Qt::ControlModifier); }, true},
        {"edit",
         [&] {
             click(child<QLineEdit>("ShipNameIDEdit"), {5, 5});
         },
         true},
        {"tab", [&] { click(tabs()->tabBar(), tabs()->tabBar()->tabRect(1).center()); }, true},
        {"raw data", [&] { child<QTabWidget>("MainTab")->setCurrentIndex(0); }, true},
        {"save", [&] { trigger("save"); }, true},
        {"filter",
         [&] {
             click(child<QLineEdit>("FilterEdit"), {5, 5});
         },
         true},
        {"new", [&] { trigger("mnuNew"); }, true},
        {"sort",
         [&] {
             click(child<QCheckBox>("chkSort"), {5, 5});
         },
         true},
        {"record", [&] { pick("ObjectView", 1); }, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        startWith(120, {{}, {}});
        beginEntry("PropView", QStringLiteral("Max # of jobs"), QStringLiteral("many"));
        script.Box(QStringLiteral("must be whole number"));
        c.Action();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
        EXPECT_EQ(tabs()->currentIndex(), int(jobtabs::Info));
        EXPECT_EQ(editorIn("PropView") != nullptr, c.Stays);
        EXPECT_EQ(QApplication::focusWidget() == editorIn("PropView"), c.Stays);
        if (c.Stays)
            press(editorIn("PropView"), Qt::Key_Escape);
    }
}

TEST_F(JobPanel, FindsAShipByAnyPartOfItsName) {
    const support::GameTexts texts("<page id=\"17\"><string id=\"7\">Ferry</string>"
                                   "<string id=\"10003\">Hauler</string></page>");
    useShips();
    Settings->SetLoadDescriptions(true);
    startWith(120, {{{18, "SHIP_C"}}, {{18, "SHIP_GONE"}}, {{18, ""}}});
    showTab(jobtabs::Ship);
    EXPECT_EQ(ships()->count(), 5);
    EXPECT_EQ(ships()->itemText(2), QStringLiteral("Yaki Ferry (Hauler)"));
    EXPECT_EQ(ships()->currentText(), QStringLiteral("Argon Ferry"));
    const auto enter = [&](const char* text) {
        ships()->setFocus();
        ships()->lineEdit()->selectAll();
        for (const char sign : QByteArray(text))
            if (static_cast<unsigned char>(sign) < 0x80)
                QTest::keyClick(ships()->lineEdit(), sign);
            else
                ships()->lineEdit()->insert(QString(QLatin1Char(sign)));
        ships()->completer()->popup()->hide();
    };
    struct Case {
        const char* Typed;
        const char* Stored;
    };
    const Case cases[] = {{"no ship", "SHIP_C"},          {"argon ferry", "SHIP_C"},
                          {"ship_b", "SHIP_B"},           {"[empty]", ""},
                          {"boron f\xE4hre", "F\xE4HRE"}, {"", "F\xE4HRE"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Typed);
        enter(c.Typed);
        QTest::keyClick(ships()->lineEdit(), Qt::Key_Return);
        EXPECT_EQ(field(18), c.Stored);
    }
    EXPECT_EQ(ships()->currentText(), QString::fromLatin1("Boron F\xE4HRE"));
    enter("hau");
    QTest::keyClick(ships()->lineEdit(), 'l');
    QAbstractItemView* popup = ships()->completer()->popup();
    EXPECT_EQ(popup->model()->rowCount(), 1);
    for (const auto code : {Qt::Key_Tab, Qt::Key_Return}) {
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, code);
        EXPECT_EQ(field(18), "SHIP_B") << code;
        trigger("undo");
        enter("hau");
        QTest::keyClick(ships()->lineEdit(), 'l');
    }
    QTest::keyClick(ships()->lineEdit(), Qt::Key_Escape);
    QTest::keyClick(ships()->lineEdit(), Qt::Key_Escape);
    EXPECT_EQ(ships()->currentText(), QString::fromLatin1("Boron F\xE4HRE"));
    popup->hide();
    for (const auto& [code, stored] :
         {std::pair(Qt::Key_Down, "SHIP_C"), {Qt::Key_Z, "F\xE4HRE"}}) {
        QTest::keyClick(ships(), code, code == Qt::Key_Z ? Qt::ControlModifier : Qt::NoModifier);
        EXPECT_EQ(field(18), stored);
    }
    EXPECT_EQ(view("ObjectView")->selectionModel()->selectedRows().size(), 1); // Ctrl or not
    enter("Yaki Ferry (Hauler)"); // and on to another record
    pick("ObjectView", 1);
    EXPECT_EQ(field(18), "SHIP_B");
    EXPECT_EQ(ships()->currentText(), QStringLiteral("SHIP_GONE (not found)"));
    QTest::keyClick(ships(), Qt::Key_Down);
    enter("x");
    QTest::keyClick(ships()->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(field(18, 1), "SHIP_GONE");
    pick("ObjectView", 2);
    EXPECT_EQ(ships()->currentText(), QStringLiteral("[empty]"));
}

TEST_F(JobPanel, FollowsWingAndWareList) {
    useShips();
    startWith(120, {{{0, "100"}, {1, "FIRST"}, {13, "5"}, {14, "0"}},
                    {{13, "9"}, {14, "x"}},
                    {{0, "200"}, {13, "6"}}});
    showTab(jobtabs::Wings);
    EXPECT_EQ(rows("WingsView"), QStringLiteral("100=FIRST|7 (not found)=|6 (not found)="));
    showTab(jobtabs::Wares);
    EXPECT_EQ(rows("WareListView"), QStringLiteral("SS_SALT=SS_SALT"));
    const auto heading = [&](const char* name) {
        return view(name)->model()->headerData(0, Qt::Horizontal).toString();
    };
    pick("ObjectView", 1);
    EXPECT_EQ(heading("WareListView"), QStringLiteral("Ware list x not found"));
    showTab(jobtabs::Wings);
    EXPECT_EQ(heading("WingsView"), QStringLiteral("Wing 9 not found"));
    pick("ObjectView", 2); // its wing has the number of a job that ends another one
    EXPECT_EQ(column("WingsView", 1), QStringList(3000, QStringLiteral("FIRST")));
}

TEST_F(JobPanel, WarnsOnceOfAnOldFile) {
    startWith(117, {{}, {}});
    EXPECT_EQ(script.Boxes.size(), 1U);
    pick("ObjectView", 1);
    window->OpenFile(program("Jobs.txt"));
    pick("ObjectView", 0);
    EXPECT_EQ(script.Boxes.size(), 1U);
}

TEST_F(JobPanel, TellsOfAJobByItsNumber) {
    startWith(120, {{{0, "41"}}, {{0, "42"}}});
    script.Box(QStringLiteral("Do you really want to delete the selected object 41 ?"),
               Answer::Yes);
    QTest::keyClick(view("ObjectView"), Qt::Key_Delete);
    EXPECT_EQ(field(0), "42");
    EXPECT_EQ(child<QAction>("undo")->text(), QStringLiteral("&Undo deletion of 41"));
    trigger("undo");
    EXPECT_EQ(field(0), "41");
    pick("ObjectView", 0);
    QTest::mouseClick(box(boxRows[0], 0), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(child<QAction>("undo")->text(), QStringLiteral("&Undo change of 41"));
    QObject::connect(panel, &ucJob::OnObjectChanged, window,
                     [](const RecordPtr&) { throw KeshError(errnum::General, "test", "no room"); });
    script.Box(QStringLiteral("Error in key handler: no room"));
    QTest::mouseClick(box(boxRows[0], 1), Qt::LeftButton, {}, {5, 5});
}

TEST_F(JobPanel, AddsJobsOfTheVersionWithTheNextNumber) {
    for (const int size : sizes) {
        startWith(size, {{{0, "41"}}});
        script.Box(QStringLiteral("before"), Answer::Yes);
        trigger("mnuNew");
        const RecordPtr made = window->Parser().FindIndex(0);
        EXPECT_EQ(made->size(), size);
        EXPECT_EQ(field(0) + field(1), "42NEW JOB");
        EXPECT_EQ(window->SelectedObject(), made);
        trigger("undo");
        EXPECT_EQ(field(0), "41");
    }
    clsTxtParser other;
    EXPECT_FALSE(panel->CreateObject(otype::Jobs, other, {}));
    EXPECT_EQ(panel->GetLastError(), "Unkown object size for Job version 0");
    EXPECT_TRUE(other.ByIndex().empty());
}

TEST_F(JobPanel, FiltersByOwnerClassAndNumber) {
    startWith(
        120,
        {{{0, "107"}, {1, "PATROL"}, {78, "1"}}, {{0, "8"}, {86, "1"}, {21, "1"}}, {{21, "1"}}});
    auto* owner = child<QComboBox>("cmbFilter0");
    auto* shipClass = child<QComboBox>("cmbFilter1");
    child<QRadioButton>("rbName2")->click();
    shipClass->setCurrentIndex(shipClass->findText(QStringLiteral("M3")));
    EXPECT_EQ(column("ObjectView").size(), 2);
    owner->setCurrentIndex(owner->findText(QStringLiteral("Yaki")));
    EXPECT_EQ(column("ObjectView"), QStringList(QStringLiteral("8 - ")));
    owner->setCurrentIndex(0);
    shipClass->setCurrentIndex(0);
    for (const char* found : {"107", "patrol"}) {
        child<QLineEdit>("FilterEdit")->setText(QString::fromLatin1(found));
        EXPECT_EQ(column("ObjectView"), QStringList(QStringLiteral("107 - "))) << found;
    }
}

TEST_F(JobPanel, AFixedShipPassesByItsOwnClass) {
    useShips(); // of classes M3, TL of pirates, TL of old files, and none that jobs know
    startWith(120, {{{0, "1"}, {18, "SHIP_A"}, {27, "1"}},
                    {{0, "2"}, {18, "SHIP_B"}, {21, "1"}},
                    {{0, "3"}, {18, "F\xE4HRE"}},
                    {{0, "4"}, {18, "SHIP_C"}, {21, "1"}},
                    {{0, "5"}, {18, "SHIP_GONE"}, {21, "1"}}});
    auto* shipClass = child<QComboBox>("cmbFilter1");
    child<QRadioButton>("rbName2")->click();
    for (const auto& [name, jobs] : {std::pair("M3", "1 - 5 - "), {"TL", "2 - 3 - "}}) {
        shipClass->setCurrentIndex(shipClass->findText(QString::fromLatin1(name)));
        EXPECT_EQ(column("ObjectView").join(QString()), QString::fromLatin1(jobs));
    }
}

TEST_F(JobPanel, PastedJobsKeepFreeNumbersOnly) {
    startWith(120, {{{0, "7"}}, {{0, "9"}}});
    pickRows(0, 1);
    trigger("mnuCopy");
    startWith(120, {{{0, "9"}}});
    script.Box(QStringLiteral("before"), Answer::Yes);
    trigger("mnuPaste");
    EXPECT_EQ(field(0) + '|' + field(0, 1) + '|' + field(0, 2), "7|10|9");
    EXPECT_EQ(field(1, 1), "NEW JOB");
}

TEST_F(JobPanel, ReadOnlyItChangesNothing) {
    useShips();
    startWith(120, {{{18, "SHIP_A"}}});
    const std::string before = record();
    showTab(jobtabs::Ship);
    QTest::keyClicks(ships()->lineEdit(), QStringLiteral("x"));
    showTab(jobtabs::Weapons);
    beginEntry("EquipView", QStringLiteral("Shield"), QStringLiteral("7"));
    panel->SetReadOnly(true);
    EXPECT_EQ(ships()->currentText(), QStringLiteral("Argon SHIP_A"));
    QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    EXPECT_FALSE(editorIn("EquipView"));
    for (const BoxRow& row : boxRows) {
        showTab(row.Tab);
        QTest::mouseClick(box(row, 0), Qt::LeftButton);
        QTest::keyClick(box(row, 0), Qt::Key_Space);
    }
    showTab(jobtabs::Ship);
    child<QRadioButton>("rbShipClassification1")->click();
    QTest::keyClick(ships(), Qt::Key_Down);
    showTab(jobtabs::Sector);
    QTest::mouseDClick(child<QLineEdit>("SectorXEdit"), Qt::LeftButton); // a dialog would stay
    for (const auto& [name, row, tab] : {std::tuple("PropView", "Name", jobtabs::Info),
                                         {"EquipView", "Laser", jobtabs::Weapons}}) {
        showTab(tab);
        selectField(name, QString::fromLatin1(row));
        key(name, Qt::Key_F2);
        EXPECT_FALSE(editorIn(name));
        key(name, Qt::Key_Return);
    }
    EXPECT_EQ(record(), before);
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

/// With helper files that are broken in any way.
TEST_F(JobPanel, TakesAnyClicksAndKeysAndUndoesThem) {
    useShips();
    for (const char* broken : {"", "49;99999;\r\n1;2;", "\xFF\xFE\x00;;;x"}) {
        for (const char* name : {"TShips", "JobWings", "WareLists"})
            write(QByteArray("data/types/").append(name).append(".txt").constData(), broken);
        openGame();
        startWith(117, {{{13, "5"}, {18, "SHIP_A"}}, {{14, "x"}}});
        const std::string before = record() + record(1);
        {
            Monkey monkey(7);
            for (int i = 0; i < 400; ++i) {
                if (i % 40 == 0)
                    showTab(i / 40 % tabs()->count());
                monkey.Step(*panel);
            }
        }
        static_cast<void>(panel->FinishEntry());
        EXPECT_TRUE(child<QAction>("undo")->isEnabled());
        while (child<QAction>("undo")->isEnabled())
            trigger("undo");
        EXPECT_EQ(record() + record(1), before);
    }
}

/// Whatever stands in a file, it is shown, and saved as it is but for what was clicked.
TEST_F(JobPanel, TakesAnyContentAndSavesTheRestAsItWas) {
    constexpr const char* spellings[] = {"",  "0",    "1",           "007",      "-0.50", "1e3",
                                         "x", "a/*b", "99999999999", "\xE4\xFF", "//",    "%1 %2"};
    std::mt19937 random(5); // NOLINT(cert-msc51-cpp): the same each time
    QList<Values> jobs(6);
    for (Values& values : jobs)
        for (int i = 0; i < 119; ++i)
            values[i] = spellings[random() % std::size(spellings)];
    useShips();
    startWith(120, jobs);
    QByteArray expected = "10;\r\n";
    for (int i = 0; i < jobs.size(); ++i) {
        pick("ObjectView", i);
        for (int tab = 0; tab < tabs()->count(); ++tab)
            showTab(tab);
        showTab(jobtabs::Race);
        const BoxRow& owners = boxRows[7];
        for (const bool undone : {true, false}) {
            QTest::keyClick(box(owners, i), Qt::Key_Space);
            if (undone)
                trigger("undo");
        }
        jobs[i][owners.First + i] = box(owners, i)->isChecked() ? "1" : "0";
        expected += job(120, jobs[i]) + "\r\n";
    }
    script.Save(FileChoice{native("saved.txt"), 1});
    trigger("save");
    EXPECT_EQ(read("saved.txt"), expected.toStdString());
}

} // namespace
