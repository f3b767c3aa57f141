#include "txteditor/RecordListModel.h"

#include "ui/TextCodec.h"

#include <algorithm>

RecordListModel::RecordListModel(QObject* parent)
    : QAbstractTableModel(parent),
      m_name([](const RecordPtr& record) { return ToScreen(record->ObjectName()); }),
      m_header(tr("Name/ID")) {}

void RecordListModel::SetRecords(std::vector<RecordPtr> Records) {
    beginResetModel();
    m_records = std::move(Records);
    endResetModel();
}

void RecordListModel::SetNameColumn(TextOf Text, const QString& Header) {
    m_name = std::move(Text);
    m_header = Header;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
    if (!m_records.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

void RecordListModel::SetClassColumn(TextOf Text) {
    const bool had = m_class != nullptr;
    const bool has = Text != nullptr;
    if (has && !had)
        beginInsertColumns({}, 1, 1);
    if (had && !has)
        beginRemoveColumns({}, 1, 1);
    m_class = std::move(Text);
    if (has && !had)
        endInsertColumns();
    if (had && !has)
        endRemoveColumns();
}

void RecordListModel::Refresh(const clsTXTObject* Record) {
    const QModelIndex first = IndexOf(Record);
    if (first.isValid())
        Q_EMIT dataChanged(first, first.siblingAtColumn(columnCount() - 1));
}

RecordPtr RecordListModel::Record(const QModelIndex& Index) const {
    return Index.isValid() ? m_records[static_cast<std::size_t>(Index.row())] : RecordPtr();
}

QModelIndex RecordListModel::IndexOf(const clsTXTObject* Record) const {
    const auto at = std::find_if(m_records.begin(), m_records.end(),
                                 [Record](const RecordPtr& row) { return row.get() == Record; });
    return at == m_records.end() ? QModelIndex()
                                 : index(static_cast<int>(at - m_records.begin()), 0);
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int RecordListModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid())
        return 0;
    return m_class ? 2 : 1;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    const RecordPtr record = Record(index);
    if (!record)
        return {};
    if (role == Qt::UserRole)
        return QString::fromStdString(record->key());
    if (role != Qt::DisplayRole)
        return {};
    return index.column() == 0 ? m_name(record) : m_class(record);
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? m_header : tr("Class");
}
