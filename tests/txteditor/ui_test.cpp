// The layer under the windows: texts, filters, positions, boxes.
#include "core/clsSettings.h"
#include "core/surroundings.h"
#include "support/scriptedinterface.h"
#include "ui/CommonBoxes.h"
#include "ui/FileFilter.h"
#include "ui/TextCodec.h"
#include "ui/WindowPos.h"
#include "ui/frmWait.h"

#include <QTest>

namespace {

TEST(TextCodec, EveryByteComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(FromScreen(ToScreen(all), TextEncoding::Windows1252), all);
    EXPECT_EQ(ToScreen("\x80\x99"), QStringLiteral("\u20AC\u2122"));
    EXPECT_EQ(ToScreen("\xE2\x82\xAC"), QStringLiteral("\u20AC"));
}

TEST(TextCodec, WhatDoesNotFitIsRefused) {
    EXPECT_FALSE(FromScreen(QStringLiteral("\u661F"), TextEncoding::Windows1252));
    EXPECT_FALSE(FromScreen(QString(QChar(0xD800)), TextEncoding::Utf8));
    EXPECT_EQ(FromScreen(QStringLiteral("\u661F"), TextEncoding::Utf8), "\xE6\x98\x9F");
}

struct GuessCase {
    std::vector<std::string> Pieces;
    TextEncoding Encoding;
};

TEST(TextCodec, GuessesAFilesEncoding) {
    const GuessCase cases[] = {
        {{}, TextEncoding::Windows1252},
        {{"ascii"}, TextEncoding::Windows1252},
        {{"ascii", "\xC3\xA9"}, TextEncoding::Utf8},
        {{"\xC3\xA9", "\xE9"}, TextEncoding::Windows1252},
        {{"\xE9", "\xC3\xA9"}, TextEncoding::Windows1252},
    };
    for (const GuessCase& c : cases) {
        EncodingGuess guess;
        for (const std::string& piece : c.Pieces)
            guess.Add(piece);
        EXPECT_EQ(guess.Result(), c.Encoding);
    }
}

TEST(FileFilter, IsTurnedIntoTheToolkitsForm) {
    const QString filter = QStringLiteral("T files (*.txt; *.pck)|*.txt;*.pck|All (*.*)|*.*");
    EXPECT_EQ(ToolkitFilters(filter),
              QStringList({QStringLiteral("T files (*.txt *.pck)"), QStringLiteral("All (*)")}));
    EXPECT_EQ(FilterForExtension(filter, QStringLiteral("PCK"), 2), 1);
    EXPECT_EQ(FilterForExtension(filter, QStringLiteral("doc"), 2), 2);
    EXPECT_EQ(WithExtension(QStringLiteral("/a.b/name"), filter, 1),
              QStringLiteral("/a.b/name.txt"));
    EXPECT_EQ(WithExtension(QStringLiteral("name.x"), filter, 1), QStringLiteral("name.x"));
    EXPECT_EQ(WithExtension(QStringLiteral("name"), filter, 2), QStringLiteral("name"));
    EXPECT_EQ(WithExtension(QStringLiteral("name"), filter, 0), QStringLiteral("name"));
}

class Windows : public Surroundings {
protected:
    Windows() { Settings = std::make_unique<clsSettings>(); }
    ~Windows() override { Settings.reset(); }
};

TEST_F(Windows, ComeBackWhereTheyWere) {
    {
        QWidget window;
        LoadWindowPos(window, "w", 300, 200);
        EXPECT_EQ(window.size(), QSize(300, 200));
        window.setGeometry(40, 50, 320, 210);
        SaveWindowPos(window, "w");
    }
    QWidget window;
    LoadWindowPos(window, "w", 300, 200);
    EXPECT_EQ(window.geometry(), QRect(40, 50, 320, 210));
    for (const char* name : {"left", "top"})
        Settings->SaveRegValue("w", name, 100000);
    LoadWindowPos(window, "w", 300, 200);
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
    Settings->SaveRegValue("w", "state", 2);
    LoadWindowPos(window, "w", 300, 200);
    EXPECT_TRUE(window.isMaximized());
}

TEST_F(Windows, TheGameRunsOrThePathIsMissed) {
    support::Script script;
    script.Box(QStringLiteral("Program cannot found registry entry of Kesh Origins."));
    EXPECT_FALSE(RunGame(nullptr));
    Settings->SetDataRoot("\\games\\kesh");
    EXPECT_TRUE(RunGame(nullptr));
    EXPECT_EQ(script.Started, QStringList(QStringLiteral("/games/kesh/kesh.exe")));
}

TEST_F(Windows, TheWaitWindowFollowsItsText) {
    QWidget owner;
    ShowWait(QStringLiteral("short"), &owner);
    QWidget* wait = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == QStringLiteral("frmWait"))
            wait = top;
    ASSERT_TRUE(wait && wait->isVisible());
    EXPECT_EQ(wait->windowTitle(), QStringLiteral("Loading"));
    EXPECT_EQ(owner.cursor().shape(), Qt::WaitCursor);
    const int before = wait->width();
    UpdateWait(QString(200, u'w'));
    EXPECT_GT(wait->width(), before);
    EXPECT_EQ(wait->findChild<QLabel*>(QStringLiteral("lblStatus"))->text().size(), 200);
    CloseWait(&owner);
    EXPECT_EQ(owner.cursor().shape(), Qt::ArrowCursor);
    UpdateWait(QStringLiteral("nothing happens"));
}

/// Answers the real box by the button with this text.
void press(const QString& text, QString& said) {
    QTimer::singleShot(0, qApp, [text, &said] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        said = box->text();
        for (QAbstractButton* button : box->buttons())
            if (button->text().remove(u'&') == text)
                return button->click();
        box->close();
    });
}

struct BoxCase {
    BoxButtons Buttons;
    const char* Pressed; ///< empty: closed by other means
    Answer Expected;
};

TEST_F(Windows, RealBoxesGiveTheAnswerThatWasPressed) {
    const BoxCase cases[] = {
        {BoxButtons::Ok, "OK", Answer::Ok},          {BoxButtons::Ok, "", Answer::Ok},
        {BoxButtons::YesNo, "Yes", Answer::Yes},     {BoxButtons::YesNo, "No", Answer::No},
        {BoxButtons::YesNoCancel, "No", Answer::No}, {BoxButtons::YesNoCancel, "", Answer::Cancel},
    };
    for (const BoxCase& c : cases) {
        SCOPED_TRACE(c.Pressed);
        QString said;
        press(QString::fromLatin1(c.Pressed), said);
        const MessageRequest request{QStringLiteral("Title"), QStringLiteral("<b>text</b>"),
                                     BoxIcon::Question, c.Buttons};
        EXPECT_EQ(Ui().ShowMessage(nullptr, request), c.Expected);
        EXPECT_EQ(said, request.Text);
    }
}

TEST_F(Windows, EnterInARealBoxDoesNotLoseAnything) {
    for (const bool careful : {false, true}) {
        QTimer::singleShot(
            0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        const MessageRequest request{{}, QStringLiteral("text"), {}, BoxButtons::YesNo, careful};
        EXPECT_EQ(Ui().ShowMessage(nullptr, request), careful ? Answer::No : Answer::Yes);
    }
}

TEST_F(Windows, TheRealFileDialogGivesNameAndFilter) {
    write("a.pck", "x");
    FileRequest request{
        QStringLiteral("Open"), QStringLiteral("T|*.txt|P|*.pck|C|*.cat"), 2, native("."), {}};
    const auto accept = [](const QString& name) {
        QTimer::singleShot(0, qApp, [name] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            QMetaObject::invokeMethod(dialog, "accept");
            if (dialog->isVisible())
                dialog->reject();
        });
    };
    accept(QStringLiteral("a.pck"));
    const auto opened = Ui().ShowOpen(nullptr, request);
    ASSERT_TRUE(opened);
    EXPECT_EQ(QFileInfo(opened->FileName), QFileInfo(native("a.pck")));
    EXPECT_EQ(opened->FilterIndex, 2);

    request.FilterIndex = 3;
    request.FileName = native("mod.cat::types\\TShips.pck");
    QTimer::singleShot(
        0, qApp, [] { QMetaObject::invokeMethod(QApplication::activeModalWidget(), "accept"); });
    const auto kept = Ui().ShowSave(nullptr, request); // what was proposed can be taken as it is
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->FileName, request.FileName);
    EXPECT_EQ(kept->FilterIndex, 3);
}

} // namespace
