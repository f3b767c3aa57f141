// The value dialog: what is accepted, what is refused in which words, and what is stored.
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"

namespace {

constexpr int field = 4; // spelled "007"

struct ValueCase {
    const char* Name;
    int Class; ///< translation class; -1 for no panel
    int Type;
    const char* Entered;
    const char* Said; ///< the refusal, or empty
    const char* Stored;
    bool Slash = false;
};

const char* const notWhole = "Entered value is incorrect. It must be whole number.";
const char* const notFloat = "Entered value is incorrect. It must be float number.";
const char* const semicolon = "Value cannot contain semicolon (;)";
const char* const slash = "Value cannot contain slash (/)";

const ValueCase valueCases[] = {
    {"number without panel", -1, 2, "1.50", "", "1.5"},
    {"large number without exponent", -1, 2, "1e6", "", "1000000"},
    {"text without panel", -1, 2, "SHIP X", "", "SHIP X"},
    {"equal number keeps its spelling", -1, 2, "7", "", "007"},
    {"untouched", -1, 2, "007", "", "007"},
    {"semicolon", -1, 2, "a;b", semicolon, "007"},
    {"slash", -1, 2, "a/b", slash, "007"},
    {"slash where allowed", -1, 2, "a/b", "", "a/b", true},
    {"semicolon where slash is allowed", -1, 2, ";", semicolon, "007", true},
    {"no place in the file's encoding", -1, 2, "\xE6\x98\x9F", "Value holds a character", "007"},
    {"integer", 0, 0, " 12 ", "", "12"},
    {"integer written as real", 0, 0, "3e2", "", "300"},
    {"fraction for an integer", 0, 0, "1.5", notWhole, "007"},
    {"nothing for an integer", 0, 0, "", notWhole, "007"},
    {"beyond 32 bits", 0, 0, "2147483648", notWhole, "007"},
    {"float", 0, 1, "-0.250", "", "-0.25"},
    {"text for a float", 0, 1, "fast", notFloat, "007"},
    {"text that spells a number", 0, 2, "0099", "", "0099"},
    {"translated", 1, 1, "2 m", "", "1000"},
    {"refused translation, whatever the type", 1, 1, "?", notWhole, "007"},
    {"translation that throws", 1, 1, "!", notFloat, "007"},
    {"list", 2, 0, "Red", "", "1000"},
};

class ValueDialog : public EditorTest {
protected:
    RecordPtr load() {
        write("TWareT.txt", wares({"WARE_A", "WARE_B"}));
        EXPECT_EQ(file.Open(program("TWareT.txt")).Kind, clsTFile::Outcome::Done);
        return file.Parser.FindIndex(0);
    }

    clsTFile file;
    FakePanel panel;
};

TEST_F(ValueDialog, StoresWhatFitsTheFieldAndRefusesTheRest) {
    for (const ValueCase& c : valueCases) {
        SCOPED_TRACE(c.Name);
        const RecordPtr record = load();
        panel.Class = std::max(c.Class, 0);
        panel.Type = c.Type;
        panel.Translated = "0.014";
        panel.Back =
            std::string_view(c.Entered) == "?" ? std::nullopt : std::optional<KeshValue>(1000);
        panel.Broken = std::string_view(c.Entered) == "!";
        frmEdit dialog;
        dialog.AllowSlash = c.Slash;
        if (*c.Said)
            script.Box(QString::fromUtf8(c.Said));
        typeValue(QString::fromUtf8(c.Entered));
        dialog.ShowProperty(c.Class < 0 ? nullptr : &panel, record, field);
        EXPECT_EQ(record->ValueText(field), c.Stored);
        EXPECT_EQ(dialog.ModalResult(), *c.Said ? 2 : 1);
        EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("lblReason"))
                        ->text()
                        .toStdString()
                        .starts_with(c.Said));
        EXPECT_EQ(record->Dirty, std::string_view(c.Stored) != "007");
    }
}

TEST_F(ValueDialog, KeepsWhatATranslationRoundsAwayIfNothingWasTyped) {
    const RecordPtr record = load();
    panel.Class = translation::Number;
    panel.Translated = "0.01";
    panel.Back = KeshValue(5);
    frmEdit dialog;
    typeValue(QStringLiteral("0.01"));
    dialog.ShowProperty(&panel, record, field);
    EXPECT_EQ(dialog.ModalResult(), 1);
    EXPECT_EQ(record->ValueText(field), "007");
}

struct LabelCase {
    int Class;
    int Type;
    bool Uncheck;
    const char* Label;
    const char* Value;
};

TEST_F(ValueDialog, LabelsTheValueByTypeOrUnit) {
    const LabelCase cases[] = {
        {0, 0, false, "Value [Integer]", "007"}, {0, 1, false, "Value [Float]", "007"},
        {0, 2, false, "Value [String]", "007"},  {1, 1, false, "Value [m/s]", "0.014"},
        {1, 1, true, "Value [Float]", "007"},    {2, 0, false, "Value", "0.014"},
    };
    const RecordPtr record = load();
    panel.Translated = "0.014";
    panel.Choices = {"Red", "Green"};
    for (const LabelCase& c : cases) {
        SCOPED_TRACE(c.Label);
        panel.Class = c.Class;
        panel.Type = c.Type;
        frmEdit dialog;
        QTimer::singleShot(0, &dialog, [&] {
            auto* translated = dialog.findChild<QCheckBox*>(QStringLiteral("chkTranslatedValue"));
            EXPECT_EQ(translated->isEnabled(), c.Class == 1);
            EXPECT_EQ(translated->isChecked(), c.Class == 1);
            if (c.Uncheck)
                translated->setChecked(false);
            auto* value = dialog.findChild<QComboBox*>(QStringLiteral("cmbValue"));
            EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblValue"))->text().toStdString(),
                      c.Label);
            EXPECT_EQ(value->currentText().toStdString(), c.Value);
            EXPECT_EQ(value->count(), c.Class == 2 ? 2 : 0);
            EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("PropNameEdit"))->text(),
                      QStringLiteral("Speed (offset 4)"));
            dialog.reject();
        });
        dialog.ShowProperty(&panel, record, field);
        EXPECT_EQ(dialog.ModalResult(), 2);
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Value Edit"));
    }
}

TEST_F(ValueDialog, SaysThatAFieldCannotBeLoaded) {
    script.Box(QStringLiteral("Error loading property."));
    frmEdit dialog;
    dialog.ShowProperty(nullptr, load(), 99);
    EXPECT_EQ(dialog.ModalResult(), 2);
}

struct NameCase {
    const char* Entered;
    const char* Said;
    const char* Stored;
};

TEST_F(ValueDialog, GivesARecordANameThatNoOtherHas) {
    const NameCase cases[] = {
        {"WARE_C", "", "WARE_C"},
        {"ware_a", "", "ware_a"}, // its own, in another case
        {"ware_b", "This object ID is already used.", "WARE_A"},
        {"A;B", semicolon, "WARE_A"},
        {"A/B", slash, "WARE_A"},
    };
    for (const NameCase& c : cases) {
        SCOPED_TRACE(c.Entered);
        const RecordPtr record = load();
        if (*c.Said)
            script.Box(QString::fromUtf8(c.Said));
        frmEdit dialog;
        typeValue(QString::fromUtf8(c.Entered));
        dialog.ShowName(record, file.Parser.ByIndex());
        EXPECT_EQ(record->ObjectName(), c.Stored);
    }
}

struct EncodingCase {
    const char* Name; ///< a record's, in the file
    const char* Entered;
    const char* Stored;
};

TEST_F(ValueDialog, TypedTextIsEncodedAsItsFile) {
    const EncodingCase cases[] = {
        {"PLAIN", "caf\xC3\xA9", "caf\xE9"},
        {"\xC3\xBC", "caf\xC3\xA9", "caf\xC3\xA9"},
        {"\xFC", "\xE2\x82\xAC", "\x80"},
        {"\xC3\xBC", "\xE6\x98\x9F", "\xE6\x98\x9F"},
    };
    for (const EncodingCase& c : cases) {
        SCOPED_TRACE(c.Name);
        write("TWareT.txt", wares({"WARE_A", c.Name}));
        start("TWareT.txt");
        editField(0, 2, QString::fromUtf8(c.Entered));
        EXPECT_EQ(window->SelectedObject()->ValueText(2), c.Stored);
        delete window.data();
    }
}

TEST_F(ValueDialog, AChoiceStaysInTheEncodingOfItsText) {
    const RecordPtr record = load();
    panel.Class = translation::List;
    panel.Choices = {"Jäger", "Träger"};
    panel.Translated = "Jäger";
    panel.Back = KeshValue("SG_SH_M1");
    frmEdit dialog;
    typeValue(QStringLiteral("Träger"));
    dialog.ShowProperty(&panel, record, field);
    EXPECT_EQ(panel.Entered, "Träger") << "not as the file, which is Windows-1252";
    EXPECT_EQ(record->ValueText(field), "SG_SH_M1");
}

} // namespace
