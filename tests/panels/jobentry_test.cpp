// What is entered into a job: whether it is taken, refused or forbidden, whatever it is.
#include "panels/jobpaneltest.h"
#include "panels/monkey.h"

#include <random>

namespace {

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
