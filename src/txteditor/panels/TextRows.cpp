#include "txteditor/panels/TextRows.h"

#include "txteditor/panels/EntryFilter.h"
#include "ui/ListHelpers.h"

void TextRowsModel::SetColumns(QStringList Columns) {
    beginResetModel();
    m_columns = std::move(Columns);
    m_rows.clear();
    endResetModel();
}

void TextRowsModel::SetRows(QList<TextRow> Rows) {
    if (Rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(Rows);
    endResetModel();
}

int TextRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TextRowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant TextRowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const TextRow& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.Cells.value(index.column());
    case Qt::ToolTipRole:
        return PlainTip(row.Cells.value(index.column()));
    case Qt::UserRole:
        return row.Key;
    case Qt::UserRole + 1:
        return row.Tag;
    default:
        return {};
    }
}

QVariant TextRowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_columns.value(section);
}

TextRowsView::TextRowsView(const char* Name, const QString& Spoken, QWidget* Parent)
    : QTreeView(Parent), m_model(new TextRowsModel(this)) {
    setObjectName(QString::fromLatin1(Name));
    setAccessibleName(Spoken);
    PrepareRows(*this);
    setModel(m_model);
    new EntryFilter(
        this, [this] { Q_EMIT Entered(); }, EntryFilter::From::Rows);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TextRowsView::Selected);
}

void TextRowsView::SetColumns(const QStringList& Columns, const QList<int>& Widths) {
    m_model->SetColumns(Columns);
    for (int column = 0; column < Widths.size(); ++column)
        setColumnWidth(column, Widths.at(column) * fontMetrics().averageCharWidth());
}

void TextRowsView::EnsureColumns(const QStringList& Columns, const QList<int>& Widths) {
    if (m_model->Columns() != Columns)
        SetColumns(Columns, Widths);
}

void TextRowsView::SetRows(QList<TextRow> Rows) {
    const QString key = SelectedKey();
    const int place = key.isEmpty() ? -1 : currentIndex().row();
    m_model->SetRows(std::move(Rows));
    if (!SelectedKey().isEmpty() || place < 0)
        return;
    SelectKey(key);
    if (SelectedKey().isEmpty())
        setCurrentIndex(m_model->index(std::min(place, m_model->rowCount() - 1), 0));
}

QString TextRowsView::SelectedKey() const {
    return selectionModel()->selectedRows().value(0).data(Qt::UserRole).toString();
}

void TextRowsView::SelectKey(const QString& Key) {
    setCurrentIndex(Key.isEmpty() ? QModelIndex() : ListFindItem(*m_model, Key));
}

void TextRowsView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || !OnKey(event->key()))
        QTreeView::keyPressEvent(event);
}

bool TextRowsView::OnKey(int Key) {
    if (Key == Qt::Key_Insert)
        Q_EMIT AddAsked();
    else if (Key == Qt::Key_Delete && !SelectedKey().isEmpty())
        Q_EMIT RemoveAsked();
    else
        return false;
    return true;
}
