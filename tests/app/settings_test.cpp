// The settings window: what it shows, offers, stores, and does afterwards.
#include "app/frmSettings.h"
#include "apptest.h"

namespace {

class SettingsWindow : public AppTest {
protected:
    static void type(frmSettings& window, const char* edit, const QString& text) {
        window.findChild<QLineEdit*>(QString::fromLatin1(edit))->setText(text);
    }
    static void check(frmSettings& window, const char* box, bool on) {
        window.findChild<QCheckBox*>(QString::fromLatin1(box))->setChecked(on);
    }
    static void press(frmSettings& window, const char* button) {
        window.findChild<QPushButton*>(QString::fromLatin1(button))->click();
    }
    static QComboBox& language(frmSettings& window) {
        return *window.findChild<QComboBox*>(QStringLiteral("cmbLangID"));
    }
    /// Opens the window, uses it, and gives how it ended.
    static int show(const std::function<void(frmSettings&)>& use) {
        frmSettings window;
        meanwhile<frmSettings>(use);
        window.ShowSettings();
        return window.ModalResult;
    }
    static constexpr const char* texts = "<texts language=\"44\"><page id=\"17\">"
                                         "<string id=\"5\">Copper</string></page></texts>";
    static std::string copper() { return DescServer->GetStringDirect(17, 5); }
};

TEST_F(SettingsWindow, StoresPathsInTheProgramsFormAndLeavesDefaultsAlone) {
    const int result = show([&](frmSettings& window) {
        type(window, "EditorEdit", native("my tool.sh"));
        type(window, "Ext3DViewerEdit", native("viewer"));
        type(window, "Ext3DViewerCmdLineEdit", QStringLiteral("-f %1"));
        check(window, "chkUseDD", false);
        check(window, "chkExt3DViewerSupportsLornFD", false);
        press(window, "btnOK");
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Settings->CustomProgram(), program("my tool.sh"));
    EXPECT_EQ(Settings->Ext3DViewerPath(), program("viewer"));
    EXPECT_EQ(Settings->Ext3DViewerCmdLine(), "-f %1");
    EXPECT_FALSE(Settings->UseDirectDraw());
    EXPECT_TRUE(Settings->UseDoubleBuffer());
    EXPECT_FALSE(Settings->Ext3DViewerSupportsLornFD());
    Settings->SetDataRoot(program("other"));
    EXPECT_EQ(Settings->KeshEXEPath(), program("other\\kesh.exe"));
}

TEST_F(SettingsWindow, CancelStoresNothing) {
    EXPECT_EQ(show([](frmSettings& window) {
                  type(window, "DataDir", QStringLiteral("/elsewhere"));
                  press(window, "btnCancel");
              }),
              0);
    EXPECT_EQ(Settings->DataRoot(), program("data"));
}

TEST_F(SettingsWindow, OffersWhatHasAnEffect) {
    frmSettings window;
    window.ShowSettings(false);
    const auto* buffer = window.findChild<QCheckBox*>(QStringLiteral("chkUseDBuf"));
    EXPECT_FALSE(language(window).isEnabled()); // descriptions are off in these tests
    EXPECT_FALSE(buffer->isEnabled());
    check(window, "chkLoadDesc", true);
    check(window, "chkUseDD", false);
    EXPECT_TRUE(language(window).isEnabled());
    EXPECT_TRUE(buffer->isEnabled());
}

struct LanguageCase {
    const char* Typed; ///< empty: the row that is selected
    int Result;
    int Stored;
};

TEST_F(SettingsWindow, TakesALanguageFromTheListOrAsCode) {
    const LanguageCase cases[] = {
        {"", 1, 49},       {"7", 1, 7}, {" 33 ", 1, 33},       {"1e9", 1, 1000000000},
        {"German", 0, 49}, {"", 1, 49}, {"99999999999", 0, 49}};
    for (const LanguageCase& c : cases) {
        SCOPED_TRACE(c.Typed);
        Settings->SetDescLangID(49);
        if (c.Result == 0)
            script.Box(
                QStringLiteral("Entered value is incorrect. It must be whole number: Lang ID."));
        EXPECT_EQ(show([&](frmSettings& window) {
                      EXPECT_EQ(language(window).currentText(), QStringLiteral("49 - German"));
                      if (*c.Typed)
                          language(window).setEditText(QString::fromLatin1(c.Typed));
                      type(window, "EditorEdit", QString::fromLatin1(c.Typed));
                      press(window, "btnOK");
                      EXPECT_EQ(window.isVisible(), c.Result == 0);
                  }),
                  c.Result);
        EXPECT_EQ(Settings->DescLangID(), c.Stored);
        EXPECT_EQ(Settings->CustomProgram(),
                  QString::fromLatin1(c.Typed).trimmed().toStdString()); // stored before
    }
    Settings->SetDescLangID(7);
    show([](frmSettings& window) {
        EXPECT_EQ(language(window).currentText(), QStringLiteral("7"));
    });
}

TEST_F(SettingsWindow, AppliesWhatChanged) {
    write("data/t/44.xml", texts);
    write("data/t/-L044.xml", texts);
    LoadKeshData();
    EXPECT_EQ(copper(), "[string 17:5]");
    show([](frmSettings& window) {
        check(window, "chkLoadDesc", true);
        press(window, "btnOK");
    });
    EXPECT_EQ(copper(), "Copper");
    write("data/types/TWareT.txt", wares);
    show([](frmSettings& window) { press(window, "btnOK"); });
    EXPECT_FALSE(Archive->GetFile("TWareT")); // the same directory is not read again
    show([&](frmSettings& window) {
        type(window, "DataDir", native("data/"));
        press(window, "btnOK");
    });
    EXPECT_TRUE(Archive->GetFile("TWareT"));
    show([](frmSettings& window) {
        check(window, "chkLoadDesc", false);
        press(window, "btnOK");
    });
    EXPECT_EQ(copper(), "[string 17:5]");
}

TEST_F(SettingsWindow, Browses) {
    frmSettings window;
    window.ShowSettings(false);
    script.Text("directory", std::nullopt);
    press(window, "btnDataDirBrowse");
    EXPECT_EQ(script.Offered, native("data"));
    script.Text("directory", native("tmp"));
    press(window, "btnDataDirBrowse");
    EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("DataDir"))->text(), native("tmp"));
    for (const char* name : {"Lorn", "Editor", "Ext3DViewer"}) {
        script.Open(FileChoice{native(name), 1});
        press(window, (std::string("btn") + name + "Browse").c_str());
        EXPECT_EQ(script.Files.back().Filter,
                  QStringLiteral("Executable Files (*.exe)|*.exe|All Files (*.*)|*.*"));
    }
    EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("LornPathEdit"))->text(), native("Lorn"));
    EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("Ext3DViewerEdit"))->text(),
              native("Ext3DViewer"));
    press(window, "btnHelp");
    EXPECT_TRUE(script.Started.last().endsWith(QStringLiteral("/help/settings.html")));
}

TEST_F(SettingsWindow, APressSelectsTheField) {
    frmSettings window;
    window.ShowSettings(false);
    auto* edit = window.findChild<QLineEdit*>(QStringLiteral("EditorEdit"));
    edit->setText(QStringLiteral("some text"));
    edit->deselect();
    QTest::mouseClick(edit, Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(edit->selectedText(), edit->text());
    QTest::mouseClick(edit, Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(edit->hasSelectedText()); // the second sets the cursor
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(edit, &back);
    EXPECT_FALSE(edit->hasSelectedText()); // so that "Paste" of its menu replaces nothing
}

} // namespace
