// One record's fields as rows, and the stretch of them that is watched.
#pragma once

#include "tdata/clsTXTObject.h"

#include <QtWidgets>

#include <memory>

/// Columns "[off]" and "Value". The row of the ID has the tag "name" under Qt::UserRole + 1.
class RecordDataModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows a record, or the present one anew; none clears.
    void ShowRecord(std::shared_ptr<clsTXTObject> Record);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<clsTXTObject> m_record;
    int m_rows = 0;
};

/// Lines of index, ". " and value.
class WatchModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows the fields From to To, as far as the record has them; nothing unless both texts are
    /// numbers.
    void Watch(std::shared_ptr<clsTXTObject> Record, const QString& From, const QString& To);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<clsTXTObject> m_record;
    int m_from = 0;
    int m_rows = 0;
};
