// Finding in the list, and filtering it.
#include "txteditor/RecordListModel.h"
#include "txteditor/editortest.h"
#include "txteditor/fakepanel.h"
#include "ui/frmFind.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

class Find : public EditorTest {
protected:
    Find() {
        write("TWareT.txt", wares({"ore", "Iron Ore", "gold", "IRON", "ironwood"}));
        start("TWareT.txt");
    }
    bool next(const char* text, bool whole, QVariant& tag) {
        QString sought = QString::fromLatin1(text);
        bool found = false;
        window->m_find_OnFindNext(whole, false, sought, tag, found);
        return found;
    }
    [[nodiscard]] int selected() const {
        return window->SelectedObject() ? window->SelectedObject()->Index : -1;
    }
    void filter(const char* text) {
        auto* edit = child<QLineEdit>("FilterEdit");
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QString::fromLatin1(text));
    }
};

struct FindCase {
    const char* Text;
    bool Whole;
    int From; ///< row selected before
    std::vector<int> Finds;
};

class FindRows : public Find, public testing::WithParamInterface<FindCase> {};

TEST_P(FindRows, WalksToTheEnd) {
    const FindCase& c = GetParam();
    pick("ObjectView", c.From);
    QVariant tag;
    for (const int row : c.Finds) {
        ASSERT_TRUE(next(c.Text, c.Whole, tag));
        EXPECT_EQ(selected(), row);
    }
    const int last = selected();
    EXPECT_FALSE(next(c.Text, c.Whole, tag));
    EXPECT_FALSE(next(c.Text, c.Whole, tag)) << "until the owner resets it";
    EXPECT_EQ(selected(), last);
}

INSTANTIATE_TEST_SUITE_P(, FindRows,
                         testing::Values(FindCase{"iron", false, 0, {1, 3, 4}},
                                         FindCase{"iron", true, 0, {3}},
                                         FindCase{"IRON", false, 3, {3, 4}},
                                         FindCase{"ore", false, 1, {1}},
                                         FindCase{"silver", false, 0, {}}));

TEST_F(Find, DialogKeepsItsText) {
    pick("ObjectView", 0);
    Settings->SaveRegValue("TE", "LastFindString", std::string("gold"), false);
    trigger("find");
    auto* dialog = child<frmFind>("frmFind");
    ASSERT_TRUE(dialog && dialog->isVisible());
    EXPECT_EQ(dialog->FindString(), QStringLiteral("gold"));
    QTest::mouseClick(child<QPushButton>("btnFindNext"), Qt::LeftButton);
    EXPECT_EQ(selected(), 2);
    child<QLineEdit>("FindEdit")->setText(QStringLiteral("wood"));
    dialog->close();
    EXPECT_EQ(Settings->ReadRegValue("TE", "LastFindString"), "wood");
    trigger("findNext");
    EXPECT_EQ(selected(), 4);
    script.Box(QStringLiteral("No more occurencies found."));
    trigger("findNext");
}

TEST_F(Find, TheNextHitIsAsWholeAsTheFirst) {
    pick("ObjectView", 0);
    trigger("find");
    child<QLineEdit>("FindEdit")->setText(QStringLiteral("iron"));
    child<QCheckBox>("chkWholeWords")->setChecked(true);
    trigger("findNext");
    EXPECT_EQ(selected(), 3);
}

TEST_F(Find, FilterLeadsToItsFirstRow) {
    filter("gold");
    QTest::keyClick(child<QLineEdit>("FilterEdit"), Qt::Key_Return);
    EXPECT_EQ(selected(), 2);
    EXPECT_TRUE(view("ObjectView")->hasFocus());
}

TEST_F(Find, FilterNarrowsAsTyped) {
    pick("ObjectView", 3);
    filter("iRo");
    EXPECT_EQ(column("ObjectView"), (QStringList{QStringLiteral("Iron Ore"), QStringLiteral("IRON"),
                                                 QStringLiteral("ironwood")}));
    EXPECT_EQ(selected(), 3);
    EXPECT_EQ(label("Bar1"), QStringLiteral("3 of 5 objects"));
    filter("gold");
    EXPECT_EQ(selected(), -1) << "its row is gone";
    EXPECT_EQ(column("ObjectDataView").size(), 0);
    QTest::keyClick(child<QLineEdit>("FilterEdit"), Qt::Key_Escape);
    EXPECT_EQ(column("ObjectView").size(), 5);
    EXPECT_EQ(selected(), 3) << "and back";
    EXPECT_EQ(label("Bar1"), QStringLiteral("5 objects"));
    filter("wood");
    pick("ObjectView", 0);
    editField(0, 16, QStringLiteral("iron tree"));
    EXPECT_EQ(column("ObjectView"), QStringList{QStringLiteral("iron tree")});
    filter("gold");
    trigger("undo");
    EXPECT_EQ(column("ObjectView").size(), 5) << "what was taken back is shown";
    EXPECT_EQ(selected(), 4);
}

TEST_F(Find, FilterLooksAtIDsToo) {
    delete window.data();
    start("TWareT.txt", {new FakePanel}); // the first record has a name
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("First"));
    filter("first");
    EXPECT_EQ(column("ObjectView").size(), 1);
    filter("ore");
    EXPECT_EQ(column("ObjectView").size(), 2);
    EXPECT_EQ(column("ObjectView")[0], QStringLiteral("First"));
}

TEST_F(Find, ChoicesOfThePanelNarrowTogetherWithTheText) {
    delete window.data();
    auto* panel = new FakePanel;
    panel->Info = 0;
    panel->Offered = {{"Side", "Any side", {"even", "odd"}}, {"Size", "Any size", {"large"}}};
    start("TWareT.txt", {panel});
    child<QRadioButton>("rbName2")->click();
    auto* side = child<QComboBox>("cmbFilter0");
    EXPECT_EQ(side->currentText(), QStringLiteral("Any side"));
    EXPECT_TRUE(side->isVisible());
    pick("ObjectView", 2);
    side->setFocus();
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(side, Qt::Key_Down);
    EXPECT_EQ(column("ObjectView").join(u'|'), QStringLiteral("Iron Ore|IRON"));
    EXPECT_EQ(label("Bar1"), QStringLiteral("2 of 5 objects"));
    EXPECT_EQ(selected(), -1);
    filter("ore");
    child<QComboBox>("cmbFilter1")->setCurrentIndex(1);
    EXPECT_EQ(column("ObjectView").join(u'|'), QStringLiteral("Iron Ore"));
    panel->Broken = true; // all pass then
    filter("iron");
    EXPECT_EQ(column("ObjectView").size(), 3);
    panel->Broken = false;
    QTest::keyClick(child<QLineEdit>("FilterEdit"), Qt::Key_Escape);
    EXPECT_EQ(side->currentIndex(), 0);
    EXPECT_EQ(column("ObjectView").size(), 5);
    EXPECT_EQ(selected(), 2) << "back with its row";
    side->setCurrentIndex(1);
    write("WareLists.txt", "1;\r\n1;other;\r\n");
    window->OpenFile(program("WareLists.txt")); // served by no panel
    EXPECT_EQ(column("ObjectView").size(), 1);
    EXPECT_FALSE(window->findChild<QComboBox*>(QStringLiteral("cmbFilter0")));
    EXPECT_EQ(label("Bar1"), QStringLiteral("1 objects"));
}

// The filter works in slices, and its rows are those of one go.
TEST(FilterModel, ManyRows) {
    clsTxtParser parser;
    std::vector<RecordPtr> records;
    for (int i = 0; i < 30'000; ++i) {
        records.push_back(parser.CreateObject({}));
        records.back()->Construct(2);
        records.back()->SetObjectName("NAME_" + std::to_string(i));
    }
    RecordListModel model;
    const QAbstractItemModelTester tester(&model);
    model.SetNameColumn(
        [](const RecordPtr& record) {
            return QString::number(record->Index) + QStringLiteral("th");
        },
        QStringLiteral("Name"));
    model.SetRecords(records);
    QSignalSpy filtered(&model, &RecordListModel::Filtered);
    model.SetFilter(QStringLiteral("x"));
    model.SetFilter(QStringLiteral("99TH"));
    while (filtered.isEmpty())
        QCoreApplication::processEvents();
    EXPECT_EQ(model.rowCount(), 300);
    EXPECT_EQ(model.Record(model.index(1, 0))->Index, 199);
    std::vector<RecordPtr> gone;
    for (std::size_t i = 0; i < records.size(); i += 2)
        gone.push_back(records[i]);
    gone.push_back(records[199]);
    model.Remove(gone);
    EXPECT_EQ(model.rowCount(), 299);
    EXPECT_EQ(model.Record(model.index(1, 0))->Index, 299);
    model.SetFilter({});
    EXPECT_EQ(model.rowCount(), 30'000 - static_cast<int>(gone.size()));
}

} // namespace
