// A German user sees the program's own words in German; the names that the game's modders know
// stay.
#include "app/Translations.h"
#include "apptest.h"
#include "txteditor/frmTXTEditor.h"

namespace {

/// German for the time of a test.
class German {
public:
    German() { InstallTranslations(QLocale(QLocale::German, QLocale::Germany)); }
    ~German() { qDeleteAll(qApp->findChildren<QTranslator*>()); }
    German(const German&) = delete;
    German& operator=(const German&) = delete;
};

class Translation : public AppTest {};

TEST_F(Translation, ShowsOwnWordsInGermanAndFixedOnesInEnglish) {
    const German german;
    const frmTXTEditor window;
    const auto* save = window.findChild<QAction*>(QStringLiteral("save"));
    ASSERT_TRUE(save);
    EXPECT_EQ(save->toolTip(), QStringLiteral("Speichert die Datei"));
    EXPECT_EQ(save->text(), QStringLiteral("&Save"));
    EXPECT_EQ(window.findChild<QAbstractItemView*>(QStringLiteral("ObjectView"))->accessibleName(),
              QStringLiteral("Datensätze"));
    const auto* sort = window.findChild<QCheckBox*>(QStringLiteral("chkSort"));
    EXPECT_EQ(sort->text(), QStringLiteral("Sorted"));
}

TEST_F(Translation, IsEnglishForALanguageWithoutOne) {
    InstallTranslations(QLocale(QLocale::Icelandic));
    EXPECT_EQ(frmTXTEditor::tr("Save the file"), QStringLiteral("Save the file"));
}

} // namespace
