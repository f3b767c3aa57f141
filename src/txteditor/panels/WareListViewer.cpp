#include "txteditor/panels/WareListViewer.h"

#include "tdata/clsArchive.h"
#include "txteditor/panels/EntryFilter.h"
#include "ui/ListHelpers.h"
#include "ui/TextCodec.h"

#include <algorithm>

namespace {

// Pixels
constexpr int notFoundMargin = 7;
constexpr int textMargin = 13;
constexpr int nameWidth = 133;
/// Beyond so many rows a list is not measured: it takes longer than it is worth.
constexpr int measuredRows = 2000;

int textWidth(const QAbstractItemModel& model, int column, const QFontMetrics& metrics) {
    int width = 0;
    for (int row = 0; row < std::min(model.rowCount(), measuredRows); ++row)
        width =
            std::max(width, metrics.horizontalAdvance(model.index(row, column).data().toString()));
    return width + textMargin;
}

} // namespace

// The model

void WareListModel::Init() {
    if (!m_names)
        m_names = std::make_unique<WareNames>(BuildWareList());
}

void WareListModel::ShowList(const RecordPtr& List, const QString& ID) {
    Init();
    if (!List)
        return Reset({}, {WareListViewer::tr("Ware list %1 not found").arg(ID)});
    if (List != m_list || List->size() != m_rows)
        return Reset(List, {WareListViewer::tr("Name"), WareListViewer::tr("ID")});
    if (m_rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
}

void WareListModel::Clear() {
    Reset({}, {});
}

void WareListModel::Reset(const RecordPtr& List, QStringList Columns) {
    beginResetModel();
    m_list = List;
    m_columns = std::move(Columns);
    m_rows = List ? List->size() : 0;
    endResetModel();
}

int WareListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int WareListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QString WareListModel::Text(int row, int column) const {
    const std::string_view id = m_list->ValueText(row);
    return column == 0 ? ToScreen(m_names->Name(id)) : ToScreen(id);
}

QVariant WareListModel::data(const QModelIndex& index, int role) const {
    // Between a change and its notice the record may have fewer values than there are rows.
    if (!index.isValid() || !m_list || index.row() >= m_list->size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return Text(index.row(), index.column());
    case Qt::ToolTipRole:
        return PlainTip(Text(index.row(), index.column()));
    case Qt::UserRole:
        return ToScreen(m_list->ValueText(index.row()));
    case Qt::UserRole + 1: {
        const std::string_view id = m_list->ValueText(index.row());
        return QByteArray(id.data(), static_cast<qsizetype>(id.size()));
    }
    default:
        return {};
    }
}

QVariant WareListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_columns.value(section);
}

// The list

WareListView::WareListView(const char* Name, QWidget* Parent)
    : QTreeView(Parent), m_model(new WareListModel(this)) {
    setObjectName(QString::fromLatin1(Name));
    setAccessibleName(WareListViewer::tr("Wares of the list"));
    PrepareRows(*this);
    header()->setStretchLastSection(false);
    setModel(m_model);
    connect(m_model, &QAbstractItemModel::modelReset, this, &WareListView::FitColumns);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &WareListView::FitColumns);
}

void WareListView::ShowList(const RecordPtr& List, const QString& ID) {
    const int place = currentIndex().row();
    m_model->ShowList(List, ID);
    if (place >= 0 && !currentIndex().isValid())
        setCurrentIndex(m_model->index(std::min(place, m_model->rowCount() - 1), 0));
}

void WareListView::FitColumns() {
    const int columns = m_model->columnCount();
    if (columns == 1)
        setColumnWidth(
            0, std::max(viewport()->width() - notFoundMargin, header()->sectionSizeHint(0)));
    for (int column = 0; columns > 1 && column < columns; ++column) {
        const int least = column == 0 ? nameWidth : header()->sectionSizeHint(column);
        setColumnWidth(column, std::max(textWidth(*m_model, column, fontMetrics()), least));
    }
}

std::optional<RecordAddress> WareOfRow(const WareListView& View) {
    const QByteArray id = View.currentIndex().data(Qt::UserRole + 1).toByteArray();
    return id.isEmpty() ? std::nullopt
                        : std::optional(RecordAddress{.File = {}, .Name = id.toStdString()});
}

// The part of a panel

WareListViewer::WareListViewer(QWidget* Parent, const char* ViewName)
    : QWidget(Parent), m_view(new WareListView(ViewName, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    new EntryFilter(m_view, [this] { Q_EMIT Entered(); });
}

void WareListViewer::Init() {
    m_view->Init();
    if (!std::exchange(m_sought, true))
        m_lists = GameFileOf("WareLists");
}

void WareListViewer::ShowWareList(std::int32_t ID, const QString& Spelling) {
    Init();
    m_view->ShowList(m_lists ? m_lists->FindIndex(ID) : nullptr,
                     Spelling.isEmpty() ? QString::number(ID) : Spelling);
}
