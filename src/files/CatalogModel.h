// The entries of one directory of a catalog: name and kind, directories always first.
#pragma once

#include "files/CatalogListing.h"

#include <QtGui>

class CatalogModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Kind, ColumnCount };

    explicit CatalogModel(QObject* Parent = nullptr);

    /// Takes rows in name order and brings them into the order last asked for.
    void SetRows(std::vector<CatalogListing::Row> Rows);
    [[nodiscard]] const CatalogListing::Row& At(const QModelIndex& Index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    [[nodiscard]] std::vector<std::size_t> Sorted() const;
    [[nodiscard]] QString KindText(const CatalogListing::Row& Row) const;

    std::vector<CatalogListing::Row> m_rows;
    int m_column = Name;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    QIcon m_dir;
    QIcon m_file;
};
