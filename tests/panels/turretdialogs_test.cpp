// The dialogs of turrets and guns: what is refused in which order and words, and what is stored.
#include "support/scriptedinterface.h"
#include "tdata/mdlKeshConst.h"
#include "tdata/shiprecord.h"
#include "txteditor/panels/frmGunEdit.h"
#include "txteditor/panels/frmTurretEdit.h"

#include <QTest>

namespace {

using support::repeat;

/// A front cockpit with a gun, a turret with none; what a person would not spell so is kept so.
const char* const sections = "2;1;0;BODY_F;007;2;1;BODY_T;007;"
                             "2;1;3;1;1;1;03;GUN_A;007;;-1;4;0;2;0;";

std::string shipOf(const std::string& tail, const std::string& guns) {
    return repeat("0;", 19) + guns + ";" + repeat("0;", 11) + "04;03;" + repeat("0;", 20) + tail +
           support::shipTail;
}

/// What a person does in a control; text that is none leaves it alone.
struct Input {
    const char* Control;
    const char* Text;
};

class ShipDialogs : public testing::Test {
protected:
    ShipDialogs() {
        std::string types = "20;5;";
        for (const char* id : {"SC_C", "SC_a", "12", "SC_B", "SC_a"})
            types += repeat("0;", 18) + id + ";";
        clsTxtParser file;
        EXPECT_TRUE(support::load(file, types, otype::Cockpits));
        cockpits.Load(file); // sorted: 12, SC_a, SC_a, SC_B, SC_C
    }

    void Load(const std::string& tail = sections, const std::string& guns = "3") {
        clsTxtParser file;
        ASSERT_TRUE(support::load(file, "49;1;" + shipOf(tail, guns), otype::Ships));
        ship = std::make_unique<clsShip>(file.FindIndex(0));
        ASSERT_TRUE(ship->LoadObjects());
    }
    [[nodiscard]] std::string Record() const { return support::joined(*ship->Object); }
    /// Values from one of the record on.
    [[nodiscard]] std::string Values(std::int32_t from, int count) const {
        std::string text;
        for (int i = 0; i < count; ++i)
            text.append(ship->Object->ValueText(from + i)) += ';';
        return text;
    }

    /// Types into the dialog that opens next and leaves each control by Tab, then presses OK.
    void Answer(QDialog& dialog, const std::vector<Input>& inputs) {
        reason.clear();
        QTimer::singleShot(0, &dialog, [this, &dialog, inputs] {
            QApplication::setActiveWindow(&dialog);
            for (const Input& input : inputs)
                if (input.Text)
                    Type(dialog, input);
            QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("btnOK")),
                              Qt::LeftButton);
            if (!dialog.isVisible())
                return;
            reason = dialog.findChild<QLabel*>(QStringLiteral("lblReason"))->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }
    static void Type(const QDialog& dialog, const Input& input) {
        auto* control = dialog.findChild<QWidget*>(QString::fromLatin1(input.Control));
        ASSERT_TRUE(control) << input.Control;
        auto* combo = qobject_cast<QComboBox*>(control);
        auto* edit = combo ? combo->lineEdit() : static_cast<QLineEdit*>(control);
        control->setFocus();
        edit->selectAll();
        edit->insert(QString::fromUtf8(input.Text));
        QTest::keyClick(edit, Qt::Key_Tab);
    }

    support::Script script;
    clsCockpitParser cockpits;
    std::unique_ptr<clsShip> ship;
    QString reason; ///< of the refusal
};

const char* const quiet = "Position is neither in the list nor a whole number.";
const char* const badPath = "Path index must be whole number";
const char* const badType = "Turret type must be whole number";

struct TurretCase {
    const char* Path;
    const char* Body;
    const char* Type;
    const char* Position;
    const char* Said;
    const char* Stored; ///< body and path, descriptor
};

const char* const untouched = "BODY_T;007;04;03;";

const TurretCase turretCases[] = {
    {nullptr, nullptr, nullptr, nullptr, "", untouched},
    {"", "", nullptr, "?", "Path index not specified", untouched},
    {"x", "", nullptr, "?", badPath, untouched},
    {"1.5", nullptr, nullptr, nullptr, badPath, untouched},
    {"2147483648", nullptr, nullptr, nullptr, badPath, untouched},
    {"2", " ", nullptr, "?", "Body ID not specified", untouched},
    {nullptr, "a;b", "1.5", "?", quiet, untouched},
    {nullptr, nullptr, nullptr, "1.5", quiet, untouched},
    {nullptr, nullptr, nullptr, "", quiet, untouched},
    {nullptr, "a;b", "1.5", nullptr, badType, untouched},
    {"2", "a;b", "5", "rear", "Value cannot contain semicolon (;)", untouched},
    {nullptr, "a/b", nullptr, nullptr, "Value cannot contain slash (/)", untouched},
    {" 12 ", "B", nullptr, nullptr, "", "B;12;04;03;"},
    {"7", "BODY_T", "SC_C", "left", "", untouched},
    {nullptr, "caf\xC3\xA9", nullptr, nullptr, "", "caf\xC3\xA9;007;04;03;"},
    {nullptr, nullptr, nullptr, "rear", "", "BODY_T;007;04;2;"},
    {nullptr, nullptr, nullptr, "7", "", "BODY_T;007;04;7;"},
    {nullptr, nullptr, "SC_B", nullptr, "", "BODY_T;007;3;03;"},
    {nullptr, nullptr, "SC_a", nullptr, "", "BODY_T;007;2;03;"}, // the last of that name
    {nullptr, nullptr, "12", nullptr, "", "BODY_T;007;12;03;"},  // a number before a name
    {nullptr, nullptr, "sc_b", nullptr, "", "BODY_T;007;-1;03;"},
    {nullptr, nullptr, "", nullptr, "", "BODY_T;007;-1;03;"},
};

TEST_F(ShipDialogs, ATurretKeepsWhatWasNotTouchedAndNothingOfARefusedEntry) {
    for (const TurretCase& c : turretCases) {
        SCOPED_TRACE(testing::Message() << &c - turretCases << ' ' << c.Said);
        Load();
        clsTurret& turret = *ship->Turrets()[1];
        frmTurretEdit dialog;
        dialog.FileEncoding = [] { return TextEncoding::Utf8; };
        const bool refused = *c.Said != 0;
        if (refused && c.Said != quiet)
            script.Box(QString::fromUtf8(c.Said));
        const std::string before = Record();
        Answer(dialog, {{"PathEdit", c.Path},
                        {"BodyIdEdit", c.Body},
                        {"cmbTType", c.Type},
                        {"cmbPosition", c.Position}});
        dialog.ShowTurret(turret, *ship, cockpits);
        EXPECT_EQ(dialog.ModalResult(), refused ? 2 : 1);
        EXPECT_EQ(reason, QString::fromUtf8(c.Said));
        EXPECT_EQ(Values(turret.Offset() + 2, 2) + Values(turret.DescriptorOffset(), 2), c.Stored);
        EXPECT_EQ(ship->Object->Dirty, Record() != before);
    }
    EXPECT_EQ(script.Boxes.back().Title, QStringLiteral("Turret Edit"));
    EXPECT_EQ(script.Boxes.back().Icon, BoxIcon::Exclamation);
}

struct SetupCase {
    std::size_t Turret;
    const char* Type;    ///< stored
    const char* Shown;   ///< index, turret index, body, path, type, position
    bool Enabled = true; ///< the combos
};

TEST_F(ShipDialogs, ShowsATurret) {
    const SetupCase cases[] = {
        {0, "4", "1|0|BODY_F|007||front cockpit", false},
        {1, "4", "2|1|BODY_T|007|SC_C|left"},
        {1, "2", "2|1|BODY_T|007|SC_a|left"},
        {1, "5", "2|1|BODY_T|007|5|left"},
        {1, "x", "2|1|BODY_T|007|x|left"},
    };
    frmTurretEdit dialog;
    for (const SetupCase& c : cases) {
        SCOPED_TRACE(c.Shown);
        Load();
        ship->SetValue(clsShip::SectionDescriptors, keshobjects::readValue(c.Type));
        const std::string before = Record();
        QTimer::singleShot(0, &dialog, [&] {
            QStringList shown;
            for (const char* name : {"IndexEdit", "TurIdxEdit", "BodyIdEdit", "PathEdit"})
                shown += dialog.findChild<QLineEdit*>(QString::fromLatin1(name))->text();
            for (const char* name : {"cmbTType", "cmbPosition"}) {
                const auto* combo = dialog.findChild<QComboBox*>(QString::fromLatin1(name));
                shown += combo->currentText();
                EXPECT_EQ(combo->isEnabled(), c.Enabled);
            }
            EXPECT_EQ(shown.join(u'|').toStdString(), c.Shown);
            auto* body = dialog.findChild<QLineEdit*>(QStringLiteral("BodyIdEdit"));
            EXPECT_EQ(body->selectedText(), shown[2]);
            for (int press = 0; press < 2; ++press) { // into it sets the cursor
                QTest::mouseClick(body, Qt::LeftButton);
                EXPECT_EQ(body->selectedText(), QString());
            }
        });
        Answer(dialog, {});
        dialog.ShowTurret(*ship->Turrets()[c.Turret], *ship, cockpits);
        EXPECT_EQ(dialog.ModalResult(), 1);
        EXPECT_EQ(Record(), before);
    }
}

TEST_F(ShipDialogs, AFrontCockpitTakesNoDescriptor) {
    Load();
    frmTurretEdit dialog;
    Answer(dialog, {{"BodyIdEdit", "B"}, {"PathEdit", "3"}});
    dialog.ShowTurret(*ship->Turrets()[0], *ship, cockpits);
    EXPECT_EQ(Values(54, 8), "1;0;B;3;2;1;BODY_T;007;");
    EXPECT_EQ(Values(29, 4), "0;0;04;03;");
}

TEST_F(ShipDialogs, ATypeChosenFromTheListIsThatOne) {
    Load();
    frmTurretEdit dialog;
    QTimer::singleShot(0, &dialog, [&] {
        auto* types = dialog.findChild<QComboBox*>(QStringLiteral("cmbTType"));
        QTest::keyClick(types, Qt::Key_Down); // from SC_C to the first SC_a
    });
    Answer(dialog, {});
    dialog.ShowTurret(*ship->Turrets()[1], *ship, cockpits);
    EXPECT_EQ(Values(31, 2), "1;03;");
}

TEST_F(ShipDialogs, SaysThatATurretCannotBeRead) {
    Load();
    ship->SetValue(clsShip::SectionDescriptors + 1, std::string("x")); // a side that is none
    script.Box({});
    frmTurretEdit dialog;
    dialog.ShowTurret(*ship->Turrets()[1], *ship, cockpits);
    EXPECT_EQ(dialog.ModalResult(), 2);
}

struct NewTurretCase {
    int Turrets; ///< there already
    const char* Type;
    const char* Position;
    const char* Said;
    const char* Descriptors; ///< from the first
    const char* Sections;    ///< of the new turret and behind it
};

TEST_F(ShipDialogs, ANewTurretIsMadeAsAWholeOrNotAtAll) {
    const NewTurretCase cases[] = {
        {0, nullptr, "front", "", "04;03;0;0;", "1;0;B;5;1;1;0;1;0;"},
        {2, "SC_B", "rear", "", "04;03;3;2;",
         "3;2;B;5;3;1;3;1;1;1;03;GUN_A;007;;-1;4;0;2;0;4;0;3;0;"},
        {2, nullptr, "9", "", "04;03;-1;9;",
         "3;2;B;5;3;1;3;1;1;1;03;GUN_A;007;;-1;4;0;2;0;4;0;3;0;"},
        {2, "SC_B", nullptr, quiet, "", ""},
        {7, "SC_B", "rear", "Maximum number of turrets reached.", "", ""},
    };
    for (const NewTurretCase& c : cases) {
        SCOPED_TRACE(testing::Message() << &c - cases);
        Load(c.Turrets == 2 ? sections : "0;0;", c.Turrets == 2 ? "3" : "0");
        while (ship->TurretCount() < c.Turrets)
            ship->MakeNewTurret();
        const std::string before = Record();
        const std::string objects = support::objectsOf(*ship);
        frmTurretEdit dialog;
        Answer(dialog, {{"PathEdit", "5"},
                        {"BodyIdEdit", "B"},
                        {"cmbTType", c.Type},
                        {"cmbPosition", c.Position}});
        dialog.NewTurret(*ship, cockpits);
        EXPECT_EQ(reason, QString::fromUtf8(c.Said));
        EXPECT_EQ(dialog.ModalResult(), *c.Said ? 2 : 1);
        if (*c.Said) {
            EXPECT_EQ(Record(), before);
            EXPECT_EQ(support::objectsOf(*ship), objects);
            continue;
        }
        EXPECT_TRUE(ship->Validate()) << ship->GetLastError();
        EXPECT_EQ(Values(31, 4), c.Descriptors);
        const std::string made = support::sectionsOf(*ship);
        EXPECT_TRUE(made.ends_with(c.Sections)) << made;
    }
}

const char* const badCount = "Count must be whole number";
const char* const badGunPath = "Primary Path index must be whole number";
const char* const sameGun = "1;03;GUN_A;007;;-1;";

struct GunCase {
    const char* Count;
    const char* Body;
    const char* Path;
    const char* Body2;
    const char* Path2;
    const char* Said;
    const char* Stored;
    const char* Guns = "03"; ///< of the ship
};

const GunCase gunCases[] = {
    {nullptr, nullptr, nullptr, nullptr, nullptr, "", sameGun},
    {"", "", "", ";", "x", "Count not specified", sameGun},
    {"x", "", "", ";", "x", badCount, sameGun},
    {"0.5", nullptr, nullptr, nullptr, nullptr, badCount, sameGun},
    {"-1", nullptr, nullptr, nullptr, nullptr, "Count cannot be negative", sameGun},
    {nullptr, "", "", ";", "x", "Primary Body ID not specified", sameGun},
    {nullptr, "/", "", ";", "x", "Primary Path index not specified", sameGun},
    {nullptr, "/", "y", ";", "x", badGunPath, sameGun},
    {nullptr, "/", "1e10", ";", "x", badGunPath, sameGun},
    {nullptr, "/", "8", ";", "x", "Value cannot contain slash (/)", sameGun},
    {nullptr, nullptr, "8", ";", "x", "Value cannot contain semicolon (;)", sameGun},
    {nullptr, nullptr, "8", "G", "1.5", "Secondary Path index must be whole number", sameGun},
    {"2", " G ", "8", "H\t", "9", "", "1;2;G;8;H;9;", "2"},
    {"0", nullptr, "7", nullptr, "", "", "1;0;GUN_A;007;;-1;", "0"},
};

TEST_F(ShipDialogs, AGunKeepsWhatWasNotTouchedAndIsCounted) {
    for (const GunCase& c : gunCases) {
        SCOPED_TRACE(testing::Message() << &c - gunCases << ' ' << c.Said);
        Load(sections, "03");
        clsGunGroup& group = *ship->GunGroups()[0];
        const std::string before = Record();
        frmGunEdit dialog;
        const bool refused = *c.Said != 0;
        if (refused)
            script.Box(QString::fromUtf8(c.Said));
        Answer(dialog, {{"CountEdit", c.Count},
                        {"BodyIdEdit0", c.Body},
                        {"PathIdxEdit0", c.Path},
                        {"BodyIdEdit1", c.Body2},
                        {"PathIdxEdit1", c.Path2}});
        dialog.ShowGun(*group.Guns()[0], group);
        EXPECT_EQ(dialog.ModalResult(), refused ? 2 : 1);
        EXPECT_EQ(reason, QString::fromUtf8(c.Said));
        EXPECT_EQ(Values(group.Guns()[0]->Offset(), 6), c.Stored);
        EXPECT_EQ(ship->Object->ValueText(clsShip::FieldGunCount), c.Guns);
        EXPECT_EQ(Record() == before, std::string_view(c.Stored) == sameGun);
    }
    EXPECT_EQ(script.Boxes.back().Title, QStringLiteral("Gun Edit"));
}

TEST_F(ShipDialogs, ANewGunIsMadeAsAWholeOrNotAtAll) {
    Load();
    const std::string before = Record();
    const std::string objects = support::objectsOf(*ship);
    clsGunGroup& group = *ship->GunGroups()[0];
    const auto make = [&](const char* count) {
        frmGunEdit dialog;
        Answer(dialog, {{"CountEdit", count}, {"BodyIdEdit0", "G"}, {"PathIdxEdit0", "2"}});
        dialog.NewGun(group);
        return dialog.ModalResult();
    };
    EXPECT_EQ(make("2147483647"), 2); // more guns than can be counted
    EXPECT_NE(reason, QString());
    EXPECT_EQ(Record(), before);
    EXPECT_EQ(support::objectsOf(*ship), objects);
    EXPECT_EQ(make("2"), 1);
    EXPECT_EQ(support::sectionsOf(*ship), "2;1;0;BODY_F;007;2;1;BODY_T;007;2;1;5;1;2;"
                                          "1;03;GUN_A;007;;-1;4;2;G;2;;-1;6;0;2;0;");
    EXPECT_EQ(ship->GunCount(), 5);
    EXPECT_TRUE(ship->Validate()) << ship->GetLastError();
}

} // namespace
