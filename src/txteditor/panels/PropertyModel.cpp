#include "txteditor/panels/PropertyModel.h"

#include "ui/ListHelpers.h"

#include <algorithm>

namespace {

QVariant tagOf(std::int32_t field) {
    switch (field) {
    case PropertyRow::IdField:
        return QStringLiteral("name");
    case PropertyRow::Color:
        return QStringLiteral("color");
    case PropertyRow::Computed:
        return {};
    default:
        return field;
    }
}

} // namespace

void PropertyModel::SetRows(QList<PropertyRow> Rows) {
    const bool same =
        std::equal(Rows.begin(), Rows.end(), m_rows.begin(), m_rows.end(),
                   [](const PropertyRow& a, const PropertyRow& b) { return a.Field == b.Field; });
    if (!same) {
        beginResetModel();
        m_rows = std::move(Rows);
        endResetModel();
        return;
    }
    const QList<PropertyRow> former = std::exchange(m_rows, std::move(Rows));
    for (int row = 0; row < rowCount(); ++row)
        TellChange(row, former.at(row));
}

/// Cell by cell: a view paints all of itself again for more than one.
void PropertyModel::TellChange(int row, const PropertyRow& former) {
    const auto tell = [&](int column) {
        const QModelIndex cell = index(row, column);
        Q_EMIT dataChanged(cell, cell);
    };
    const PropertyRow& now = m_rows.at(row);
    if (now.Name != former.Name || now.Tip != former.Tip)
        tell(0);
    if (now != former)
        tell(ValueColumn);
}

const PropertyRow* PropertyModel::Row(const QModelIndex& index) const {
    return index.isValid() && index.row() < m_rows.size() ? &m_rows.at(index.row()) : nullptr;
}

int PropertyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 3;
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
    const PropertyRow* row = Row(index);
    if (!row)
        return {};
    const bool value = index.column() == ValueColumn;
    if (role == Qt::UserRole + 1)
        return tagOf(row->Field);
    if (role == Qt::ToolTipRole && !row->Tip.isEmpty())
        return Qt::convertFromPlainText(row->Tip, Qt::WhiteSpaceNormal);
    if (role == Qt::ToolTipRole && value)
        return PlainTip(row->Value);
    if (role == Qt::DecorationRole && value && row->Swatch.isValid())
        return row->Swatch;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case 0:
        return row->Name;
    case ValueColumn:
        return row->Value;
    default:
        return row->Field >= 0 ? QVariant(row->Field) : QVariant();
    }
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QStringList{tr("Name"), tr("Value"), tr("[offset]")}.value(section);
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const {
    const PropertyRow* row = Row(index);
    if (!row)
        return Qt::NoItemFlags;
    const bool edited = row->Field >= PropertyRow::IdField;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
           (edited && index.column() == ValueColumn ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

QModelIndex PropertyModel::buddy(const QModelIndex& index) const {
    return index.siblingAtColumn(ValueColumn);
}
