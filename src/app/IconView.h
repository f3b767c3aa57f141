// The launcher's list of large icons: all in cells of one size, arranged by itself or placed by the
// user.
#pragma once

#include <QtWidgets>

class IconView : public QListView {
    Q_OBJECT

public:
    explicit IconView(QWidget* parent = nullptr);

    /// Takes the largest item's width and height as the cell's, the first time.
    void MeasureCell();
    [[nodiscard]] QSize Cell() const noexcept { return m_cell; }
    /// Arranged: in list order from left to right in cells, wrapping at the view's width, anew at
    /// each change. Otherwise each icon stays at the place that the model has for it.
    void SetAutoArrange(bool On);
    /// Puts an icon that was moved on the grid of cells; nothing while icons arrange themselves.
    void SnapIcon(const QModelIndex& Item);
    /// Gives an icon without a place the first free cell.
    void PlaceIcon(const QModelIndex& Item);
    [[nodiscard]] QModelIndex Selected() const;

    void doItemsLayout() override;

Q_SIGNALS:
    void Activated(const QModelIndex& Item); ///< by double click or Enter

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ArrangeIcons();
    void MoveIcon(const QModelIndex& Item, QPoint Place);
    /// Of an icon in the whole list, not in the part that is scrolled into view.
    [[nodiscard]] QPoint PlaceOf(const QModelIndex& Item) const;
    [[nodiscard]] QPoint Scrolled() const { return {horizontalOffset(), verticalOffset()}; }

    QSize m_cell;
    bool m_autoArrange = true;
    QPersistentModelIndex m_dragged; ///< under the pressed button
    QPoint m_pressed;
    QPoint m_grip; ///< from the icon's corner to the pointer
    bool m_dragging = false;
};
