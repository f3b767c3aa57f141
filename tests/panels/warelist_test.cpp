// The list of the wares of a ware list.
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "support/loadtext.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/panels/WareListViewer.h"

#include <QAbstractItemModelTester>
#include <QTest>

using support::repeat;

namespace {

class WareListTest : public testing::Test {
protected:
    WareListTest() {
        InitArrays();
        viewer.resize(400, 200);
        viewer.show();
        QObject::connect(&viewer, &WareListViewer::Entered, &viewer, [this] { ++entered; });
    }
    ~WareListTest() override {
        Archive.reset();
        KeshVFS_CreateVFS({});
    }

    void useArchive(const std::string& lists) {
        support::writeFile(directory / "types/TWareB.txt",
                           "14;1;" + repeat("0;", 16) + "SS_BREAD;\r\n");
        support::writeFile(directory / "types/TLaser.txt",
                           "14;1;" + repeat("0;", 22) + "SS_LASER;\r\n");
        support::writeFile(directory / "types/WareLists.txt", lists);
        KeshVFS_ClearFilters();
        ASSERT_NE(KeshVFS_CreateVFS(FromPlatform(directory.path())), 0);
        Archive = std::make_unique<clsArchive>();
    }
    /// Columns, then rows.
    [[nodiscard]] QStringList shown() const {
        const QAbstractItemModel* model = view->model();
        QStringList lines(1);
        for (int column = 0; column < model->columnCount(); ++column)
            lines[0] += model->headerData(column, Qt::Horizontal).toString() + u';';
        for (int row = 0; row < model->rowCount(); ++row)
            lines.append(model->index(row, 0).data().toString() + u'=' +
                         model->index(row, 1).data().toString());
        return lines;
    }

    support::ScratchDir directory;
    WareListViewer viewer{nullptr, "WareView"};
    WareListView* view = viewer.findChild<WareListView*>(QStringLiteral("WareView"));
    QAbstractItemModelTester tester{view->model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal};
    int entered = 0;
};

const QStringList& heading() {
    static const QStringList line{QStringLiteral("Name;ID;")};
    return line;
}

TEST_F(WareListTest, ShowsTheListOfAnIdOrThatThereIsNone) {
    useArchive("2;\r\n2;SS_BREAD;SS_NONE;\r\n0;\r\n");
    struct Case {
        std::int32_t ID;
        QStringList Lines;
    };
    const QStringList bread{QStringLiteral("SS_BREAD=SS_BREAD"), QStringLiteral("SS_NONE=SS_NONE")};
    const Case cases[] = {{7, {QStringLiteral("Ware list 7 not found;")}},
                          {0, heading() + bread},
                          {-1, {QStringLiteral("Ware list -1 not found;")}},
                          {0, heading() + bread},
                          {1, heading()}};
    for (const Case& line : cases) {
        SCOPED_TRACE(line.ID);
        viewer.ShowWareList(line.ID);
        EXPECT_EQ(shown(), line.Lines);
    }
    viewer.ShowWareList(0);
    viewer.Clear();
    EXPECT_EQ(view->model()->rowCount(), 0);
}

TEST_F(WareListTest, FindsNothingWithoutArchive) {
    viewer.ShowWareList(3);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("Ware list 3 not found;")});
    EXPECT_LE(view->columnWidth(0), view->viewport()->width());
    viewer.Clear();
}

TEST_F(WareListTest, ColumnsAreAsWideAsTheirTexts) {
    const QString wide(60, u'W');
    useArchive("2;\r\n1;" + wide.toStdString() + ";\r\n1;i;\r\n");
    const QFontMetrics metrics = view->fontMetrics();
    viewer.ShowWareList(0);
    EXPECT_EQ(view->columnWidth(0), metrics.horizontalAdvance(wide) + 13);
    EXPECT_EQ(view->columnWidth(1), metrics.horizontalAdvance(wide) + 13);
    viewer.ShowWareList(1);
    EXPECT_EQ(view->columnWidth(0), 133);
    EXPECT_LT(view->columnWidth(1), 133);
    viewer.resize(800, 200);
    EXPECT_EQ(view->columnWidth(0), 133);
}

TEST_F(WareListTest, TellsOfEnterAndDoubleClicksInAnEmptyListToo) {
    useArchive("2;\r\n2;SS_BREAD;SS_LASER;\r\n1;SS_BREAD;\r\n");
    for (const std::int32_t id : {5, 0}) {
        entered = 0;
        viewer.ShowWareList(id);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, {10, 10});
        EXPECT_EQ(entered, 1);
        QTest::keyClick(view, Qt::Key_Return);
        EXPECT_EQ(entered, 2);
    }
    view->setCurrentIndex(view->model()->index(1, 0));
    for (const std::int32_t id : {0, 1}) {
        viewer.ShowWareList(id);
        EXPECT_EQ(view->currentIndex().row(), 1 - id) << "a refill keeps the row, as far as it can";
    }
}

} // namespace
