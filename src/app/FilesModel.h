// Files of the merged view with their real places, as rows.
#pragma once

#include "files/ViewFiles.h"

#include <QtCore>

#include <vector>

class FilesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { VFSName, RealName, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void Clear();
    /// Rows come at the end, whatever the order: who adds sorts when all are there.
    void Append(std::vector<ViewFile> Files);
    [[nodiscard]] const std::string& Name(int Row) const { return FileAt(Row).Name; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// Without regard to case; column -1 gives the order in which rows came.
    void sort(int column, Qt::SortOrder order) override;

private:
    [[nodiscard]] const ViewFile& FileAt(int row) const {
        return m_files[m_order[static_cast<std::size_t>(row)]];
    }
    void MovePersistent(const std::vector<std::uint32_t>& former);

    std::vector<ViewFile> m_files;
    std::vector<std::uint32_t> m_order; ///< index of a file by row
};
