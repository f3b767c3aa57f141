// Lays widgets out in equal columns, downwards, in as many as there is room for.
#pragma once

#include <QtWidgets>

class ColumnLayout : public QLayout {
public:
    explicit ColumnLayout(QWidget* Parent) : QLayout(Parent) {}
    ~ColumnLayout() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;    ///< of all in one row, if they are few
    [[nodiscard]] QSize minimumSize() const override; ///< one column wide
    void setGeometry(const QRect& rect) override;
    void invalidate() override;

private:
    [[nodiscard]] int Columns(int width) const; ///< at least 1
    [[nodiscard]] int Gap() const;
    [[nodiscard]] int RowHeight() const; ///< with the gap
    [[nodiscard]] QSize Cell() const;    ///< that holds each of them

    QList<QLayoutItem*> m_items;
    mutable QSize m_cell; ///< invalid until it is asked for
};
