// The panel of wares, weapons, stations and all other bodies, driven as a user does.
#include "panels/monkey.h"
#include "panels/paneltest.h"
#include "support/gametexts.h"
#include "txteditor/panels/ucWare.h"
#include "ui/frmColorEdit.h"
#include "ui/frmText.h"

#include <cerrno>
#include <random>

namespace {

QString text(const char* words) {
    return QString::fromUtf8(words);
}

class WarePanel : public PanelTest<ucWare> {
protected:
    using Values = QMap<int, QByteArray>;

    /// A record of a type, each value with a spelling of its own; `own` replaces some.
    static QByteArray record(std::int32_t type, const QByteArray& name, const Values& own = {},
                             int size = 0) {
        QByteArray line;
        const int last = (size > 0 ? size : ObjectSize(type)) - 1;
        for (int i = 0; i < last; ++i)
            line += own.value(i, "0" + QByteArray::number(i)) + ";";
        return line + name + ";";
    }
    using PanelTest::record;

    void useFiles() {
        write("data/types/TBullets.txt",
              file("53", {record(4, "BULLET_A"), record(4, "BULLET_B")}));
        write("data/types/TWareT.txt", file("48", {record(6, "AMMO_A"), record(6, "AMMO_B")}));
        write("data/types/IconData.txt", "ICONTYPE_GUI;gui.tga;4;2;2;\r\nICON_A;0;0;0;2;1;\r\n"
                                         "ICON_FAR;0;9;9;2;2;\r\n");
        openGame();
    }
    /// A picture of 4 x 2 pixels, of which the one at 1, 1 is red, in the view's directory.
    void usePicture(const char* name) {
        QByteArray tga("\0\0\2\0\0\0\0\0\0\0\0\0\4\0\2\0\x18\x20", 18);
        for (int i = 0; i < 8; ++i)
            tga += i == 5 ? QByteArray("\0\0\xFF", 3) : QByteArray("\x40\x40\x40", 3);
        write(name, tga);
    }
    void startWith(const char* name, const QByteArray& version, const QList<QByteArray>& records) {
        startWithFile(name, file(version, records));
        pick("ObjectView", 0);
    }
    [[nodiscard]] QString row(const QString& label) const { return value("PropView", label); }
    /// Answers the dialog of a colour that opens next, and cancels it if it stays.
    static void answerColor(const QString& typed, bool decimal = false) {
        QTimer::singleShot(0, qApp, [=] {
            auto* dialog = qobject_cast<frmColorEdit*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            const auto press = [&](const char* button) {
                dialog->findChild<QAbstractButton*>(QString::fromLatin1(button))->click();
            };
            if (decimal)
                press("rbFormat0");
            dialog->findChild<QLineEdit*>(QStringLiteral("ValEdit"))->setText(typed);
            press("btnOK");
            if (dialog->isVisible())
                press("btnCancel");
        });
    }
    [[nodiscard]] QCheckBox* flag(int bit) const {
        return panel->findChild<QCheckBox*>(QStringLiteral("chkFlag%1").arg(bit));
    }
};

struct TypeCase {
    const char* File;
    const char* Version;
    std::int32_t Type;
    const char* Title;
    const char* Page;
    QList<int> Scenes;
    bool Creates;
};

const TypeCase types[] = {
    {"TShields.txt", "50", 2, "Shields v.50", "Shield info", {}, true},
    {"TLaser.txt", "50", 3, "Lasers v.50", "Laser info", {}, true},
    {"TBullets.txt", "53", 4, "Bullets v.53", "Bullet info", {}, true},
    {"TMissiles.txt", "50", 5, "Missiles v.50", "Missile info", {26}, true},
    {"TWareE.txt", "48", 6, "Wares v.48", "Ware info", {}, true},
    {"TFactories.txt", "48", 7, "Factories v.48", "Factorie info", {11}, true},
    {"TSpecial.txt", "48", 8, "Special v.48", "Special info", {7}, true},
    {"TDocks.txt", "48", 10, "Docks v.48", "Dock info", {11}, true},
    {"Wrecks.txt", "48", 11, "Wrecks v.48", "Wreck info", {7}, false},
    {"TGates.txt", "48", 12, "Gates v.48", "Gate info", {7}, false},
    {"TPlanets.txt", "48", 13, "Planets v.48", "Planet info", {10}, false},
    {"TSuns.txt", "48", 14, "Suns v.48", "Sun info", {7}, false},
    {"TAsteroids.txt", "48", 15, "Asteroids v.48", "Asteroid info", {10, 7}, false},
    {"TDebris.txt", "48", 16, "Debris v.48", "Debri info", {9, 7}, false},
    {"TBackgrounds.txt", "48", 17, "Background v.48", "Background info", {}, false},
    {"TNebula.txt", "14", 18, "Nebula v.14", "Nebula info", {}, false},
};

TEST_F(WarePanel, EachTypeHasItsTitleRowsAndButtons) {
    const support::GameTexts texts("<page id=\"17\"><string id=\"6\">A thing</string>"
                                   "<string id=\"7\">What it is</string></page>");
    Settings->SetExt3DViewerPath(program("viewer"));
    write("data/objects/cut/00042.pbd", "");
    openGame();
    for (const TypeCase& c : types) {
        SCOPED_TRACE(c.File);
        Values values = {{6, "6"}};
        for (const int field : c.Scenes)
            values[field] = "42";
        startWith(c.File, c.Version, {record(c.Type, "FIRST", values), record(c.Type, "LAST")});
        EXPECT_EQ(caption(), caption(c.File, text(c.Title)));
        EXPECT_EQ(child<QTabWidget>("MainTab")->tabText(1), text(c.Page));
        EXPECT_EQ(row(text("ID")), text("FIRST"));
        EXPECT_EQ(row(text("Name")), text("A thing"));
        const bool described = c.Type != 2 && c.Type != 4;
        EXPECT_EQ(child<QPlainTextEdit>("DescEdit")->toPlainText(),
                  described ? text("Description: What it is") : QString());
        for (int i = 0; i < c.Scenes.size(); ++i) {
            auto* scene = panel->findChild<QAction*>(QStringLiteral("scene_%1").arg(i));
            ASSERT_TRUE(scene);
            EXPECT_EQ(scene->data(), c.Scenes[i]);
            script.Started.clear();
            scene->trigger();
            EXPECT_EQ(script.Started, QStringList{native("viewer")});
        }
        EXPECT_EQ(panel->findChild<QToolBar*>(text("Bar"))->actions().size(), 2 + c.Scenes.size());
        script.Box(text("insert new object"), Answer::Yes);
        if (!c.Creates)
            script.Box(text("cannot be created"));
        trigger("mnuNew");
        EXPECT_EQ(window->Parser().ByIndex().size(), c.Creates ? 3U : 2U);
        trigger("undo");
        EXPECT_EQ(names(), text("FIRST LAST"));
        delete window.data();
        panel = new ucWare;
    }
    delete panel;
}

TEST_F(WarePanel, BodyAndPictureGoToTheViewerWithWhatItNeedsOfAStation) {
    Settings->SetExt3DViewerPath(program("viewer"));
    Settings->SetExt3DViewerCmdLine("%1 %2");
    write("data/objects/v/00012.pbd", "");
    write("data/objects/a_picture.pbd", "");
    openGame();
    startWith("TFactories.txt", "48", {record(7, "A", {{0, "12"}, {1, "a_picture.pbd"}})});
    struct Button {
        const char* Name;
        const char* Shown;
    };
    for (const auto& [name, shown] : {Button{"body", "data/objects/v/00012.pbd"},
                                      Button{"picture", "data/objects/a_picture.pbd"}}) {
        child<QAction>(name)->trigger();
        EXPECT_EQ(
            script.Arguments,
            (QStringList{native(shown), text("TFactories:") + QString::fromStdString(record())}));
    }
}

TEST_F(WarePanel, ShowsTranslatedAndStoredValuesAndEntersBoth) {
    useFiles();
    startWith("TLaser.txt", "50",
              {record(3, "LASER_A", {{7, "500"}, {9, "1"}, {12, "ICON_A"}, {17, "1"}}),
               record(3, "LASER_B", {{7, "fast"}, {9, "7"}, {12, ""}})});
    EXPECT_EQ(row(text("Rate of fire")), text("120 rnd/min (500)"));
    EXPECT_EQ(row(text("Projectile")), text("BULLET_B (1)"));
    EXPECT_EQ(row(text("HUD icon")), text("ICON_A (ICON_A)"));
    EXPECT_EQ(row(text("Ware class")), text("small (1)"));
    EXPECT_EQ(row(text("Sound")), text("08"));
    typeInPlace("PropView", text("Projectile"), text("BULLET_A"));
    EXPECT_EQ(stored(9), "0");
    selectField("PropView", text("Rate of fire"));
    typeValue(text("60"));
    key("PropView", Qt::Key_Return);
    EXPECT_EQ(stored(7), "1000");
    EXPECT_EQ(row(text("Rate of fire")), text("60 rnd/min (1000)"));
    EXPECT_EQ(view("PropView")->currentIndex().row(), 9) << "the same row stays selected";
    QTest::keyClick(view("PropView"), Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), text("60 rnd/min (1000)"));
    typeInPlace("PropView", text("ID"), text("LASER_C"));
    EXPECT_EQ(names(), text("LASER_C LASER_B"));

    pick("ObjectView", 1);
    EXPECT_EQ(view("PropView")->currentIndex().row(), 0);
    EXPECT_EQ(row(text("Rate of fire")), text("fast"));
    EXPECT_EQ(row(text("Projectile")), text("7"));
    EXPECT_EQ(row(text("HUD icon")), QString());
    trigger("undo");
    trigger("undo");
    trigger("undo");
    EXPECT_EQ(stored(7) + stored(9), "5001");
}

TEST_F(WarePanel, AnEntryThatNobodyTouchedIsNeverRefused) {
    startWith("TFactories.txt", "48", {record(7, "A", {{3, "many"}, {13, "77"}, {17, "3"}})});
    const std::string before = record();
    for (const char* label : {"Rotation Y", "Race", "Size", "Ware class"}) {
        selectField("PropView", text(label));
        QTest::keyClick(view("PropView"), Qt::Key_F2);
        ASSERT_TRUE(editorIn("PropView")) << label;
        press(editorIn("PropView"), Qt::Key_Return);
        EXPECT_FALSE(editorIn("PropView")) << label;
    }
    EXPECT_EQ(record(), before);
    beginEntry("PropView", text("Race"), text("Boron"));
    Settings->SetExt3DViewerPath({});
    panel->findChild<QAction*>(text("body"))->trigger();
    QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    EXPECT_EQ(stored(13), "2") << "an action takes what is being entered";
    beginEntry("PropView", text("Rotation Y"), text("5"));
    panel->SetReadOnly(true);
    QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    EXPECT_FALSE(editorIn("PropView"));
    EXPECT_EQ(stored(3), "many") << "an entry that was begun is given up";
    for (const auto code : {Qt::Key_F2, Qt::Key_Return}) {
        key("PropView", code);
        EXPECT_FALSE(editorIn("PropView"));
    }
}

TEST_F(WarePanel, BoxesStandForBitsAndKeepTheOthers) {
    struct FlagCase {
        const char* File;
        const char* Version;
        std::int32_t Type;
        int Field;
        int Shown;
        const char* Title;
        const char* Boxes; ///< captions and tips
    };
    const FlagCase cases[] = {
        {"TBullets.txt", "53", 4, 12, 14, "Bullet flags",
         "PAC=Set on Particle Accelerator Cannon|Beam=Beam weapon|Zig zag=Set on Ion Disruptor|"
         "Areal=Set on Alpha Phased Shockwave Generator|Disable=Disables spaceflies|"
         "Ignore shields=|Use ammo=Will require ammo|Repair=Repairs hull|Flak=|"
         "Reduce speed=Ashfall|Drain wpns=Ashfall|Dmg over time=Ashfall|Fragmentation=Ashfall|"
         "Fire delay=Ashfall|"},
        {"TMissiles.txt", "50", 5, 23, 9, "Missile flags",
         "Free=Can be fired without lock|Dumb=No guidance|Frag=Multi fragment warhead|Heatseeker=|"
         "Multi warhaed=Every warhead can track different target|"
         "Proximity=Detonates in profimity of target|Man. detonation=Can be manually detonated|"
         "Firestorm=|Man. guided=|"},
    };
    for (const FlagCase& c : cases) {
        SCOPED_TRACE(c.File);
        startWith(c.File, c.Version,
                  {record(c.Type, "A", {{c.Field, "-2147467259"}}), // bits 0, 2, 14, 31
                   record(c.Type, "B", {{c.Field, "many"}}),
                   record(c.Type, "C", {{c.Field, "1"}})});
        EXPECT_EQ(child<QGroupBox>("FlagsFrame")->title(), text(c.Title));
        QString boxes;
        for (int bit = 0; bit < c.Shown; ++bit)
            boxes += flag(bit)->text() + u'=' + flag(bit)->toolTip() + u'|';
        EXPECT_EQ(boxes, text(c.Boxes));
        for (int bit = 0; bit < 14; ++bit) {
            EXPECT_EQ(flag(bit)->isVisible(), bit < c.Shown) << bit;
            EXPECT_EQ(flag(bit)->isChecked(), bit == 0 || bit == 2) << bit;
        }
        QTest::mouseClick(flag(2), Qt::LeftButton, {}, QPoint(8, flag(2)->height() / 2));
        EXPECT_EQ(stored(c.Field), "-2147467263");
        EXPECT_LT(child<QGroupBox>("FlagsFrame")->minimumSizeHint().width(), 300)
            << "the panel can be made narrow again";
        flag(c.Shown - 1)->setFocus();
        QTest::keyClick(flag(c.Shown - 1), Qt::Key_Space);
        EXPECT_EQ(stored(c.Field), std::to_string(-2147467263 + (1 << (c.Shown - 1))));
        trigger("undo");
        EXPECT_EQ(stored(c.Field), "-2147467263");
        EXPECT_FALSE(flag(c.Shown - 1)->isChecked());
        pick("ObjectView", 1);
        EXPECT_FALSE(flag(0)->isEnabled()) << "the word is no number";
        pick("ObjectView", 2);
        panel->SetReadOnly(true);
        QTest::mouseClick(flag(0), Qt::LeftButton, {}, QPoint(8, flag(0)->height() / 2));
        EXPECT_EQ(stored(c.Field, 2), "1");
        delete window.data();
        panel = new ucWare;
    }
    startWith("TWareT.txt", "48", {record(6, "A")});
    EXPECT_FALSE(child<QGroupBox>("FlagsFrame")->isVisible());
}

TEST_F(WarePanel, AColorIsThreeFieldsAndOneStep) {
    const QString label = text("Color (RGB)");
    startWith("TBullets.txt", "53",
              {record(4, "A", {{13, "1"}, {14, "002"}, {15, "255"}}), record(4, "B", {{14, "x"}})});
    EXPECT_EQ(row(label), text("0x0102FF"));
    selectField("PropView", label);
    const QModelIndex index = view("PropView")->currentIndex();
    EXPECT_EQ(index.data(Qt::UserRole + 1), text("color"));
    EXPECT_EQ(index.siblingAtColumn(1).data(Qt::DecorationRole).value<QColor>(), QColor(255, 2, 1));
    const std::string before = record();
    answerColor(text("1040E0"));
    key("PropView", Qt::Key_Return);
    EXPECT_EQ(stored(13) + ' ' + stored(14) + ' ' + stored(15), "16 64 224");
    trigger("undo");
    EXPECT_EQ(record(), before);
    EXPECT_EQ(row(label), text("0x0102FF"));
    answerColor(text("66303"), true); // the same red and blue
    QTest::keyClick(view("PropView"), Qt::Key_F2);
    EXPECT_EQ(stored(13) + ' ' + stored(14) + ' ' + stored(15), "1 002 255");
    for (const char* wrong : {"red", "1000000", "-1", ""}) {
        script.Box(text("Entered value is invalid."));
        answerColor(text(wrong));
        key("PropView", Qt::Key_Return);
    }
    QTimer::singleShot(0, qApp, [this] {
        script.Color(QColor(7, 8, 9));
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QPushButton*>(text("btnColorBrowse"))->click();
        EXPECT_EQ(dialog->findChild<QLineEdit*>(text("ValEdit"))->text(), text("0x090807"));
        dialog->findChild<QPushButton*>(text("btnCancel"))->click();
    });
    key("PropView", Qt::Key_Return);
    EXPECT_EQ(script.Offered, text("#ff0201"));
    EXPECT_EQ(stored(14), "002");
    panel->SetReadOnly(true);
    key("PropView", Qt::Key_Return);
    QTest::keyClick(view("PropView"), Qt::Key_F2);
    EXPECT_EQ(stored(14), "002");
    pick("ObjectView", 1);
    EXPECT_EQ(row(label), text("N/A"));
}

TEST_F(WarePanel, TheIconIsCutFromThePicture) {
    struct IconCase {
        const char* File;
        std::int32_t Type;
        int Field;
        const char* Picture;
    };
    const IconCase cases[] = {{"TLaser.txt", 3, 12, "data/textures/gui.tga"},
                              {"TMissiles.txt", 5, 25, "data/dds/gui.tga"},
                              {"TFactories.txt", 7, 18, "data/textures/gui.tga"},
                              {"TDocks.txt", 10, 17, "data/textures/gui.tga"}};
    for (const IconCase& c : cases) {
        SCOPED_TRACE(c.File);
        usePicture(c.Picture);
        useFiles();
        startWith(c.File, "50",
                  {record(c.Type, "A", {{c.Field, "ICON_A"}}),
                   record(c.Type, "B", {{c.Field, "ICON_NONE"}}),
                   record(c.Type, "C", {{c.Field, "ICON_FAR"}})});
        auto* icon = child<QLabel>("IconImage");
        EXPECT_TRUE(icon->isVisible());
        EXPECT_EQ(icon->pixmap().size(), QSize(2, 1));
        EXPECT_EQ(icon->pixmap().toImage().pixelColor(0, 0), QColor(255, 0, 0));
        for (const int hidden : {1, 2}) {
            pick("ObjectView", hidden);
            EXPECT_FALSE(icon->isVisible()) << hidden;
        }
        delete window.data();
        panel = new ucWare;
        QFile::remove(native(c.Picture));
    }
    const QByteArray huge("\0\0\2\0\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF\x18\x20", 18);
    for (const QByteArray& broken : {QByteArray("no picture"), huge}) {
        write("data/textures/gui.tga", broken);
        useFiles();
        startWith("TMissiles.txt", "50", {record(5, "A", {{25, "ICON_A"}})});
        EXPECT_FALSE(child<QLabel>("IconImage")->isVisible());
        delete window.data();
        panel = new ucWare;
    }
    // A broken table asks for the whole of a large picture.
    const int side = 1024;
    QByteArray large("\0\0\2\0\0\0\0\0\0\0\0\0\0\4\0\4\x18\x20", 18);
    write("data/textures/gui.tga", large + QByteArray(side * side * 3, 'x'));
    useFiles();
    write("data/types/IconData.txt", "ICONTYPE_GUI;gui.tga;4;2;1;\r\nICON_A;0;0;0;999;999;\r\n");
    openGame();
    startWith("TMissiles.txt", "50", {record(5, "A", {{25, "ICON_A"}})});
    EXPECT_EQ(child<QLabel>("IconImage")->pixmap().size(), QSize(256, 256));
}

TEST_F(WarePanel, ExportsTheRecordThatIsSelected) {
    startWith("TWareT.txt", "48", {record(6, "A"), record(6, "B", {{0, "things\\b"}})});
    pick("ObjectView", 1);
    const QString out = native("out.txt");
    script.Save(FileChoice{out, 1});
    trigger("export");
    const std::string lines = content(out);
    EXPECT_TRUE(lines.starts_with("0: Body file: things\\b\r\n1: Picture ID: 01\r\n")) << lines;
    EXPECT_TRUE(lines.ends_with("15: Skin index: 015\r\n16: N/A: B\r\n")) << lines;
    EXPECT_EQ(script.Files.back().Title, text("Export data"));
    EXPECT_EQ(script.Files.back().Filter, text("Record structure (*.txt, *.cat)|*.txt;*.cat"));
    EXPECT_TRUE((script.Files.back().Directory + u'/' + script.Files.back().FileName)
                    .endsWith(text("TWareT_export.txt")));

    script.Save(FileChoice{out, 2});
    script.Box(text("Don't know how to export."));
    trigger("export");
    script.Save(FileChoice{native("nowhere/out.txt"), 1});
    script.Box(text("Error opening file ") + native("nowhere/out.txt") + text(":\n"));
    trigger("export");
    script.Save(FileChoice{native("TWareT.txt"), 1});
    script.Box(text("The file would be lost"));
    trigger("export");
    EXPECT_EQ(content(out), lines) << "nothing is replaced by nothing";
    script.Save(std::nullopt);
    trigger("export");
}

TEST_F(WarePanel, WarnsOfNebulaOfTheOlderKind) {
    write("TNebula.txt", file("13", {record(18, "A", {}, 27)}));
    start({}, {panel});
    QString said;
    QTimer::singleShot(0, qApp, [&] {
        auto* report = qobject_cast<frmText*>(QApplication::activeModalWidget());
        ASSERT_TRUE(report);
        said = report->Text();
        report->close();
    });
    window->OpenFile(program("TNebula.txt"));
    pick("ObjectView", 0);
    EXPECT_EQ(said, text("This is TNebula file for Lorn. It's not fully supported."));
    EXPECT_EQ(row(text("Outer range")), text("0 m (08)"));
    EXPECT_EQ(column("PropView").size(), 2 + 13 + 13);
    EXPECT_EQ(column("PropView").last(), text("Skin index (Dust body)"));
}

/// Records of random values in every type, edited at random rows, undone, saved and read again.
TEST_F(WarePanel, KeepsEverySpellingThatNobodyTouched) {
    std::mt19937 random(5);
    const QByteArray spellings[] = {"007", "0.50",       "1e3", "-1", "",
                                    "x y", "4294967295", "NaN", "0"};
    const auto any = [&] { return spellings[random() % std::size(spellings)]; };
    useFiles();
    int entries = 0;
    for (const TypeCase& c : types) {
        SCOPED_TRACE(c.File);
        QList<QByteArray> records;
        for (int i = 0; i < 3; ++i) {
            Values values;
            for (int field = 0; field < ObjectSize(c.Type) - 1; ++field)
                values[field] = any();
            records.append(record(c.Type, "R" + QByteArray::number(i), values));
        }
        startWith(c.File, c.Version, records);
        for (int step = 0; step < 12; ++step) {
            pick("ObjectView", static_cast<int>(random() % 3));
            const int rows = view("PropView")->model()->rowCount();
            view("PropView")->setFocus();
            view("PropView")
                ->setCurrentIndex(
                    view("PropView")->model()->index(static_cast<int>(random() % 99) % rows, 0));
            QTest::keyClick(view("PropView"), Qt::Key_F2);
            if (!editorIn("PropView"))
                continue;
            ++entries;
            QTest::keyClicks(editorIn("PropView"), QString::number(random() % 9));
            press(editorIn("PropView"), random() % 4 == 0 ? Qt::Key_Escape : Qt::Key_Return);
        }
        while (child<QAction>("undo")->isEnabled())
            trigger("undo");
        EXPECT_FALSE(caption().endsWith(u'*'));
        pick("ObjectView", 1);
        const int field = c.Type == otype::Bullets ? 16 : 2;
        const char* label = field == 2 ? "Rotation X" : "Rapid box width";
        typeInPlace("PropView", text(label), text("0.125"));
        script.Save(FileChoice{native(c.File), 1});
        script.Box(text("already exists"), Answer::Yes);
        trigger("save");
        QList<QByteArray> values = records[1].split(';');
        values[field] = "0.125";
        records[1] = values.join(';');
        EXPECT_EQ(content(native(c.File)), written(file(c.Version, records)));
        delete window.data();
        panel = new ucWare;
    }
    EXPECT_GT(entries, 150);
    delete panel;
}

/// Clicks and keys all over the panel, with helper files that are broken.
TEST_F(WarePanel, LivesThroughClicksWithBrokenFiles) {
    write("data/types/TBullets.txt", "53;9;\r\n1;2;\r\n");
    write("data/types/TWareT.txt", "");
    write("data/types/IconData.txt", "ICONTYPE_GUI;..\\..\\gui;4;2;2147483647;\r\nA;0;1;\r\n");
    openGame();
    Monkey monkey(7);
    std::size_t changes = 0;
    for (const TypeCase& c : types) {
        startWith(c.File, c.Version,
                  {record(c.Type, "A"), record(c.Type, "B", {{6, "x"}, {12, "-9"}, {25, "?"}})});
        const std::string before = record() + record(1);
        for (const bool readOnly : {true, false}) {
            panel->SetReadOnly(readOnly);
            for (int step = 0; step < 60; ++step) {
                if (step % 20 == 0)
                    pick("ObjectView", step % 40 == 0 ? 1 : 0);
                monkey.Step(*panel);
            }
            EXPECT_TRUE(!readOnly || record() + record(1) == before) << c.File;
        }
        changes += record() + record(1) == before ? 0 : 1;
        panel->SetReadOnly(true); // gives up what is being entered
        while (child<QAction>("undo")->isEnabled())
            trigger("undo");
        EXPECT_EQ(record() + record(1), before) << c.File;
        delete window.data();
        panel = new ucWare;
    }
    EXPECT_GT(changes, 0U);
    delete panel;
}

} // namespace
