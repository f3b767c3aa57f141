// A window and the panel that serves its file.
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"
#include "ui/frmText.h"

namespace {

class PanelWindow : public EditorTest {
protected:
    void choose(int mode) {
        child<QRadioButton>(("rbName" + std::to_string(mode)).c_str())->setChecked(true);
    }
    FakePanel* panel = new FakePanel; // the window takes it over
};

TEST_F(PanelWindow, ShowsWhatThePanelSaysOfEachRecord) {
    startWithWares({panel});
    EXPECT_EQ(caption(), caption("TWareT.txt", QStringLiteral("Things v.1")));
    auto* tab = child<QTabWidget>("MainTab");
    EXPECT_EQ(tab->tabText(1), QStringLiteral("Thing info"));
    EXPECT_EQ(tab->currentIndex(), 1);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(column("ObjectView"),
              QStringList({QStringLiteral("First"), QStringLiteral("WARE_B")}));
    EXPECT_EQ(column("ObjectView", 1)[0], QStringLiteral("class 100"));
    choose(1);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("race"));
    choose(2);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("WARE_A"));
    EXPECT_EQ(view("ObjectView")->model()->headerData(0, Qt::Horizontal),
              QVariant(QStringLiteral("ID")));
    pick("ObjectView", 1);
    EXPECT_EQ(panel->Shown, window->Parser().FindIndex(1));
}

TEST_F(PanelWindow, BracketsTextsThatThePanelCannotGive) {
    startWithWares({panel});
    panel->Fails = true;
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("[error getting description]"));
    EXPECT_EQ(column("ObjectView", 1)[0], QStringLiteral("[error getting class]"));
    choose(1);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("[error getting race]"));
    choose(2);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("[error getting name]"));
    panel->Change(window->Parser().FindIndex(0), 1, 5, true);
    EXPECT_EQ(caption(), caption("TWareT.txt", QStringLiteral("[error getting object type]")) +
                             QStringLiteral(" *"));
}

TEST_F(PanelWindow, OffersTheNamesThatThePanelHas) {
    for (const std::int32_t info : {0, 1, 2, 7}) {
        SCOPED_TRACE(info);
        auto* other = new FakePanel;
        other->Info = info;
        startWithWares({other});
        EXPECT_EQ(child<QRadioButton>("rbName0")->isEnabled(), (info & 1) != 0);
        EXPECT_EQ(child<QRadioButton>("rbName1")->isEnabled(), (info & 2) != 0);
        EXPECT_EQ(view("ObjectView")->model()->columnCount(), (info & 4) != 0 ? 2 : 1);
        delete window.data();
    }
    delete panel;
}

TEST_F(PanelWindow, GoesOnWithoutAPanelThatFails) {
    panel->InitResult = false;
    script.Box(QStringLiteral("no laser file"));
    startWithWares({panel});
    EXPECT_FALSE(child<QTabWidget>("MainTab")->isTabEnabled(1));
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("WARE_A"));
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(PanelWindow, SurvivesAPanelThatThrows) {
    startWithWares({panel});
    editField(0, 4, QStringLiteral("8"));
    panel->Broken = true;
    trigger("undo");
    EXPECT_EQ(window->Parser().FindIndex(0)->ValueText(4), "007");
    EXPECT_TRUE(child<QAction>("redo")->isEnabled());
    script.Box(QStringLiteral("broken"));
    trigger("export");
    script.Box(QStringLiteral("Error in SelectFileType: broken"));
    window->OpenFile(program("TWareT.txt"));
    EXPECT_FALSE(child<QTabWidget>("MainTab")->isTabEnabled(1));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 objects"));
}

TEST_F(PanelWindow, ReportsErrorsInTheFileAndStaysOpen) {
    panel->Report = "ship 3 has no hull";
    write("TWareT.txt", wares({"A", "B"}));
    start({}, {panel});
    QString shown;
    QTimer::singleShot(0, qApp, [&] {
        auto* report = qobject_cast<frmText*>(QApplication::activeModalWidget());
        ASSERT_TRUE(report);
        shown = report->windowTitle() + u'|' + report->Text();
        report->findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
    });
    window->OpenFile(program("TWareT.txt"));
    EXPECT_EQ(shown, QStringLiteral("Errors in file data|ship 3 has no hull"));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 objects"));
}

TEST_F(PanelWindow, HidesThePanelForAFileItDoesNotServe) {
    startWithWares({panel});
    write("JobWings.txt", "1;2,3;");
    window->OpenFile(program("JobWings.txt"));
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(child<QTabWidget>("MainTab")->currentIndex(), 0);
    EXPECT_EQ(view("ObjectView")->model()->columnCount(), 1);
}

} // namespace
