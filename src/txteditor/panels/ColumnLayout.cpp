#include "txteditor/panels/ColumnLayout.h"

namespace {

constexpr int hintColumns = 4;

} // namespace

ColumnLayout::~ColumnLayout() {
    qDeleteAll(m_items);
}

void ColumnLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

QLayoutItem* ColumnLayout::takeAt(int index) {
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

void ColumnLayout::invalidate() {
    m_cell = {};
    QLayout::invalidate();
}

QSize ColumnLayout::Cell() const {
    if (!m_cell.isValid()) {
        m_cell = QSize(1, 1);
        for (const QLayoutItem* item : m_items)
            m_cell = m_cell.expandedTo(item->sizeHint());
    }
    return m_cell;
}

int ColumnLayout::Gap() const {
    return parentWidget()->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr,
                                                parentWidget());
}

int ColumnLayout::RowHeight() const {
    return Cell().height() + Gap() / 2;
}

int ColumnLayout::Columns(int width) const {
    const int columns = (width + Gap()) / (Cell().width() + Gap());
    return std::clamp(columns, 1, std::max(1, count()));
}

int ColumnLayout::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    const int columns = Columns(width - margins.left() - margins.right());
    const int rows = (count() + columns - 1) / columns;
    return std::max(0, rows * RowHeight() - Gap() / 2) + margins.top() + margins.bottom();
}

QSize ColumnLayout::sizeHint() const {
    const QMargins margins = contentsMargins();
    const int columns = std::clamp(count(), 1, hintColumns);
    const int width = columns * (Cell().width() + Gap()) - Gap() + margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

QSize ColumnLayout::minimumSize() const {
    return Cell().grownBy(contentsMargins());
}

void ColumnLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect inside = rect.marginsRemoved(contentsMargins());
    const int columns = Columns(inside.width());
    const int rows = std::max(1, (count() + columns - 1) / columns);
    for (int i = 0; i < count(); ++i)
        m_items[i]->setGeometry(QRect(inside.left() + i / rows * (Cell().width() + Gap()),
                                      inside.top() + i % rows * RowHeight(), Cell().width(),
                                      Cell().height()));
}
