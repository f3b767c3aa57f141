// Rows of texts under a key each, for the small lists of the panels.
#pragma once

#include <QtWidgets>

#include <algorithm>
#include <string>

struct TextRow {
    QString Key; ///< under Qt::UserRole
    QStringList Cells;
    QVariant Tag = {}; ///< under Qt::UserRole + 1

    friend bool operator==(const TextRow&, const TextRow&) = default;
};

/// The item that the key of a row names, none if there is none, in a container of pointers.
template <class Items>
[[nodiscard]] typename Items::value_type ItemOfKey(const Items& List, const QString& Key) {
    const std::string wanted = Key.toStdString();
    const auto found = std::find_if(List.begin(), List.end(),
                                    [&](const auto& item) { return item->key() == wanted; });
    return found == List.end() ? nullptr : *found;
}

class TextRowsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(QStringList Columns);
    void SetRows(QList<TextRow> Rows);
    [[nodiscard]] const QStringList& Columns() const noexcept { return m_columns; }
    [[nodiscard]] const QList<TextRow>& Rows() const noexcept { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    QStringList m_columns;
    QList<TextRow> m_rows;
};

/// A list of such rows.
class TextRowsView : public QTreeView {
    Q_OBJECT

public:
    TextRowsView(const char* Name, const QString& Spoken, QWidget* Parent);

    /// Widths in characters; the last column takes the rest.
    void SetColumns(const QStringList& Columns, const QList<int>& Widths);
    /// The same, but columns that are there already stay as the user made them, with their rows.
    void EnsureColumns(const QStringList& Columns, const QList<int>& Widths);
    /// The row of the same key stays selected, else that of the same place.
    void SetRows(QList<TextRow> Rows);
    [[nodiscard]] QString SelectedKey() const; ///< empty if no row is selected
    void SelectKey(const QString& Key);

Q_SIGNALS:
    void AddAsked();    ///< Ins
    void RemoveAsked(); ///< Del with a row selected
    void Entered();     ///< Enter on the selected row, or a double click on a row
    void Selected();    ///< another row, or none

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool OnKey(int Key); ///< false if it means nothing here

    TextRowsModel* m_model;
};
