// The records of a file as rows; texts are asked for when a row is painted.
//
// A row's key is under Qt::UserRole.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <functional>
#include <vector>

class RecordListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using TextOf = std::function<QString(const RecordPtr&)>;

    explicit RecordListModel(QObject* parent = nullptr);

    /// Replaces all rows.
    void SetRecords(std::vector<RecordPtr> Records);
    /// What the first column shows, and its header. All rows count as changed.
    void SetNameColumn(TextOf Text, const QString& Header);
    /// Adds the "Class" column, or takes it away if Text is empty.
    void SetClassColumn(TextOf Text);
    /// The record's row shows other texts now; nothing if it has no row.
    void Refresh(const clsTXTObject* Record);

    [[nodiscard]] RecordPtr Record(const QModelIndex& Index) const; ///< none for no row
    /// Index of the record's row, invalid if it has none.
    [[nodiscard]] QModelIndex IndexOf(const clsTXTObject* Record) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    std::vector<RecordPtr> m_records;
    TextOf m_name;
    TextOf m_class;
    QString m_header;
};
