// Every window by keyboard, screen reader and eye: each control has a name, is reached by Tab and
// is not cut.
#include "app/frmFiles.h"
#include "app/frmSettings.h"
#include "apptest.h"
#include "files/frmCATDialog.h"
#include "txteditor/frmEdit.h"
#include "txteditor/panels/AllPanels.h"
#include "txteditor/panels/frmGunEdit.h"
#include "txteditor/panels/frmTurretEdit.h"
#include "ui/frmAbout.h"
#include "ui/frmFind.h"
#include "ui/frmText.h"
#include "ui/frmWait.h"

namespace {

using Maker = std::unique_ptr<QWidget> (*)();

template <class Window>
std::unique_ptr<QWidget> make() {
    return std::make_unique<Window>();
}

std::unique_ptr<QWidget> makeEditor() {
    return std::make_unique<frmTXTEditor>(AllPanels());
}

const std::map<const char*, Maker> makers = {
    {"launcher", make<frmMain>},     {"editor", makeEditor},
    {"settings", make<frmSettings>}, {"value", make<frmEdit>},
    {"find", make<frmFind>},         {"report", make<frmText>},
    {"files", make<frmFiles>},       {"about", make<frmAbout>},
    {"wait", make<frmWait>},         {"catalog", make<frmCATDialog>},
    {"turret", make<frmTurretEdit>}, {"gun", make<frmGunEdit>}};

/// What a screen reader has to say of a control.
QString spoken(const QWidget& control) {
    if (!control.accessibleName().isEmpty())
        return control.accessibleName();
    for (const QLabel* label : control.window()->findChildren<QLabel*>())
        if (label->buddy() == &control)
            return label->text();
    const auto* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
    return interface ? interface->text(QAccessible::Name) : QString();
}

/// Made by the toolkit inside another control, which speaks for it.
bool isPart(const QWidget& control) {
    return control.objectName().startsWith(QStringLiteral("qt_")) ||
           qobject_cast<QComboBox*>(control.parentWidget()) ||
           qobject_cast<QAbstractItemView*>(control.parentWidget()) ||
           qobject_cast<const QTabBar*>(&control) || qobject_cast<const QTabWidget*>(&control) ||
           qobject_cast<const QHeaderView*>(&control);
}

class Accessible : public AppTest {
protected:
    static QList<QWidget*> Controls(const QWidget& window) {
        QList<QWidget*> controls;
        for (QWidget* control : window.findChildren<QWidget*>())
            if (control->window() == &window && control->focusPolicy() != Qt::NoFocus &&
                !isPart(*control))
                controls.append(control);
        return controls;
    }
};

TEST_F(Accessible, EveryControlHasAName) {
    for (const auto& [name, maker] : makers) {
        const std::unique_ptr<QWidget> window = maker();
        for (const QWidget* control : Controls(*window))
            EXPECT_FALSE(spoken(*control).isEmpty())
                << name << ": " << control->metaObject()->className() << ' '
                << control->objectName().toStdString();
        for (const QToolBar* bar : window->findChildren<QToolBar*>())
            for (const QAction* action : bar->actions())
                EXPECT_TRUE(action->isSeparator() || !action->toolTip().isEmpty())
                    << name << ": " << action->objectName().toStdString();
    }
}

/// True if Tab should stop there, as the window stands: of a group of radio buttons, at one.
bool isStop(const QWidget& control) {
    const auto* radio = qobject_cast<const QRadioButton*>(&control);
    return control.isVisible() && control.isEnabled() && (control.focusPolicy() & Qt::TabFocus) &&
           (!radio || radio->isChecked());
}

TEST_F(Accessible, TabReachesEveryControl) {
    for (const auto& [name, maker] : makers) {
        const std::unique_ptr<QWidget> window = maker();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get())) << name;
        const QList<QWidget*> controls = Controls(*window);
        QSet<const QWidget*> reached;
        for (qsizetype i = 0; i < 2 * controls.size(); ++i) {
            reached.insert(QApplication::focusWidget());
            QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(),
                            Qt::Key_Tab);
        }
        for (const QWidget* control : controls)
            EXPECT_TRUE(!isStop(*control) || reached.contains(control))
                << name << ": " << control->metaObject()->className() << ' '
                << control->objectName().toStdString();
    }
}

/// A text that is meant to be seen whole.
bool isText(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    return control.isVisible() && !control.property("text").toString().isEmpty() &&
           control.sizePolicy().horizontalPolicy() != QSizePolicy::Ignored &&
           (label || qobject_cast<const QAbstractButton*>(&control));
}

/// The least size in which it is seen whole.
QSize neededSize(const QWidget& control) {
    const QSize least = control.minimumSizeHint();
    return control.hasHeightForWidth() ? QSize(0, control.heightForWidth(control.width())) : least;
}

void expectNothingCut(const char* name, const QWidget& window) {
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || !isText(*control))
            continue;
        const QRect place(control->mapTo(&window, QPoint()), control->size());
        const QSize needed = neededSize(*control);
        EXPECT_TRUE(window.rect().contains(place) &&
                    needed.expandedTo(place.size()) == place.size())
            << name << ": " << control->property("text").toString().toStdString();
    }
}

/// Looks at the window as it is, then at each page of its tabs.
void onEachPage(const QWidget& window, const std::function<void()>& look) {
    look();
    for (auto* tabs : window.findChildren<QTabWidget*>())
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            look();
        }
}

TEST_F(Accessible, NoTextIsCutWithAnyFontInAnySize) {
    const QFont usual = QApplication::font();
    for (const int scale : {1, 2}) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * scale);
        QApplication::setFont(font);
        for (const auto& [name, maker] : makers) {
            const std::unique_ptr<QWidget> window = maker();
            window->show();
            for (const QSize size : {window->size(), QSize(800, 600), QSize(2560, 1440)}) {
                SCOPED_TRACE("font " + std::to_string(scale) + ", width " +
                             std::to_string(size.width()));
                window->resize(size);
                QCoreApplication::processEvents();
                onEachPage(*window,
                           [&name = name, &window = *window] { expectNothingCut(name, window); });
            }
        }
    }
    QApplication::setFont(usual);
}

QStringList texts(const QList<QAction*>& actions) {
    QStringList found;
    for (const QAction* action : actions)
        found.append(action->text());
    return found;
}

/// Texts whose mnemonics hold while the window shows what it shows now.
QStringList textsInWindow(const QWidget& window) {
    QStringList found;
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>())
        found += texts(bar->actions());
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (control->isVisible() &&
            (qobject_cast<const QAbstractButton*>(control) || (label && label->buddy())))
            found.append(control->property("text").toString());
    }
    return found;
}

void expectOwnMnemonics(const char* name, const QStringList& texts) {
    static const QRegularExpression mnemonic(QStringLiteral("(?:^|[^&])&([^&\\s])"));
    QMap<QString, QString> taken;
    for (const QString& text : texts) {
        const QString letter = mnemonic.match(text).captured(1).toLower();
        EXPECT_FALSE(!letter.isEmpty() && taken.contains(letter))
            << name << ": " << text.toStdString() << " and " << taken.value(letter).toStdString();
        taken.insert(letter, text);
    }
}

TEST_F(Accessible, MnemonicsDoNotCollide) {
    for (const auto& [name, maker] : makers) {
        const std::unique_ptr<QWidget> window = maker();
        for (const QMenu* menu : window->findChildren<QMenu*>())
            expectOwnMnemonics(name, texts(menu->actions()));
        window->show();
        onEachPage(*window, [&name = name, &window = *window] {
            expectOwnMnemonics(name, textsInWindow(window));
        });
    }
}

} // namespace
