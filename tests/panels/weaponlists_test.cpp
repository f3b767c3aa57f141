// The two lists of weapons, moved from one to the other as a user does.
#include "txteditor/panels/WeaponLists.h"

#include <QAbstractItemModelTester>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Rows = QList<WeaponLists::Row>;

class WeaponListsTest : public testing::Test {
protected:
    WeaponListsTest() {
        window.resize(500, 300);
        lists.resize(500, 300);
        other.hide();
        window.show();
        QApplication::setActiveWindow(&window);
        QObject::connect(&lists, &WeaponLists::MaskChanged, &window,
                         [this](quint32 mask) { masks.append(mask); });
    }

    static Rows rows() {
        Rows made;
        for (const int bit : {0, 1, 4, 31})
            made.append({bit, QStringLiteral("k%1").arg(bit + 1), QStringLiteral("L%1").arg(bit)});
        return made;
    }
    template <class W>
    [[nodiscard]] W* child(const char* name) const {
        return lists.findChild<W*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QListView* view(const char* name) const { return child<QListView>(name); }
    /// The rows of a list, those that are selected in brackets.
    [[nodiscard]] QString shown(const char* name) const {
        QStringList texts;
        const QListView* list = view(name);
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            const bool selected = list->selectionModel()->isSelected(index);
            texts.append(selected ? u'[' + index.data().toString() + u']'
                                  : index.data().toString());
        }
        return texts.join(u' ');
    }
    [[nodiscard]] QString shown() const {
        return shown("LaserView") + QStringLiteral(" | ") + shown("AvailView");
    }
    void click(const char* name, int row, Qt::KeyboardModifiers modifiers = {}) const {
        QListView* list = view(name);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers,
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    void doubleClick(const char* name, int row) const {
        click(name, row);
        QListView* list = view(name);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                           list->visualRect(list->model()->index(row, 0)).center());
    }
    void press(const char* button) const {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }
    void key(const char* name, Qt::Key which, Qt::KeyboardModifiers modifiers = {}) const {
        view(name)->setFocus();
        QTest::keyClick(view(name), which, modifiers);
    }
    /// Drags what is selected in a list to the middle of another; true if it was taken.
    static bool drag(const QListView* from, const QListView* to) {
        const std::unique_ptr<QMimeData> data(
            from->model()->mimeData(from->selectionModel()->selectedIndexes()));
        return drop(data.get(), to);
    }
    static bool drop(const QMimeData* data, const QListView* to) {
        const QPoint place = to->viewport()->rect().center();
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(place, actions, data, Qt::LeftButton, {});
        QApplication::sendEvent(to->viewport(), &enter);
        QDragMoveEvent move(place, actions, data, Qt::LeftButton, {});
        QApplication::sendEvent(to->viewport(), &move);
        if (!enter.isAccepted() || !move.isAccepted()) // then nothing can be dropped
            return false;
        QDropEvent drop(place, actions, data, Qt::LeftButton, {});
        QApplication::sendEvent(to->viewport(), &drop);
        return drop.isAccepted();
    }

    QWidget window;
    WeaponLists::Names names{"LaserView",
                             "AvailView",
                             "btnAddLaser",
                             "btnRemoveLaser",
                             QStringLiteral("Compatible"),
                             QStringLiteral("Available"),
                             "Label1",
                             "lblAvailLasers"};
    WeaponLists lists{names, &window};
    WeaponLists other{names, &window};
    QList<quint32> masks;
};

constexpr quint32 sign = 0x80000000U;
constexpr quint32 unseen = 0x00000100U; // no row stands for it

TEST_F(WeaponListsTest, ButtonsMoveAllSelectedRowsAtOnceAndKeepOtherBits) {
    lists.Show(rows(), unseen | 1U);
    EXPECT_EQ(shown(), QStringLiteral("L0 | L1 L4 L31"));
    EXPECT_FALSE(child<QPushButton>("btnAddLaser")->isEnabled());
    click("AvailView", 0);
    click("AvailView", 2, Qt::ShiftModifier);
    press("btnAddLaser");
    EXPECT_EQ(shown(), QStringLiteral("L0 [L1] [L4] [L31] | "));
    press("btnRemoveLaser");
    EXPECT_EQ(shown(), QStringLiteral("L0 | [L1] [L4] [L31]"));
    EXPECT_FALSE(child<QPushButton>("btnRemoveLaser")->isEnabled());
    EXPECT_EQ(masks, (QList<quint32>{unseen | sign | 0x13U, unseen | 1U}));
    const QModelIndex row = view("LaserView")->model()->index(0, 0);
    EXPECT_EQ(row.data(Qt::UserRole), QVariant(QStringLiteral("k1")));
    EXPECT_EQ(row.data(Qt::UserRole + 1), QVariant(0));
}

TEST_F(WeaponListsTest, KeysAndDoubleClicksMoveRows) {
    lists.Show(rows(), sign);
    doubleClick("AvailView", 1);
    EXPECT_EQ(shown(), QStringLiteral("[L1] L31 | L0 L4"));
    click("LaserView", 1);
    key("LaserView", Qt::Key_Insert);
    key("LaserView", Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(masks.size(), 1);
    key("LaserView", Qt::Key_Delete);
    EXPECT_EQ(shown(), QStringLiteral("L1 | L0 L4 [L31]"));
    key("AvailView", Qt::Key_Insert, Qt::ControlModifier);
    key("AvailView", Qt::Key_Delete);
    EXPECT_EQ(masks.size(), 2);
    key("AvailView", Qt::Key_Insert);
    EXPECT_EQ(shown(), QStringLiteral("L1 [L31] | L0 L4"));
    key("LaserView", Qt::Key_Enter, Qt::KeypadModifier);
    key("AvailView", Qt::Key_Return);
    EXPECT_EQ(masks, (QList<quint32>{sign | 2U, 2U, sign | 2U, 2U, sign | 2U}));
}

TEST_F(WeaponListsTest, RowsAreDraggedToTheListBesideThemAlone) {
    lists.Show(rows(), 1U);
    other.Show(rows(), 1U);
    click("AvailView", 0);
    click("AvailView", 2, Qt::ControlModifier);
    const QListView* from = view("AvailView");
    EXPECT_FALSE(drag(from, from));
    for (const char* name : {"LaserView", "AvailView"})
        EXPECT_FALSE(drag(from, other.findChild<QListView*>(QString::fromLatin1(name))));
    QMimeData foreign;
    foreign.setData(QStringLiteral("application/x-kesh-weapons"), QByteArray(20, '\0'));
    EXPECT_FALSE(drop(&foreign, view("LaserView")));
    EXPECT_TRUE(masks.isEmpty());
    EXPECT_TRUE(drag(from, view("LaserView")));
    EXPECT_EQ(shown(), QStringLiteral("L0 [L1] [L31] | L4"));
    EXPECT_TRUE(drag(view("LaserView"), from));
    EXPECT_EQ(shown(), QStringLiteral("L0 | [L1] L4 [L31]"));
    EXPECT_EQ(masks, (QList<quint32>{sign | 3U, 1U}));
}

TEST_F(WeaponListsTest, ReadOnlyListsOnlyShow) {
    lists.Show(rows(), 3U);
    lists.SetReadOnly(true);
    doubleClick("AvailView", 0);
    key("AvailView", Qt::Key_Return);
    click("LaserView", 0);
    key("LaserView", Qt::Key_Delete);
    EXPECT_FALSE(child<QPushButton>("btnRemoveLaser")->isEnabled());
    EXPECT_FALSE(drag(view("LaserView"), view("AvailView")));
    EXPECT_EQ(shown(), QStringLiteral("[L0] L1 | [L4] L31"));
    EXPECT_TRUE(masks.isEmpty());
    lists.SetReadOnly(false);
    press("btnRemoveLaser");
    EXPECT_EQ(masks, QList<quint32>{2U});
}

TEST_F(WeaponListsTest, AFillKeepsTheSelection) {
    QList<std::shared_ptr<QAbstractItemModelTester>> testers;
    for (const char* name : {"LaserView", "AvailView"})
        testers.append(std::make_shared<QAbstractItemModelTester>(
            view(name)->model(), QAbstractItemModelTester::FailureReportingMode::Fatal));
    lists.Show(rows(), 0x12U);
    click("LaserView", 1);
    click("AvailView", 0);
    const QPersistentModelIndex row = view("LaserView")->currentIndex();
    lists.Show(rows(), 0x12U);
    EXPECT_TRUE(row.isValid()) << "the same rows are not filled again";
    EXPECT_EQ(shown(), QStringLiteral("L1 [L4] | [L0] L31"));
    lists.Show(rows(), 2U);
    EXPECT_EQ(shown(), QStringLiteral("L1 | [L0] [L4] L31"));
    lists.Show(rows(), std::nullopt);
    EXPECT_EQ(shown(), QStringLiteral(" | "));
    EXPECT_FALSE(child<QPushButton>("btnAddLaser")->isEnabled());
    key("LaserView", Qt::Key_Delete);
    EXPECT_TRUE(masks.isEmpty());
}

} // namespace
