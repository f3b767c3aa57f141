#include "files/CatalogModel.h"

#include "core/mdlComFunctions.h"
#include "lornfd/paths.h"
#include "ui/Icons.h"
#include "ui/TextCodec.h"

#include <numeric>

namespace {

using Row = CatalogListing::Row;

/// <0, 0, >0 of two rows that are both directories or both files.
int compare(const Row& a, const Row& b, int column) {
    const int kinds = column == CatalogModel::Kind && !a.IsDirectory
                          ? lornfd::compareNoCase(ExtensionOf(a.Name), ExtensionOf(b.Name))
                          : 0;
    return kinds != 0 ? kinds : lornfd::compareNoCase(a.Name, b.Name);
}

} // namespace

CatalogModel::CatalogModel(QObject* Parent)
    : QAbstractTableModel(Parent), m_dir(ToolIcon("dir")), m_file(ToolIcon("file")) {}

void CatalogModel::SetRows(std::vector<Row> Rows) {
    beginResetModel();
    m_rows = std::move(Rows);
    if (m_column != Name || m_order != Qt::AscendingOrder) {
        std::vector<Row> sorted;
        for (const std::size_t from : Sorted())
            sorted.push_back(std::move(m_rows[from]));
        m_rows = std::move(sorted);
    }
    endResetModel();
}

const Row& CatalogModel::At(const QModelIndex& Index) const {
    return m_rows[static_cast<std::size_t>(Index.row())];
}

int CatalogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CatalogModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString CatalogModel::KindText(const Row& Row) const {
    return Row.IsDirectory ? tr("Directory") : ToScreen(ExtensionOf(Row.Name));
}

QVariant CatalogModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Row& row = At(index);
    if (role == Qt::DisplayRole)
        return index.column() == Name ? ToScreen(row.Name) : KindText(row);
    if (role == Qt::UserRole)
        return ToScreen(row.Name);
    if (role == Qt::DecorationRole && index.column() == Name)
        return row.IsDirectory ? m_dir : m_file;
    return {};
}

QVariant CatalogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Name") : tr("Type");
}

std::vector<std::size_t> CatalogModel::Sorted() const {
    std::vector<std::size_t> order(m_rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [this](std::size_t first, std::size_t second) {
        const Row& a = m_rows[first];
        const Row& b = m_rows[second];
        if (a.IsDirectory != b.IsDirectory)
            return a.IsDirectory;
        const int compared = compare(a, b, m_column);
        return m_order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    return order;
}

void CatalogModel::sort(int column, Qt::SortOrder order) {
    m_column = column;
    m_order = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<std::size_t> sorted = Sorted();
    std::vector<Row> rows;
    std::vector<int> rowOf(sorted.size());
    rows.reserve(sorted.size());
    for (const std::size_t from : sorted) {
        rowOf[from] = static_cast<int>(rows.size());
        rows.push_back(std::move(m_rows[from]));
    }
    m_rows = std::move(rows);
    const QModelIndexList former = persistentIndexList();
    QModelIndexList now;
    for (const QModelIndex& index : former)
        now.append(createIndex(rowOf[static_cast<std::size_t>(index.row())], index.column()));
    changePersistentIndexList(former, now);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}
