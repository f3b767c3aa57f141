#include "txteditor/RecordDataModel.h"

#include "keshobjects/value.h"
#include "ui/TextCodec.h"

#include <algorithm>
#include <cmath>

namespace {

/// A record may have become shorter before its view hears of it.
QString fieldText(const clsTXTObject& record, int field) {
    return field < record.size() ? ToScreen(record.ValueText(field)) : QString();
}

/// The whole number that a text stands for, kept within -1 and `limit`.
std::optional<int> readBound(const QString& text, int limit) {
    const auto number = keshobjects::readNumber(text.trimmed().toStdString());
    if (!number)
        return {};
    return static_cast<int>(std::clamp(std::nearbyint(*number), -1.0, static_cast<double>(limit)));
}

} // namespace

void RecordDataModel::ShowRecord(std::shared_ptr<clsTXTObject> Record) {
    const int rows = Record ? Record->size() : 0;
    if (Record == m_record && rows == m_rows) {
        if (rows > 0)
            Q_EMIT dataChanged(index(0, 1), index(rows - 1, 1));
        return;
    }
    beginResetModel();
    m_record = std::move(Record);
    m_rows = rows;
    endResetModel();
}

int RecordDataModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int RecordDataModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant RecordDataModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::UserRole + 1)
        return index.row() == m_rows - 1 ? QVariant(QStringLiteral("name")) : QVariant();
    if (role != Qt::DisplayRole)
        return {};
    return index.column() == 0 ? QVariant(QString::number(index.row()))
                               : QVariant(fieldText(*m_record, index.row()));
}

QVariant RecordDataModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("[off]") : tr("Value");
}

void WatchModel::Watch(std::shared_ptr<clsTXTObject> Record, const QString& From,
                       const QString& To) {
    beginResetModel();
    m_record = std::move(Record);
    m_from = 0;
    m_rows = 0;
    const int size = m_record ? m_record->size() : 0;
    const auto from = readBound(From, size);
    const auto to = readBound(To, size - 1);
    if (from && to) {
        m_from = std::max(0, *from);
        m_rows = std::max(0, *to - m_from + 1);
    }
    endResetModel();
}

int WatchModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

QVariant WatchModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const int field = m_from + index.row();
    return QString(QString::number(field) + QStringLiteral(". ") + fieldText(*m_record, field));
}
