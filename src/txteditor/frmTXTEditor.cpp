#include "txteditor/frmTXTEditor.h"

#include "core/clsSettings.h"
#include "txteditor/RecordDataModel.h"
#include "txteditor/RecordListModel.h"
#include "ui/FoldingSplitter.h"
#include "ui/ListHelpers.h"
#include "ui/WindowPos.h"
#include "ui/WrappedLabel.h"
#include "ui/frmWait.h"

namespace {

constexpr auto settingsKey = "TE";
constexpr int minimumSide = 133;       ///< of each pane, in pixels
constexpr int defaultClassWidth = 133; ///< pixels
constexpr int flushTime = 500;         ///< milliseconds from a change until it is on the disk
constexpr int rawTab = 0;
constexpr int narrowRaw = 45; ///< characters, too few for fields and watch list side by side

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
      m_journal(RecoveryDirectory()),
      m_list(new RecordListModel(this)),
      m_data(new RecordDataModel(this)),
      m_watch(new WatchModel(this)) {
    setObjectName(QStringLiteral("frmTXTEditor"));
    BuildControls();
    BuildActions();
    BuildMenus();
    BuildToolbar();
    BuildPopup();
    ConnectControls();
    ConnectList();
    ConnectUndo();
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
    QWidget* options = BuildListOptions(side);
    BuildFilter(side);
    BuildObjectView(side);
    auto* layout = new QVBoxLayout(side);
    for (QWidget* row :
         std::initializer_list<QWidget*>{options, m_filter, m_choiceRow, m_objectView})
        layout->addWidget(row);
    return side;
}

QWidget* frmTXTEditor::BuildListOptions(QWidget* Side) {
    const QStringList texts = {tr("Name"), tr("Race"), tr("ID")};
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        m_names[i] = new QRadioButton(texts[static_cast<qsizetype>(i)], Side);
        m_names[i]->setObjectName(QStringLiteral("rbName%1").arg(i));
    }
    m_names[0]->setToolTip(tr("List the records by the names of the text resources"));
    m_names[1]->setToolTip(tr("List the records by their race"));
    m_names[2]->setToolTip(tr("List the records by their ID"));
    m_names[0]->setChecked(true);
    m_sort = new QCheckBox(tr("Sorted"), Side);
    m_sort->setObjectName(QStringLiteral("chkSort"));
    m_sort->setToolTip(
        tr("Sort by the last value, mostly the ID, instead of the order in the file"));
    return rowOf({m_names[0], m_names[1], m_names[2], m_sort}, Side);
}

void frmTXTEditor::BuildFilter(QWidget* Side) {
    m_filter = new QLineEdit(Side);
    m_filter->setObjectName(QStringLiteral("FilterEdit"));
    m_filter->setPlaceholderText(tr("Filter by name or ID"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_filter->setToolTip(tr("List only the records whose name or ID contains this text"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_choiceRow = new QWidget(Side);
    m_choiceRow->hide();
    auto* choices = new QHBoxLayout(m_choiceRow);
    choices->setContentsMargins({});
}

void frmTXTEditor::BuildObjectView(QWidget* Side) {
    m_objectView = new QTreeView(Side);
    m_objectView->setObjectName(QStringLiteral("ObjectView"));
    m_objectView->setAccessibleName(tr("Records"));
    PrepareRows(*m_objectView);
    m_objectView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_objectView->setContextMenuPolicy(Qt::PreventContextMenu); // ours comes at the release
    m_objectView->setModel(m_list);
    m_objectView->setAcceptDrops(true);
    m_objectView->installEventFilter(this);
    m_objectView->viewport()->installEventFilter(this);
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
    auto* page = new FoldingSplitter("RawSplitter", narrowRaw, this);
    m_rawSplitter = page;
    m_dataView = new QTreeView(page);
    m_dataView->setObjectName(QStringLiteral("ObjectDataView"));
    m_dataView->setAccessibleName(tr("Fields of the record"));
    PrepareRows(*m_dataView);
    m_dataView->setModel(m_data);
    m_dataView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_dataView->setSelectionMode(QAbstractItemView::ExtendedSelection);
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
    auto* label = new WrappedLabel(tr("Watch from offset"), side);
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
        connect(panel, &ObjectEditor::GoToAsked, this, &frmTXTEditor::GoToAsked);
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
    connect(m_dataView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmTXTEditor::UpdateActions);
    connect(m_dataView, &QTreeView::doubleClicked, this, &frmTXTEditor::OnEditField);
    connect(m_tab, &QTabWidget::currentChanged, this, &frmTXTEditor::UpdateActions);
    connect(m_watchFrom, &QLineEdit::textChanged, this, &frmTXTEditor::UpdateWatch);
    connect(m_watchTo, &QLineEdit::textChanged, this, &frmTXTEditor::UpdateWatch);
    connect(m_sort, &QCheckBox::toggled, this, &frmTXTEditor::FillList);
    for (QRadioButton* button : m_names)
        connect(button, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                UpdateNameColumn();
        });
    connect(&RecordClipboard::Instance(), &RecordClipboard::Changed, this,
            &frmTXTEditor::UpdateActions);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &frmTXTEditor::LookAtDisk,
            Qt::QueuedConnection);
}

void frmTXTEditor::ConnectList() {
    // A click tells of the selection before, a key after, the current row is another.
    const QItemSelectionModel* selection = m_objectView->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &frmTXTEditor::OnSelection);
    connect(selection, &QItemSelectionModel::currentRowChanged, this, &frmTXTEditor::OnSelection);
    connect(m_filter, &QLineEdit::textChanged, this, &frmTXTEditor::ApplyFilter);
    connect(m_list, &RecordListModel::Filtered, this, &frmTXTEditor::OnFiltered);
}

void frmTXTEditor::ConnectUndo() {
    connect(&m_undo, &RecordUndo::RecordReset, this, &frmTXTEditor::OnRecordReset);
    connect(&m_undo, &RecordUndo::RecordsAdded, this, &frmTXTEditor::OnRecordsAdded);
    connect(&m_undo, &RecordUndo::RecordsLeaving, this,
            [this](const RecordUndo::Records& leaving) { LeavePanel(leaving); });
    connect(&m_undo, &RecordUndo::RecordsRemoved, this, &frmTXTEditor::OnRecordsRemoved);
    connect(&m_undo.Stack(), &QUndoStack::indexChanged, this, [this] {
        UpdateCaption();
        UpdateActions();
    });
    connect(&m_undo, &RecordUndo::Stepped, this, [this](const RecordSteps& steps) {
        if (m_replaying)
            return; // the journal has them
        m_journal.Append(steps);
        if (!m_flush.isActive())
            m_flush.start();
    });
    m_flush.setSingleShot(true);
    m_flush.setInterval(flushTime);
    connect(&m_flush, &QTimer::timeout, this, &frmTXTEditor::FlushJournal);
}

void frmTXTEditor::MyShow() {
    try {
        m_tab->setCurrentIndex(rawTab);
        LoadSettings();
        ShowFile();
        show();
        {
            const Busy busy(tr("Loading %1").arg(tr("TXT Editor")), this, true);
            m_names[0]->setEnabled(Settings->LoadDescriptions());
        }
        activateWindow();                            // again, after the wait window
        RecordClipboard::Instance().SetSource(this); // the newest window gives what was taken
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
    for (const auto& [name, splitter] : KeptSplitters())
        splitter->restoreState(
            QByteArray::fromHex(ToScreen(Settings->ReadRegValue(settingsKey, name)).toLatin1()));
    m_classWidth = Settings->ReadRegValue(settingsKey, "ClassWidth", defaultClassWidth);
    m_dataView->setColumnWidth(
        0, Settings->ReadRegValue(settingsKey, "OffsetWidth", 8 * font.averageCharWidth()));
}

std::array<std::pair<const char*, QSplitter*>, 2> frmTXTEditor::KeptSplitters() const {
    return {{{"Splitter", m_splitter}, {"RawSplitter", m_rawSplitter}}};
}

void frmTXTEditor::SaveSettings() {
    if (IsNormal(*this)) // the next one opens in normal state
        SaveWindowPos(*this, settingsKey);
    Settings->SaveRegValue(settingsKey, "Sort", m_sort->isChecked() ? 1 : 0);
    Settings->SaveRegValue(settingsKey, "NameIdx", static_cast<std::int32_t>(PickedMode()));
    for (const auto& [name, splitter] : KeptSplitters())
        Settings->SaveRegValue(settingsKey, name, splitter->saveState().toHex().toStdString(),
                               false);
    if (m_find)
        m_find_OnClose(); // it goes with the window
    KeepClassWidth();
    Settings->SaveRegValue(settingsKey, "ClassWidth", m_classWidth);
    Settings->SaveRegValue(settingsKey, "OffsetWidth", m_dataView->columnWidth(0));
}

void frmTXTEditor::closeEvent(QCloseEvent* event) {
    if (!FinishEntry() || !MayClose()) {
        event->ignore();
        return;
    }
    SaveSettings();
    m_flush.stop();
    m_journal.Discard();
    if (RecordClipboard::Instance().ClipboardSource() == this)
        RecordClipboard::Instance().SetSource(nullptr);
    event->accept();
}

bool frmTXTEditor::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        return OnKey(watched, static_cast<QKeyEvent*>(event)->key());
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return DropFile(static_cast<QDropEvent*>(event)); // the two others derive from it
    case QEvent::MouseButtonRelease:
    case QEvent::ContextMenu:
        return watched != m_dataView && watched != m_filter && PopupWanted(event);
    default:
        return QMainWindow::eventFilter(watched, event);
    }
}

bool frmTXTEditor::OnKey(const QObject* Watched, int Key) {
    const bool enter = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    if (Watched == m_dataView && enter) {
        OnEditField();
        return true;
    }
    if (Watched != m_filter)
        return false;
    if (Key == Qt::Key_Escape)
        ClearFilter();
    else if (enter || Key == Qt::Key_Down)
        GoToList();
    else
        return false;
    return true;
}

void frmTXTEditor::GoToList() {
    m_objectView->setFocus();
    if (!m_selected)
        SelectRecord(m_list->Record(m_list->index(0, 0)));
}

bool frmTXTEditor::DropFile(QDropEvent* Drop) {
    const QList<QUrl> urls = Drop->mimeData()->urls();
    if (urls.isEmpty() || !urls.constFirst().isLocalFile())
        return false;
    Drop->setDropAction(Qt::CopyAction); // after a move its giver might delete the file
    Drop->accept();
    if (Drop->type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, path = urls.constFirst().toLocalFile()] { OpenDropped(path); },
            Qt::QueuedConnection); // its giver waits, and a box may be shown
    return true;
}

/// By the right button's release, or the menu key.
bool frmTXTEditor::PopupWanted(QEvent* Event) {
    if (Event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(Event);
        if (mouse->button() != Qt::RightButton)
            return false;
        ShowPopup(mouse->globalPosition().toPoint());
        return true;
    }
    if (static_cast<QContextMenuEvent*>(Event)->reason() != QContextMenuEvent::Keyboard)
        return false;
    const QRect row = m_objectView->visualRect(m_objectView->currentIndex());
    ShowPopup(m_objectView->viewport()->mapToGlobal(row.bottomLeft()));
    return true;
}

void frmTXTEditor::ShowPopup(const QPoint& Place) {
    UpdateActions();
    m_popup->popup(Place);
}
