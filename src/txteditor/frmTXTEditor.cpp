#include "txteditor/frmTXTEditor.h"

#include "core/clsSettings.h"
#include "txteditor/RecordDataModel.h"
#include "txteditor/RecordListModel.h"
#include "ui/WindowPos.h"

namespace {

constexpr auto settingsKey = "TE";
constexpr int minimumSide = 133; ///< of each pane, in pixels
constexpr int rawTab = 0;

/// A view of many rows: none is measured.
void prepareRows(QTreeView* view) {
    view->setUniformRowHeights(true);
    view->setRootIsDecorated(false);
    view->setItemsExpandable(false);
    view->setAllColumnsShowFocus(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->header()->setSectionResizeMode(QHeaderView::Interactive);
    view->header()->setSectionsMovable(false);
}

QWidget* rowOf(std::initializer_list<QWidget*> widgets, QWidget* parent) {
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return row;
}

} // namespace

frmTXTEditor::frmTXTEditor(const Panels& Editors, QWidget* Owner)
    : QMainWindow(Owner),
      m_editors(Editors),
      m_list(new RecordListModel(this)),
      m_data(new RecordDataModel(this)),
      m_watch(new WatchModel(this)) {
    setObjectName(QStringLiteral("frmTXTEditor"));
    LoadRecent();
    BuildControls();
    BuildActions();
    BuildMenus();
    BuildToolbar();
    ConnectControls();
    UpdateRecentActions();
}

frmTXTEditor::~frmTXTEditor() {
    m_undo.Stack().disconnect(this); // it tells of its own clearing
    m_objectView->selectionModel()->disconnect(this);
    m_dataView->selectionModel()->disconnect(this);
    delete takeCentralWidget(); // views ask for texts while they go
}

void frmTXTEditor::BuildControls() {
    m_splitter = new QSplitter(this);
    m_splitter->setObjectName(QStringLiteral("Splitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(BuildListSide());
    m_splitter->addWidget(BuildObjectSide());
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes(
        {45 * fontMetrics().averageCharWidth(), 70 * fontMetrics().averageCharWidth()});
    setCentralWidget(m_splitter);
    BuildStatusBar();
}

QWidget* frmTXTEditor::BuildListSide() {
    auto* side = new QWidget(m_splitter);
    side->setMinimumWidth(minimumSide);
    const QStringList texts = {tr("Name"), tr("Race"), tr("ID")};
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        m_names[i] = new QRadioButton(texts[static_cast<qsizetype>(i)], side);
        m_names[i]->setObjectName(QStringLiteral("rbName%1").arg(i));
    }
    m_names[0]->setToolTip(tr("List the records by the names of the text resources"));
    m_names[1]->setToolTip(tr("List the records by their race"));
    m_names[2]->setToolTip(tr("List the records by their ID"));
    m_names[0]->setChecked(true);
    m_sort = new QCheckBox(tr("Sorted"), side);
    m_sort->setObjectName(QStringLiteral("chkSort"));
    m_sort->setToolTip(tr("Sort by ID instead of the order in the file"));

    m_objectView = new QTreeView(side);
    m_objectView->setObjectName(QStringLiteral("ObjectView"));
    m_objectView->setAccessibleName(tr("Records"));
    prepareRows(m_objectView);
    m_objectView->setModel(m_list);
    m_objectView->setAcceptDrops(true);
    m_objectView->viewport()->installEventFilter(this);

    auto* layout = new QVBoxLayout(side);
    layout->addWidget(rowOf({m_names[0], m_names[1], m_names[2], m_sort}, side));
    layout->addWidget(m_objectView);
    return side;
}

QWidget* frmTXTEditor::BuildObjectSide() {
    auto* side = new QWidget(m_splitter);
    side->setMinimumWidth(minimumSide);
    m_objectName = new QLabel(side);
    m_objectName->setObjectName(QStringLiteral("lblObjectName"));
    m_objectName->setTextFormat(Qt::PlainText);
    m_objectName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont bold = m_objectName->font();
    bold.setBold(true);
    m_objectName->setFont(bold);
    m_tab = new QTabWidget(side);
    m_tab->setObjectName(QStringLiteral("MainTab"));
    m_tab->addTab(BuildRawPage(), tr("Raw data"));
    m_tab->addTab(BuildPanelPage(), tr("Ship info"));
    auto* layout = new QVBoxLayout(side);
    layout->addWidget(m_objectName);
    layout->addWidget(m_tab);
    return side;
}

QWidget* frmTXTEditor::BuildRawPage() {
    auto* page = new QSplitter(this);
    page->setChildrenCollapsible(false);
    m_dataView = new QTreeView(page);
    m_dataView->setObjectName(QStringLiteral("ObjectDataView"));
    m_dataView->setAccessibleName(tr("Fields of the record"));
    prepareRows(m_dataView);
    m_dataView->setModel(m_data);
    m_dataView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_dataView->header()->setStretchLastSection(true);
    m_dataView->setColumnWidth(0, 8 * fontMetrics().averageCharWidth());
    m_dataView->installEventFilter(this);
    page->addWidget(m_dataView);
    page->addWidget(BuildWatch());
    page->setStretchFactor(0, 2);
    page->setStretchFactor(1, 1);
    return page;
}

QWidget* frmTXTEditor::BuildWatch() {
    auto* side = new QWidget(this);
    const auto bound = [&](const QString& name, const QString& spoken) {
        auto* edit = new QLineEdit(side);
        edit->setObjectName(name);
        edit->setAccessibleName(spoken);
        edit->setToolTip(spoken);
        edit->setMaximumWidth(10 * fontMetrics().averageCharWidth());
        return edit;
    };
    m_watchFrom = bound(QStringLiteral("WatchFrom"), tr("Index of the first field to watch"));
    m_watchTo = bound(QStringLiteral("WatchTo"), tr("Index of the last field to watch"));
    auto* label = new QLabel(tr("Watch from offset"), side);
    label->setBuddy(m_watchFrom);
    auto* to = new QLabel(tr("to"), side);
    to->setBuddy(m_watchTo);
    m_watchList = new QListView(side);
    m_watchList->setObjectName(QStringLiteral("WatchList"));
    m_watchList->setAccessibleName(tr("Watched fields"));
    m_watchList->setUniformItemSizes(true);
    m_watchList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_watchList->setModel(m_watch);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(rowOf({m_watchFrom, to, m_watchTo}, side));
    layout->addWidget(m_watchList);
    return side;
}

QWidget* frmTXTEditor::BuildPanelPage() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    for (ObjectEditor* panel : m_editors) {
        panel->hide();
        layout->addWidget(panel);
        connect(panel, &ObjectEditor::OnObjectChanged, this, &frmTXTEditor::OnObjectChanged);
    }
    return page;
}

void frmTXTEditor::BuildStatusBar() {
    auto* bar = new QStatusBar(this);
    bar->setObjectName(QStringLiteral("Bar"));
    setStatusBar(bar);
    m_barObject = new QLabel(bar);
    m_barObject->setObjectName(QStringLiteral("Bar0"));
    m_barCount = new QLabel(bar);
    m_barCount->setObjectName(QStringLiteral("Bar1"));
    m_barObject->setIndent(fontMetrics().averageCharWidth());
    bar->addWidget(m_barObject, 1);
    bar->addPermanentWidget(m_barCount);
}

void frmTXTEditor::ConnectControls() {
    connect(m_objectView->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        TakeChanges();
        ShowObject(m_list->Record(m_objectView->selectionModel()->selectedRows().value(0)));
    });
    connect(m_dataView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmTXTEditor::UpdateActions);
    connect(m_dataView, &QTreeView::doubleClicked, this, &frmTXTEditor::OnEditField);
    connect(m_watchFrom, &QLineEdit::textChanged, this, &frmTXTEditor::UpdateWatch);
    connect(m_watchTo, &QLineEdit::textChanged, this, &frmTXTEditor::UpdateWatch);
    connect(m_sort, &QCheckBox::toggled, this, &frmTXTEditor::FillList);
    for (QRadioButton* button : m_names)
        connect(button, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                UpdateNameColumn();
        });
    connect(&m_undo, &RecordUndo::RecordReset, this, &frmTXTEditor::OnRecordReset);
    connect(&m_undo.Stack(), &QUndoStack::indexChanged, this, &frmTXTEditor::UpdateActions);
}

void frmTXTEditor::MyShow() {
    try {
        LoadSettings();
        m_tab->setCurrentIndex(rawTab);
        ShowFile();
        show();
        m_objectView->setFocus();
    } catch (const std::exception& failure) {
        Say(tr("Error in TXT Editor Init: ") + ToScreen(failure.what()), BoxIcon::Critical);
    }
}

void frmTXTEditor::LoadSettings() {
    const QFontMetrics font = fontMetrics();
    LoadWindowPos(*this, settingsKey, 120 * font.averageCharWidth(), 36 * font.height());
    const QSignalBlocker quiet(m_sort);
    m_sort->setChecked(Settings->ReadRegValue(settingsKey, "Sort", 0) != 0);
    const auto mode = Settings->ReadRegValue(settingsKey, "NameIdx", 0);
    m_names[static_cast<std::size_t>(std::clamp(mode, 0, 2))]->setChecked(true);
}

void frmTXTEditor::SaveSettings() {
    if (IsNormal(*this)) // the next one opens in normal state
        SaveWindowPos(*this, settingsKey);
    Settings->SaveRegValue(settingsKey, "Sort", m_sort->isChecked() ? 1 : 0);
    Settings->SaveRegValue(settingsKey, "NameIdx", static_cast<std::int32_t>(PickedMode()));
}

void frmTXTEditor::closeEvent(QCloseEvent* event) {
    if (!MayClose()) {
        event->ignore();
        return;
    }
    SaveSettings();
    event->accept();
}

bool frmTXTEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_dataView && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        OnEditField();
        return true;
    }
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return QMainWindow::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event); // the two others derive from it
    const QList<QUrl> urls = drop->mimeData()->urls();
    if (urls.isEmpty() || !urls.constFirst().isLocalFile())
        return false;
    drop->setDropAction(Qt::CopyAction); // after a move its giver might delete the file
    drop->accept();
    if (event->type() == QEvent::Drop)
        OpenDropped(urls.constFirst().toLocalFile());
    return true;
}
