#include "app/IconView.h"

#include "app/LauncherItems.h"

namespace {

constexpr int iconLines = 3;     ///< side of an icon, in lines of text
constexpr int gridMargin = 5;    ///< pixels between a cell's corner and its icon
constexpr int captionWidth = 13; ///< characters in a line at least
constexpr int captionLines = 2;
constexpr int iconGap = 6; ///< pixels around an icon

/// Items of a size that holds two lines of text; once a cell was measured, all of its size.
class CellDelegate : public QStyledItemDelegate {
public:
    explicit CellDelegate(IconView* view) : QStyledItemDelegate(view), m_view(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (m_view->Cell().isValid())
            return m_view->Cell() - QSize(gridMargin, gridMargin);
        const QSize least(captionWidth * option.fontMetrics.averageCharWidth() + iconGap,
                          option.decorationSize.height() + iconGap +
                              captionLines * option.fontMetrics.height());
        QStyleOptionViewItem wrapped = option;
        wrapped.rect = QRect(QPoint(), least); // as wide as text may be before it wraps
        const QSize own = QStyledItemDelegate::sizeHint(wrapped, index) + QSize(0, iconGap);
        return own.expandedTo(least).boundedTo(2 * least); // however long a caption is
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
        option->rect.adjust(0, iconGap, 0, 0);
    }

private:
    IconView* m_view;
};

} // namespace

IconView::IconView(QWidget* parent) : QListView(parent) {
    setViewMode(QListView::IconMode);
    setMovement(QListView::Free);
    setDragEnabled(false); // icons are moved here, not carried to other windows
    setAcceptDrops(false);
    setResizeMode(QListView::Adjust);
    setIconSize(QSize(1, 1) * (iconLines * fontMetrics().height()));
    setWordWrap(true);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setItemDelegate(new CellDelegate(this));
    connect(this, &QListView::doubleClicked, this, &IconView::Activated);
}

void IconView::MeasureCell() {
    if (m_cell.isValid())
        return;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    QSize largest;
    for (int row = 0; row < model()->rowCount(); ++row)
        largest = largest.expandedTo(itemDelegate()->sizeHint(option, model()->index(row, 0)));
    m_cell = largest + QSize(gridMargin, gridMargin);
    ArrangeIcons();
}

void IconView::SetAutoArrange(bool On) {
    setResizeMode(On ? QListView::Adjust : QListView::Fixed);
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex item = model()->index(row, 0);
        if (On)
            model()->setData(item, {}, LauncherItems::PlaceRole);
        else if (!item.data(LauncherItems::PlaceRole).isValid())
            model()->setData(item, PlaceOf(item), LauncherItems::PlaceRole); // it stays there
    }
    m_autoArrange = On;
    ArrangeIcons();
}

void IconView::ArrangeIcons() {
    doItemsLayout();
    viewport()->update();
}

void IconView::doItemsLayout() {
    QListView::doItemsLayout();
    for (int row = 0; !m_autoArrange && row < model()->rowCount(); ++row) {
        const QModelIndex item = model()->index(row, 0);
        if (const QVariant place = item.data(LauncherItems::PlaceRole); place.isValid())
            setPositionForIndex(place.toPoint(), item);
    }
}

QPoint IconView::PlaceOf(const QModelIndex& Item) const {
    return rectForIndex(Item).topLeft();
}

void IconView::MoveIcon(const QModelIndex& Item, QPoint Place) {
    model()->setData(Item, Place, LauncherItems::PlaceRole);
    setPositionForIndex(Place, Item);
}

void IconView::SnapIcon(const QModelIndex& Item) {
    if (m_autoArrange || !Item.isValid() || !m_cell.isValid())
        return;
    const QPoint at = PlaceOf(Item);
    const auto snapped = [](int place, int cell) {
        return std::max(0, place) / cell * cell + gridMargin;
    };
    MoveIcon(Item, {snapped(at.x(), m_cell.width()), snapped(at.y(), m_cell.height())});
}

void IconView::PlaceIcon(const QModelIndex& Item) {
    if (m_autoArrange || !Item.isValid() || Item.data(LauncherItems::PlaceRole).isValid())
        return;
    const QSize cell = m_cell.isValid() ? m_cell : sizeHintForIndex(Item);
    const int columns = std::max(1, viewport()->width() / cell.width());
    const auto taken = [&](const QRect& area) {
        for (int row = 0; row < model()->rowCount(); ++row)
            if (row != Item.row() && rectForIndex(model()->index(row, 0)).intersects(area))
                return true;
        return false;
    };
    QRect area;
    for (int at = 0; area.isNull() || taken(area); ++at)
        area = {QPoint(at % columns * cell.width() + gridMargin,
                       at / columns * cell.height() + gridMargin),
                cell - QSize(gridMargin, gridMargin)};
    MoveIcon(Item, area.topLeft());
}

QModelIndex IconView::Selected() const {
    return selectedIndexes().value(0);
}

void IconView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || state() == EditingState) { // a caption that is edited passes its Enter on
        QListView::keyPressEvent(event);
        return;
    }
    if (Selected().isValid())
        Q_EMIT Activated(Selected());
}

void IconView::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    const QPoint at = event->position().toPoint();
    m_dragging = false;
    m_dragged = !m_autoArrange && event->button() == Qt::LeftButton ? indexAt(at) : QModelIndex();
    m_pressed = at;
    if (m_dragged.isValid())
        m_grip = at + Scrolled() - PlaceOf(m_dragged);
}

void IconView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragged.isValid()) {
        QListView::mouseMoveEvent(event);
        return;
    }
    const QPoint at = event->position().toPoint();
    m_dragging |= (at - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (m_dragging)
        MoveIcon(m_dragged, at + Scrolled() - m_grip);
}

void IconView::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    if (m_dragging)
        SnapIcon(m_dragged);
    m_dragging = false;
    m_dragged = QModelIndex();
}
