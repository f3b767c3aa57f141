#include "app/frmFiles.h"

#include "core/clsSettings.h"
#include "ui/CommonBoxes.h"
#include "ui/ListHelpers.h"
#include "ui/SelectOnEntry.h"
#include "ui/WindowPos.h"

namespace {

constexpr auto settingsKey = "files";
constexpr int firstTime = 2;    ///< milliseconds of reading before the window is shown
constexpr int showTime = 20;    ///< milliseconds that it then has to be painted
constexpr int sliceTime = 15;   ///< milliseconds of reading between two looks at the user
constexpr int sliceFiles = 500; ///< files between two looks at the clock

/// Both columns share the view's width, in the proportion that the user gave them.
void shareWidth(QHeaderView& header, int before, int now) {
    const int first = header.sectionSize(FilesModel::VFSName);
    header.resizeSection(FilesModel::VFSName, before > 0 ? first * now / before : now / 2);
}

} // namespace

frmFiles::frmFiles(QWidget* Owner) : QMainWindow(Owner) {
    setObjectName(QStringLiteral("frmFiles"));
    setWindowTitle(tr("Loaded Files"));
    BuildControls();
    BuildActions();
    HelpOnF1(this, "loadedfiles.html");
    const QFontMetrics font = fontMetrics();
    LoadWindowPos(*this, settingsKey, 96 * font.averageCharWidth(), 30 * font.height());
}

void frmFiles::BuildControls() {
    auto* page = new QWidget(this);
    m_filter = new QLineEdit(QStringLiteral("*"), page);
    m_filter->setObjectName(QStringLiteral("FilterEdit"));
    m_filter->setToolTip(tr("Parts of a name with * and ?, level by level: types\\TShips*. Enter "
                            "lists the files."));
    new SelectOnEntry(*m_filter);
    m_activeMod = new QLineEdit(page);
    m_activeMod->setObjectName(QStringLiteral("ActiveModEdit"));
    m_activeMod->setReadOnly(true);

    m_view = new QTreeView(page);
    m_view->setObjectName(QStringLiteral("View"));
    m_view->setAccessibleName(tr("Files"));
    m_view->setUniformRowHeights(true);
    m_view->setRootIsDecorated(false);
    m_view->setItemsExpandable(false);
    m_view->setAlternatingRowColors(true);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setModel(&m_model);
    m_view->header()->setSectionsClickable(true);
    m_view->header()->setSortIndicatorShown(true);
    m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_view->header()->setSortIndicatorClearable(true);
    m_view->viewport()->installEventFilter(this);
    m_view->installEventFilter(this);

    auto* form = new QFormLayout;
    form->addRow(tr("&Active mod file:"), m_activeMod);
    form->addRow(tr("&Filter"), m_filter);
    auto* rows = new QVBoxLayout(page);
    rows->addLayout(form);
    rows->addWidget(m_view);
    setCentralWidget(page);
    setTabOrder(m_filter, m_view);
    setTabOrder(m_view, m_activeMod);
    m_filter->setFocus();
    m_count = new QLabel(this);
    m_count->setObjectName(QStringLiteral("lblCount"));
    statusBar()->addWidget(m_count);

    connect(m_filter, &QLineEdit::returnPressed, this, [this] { FillFiles(m_filter->text()); });
    connect(m_view->header(), &QHeaderView::sortIndicatorChanged, &m_model, &FilesModel::sort);
    connect(m_view, &QTreeView::doubleClicked, this, &frmFiles::Open);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmFiles::UpdateActions);
}

void frmFiles::BuildActions() {
    m_open = new QAction(tr("&Open"), m_view);
    m_open->setObjectName(QStringLiteral("mnuOpen"));
    connect(m_open, &QAction::triggered, this, &frmFiles::Open);
    m_copy = new QAction(tr("&Copy"), m_view);
    m_copy->setObjectName(QStringLiteral("mnuCopy"));
    m_copy->setShortcut(QKeySequence::Copy);
    m_copy->setShortcutContext(Qt::WidgetShortcut);
    connect(m_copy, &QAction::triggered, this, &frmFiles::Copy);
    auto* close = new QAction(tr("Close"), this);
    close->setShortcut(QKeySequence::Close);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    m_view->addActions({m_open, m_copy});
    AddSortAction(*m_view, "mnuSortName", tr("Sort by &VFS name"), Qt::CTRL | Qt::Key_1,
                  FilesModel::VFSName);
    AddSortAction(*m_view, "mnuSortReal", tr("Sort by &real name"), Qt::CTRL | Qt::Key_2,
                  FilesModel::RealName);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    UpdateActions();
}

void frmFiles::ShowFiles(bool Modal) {
    m_filter->setText(QStringLiteral("*"));
    Refresh();
    setWindowModality(Modal ? Qt::ApplicationModal : Qt::NonModal);
    show();
    if (!Modal)
        return;
    QEventLoop untilClosed;
    connect(this, &frmFiles::Closed, &untilClosed, &QEventLoop::quit);
    untilClosed.exec();
}

void frmFiles::Refresh() {
    const QString mod = QString::fromStdString(Settings->ActiveModName());
    m_activeMod->setText(mod.isEmpty() ? tr("(none)") : mod);
    FillFiles(m_filter->text());
}

void frmFiles::FillFiles(const QString& Filter) {
    m_model.Clear();
    m_walk.emplace(Filter.toStdString());
    m_timer.start(showTime, this);
    ReadSlice(firstTime);
}

void frmFiles::ReadSlice(int Milliseconds) {
    QElapsedTimer clock;
    clock.start();
    std::vector<ViewFile> found;
    while (!m_walk->AtEnd() && !clock.hasExpired(Milliseconds)) {
        std::vector<ViewFile> files = m_walk->Next(sliceFiles);
        std::move(files.begin(), files.end(), std::back_inserter(found));
    }
    m_model.Append(std::move(found));
    if (m_walk->AtEnd()) {
        m_timer.stop();
        m_walk.reset();
        if (const int column = m_view->header()->sortIndicatorSection(); column >= 0)
            m_model.sort(column, m_view->header()->sortIndicatorOrder());
    }
    const QString text = m_walk ? tr("Listing... Files: %1") : tr("Files: %1");
    m_count->setText(text.arg(m_model.rowCount()));
}

void frmFiles::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId())
        return QMainWindow::timerEvent(event);
    m_timer.start(0, this);
    ReadSlice(sliceTime);
}

void frmFiles::Copy() {
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex& row : rows)
        text += row.data().toString() + u'\t' +
                row.siblingAtColumn(FilesModel::RealName).data().toString() + u'\n';
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void frmFiles::Open() {
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid())
        Q_EMIT OpenRequested(m_model.Name(current.row()));
}

void frmFiles::UpdateActions() {
    const bool selected = m_view->selectionModel()->hasSelection();
    m_open->setEnabled(selected);
    m_copy->setEnabled(selected);
}

bool frmFiles::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_view->viewport() && event->type() == QEvent::Resize) {
        const auto* resize = static_cast<QResizeEvent*>(event);
        shareWidth(*m_view->header(), resize->oldSize().width(), resize->size().width());
    }
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Open();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmFiles::closeEvent(QCloseEvent* event) {
    if (IsNormal(*this))
        SaveWindowPos(*this, settingsKey);
    QMainWindow::closeEvent(event);
    Q_EMIT Closed();
}
