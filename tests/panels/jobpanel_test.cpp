// A window with a Jobs file in it.
#include "panels/jobpaneltest.h"

namespace {

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
        EXPECT_EQ(child<QComboBox>("cmbShipTypeID")->currentText(), QStringLiteral("[empty]"));
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

} // namespace
