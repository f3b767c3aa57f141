// The find dialog, used by keys.
#include "core/surroundings.h"
#include "support/scriptedinterface.h"
#include "ui/frmFind.h"

#include <QTest>

namespace {

class Finding : public testing::Test {
protected:
    Finding() {
        QObject::connect(
            &find, &frmFind::OnFindNext,
            [this](bool whole, bool byID, QString& text, QVariant& tag, bool& found) {
                asked =
                    QStringLiteral("%1 %2 %3 %4").arg(text).arg(whole).arg(byID).arg(tag.toInt());
                tag = tag.toInt() + 1;
                found = answer;
            });
        QObject::connect(&find, &frmFind::OnClose, [this] { ++closed; });
    }
    template <class W>
    W* child(const char* name) const {
        return find.findChild<W*>(QString::fromLatin1(name));
    }
    void enter() { QTest::keyClick(child<QLineEdit>("FindEdit"), Qt::Key_Return); }

    support::Script script;
    QWidget owner;
    frmFind find;
    QString asked;
    bool answer = true;
    int closed = 0;
};

TEST_F(Finding, AsksTheOwnerAndKeepsItsTag) {
    find.ShowFind({}, false, &owner);
    EXPECT_EQ(find.parentWidget(), &owner);
    enter();
    EXPECT_EQ(asked, QString()) << "an empty text starts no search";
    QTest::keyClicks(child<QLineEdit>("FindEdit"), QStringLiteral("ab"));
    enter();
    EXPECT_EQ(asked, QStringLiteral("ab 0 0 0"));
    child<QCheckBox>("chkWholeWords")->click();
    answer = false;
    script.Box(QStringLiteral("No more occurencies found."));
    enter();
    EXPECT_EQ(asked, QStringLiteral("ab 1 0 1"));
    EXPECT_EQ(script.Boxes[0].Title, QStringLiteral("Find"));
    EXPECT_EQ(script.Boxes[0].Icon, BoxIcon::Information);
    answer = true;
    enter();
    EXPECT_EQ(asked, QStringLiteral("ab 1 0 2")) << "the tag stays";
    find.ClearTag();
    enter();
    EXPECT_EQ(asked, QStringLiteral("ab 1 0 0"));
}

TEST_F(Finding, ComparesIdentifiersWhole) {
    find.ShowFindResEditor(QStringLiteral("7"), false, &owner);
    EXPECT_TRUE(child<QRadioButton>("rbIDText0")->isVisible());
    EXPECT_TRUE(child<QRadioButton>("rbIDText1")->isChecked());
    enter();
    EXPECT_EQ(asked, QStringLiteral("7 0 0 0"));
    child<QRadioButton>("rbIDText0")->click();
    EXPECT_FALSE(child<QCheckBox>("chkWholeWords")->isEnabled());
    enter();
    EXPECT_EQ(asked, QStringLiteral("7 1 1 1"));
    find.ShowFind(QStringLiteral("8"), false, &owner);
    EXPECT_FALSE(child<QRadioButton>("rbIDText0")->isVisible());
    EXPECT_TRUE(child<QCheckBox>("chkWholeWords")->isEnabled());
}

TEST_F(Finding, TellsOnceHoweverItIsClosed) {
    for (int way = 0; way < 3; ++way) {
        find.ShowFind(QStringLiteral("old"), false, &owner);
        EXPECT_EQ(child<QLineEdit>("FindEdit")->selectedText(), QStringLiteral("old"));
        if (way == 0)
            child<QPushButton>("btnCancel")->click();
        else if (way == 1)
            QTest::keyClick(&find, Qt::Key_Escape);
        else
            find.close();
        EXPECT_FALSE(find.isVisible());
        EXPECT_EQ(closed, way + 1);
    }
}

} // namespace
