#include "txteditor/panels/WareListViewer.h"

#include "tdata/clsArchive.h"
#include "txteditor/panels/EntryFilter.h"
#include "ui/TextCodec.h"

#include <algorithm>
#include <array>

namespace {

// Pixels
constexpr int notFoundMargin = 7;
constexpr int textMargin = 13;
constexpr int nameWidth = 133;
/// Beyond so many rows a list is not measured: it takes longer than it is worth.
constexpr int measuredRows = 10000;

using Widths = std::array<int, 2>;

QList<TextRow> rowsOf(const WareNames& names, const clsTXTObject& record) {
    QList<TextRow> rows;
    rows.reserve(record.size());
    for (std::int32_t field = 0; field < record.size(); ++field) {
        const std::string_view id = record.ValueText(field);
        const QString shown = ToScreen(id);
        rows.append({shown,
                     {ToScreen(names.Name(id)), shown},
                     QByteArray(id.data(), static_cast<qsizetype>(id.size()))});
    }
    return rows;
}

Widths textWidths(const QList<TextRow>& rows, const QFontMetrics& metrics) {
    Widths widths{};
    for (const TextRow& row : rows.mid(0, measuredRows))
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] =
                std::max(widths[column],
                         metrics.horizontalAdvance(row.Cells.at(static_cast<qsizetype>(column))));
    return widths;
}

void showNotFound(TextRowsView& view, const QString& id) {
    view.SetColumns({WareListViewer::tr("Ware list %1 not found").arg(id)}, {});
    view.header()->setStretchLastSection(false);
    view.setColumnWidth(
        0, std::max(view.viewport()->width() - notFoundMargin, view.header()->sectionSizeHint(0)));
}

} // namespace

void FillWareList(TextRowsView& View, const WareNames* Names, const clsTXTObject* Record,
                  const QString& ID) {
    if (!Names || !Record) {
        showNotFound(View, ID);
        return;
    }
    QList<TextRow> rows = rowsOf(*Names, *Record);
    const Widths widths = textWidths(rows, View.fontMetrics());
    View.header()->setStretchLastSection(false);
    View.EnsureColumns({WareListViewer::tr("Name"), WareListViewer::tr("ID")}, {});
    View.SetRows(std::move(rows));
    View.setColumnWidth(0, std::max(widths[0] + textMargin, nameWidth));
    View.setColumnWidth(1, std::max(widths[1] + textMargin, View.header()->sectionSizeHint(1)));
}

std::optional<RecordAddress> WareOfRow(const TextRowsView& View) {
    const QByteArray id = View.currentIndex().data(Qt::UserRole + 1).toByteArray();
    return id.isEmpty() ? std::nullopt
                        : std::optional(RecordAddress{.File = {}, .Name = id.toStdString()});
}

WareListViewer::WareListViewer(QWidget* Parent, const char* ViewName)
    : QWidget(Parent), m_view(new TextRowsView(ViewName, tr("Wares of the list"), this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    // The list itself tells only of rows, and there may be none.
    for (QWidget* watched : {static_cast<QWidget*>(m_view), m_view->viewport()})
        new EntryFilter(watched, [this] { Q_EMIT Entered(); });
}

void WareListViewer::Init() {
    if (m_names)
        return;
    m_names = std::make_unique<WareNames>(BuildWareList());
    if (Archive)
        m_lists = Archive->GetFile("WareLists");
}

void WareListViewer::ShowWareList(std::int32_t ID, const QString& Spelling) {
    Init();
    const RecordPtr record = m_lists ? m_lists->FindIndex(ID) : nullptr;
    FillWareList(*m_view, m_names.get(), record.get(),
                 Spelling.isEmpty() ? QString::number(ID) : Spelling);
}

void WareListViewer::Clear() {
    m_view->SetColumns({}, {});
}
