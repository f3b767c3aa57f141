#include "txteditor/RecordListModel.h"

#include "ui/TextCodec.h"

#include <algorithm>
#include <numeric>
#include <unordered_set>

namespace {

constexpr int sliceTime = 15;           ///< milliseconds
constexpr std::size_t rowsPerLook = 64; ///< between two looks at the clock
constexpr std::size_t mostRanges = 200; ///< of rows removed one after the other

QString idOf(const RecordPtr& record) {
    return ToScreen(record->ObjectName());
}

} // namespace

RecordListModel::RecordListModel(QObject* parent)
    : QAbstractTableModel(parent), m_name(idOf), m_header(tr("Name/ID")) {
    m_slice.setSingleShot(true);
    connect(&m_slice, &QTimer::timeout, this, &RecordListModel::FilterSlice);
}

void RecordListModel::SetRecords(std::vector<RecordPtr> Records) {
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(Records.size());
    for (RecordPtr& record : Records)
        m_rows.push_back({std::move(record), {}, {}});
    m_found.clear();
    if (HasFilter())
        m_shown.clear();
    else
        ShowAll();
    endResetModel();
    StartFilter();
}

void RecordListModel::ShowAll() {
    m_shown.resize(m_rows.size());
    std::iota(m_shown.begin(), m_shown.end(), 0);
}

void RecordListModel::Insert(int At, const std::vector<RecordPtr>& Records) {
    if (Records.empty())
        return;
    beginInsertRows({}, At, At + static_cast<int>(Records.size()) - 1);
    std::vector<Row> rows;
    rows.reserve(Records.size());
    for (const RecordPtr& record : Records)
        rows.push_back({record, {}, {}});
    m_rows.insert(m_rows.begin() + At, rows.begin(), rows.end());
    ShowAll();
    endInsertRows();
}

void RecordListModel::Remove(const std::vector<RecordPtr>& Records) {
    std::unordered_set<const clsTXTObject*> gone;
    for (const RecordPtr& record : Records)
        gone.insert(record.get());
    std::vector<int> rows;
    for (std::size_t i = 0; i < m_shown.size(); ++i)
        if (gone.contains(m_rows[static_cast<std::size_t>(m_shown[i])].Record.get()))
            rows.push_back(static_cast<int>(i));
    RemoveShown(rows);

    std::vector<int> places(m_rows.size()); // of the rows that stay
    int place = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        places[i] = gone.contains(m_rows[i].Record.get()) ? place : place++;
    for (int& row : m_shown)
        row = places[static_cast<std::size_t>(row)];
    std::erase_if(m_rows, [&](const Row& row) { return gone.contains(row.Record.get()); });
    if (m_slice.isActive())
        StartFilter(); // its pass counts rows
}

void RecordListModel::RemoveShown(const std::vector<int>& rows) {
    std::size_t ranges = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        ranges += i == 0 || rows[i] != rows[i - 1] + 1 ? 1U : 0U;
    if (ranges > mostRanges) {
        beginResetModel();
        for (std::size_t i = rows.size(); i-- > 0;)
            m_shown[static_cast<std::size_t>(rows[i])] = -1;
        std::erase(m_shown, -1);
        endResetModel();
        return;
    }
    for (std::size_t end = rows.size(); end > 0;) {
        std::size_t first = end - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        beginRemoveRows({}, rows[first], rows[end - 1]);
        m_shown.erase(m_shown.begin() + rows[first], m_shown.begin() + rows[end - 1] + 1);
        endRemoveRows();
        end = first;
    }
}

void RecordListModel::SetFilter(const QString& Text, Test Passes) {
    m_filter = Text.toCaseFolded();
    m_passes = std::move(Passes);
    if (HasFilter()) {
        StartFilter();
        return;
    }
    m_slice.stop();
    beginResetModel();
    ShowAll();
    endResetModel();
    Q_EMIT Filtered();
}

void RecordListModel::StartFilter() {
    m_slice.stop();
    m_found.clear();
    m_next = 0;
    if (HasFilter())
        FilterSlice();
}

void RecordListModel::FilterSlice() {
    const QDeadlineTimer deadline(sliceTime);
    for (; m_next < m_rows.size(); ++m_next) {
        if (m_next % rowsPerLook == 0 && deadline.hasExpired()) {
            m_slice.start();
            return;
        }
        if (PassesFilter(m_rows[m_next]))
            m_found.push_back(static_cast<int>(m_next));
    }
    beginResetModel();
    m_shown = std::move(m_found);
    m_found.clear();
    endResetModel();
    Q_EMIT Filtered();
}

bool RecordListModel::PassesFilter(Row& row) const {
    return (!m_passes || m_passes(row.Record)) &&
           (m_filter.isEmpty() || SearchTextOf(row).contains(m_filter));
}

const QString& RecordListModel::TextOfRow(Row& row) const {
    if (row.Text.isNull()) {
        row.Text = m_name(row.Record);
        if (row.Text.isNull())
            row.Text = QLatin1String("");
    }
    return row.Text;
}

const QString& RecordListModel::SearchTextOf(Row& row) const {
    if (row.SearchText.isNull()) {
        QStringList texts{TextOfRow(row), idOf(row.Record)};
        if (m_alsoFound)
            texts.append(m_alsoFound(row.Record));
        texts.removeDuplicates();
        row.SearchText = texts.join(u'\n').toCaseFolded();
        if (row.SearchText.isNull())
            row.SearchText = QLatin1String("");
    }
    return row.SearchText;
}

void RecordListModel::ForgetTexts() {
    for (Row& row : m_rows)
        row.Text = row.SearchText = QString();
}

void RecordListModel::SetNameColumn(TextOf Text, const QString& Header, TextOf AlsoFound) {
    m_name = std::move(Text);
    m_alsoFound = std::move(AlsoFound);
    m_header = Header;
    ForgetTexts();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
    if (!m_shown.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
    StartFilter();
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
    const auto row = std::ranges::find(m_rows, Record, [](const Row& r) { return r.Record.get(); });
    if (row != m_rows.end())
        row->Text = row->SearchText = QString();
    if (first.isValid())
        Q_EMIT dataChanged(first, first.siblingAtColumn(columnCount() - 1));
}

RecordPtr RecordListModel::Record(const QModelIndex& Index) const {
    if (!Index.isValid())
        return {};
    return m_rows[static_cast<std::size_t>(m_shown[static_cast<std::size_t>(Index.row())])].Record;
}

QModelIndex RecordListModel::IndexOf(const clsTXTObject* Record) const {
    const auto at = std::ranges::find(m_shown, Record, [this](int row) {
        return m_rows[static_cast<std::size_t>(row)].Record.get();
    });
    return at == m_shown.end() ? QModelIndex() : index(static_cast<int>(at - m_shown.begin()), 0);
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int RecordListModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid())
        return 0;
    return m_class ? 2 : 1;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::UserRole))
        return {};
    Row& row = m_rows[static_cast<std::size_t>(m_shown[static_cast<std::size_t>(index.row())])];
    if (role == Qt::UserRole)
        return QString::fromStdString(row.Record->key());
    return index.column() == 0 ? TextOfRow(row) : m_class(row.Record);
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? m_header : tr("Class");
}
