// A window with a TCockpits file in it.
#include "tdata/FieldTable.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/editortest.h"
#include "txteditor/panels/ucTurret.h"

#include <QAbstractItemModelTester>

namespace {

class TurretPanel : public EditorTest {
protected:
    ~TurretPanel() override { Archive.reset(); }

    static QByteArray turret(const QByteArray& lasers, const QByteArray& name) {
        return "0;007;0.50;1e3;0;5;6;scene" + name + ";" + lasers + ";9;10;11;12;13;14;15;16;17;" +
               name + ";";
    }
    static QByteArray laser(const QByteArray& subtype, const QByteArray& name) {
        return "0;1;2;3;4;" + subtype + ";6;7;8;9;10;11;12;13;14;15;16;17;18;19;20;21;" + name +
               ";\r\n";
    }
    static QByteArray word(std::int32_t row) {
        return QByteArray::fromStdString(std::string(LaserSubtypes.At(row)));
    }
    static QByteArray symbolicLasers() {
        return "50;4;\r\n" + laser(word(4), "FOUR") + laser(word(0), "ZERO") + laser("SG_X", "X") +
               laser(word(0), "AGAIN");
    }
    void useLasers(const QByteArray& lasers) {
        write("data/types/TLaser.txt", lasers);
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(program("data")), 0);
        Archive = std::make_unique<clsArchive>();
    }
    void startWith(const QByteArray& version, const QByteArray& mask) {
        write("TCockpits.txt",
              version + ";2;\r\n" + turret(mask, "A") + "\r\n" + turret("007", "B") + "\r\n");
        start("TCockpits.txt", {panel});
    }
    void showLasers() const {
        panel->findChild<QTabWidget*>(QStringLiteral("MainTab"))->setCurrentIndex(1);
    }
    [[nodiscard]] QString lasers() const {
        return column("LaserView").join(u' ') + QStringLiteral(" | ") +
               column("AvailView").join(u' ');
    }
    void press(const char* button) {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }
    [[nodiscard]] std::string stored(int record, int field) const {
        return std::string(window->Parser().FindIndex(record)->ValueText(field));
    }
    /// Types a value over that of a row, in its place.
    void typeInPlace(int row, const QString& text, Qt::Key last = Qt::Key_Return) {
        view("PropView")->setFocus();
        view("PropView")->setCurrentIndex(view("PropView")->model()->index(row, 0));
        QTest::keyClick(view("PropView"), Qt::Key_F2);
        auto* editor = view("PropView")->findChild<QLineEdit*>(QStringLiteral("ValueEditor"));
        ASSERT_TRUE(editor);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, last);
        closeEntries();
    }
    static void closeEntries() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents({}, QEvent::DeferredDelete);
    }

    ucTurret* panel = new ucTurret; // the window takes it over
};

TEST_F(TurretPanel, ShowsTheFieldsOfATurret) {
    useLasers(symbolicLasers());
    startWith("52", "1");
    const QAbstractItemModelTester tester(view("PropView")->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(caption(), caption("TCockpits.txt", QStringLiteral("Turrets")));
    EXPECT_EQ(child<QTabWidget>("MainTab")->tabText(1), QStringLiteral("Turret info"));
    EXPECT_EQ(column("ObjectView"), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    pick("ObjectView", 1);
    EXPECT_EQ(column("PropView"), QStringList({QStringLiteral("ID"), QStringLiteral("Scene file"),
                                               QStringLiteral("Possible lasers")}));
    EXPECT_EQ(column("PropView", 1),
              QStringList({QStringLiteral("B"), QStringLiteral("sceneB"), QStringLiteral("007")}));
    EXPECT_EQ(column("PropView", 2), QStringList({{}, QStringLiteral("7"), QStringLiteral("8")}));
    panel->ShowObject({}, otype::Cockpits);
    showLasers();
    EXPECT_EQ(view("PropView")->model()->rowCount(), 0);
    EXPECT_EQ(lasers(), QStringLiteral(" | "));
}

TEST_F(TurretPanel, EditsFieldsInTheDialogAndInPlace) {
    startWith("52", "1");
    pick("ObjectView", 0);
    pick("PropView", 1);
    typeValue(QStringLiteral("other\\scene"));
    QTest::keyClick(view("PropView"), Qt::Key_Return);
    typeInPlace(2, QStringLiteral("-2147483648"));
    typeInPlace(0, QStringLiteral("a")); // its own name in another case
    EXPECT_EQ(column("PropView", 1),
              QStringList({QStringLiteral("a"), QStringLiteral("other\\scene"),
                           QStringLiteral("-2147483648")}));
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("a"));
    for (int step = 0; step < 3; ++step)
        trigger("undo");
    EXPECT_EQ(column("PropView", 1),
              QStringList({QStringLiteral("A"), QStringLiteral("sceneA"), QStringLiteral("1")}));
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

TEST_F(TurretPanel, RefusesWhatDoesNotFitAndGoesOnEntering) {
    struct Case {
        int Row;
        const char* Text;
        const char* Refusal;
    };
    const Case cases[] = {
        {0, "b", "This object ID is already used."},
        {1, "x;y", "Value cannot contain semicolon (;)"},
        {1, "x/y", "Value cannot contain slash (/)"},
        {2, "1.5", "Entered value is incorrect. It must be whole number."},
        {2, "x", "Entered value is incorrect. It must be whole number."},
    };
    startWith("52", "1");
    pick("ObjectView", 0);
    for (const Case& line : cases) {
        SCOPED_TRACE(line.Text);
        script.Box(QString::fromLatin1(line.Refusal));
        typeInPlace(line.Row, QString::fromLatin1(line.Text));
        auto* editor = view("PropView")->findChild<QLineEdit*>(QStringLiteral("ValueEditor"));
        ASSERT_TRUE(editor);
        EXPECT_EQ(editor->text(), QString::fromLatin1(line.Text));
        QTest::keyClick(editor, Qt::Key_Escape);
        closeEntries();
    }
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

TEST_F(TurretPanel, MovesLasersInOneStepEachAndSavesTheRestAsItWas) {
    useLasers(symbolicLasers());
    startWith("52", "256"); // a bit without laser
    pick("ObjectView", 0);
    showLasers();
    EXPECT_EQ(lasers(), QStringLiteral(" | ZERO FOUR"));
    view("AvailView")->setFocus();
    view("AvailView")->selectAll();
    QTest::keyClick(view("AvailView"), Qt::Key_Insert); // no new record
    EXPECT_EQ(lasers(), QStringLiteral("ZERO FOUR | "));
    EXPECT_EQ(names(), QStringLiteral("A B"));
    EXPECT_EQ(stored(0, 8), "273");
    pick("LaserView", 1);
    press("btnRemoveLaser");
    EXPECT_EQ(lasers(), QStringLiteral("ZERO | FOUR"));
    EXPECT_EQ(column("PropView", 1)[2], QStringLiteral("257"));
    trigger("undo");
    EXPECT_EQ(lasers(), QStringLiteral("ZERO FOUR | "));
    trigger("undo");
    EXPECT_EQ(lasers(), QStringLiteral(" | ZERO FOUR"));
    trigger("redo");
    EXPECT_EQ(lasers(), QStringLiteral("ZERO FOUR | "));
    script.Save(FileChoice{native("saved.txt"), 1});
    trigger("save");
    EXPECT_EQ(read("saved.txt"),
              written("52;2;\r\n" + turret("273", "A") + "\r\n" + turret("007", "B") + "\r\n"));
}

TEST_F(TurretPanel, CountsLasersByTheirPlaceInAnOlderFile) {
    QByteArray many = "48;40;\r\n";
    for (int i = 0; i < 40; ++i)
        many += laser("0", "L" + QByteArray::number(i));
    useLasers(many);
    startWith("48", "-2147483648");
    pick("ObjectView", 0);
    showLasers();
    EXPECT_EQ(column("LaserView"), QStringList{QStringLiteral("L31")});
    EXPECT_EQ(column("AvailView").size(), 31);
    pick("AvailView", 0);
    press("btnAddLaser");
    EXPECT_EQ(stored(0, 8), "-2147483647");
    pick("LaserView", 1);
    press("btnRemoveLaser");
    EXPECT_EQ(stored(0, 8), "1");
    pick("ObjectView", 1);
    EXPECT_EQ(column("LaserView").size(), 3) << "the next record on the same tab";
}

TEST_F(TurretPanel, WorksWithoutLasersAndWithBrokenMasks) {
    Archive = std::make_unique<clsArchive>();
    startWith("52", "many");
    pick("ObjectView", 0);
    showLasers();
    EXPECT_EQ(lasers(), QStringLiteral(" | "));
    EXPECT_EQ(column("PropView", 1)[2], QStringLiteral("many"));
    delete window.data();
    useLasers(symbolicLasers());
    panel = new ucTurret;
    startWith("52", "many");
    pick("ObjectView", 0);
    showLasers();
    EXPECT_EQ(lasers(), QStringLiteral(" | "));
    EXPECT_EQ(stored(0, 8), "many");
}

TEST_F(TurretPanel, OffersNoEditingWhenReadOnly) {
    useLasers(symbolicLasers());
    startWith("52", "1");
    panel->SetReadOnly(true);
    pick("ObjectView", 0);
    pick("PropView", 1);
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return})
        QTest::keyClick(view("PropView"), key);
    EXPECT_FALSE(view("PropView")->findChild<QLineEdit*>(QStringLiteral("ValueEditor")));
    showLasers();
    view("LaserView")->selectAll();
    EXPECT_FALSE(child<QPushButton>("btnRemoveLaser")->isEnabled());
    EXPECT_FALSE(child<QAction>("undo")->isEnabled());
}

TEST_F(TurretPanel, AddsATurretWithFreeFieldsAndAUniqueName) {
    startWith("52", "1");
    pick("ObjectView", 1);
    script.Box(QStringLiteral("before"), Answer::Yes);
    trigger("mnuNew");
    EXPECT_EQ(names(), QStringLiteral("A NEW_OBJECT_1 B"));
    EXPECT_EQ(window->SelectedObject()->size(), 19);
    EXPECT_EQ(stored(1, 8), "0");
    EXPECT_EQ(column("PropView", 1)[0], QStringLiteral("NEW_OBJECT_1"));
    trigger("undo");
    EXPECT_EQ(names(), QStringLiteral("A B"));
    clsTxtParser other;
    EXPECT_FALSE(panel->CreateObject(otype::Ships, other, {}));
    EXPECT_NE(panel->GetLastError(), "");
}

TEST_F(TurretPanel, TakesATextBackOnlyAsANumber) {
    KeshValue value;
    std::string text = "12.5";
    EXPECT_TRUE(panel->LornTranslateValueBack({}, text, 8, value));
    EXPECT_EQ(value, KeshValue(12.5));
    text = "12x";
    EXPECT_FALSE(panel->LornTranslateValueBack({}, text, 8, value));
    delete panel;
}

} // namespace
