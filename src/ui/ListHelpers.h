// What windows ask of lists, combos and edits. Keys stand under Qt::UserRole and compare without
// regard to case; reads of a list give an empty answer where there is nothing.
#pragma once

#include "core/KeshError.h"

#include <QtWidgets>

/// The top row with that key, invalid if there is none.
[[nodiscard]] inline QModelIndex ListFindItem(const QAbstractItemModel& Model, const QString& Key) {
    return Model.match(Model.index(0, 0), Qt::UserRole, Key, 1, Qt::MatchFixedString).value(0);
}
/// False if there is no such row, or the model keeps it.
inline bool ListRemoveItem(QAbstractItemModel& Model, const QString& Key) {
    const QModelIndex found = ListFindItem(Model, Key);
    return found.isValid() && Model.removeRow(found.row());
}
/// The selected row; where none is, the first, which it selects. Invalid for an empty list.
[[nodiscard]] inline QModelIndex ListSelectedOrFirst(QAbstractItemView& View) {
    const QModelIndexList selected = View.selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        return selected.first();
    View.setCurrentIndex(View.model()->index(0, 0));
    return View.currentIndex();
}
/// Throws KeshError (errnum::Bounds) for an index outside the list.
inline void ListIndexCheck(const QAbstractItemModel& Model, int Index) {
    if (Index < 0 || Index >= Model.rowCount())
        throw KeshError(errnum::Bounds, "ListIndexCheck", "List index out of bounds.");
}
/// Sorts by a column as a click on its heading does, by a key while the view has the focus and from
/// its popup.
inline void AddSortAction(QTreeView& View, const char* Name, const QString& Text,
                          const QKeySequence& Shortcut, int Column) {
    auto* action = new QAction(Text, &View);
    action->setObjectName(QString::fromLatin1(Name));
    action->setShortcut(Shortcut);
    QObject::connect(action, &QAction::triggered, &View, [&View, Column] {
        QHeaderView& header = *View.header();
        const bool turn = header.sortIndicatorSection() == Column &&
                          header.sortIndicatorOrder() == Qt::AscendingOrder;
        header.setSortIndicator(Column, turn ? Qt::DescendingOrder : Qt::AscendingOrder);
    });
    View.addAction(action);
}

/// A tip that shows a text of the data as it is; none for an empty one.
[[nodiscard]] inline QVariant PlainTip(const QString& Text) {
    return Text.isEmpty() ? QVariant() : QVariant(Qt::convertFromPlainText(Text));
}

/// The actions make the view's popup, in the order of the calls.
inline void OfferInPopup(QWidget& View, const QList<QAction*>& Actions) {
    View.addActions(Actions);
    View.setContextMenuPolicy(Qt::ActionsContextMenu);
}

/// A list of many rows: none is measured, none unfolds.
inline void PrepareRows(QTreeView& View) {
    View.setUniformRowHeights(true);
    View.setRootIsDecorated(false);
    View.setItemsExpandable(false);
    View.setAllColumnsShowFocus(true);
    View.setEditTriggers(QAbstractItemView::NoEditTriggers);
    View.header()->setSectionResizeMode(QHeaderView::Interactive);
    View.header()->setSectionsMovable(false);
}

/// Data of the selected row; -1 without one, which is also when an editable combo shows another
/// text.
[[nodiscard]] inline int ComboItemData(const QComboBox& Combo) {
    const int row = Combo.currentIndex();
    const bool selected = row >= 0 && Combo.currentText() == Combo.itemText(row);
    return selected ? Combo.itemData(row).toInt() : -1;
}
/// Selects the row with that data; clears the selection and gives false if there is none.
inline bool ComboSelectData(QComboBox& Combo, int Value) {
    Combo.setCurrentIndex(Combo.findData(Value));
    return Combo.currentIndex() >= 0;
}

inline void TextBoxSelectAll(QLineEdit& Edit, bool SetFocus) {
    if (SetFocus)
        Edit.setFocus();
    Edit.selectAll();
}
/// Takes digits only.
inline void NumbersOnly(QLineEdit& Edit) {
    Edit.setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), &Edit));
}
