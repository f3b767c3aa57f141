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
    if (Rows == m_rows)
        return;
    m_rows = std::move(Rows);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
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
