#include "app/FilesModel.h"

#include "files/mdlPaths.h"
#include "lornfd/paths.h"
#include "ui/TextCodec.h"

#include <QTextDocument>

#include <algorithm>
#include <numeric>

void FilesModel::Clear() {
    beginResetModel();
    m_files.clear();
    m_order.clear();
    endResetModel();
}

void FilesModel::Append(std::vector<ViewFile> Files) {
    if (Files.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(Files.size()) - 1);
    std::move(Files.begin(), Files.end(), std::back_inserter(m_files));
    m_order.resize(m_files.size());
    std::iota(m_order.begin() + first, m_order.end(), static_cast<std::uint32_t>(first));
    endInsertRows();
}

int FilesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_files.size());
}

int FilesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FilesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const ViewFile& file = FileAt(index.row());
    if (role == Qt::UserRole)
        return ToScreen(file.Name);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString text = ToScreen(index.column() == VFSName ? file.Name : ShownPath(file.RealName));
    return role == Qt::ToolTipRole ? Qt::convertFromPlainText(text) : text; // a name is no markup
}

QVariant FilesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == VFSName ? tr("VFS name") : tr("Real name");
}

void FilesModel::sort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<std::uint32_t> former = m_order;
    std::iota(m_order.begin(), m_order.end(), 0U);
    if (column >= 0) {
        const auto text = column == VFSName ? &ViewFile::Name : &ViewFile::RealName;
        const int sign = order == Qt::AscendingOrder ? 1 : -1;
        std::stable_sort(m_order.begin(), m_order.end(), [&](std::uint32_t a, std::uint32_t b) {
            return lornfd::compareNoCase(m_files[a].*text, m_files[b].*text) * sign < 0;
        });
    }
    MovePersistent(former);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void FilesModel::MovePersistent(const std::vector<std::uint32_t>& former) {
    std::vector<int> rows(m_order.size());
    for (std::size_t row = 0; row < m_order.size(); ++row)
        rows[m_order[row]] = static_cast<int>(row);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& index : before)
        after.append(
            this->index(rows[former[static_cast<std::size_t>(index.row())]], index.column()));
    changePersistentIndexList(before, after);
}
