#include "files/frmCATDialog.h"

#include "core/KeshError.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/CatalogModel.h"
#include "files/mdlPaths.h"
#include "lornfd/catalog.h"
#include "lornfd/paths.h"
#include "ui/CommonBoxes.h"
#include "ui/Icons.h"
#include "ui/ListHelpers.h"
#include "ui/TextCodec.h"
#include "ui/WindowPos.h"

namespace {

constexpr const char* positionKey = "CATDialog";
constexpr int levelIndent = 4; ///< blanks

/// Entries chosen in this run of the program, newest first, as "\directory\name".
QByteArrayList& recentEntries() {
    static QByteArrayList entries;
    return entries;
}

void remember(const std::string& entry) {
    constexpr int most = 10;
    QByteArrayList& entries = recentEntries();
    const QByteArray path = '\\' + QByteArray::fromStdString(entry);
    entries.removeAll(path);
    entries.prepend(path);
    entries.resize(std::min<qsizetype>(entries.size(), most));
}

/// The masks of a filter inside a catalog. There are no catalogs in there, so a filter for nothing
/// else shows what can be chosen.
std::vector<std::string> masksOf(const FilterEntry& filter) {
    std::vector<std::string> masks;
    for (const QString& mask : filter.Masks)
        masks.push_back(mask == QStringLiteral("*.*") ? "*" : mask.toStdString());
    if (masks.empty() || (masks.size() == 1 && lornfd::equalNoCase(masks.front(), "*.cat")))
        masks.assign(1, "*");
    return masks;
}

/// What follows a directory in the path of an entry below it.
std::string withoutDirectory(const std::string& entry, const std::string& directory) {
    return directory.empty() ? entry : entry.substr(std::min(directory.size() + 1, entry.size()));
}

} // namespace

frmCATDialog::frmCATDialog(QWidget* Owner)
    : QDialog(Owner),
      m_lblCaption(new QLabel(this)),
      m_cmbDir(new QComboBox(this)),
      m_DirBar(new QToolBar(this)),
      m_CloseBar(new QToolBar(this)),
      m_FileView(new QTreeView(this)),
      m_Label1(new QLabel(this)),
      m_cmbFileName(new QComboBox(this)),
      m_lblFilter(new QLabel(this)),
      m_cmbFilter(new QComboBox(this)),
      m_btnOK(new QPushButton(this)),
      m_btnCancel(new QPushButton(tr("Cancel"), this)),
      m_model(new CatalogModel(this)) {
    setObjectName(QStringLiteral("frmCATDialog"));
    const std::pair<QWidget*, const char*> names[] = {
        {m_lblCaption, "lblCaption"},   {m_cmbDir, "cmbDir"},
        {m_DirBar, "DirBar"},           {m_CloseBar, "CloseBar"},
        {m_FileView, "FileView"},       {m_Label1, "Label1"},
        {m_cmbFileName, "cmbFileName"}, {m_lblFilter, "lblFilter"},
        {m_cmbFilter, "cmbFilter"},     {m_btnOK, "btnOK"},
        {m_btnCancel, "btnCancel"}};
    for (const auto& [widget, name] : names)
        widget->setObjectName(QString::fromLatin1(name));
    MakeControls();
    MakeBars();
    LayOut();
    Connect();
    HelpOnF1(this, "filedialogs.html");
    const QFontMetrics font = fontMetrics();
    LoadWindowPos(*this, positionKey, 72 * font.averageCharWidth(), 26 * font.height());
}

frmCATDialog::~frmCATDialog() = default;

void frmCATDialog::MakeControls() {
    SetTask(false);
    m_lblCaption->setText(tr("Look &in"));
    m_lblCaption->setBuddy(m_cmbDir);
    m_Label1->setText(tr("File &name"));
    m_Label1->setBuddy(m_cmbFileName);
    m_lblFilter->setBuddy(m_cmbFilter);
    m_cmbFileName->setEditable(true);
    m_cmbFileName->setInsertPolicy(QComboBox::NoInsert);
    m_cmbFileName->setCompleter(nullptr);
    m_cmbFileName->lineEdit()->setAccessibleName(tr("File name"));
    m_btnOK->setDefault(true);
    m_btnCancel->setAutoDefault(false);
    for (QComboBox* combo : {m_cmbDir, m_cmbFileName, m_cmbFilter}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(16);
    }

    m_FileView->setModel(m_model);
    m_FileView->setAccessibleName(tr("Files"));
    m_FileView->setRootIsDecorated(false);
    m_FileView->setItemsExpandable(false);
    m_FileView->setUniformRowHeights(true);
    const int side = std::max(style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this),
                              fontMetrics().ascent());
    m_FileView->setIconSize({side, side});
    m_FileView->setAllColumnsShowFocus(true);
    m_FileView->installEventFilter(this);
    QHeaderView* header = m_FileView->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(CatalogModel::Name, QHeaderView::Stretch);
    header->setSectionResizeMode(CatalogModel::Kind, QHeaderView::Interactive);
    header->resizeSection(CatalogModel::Kind, 14 * fontMetrics().averageCharWidth());
    header->setSortIndicator(CatalogModel::Name, Qt::AscendingOrder);
    m_FileView->setSortingEnabled(true);
    MakeSortActions();
}

void frmCATDialog::MakeSortActions() {
    AddSortAction(*m_FileView, "mnuSortName", tr("Sort by &name"), Qt::CTRL | Qt::Key_1,
                  CatalogModel::Name);
    AddSortAction(*m_FileView, "mnuSortType", tr("Sort by &type"), Qt::CTRL | Qt::Key_2,
                  CatalogModel::Kind);
    m_FileView->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void frmCATDialog::MakeBars() {
    const auto add = [this](QToolBar* bar, const char* key, const QString& text,
                            const QKeySequence& shortcut) {
        QAction* action = bar->addAction(ToolIcon(key), text);
        action->setObjectName(QString::fromLatin1(key));
        action->setShortcut(shortcut);
        action->setToolTip(
            text + QStringLiteral(" (%1)").arg(shortcut.toString(QKeySequence::NativeText)));
        bar->setIconSize(m_FileView->iconSize());
        return action;
    };
    m_DirBar->setAccessibleName(tr("Directory"));
    m_CloseBar->setAccessibleName(tr("Catalog"));
    m_up = add(m_DirBar, "up", tr("Up one level"), Qt::ALT | Qt::Key_Up);
    m_leave = add(m_CloseBar, "leave", tr("Up out of the catalog"), Qt::CTRL | Qt::Key_Up);
}

void frmCATDialog::LayOut() {
    auto* place = new QHBoxLayout;
    place->addWidget(m_lblCaption);
    place->addWidget(m_cmbDir, 1);
    place->addWidget(m_DirBar);
    place->addWidget(m_CloseBar);
    auto* name = new QGridLayout;
    name->addWidget(m_Label1, 0, 0);
    name->addWidget(m_cmbFileName, 0, 1);
    name->addWidget(m_btnOK, 0, 2);
    name->addWidget(m_lblFilter, 1, 0);
    name->addWidget(m_cmbFilter, 1, 1);
    name->addWidget(m_btnCancel, 1, 2);
    name->setColumnStretch(1, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(place);
    rows->addWidget(m_FileView, 1);
    rows->addLayout(name);

    QWidget* order[] = {m_cmbDir,      m_DirBar,    m_CloseBar, m_FileView,
                        m_cmbFileName, m_cmbFilter, m_btnOK,    m_btnCancel};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmCATDialog::Connect() {
    connect(m_up, &QAction::triggered, this, &frmCATDialog::GoUp);
    connect(m_leave, &QAction::triggered, this, [this] { Finish(WentUp); });
    connect(m_cmbDir, &QComboBox::activated, this, &frmCATDialog::GoTo);
    connect(m_cmbFilter, &QComboBox::activated, this, [this] {
        TakeFilter();
        List();
    });
    connect(m_cmbFileName->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { m_fileName = text; });
    connect(m_FileView, &QTreeView::clicked, this, &frmCATDialog::CopyName);
    connect(m_FileView, &QTreeView::activated, this, &frmCATDialog::CopyName);
    connect(m_FileView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) { CopyName(selected.indexes().value(0)); });
    connect(m_FileView, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        CopyName(index);
        TakeName();
    });
    connect(m_btnOK, &QPushButton::clicked, this, &frmCATDialog::TakeName);
    connect(m_btnCancel, &QPushButton::clicked, this, &frmCATDialog::reject);
    auto* refresh = new QShortcut(Qt::Key_F5, this);
    connect(refresh, &QShortcut::activated, this, &frmCATDialog::Refresh);
}

void frmCATDialog::ShowOpen(const std::string& Catalog, QWidget* Owner) {
    if (Owner && Owner != parentWidget())
        setParent(Owner, windowFlags());
    Run(Catalog, false);
}

void frmCATDialog::ShowSave(const std::string& Catalog) {
    if (Title.isEmpty())
        Title = tr("Save As");
    Run(Catalog, true);
}

void frmCATDialog::SetTask(bool Save) {
    m_save = Save;
    m_btnOK->setText(Save ? tr("&Save") : tr("&Open"));
    m_lblFilter->setText(Save ? tr("Save as &type") : tr("Files of &type"));
}

void frmCATDialog::Run(const std::string& Catalog, bool Save) {
    m_catalog = Catalog;
    SetTask(Save);
    m_leave->setEnabled(CanGoUp);
    if (!Open()) {
        m_result = WentUp;
        FileName.clear();
        return;
    }
    setWindowTitle(Title + tr(" - ") + tr("Catalog ") + ToScreen(BaseName(Catalog, false)));
    FillFilters();
    Start();
    m_cmbFileName->setFocus();
    m_cmbFileName->lineEdit()->selectAll();
    exec();
}

bool frmCATDialog::Open() {
    if (NewCatalog || m_listing.Open(m_catalog))
        return true;
    Say(tr("Error opening file ") + ShownText(m_catalog) + QStringLiteral(":\n\n") +
            ToScreen(LornFDErrorText()),
        BoxIcon::Critical);
    return false;
}

void frmCATDialog::FillFilters() {
    m_filters = SplitFilter(Filter);
    m_cmbFilter->clear();
    for (const FilterEntry& filter : m_filters)
        m_cmbFilter->addItem(filter.Label);
    m_cmbFilter->setCurrentIndex(
        std::clamp(FilterIndex - 1, 0, std::max(0, m_cmbFilter->count() - 1)));
    TakeFilter();
}

/// Goes as far towards the entry as there are directories; the rest stands in the name box.
void frmCATDialog::Start() {
    const std::string entry = EntryFromTyped({}, FileName);
    m_extension = ExtensionOf(FileNameOf('\\' + entry));
    const std::string directory = m_listing.ExistingDirectory(entry.empty() ? InitDir : entry);
    const std::string rest = withoutDirectory(entry, directory);
    m_proposed = m_fileName = m_copied = ToScreen(rest);
    m_picked = {rest, false};
    m_cmbFileName->clear();
    for (const QByteArray& path : recentEntries())
        m_cmbFileName->addItem(ToScreen(path.toStdString()), path);
    Enter(directory);
    m_cmbFileName->setEditText(m_fileName);
    if (!m_fileName.isEmpty())
        PointAt(m_fileName);
}

void frmCATDialog::Finish(int Ending) {
    m_result = Ending;
    m_listing.Close();
    if (Ending != Chosen)
        FileName.clear();
    SaveWindowPos(*this, positionKey);
    QDialog::done(Ending);
}

void frmCATDialog::TakeFilter() {
    m_masks = masksOf(m_filters.value(m_cmbFilter->currentIndex()));
}

void frmCATDialog::List() {
    m_model->SetRows(m_listing.List(JoinPath(m_directory), m_masks));
    m_FileView->scrollToTop();
}

void frmCATDialog::ShowLevels() {
    static const QIcon directory = ToolIcon("dir");
    m_cmbDir->clear();
    m_cmbDir->addItem(directory, ToScreen(BaseName(m_catalog, false)));
    for (std::size_t i = 0; i < m_directory.size(); ++i)
        m_cmbDir->addItem(directory, QString(levelIndent * static_cast<qsizetype>(i + 1), u' ') +
                                         ToScreen(m_directory[i]));
    m_cmbDir->setCurrentIndex(m_cmbDir->count() - 1);
    m_up->setEnabled(!m_directory.empty());
}

void frmCATDialog::Enter(const std::string& Directory) {
    m_directory.clear();
    for (std::string rest = Directory; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\\'), rest.size());
        m_directory.push_back(rest.substr(0, end));
        rest.erase(0, end + 1);
    }
    ShowLevels();
    List();
    m_cmbFileName->setEditText(m_save ? m_fileName : QString());
}

void frmCATDialog::GoTo(int Level) {
    const auto level = static_cast<std::size_t>(Level);
    if (Level < 0 || level >= m_directory.size())
        return;
    const QString left = ToScreen(m_directory[level]);
    m_directory.resize(level);
    Enter(JoinPath(m_directory));
    PointAt(left);
}

/// Makes a row the current one, so that the arrow keys go on from there; the name box stays.
void frmCATDialog::PointAt(const QString& Name) {
    const QModelIndex row =
        m_model->match(m_model->index(0, 0), Qt::UserRole, Name, 1, Qt::MatchFixedString).value(0);
    m_FileView->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    m_FileView->scrollTo(row);
}

void frmCATDialog::Refresh() {
    const QString name = m_cmbFileName->currentText();
    const QString current = m_FileView->currentIndex().data(Qt::UserRole).toString();
    try {
        if (!Open())
            return Finish(WentUp);
    } catch (const KeshError& error) { // nobody catches it beyond the event loop
        Say(ToScreen(error.what()), BoxIcon::Critical);
        return Finish(WentUp);
    }
    Enter(m_listing.ExistingDirectory(JoinPath(m_directory)));
    m_cmbFileName->setEditText(name);
    if (!current.isEmpty())
        PointAt(current);
}

void frmCATDialog::CopyName(const QModelIndex& Index) {
    if (!Index.isValid())
        return;
    const CatalogListing::Row& row = m_model->At(Index);
    m_picked = row;
    m_copied = ToScreen(row.Name);
    if (!row.IsDirectory)
        m_fileName = m_copied;
    m_cmbFileName->setEditText(m_copied);
}

std::string frmCATDialog::TypedName() const {
    const QString text = m_cmbFileName->currentText();
    if (text == m_copied)
        return m_picked.Name;
    const int recent = m_cmbFileName->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return recent >= 0 ? m_cmbFileName->itemData(recent).toByteArray().toStdString()
                       : text.trimmed().toStdString();
}

/// A file and a directory may have one name: a row stands for what it shows.
bool frmCATDialog::IsPickedFile() const {
    return m_cmbFileName->currentText() == m_copied &&
           m_FileView->selectionModel()->hasSelection() && !m_picked.IsDirectory;
}

void frmCATDialog::TakeName() {
    const std::string name = TypedName();
    if (name.empty())
        return;
    const std::string entry = EntryFromTyped(JoinPath(m_directory), name);
    const std::string directory = m_listing.ExistingDirectory(entry);
    const std::string rest = withoutDirectory(entry, directory);
    if (IsPickedFile())
        AcceptFile(entry);
    else if (rest.empty())
        EnterTyped(directory);
    else if (rest.find('\\') == rest.npos && rest.find_first_of("*?") != rest.npos)
        ListMask(directory, rest);
    else
        AcceptFile(JoinPath({directory, rest}));
}

/// What was typed over the name to save to only to get on gives way to that name again.
void frmCATDialog::EnterTyped(const std::string& Directory) {
    if (m_fileName == m_cmbFileName->currentText())
        m_fileName = m_proposed;
    Enter(Directory);
}

void frmCATDialog::ListMask(const std::string& Directory, const std::string& Mask) {
    m_masks.assign(1, Mask);
    EnterTyped(Directory);
    m_cmbFileName->setEditText(ToScreen(Mask));
    m_cmbFileName->lineEdit()->selectAll();
}

void frmCATDialog::AcceptFile(std::string Entry) {
    const QString typed = m_cmbFileName->currentText();
    if (!m_save) {
        const auto found = m_listing.FindFile(Entry);
        if (!found)
            return Say(tr("File ") + typed + tr(" does not exist."), BoxIcon::Exclamation);
        Entry = *found;
    } else {
        Entry = WithDefaultExtension(Entry);
    }
    if (!lornfd::isSafeEntryName(Entry))
        return Say(tr("\"%1\" cannot be a name in a catalog.").arg(typed), BoxIcon::Exclamation);
    remember(Entry);
    FileName = BuildCatalogPath(Entry, m_catalog);
    FilterIndex = m_cmbFilter->currentIndex() + 1;
    Finish(Chosen);
}

std::string frmCATDialog::WithDefaultExtension(const std::string& Entry) const {
    if (BaseName(Entry, false).find('.') != Entry.npos)
        return Entry;
    const QStringList masks = m_filters.value(m_cmbFilter->currentIndex()).Masks;
    std::string extension = ExtensionOf(masks.value(0).toStdString());
    if (lornfd::equalNoCase(extension, "cat"))
        extension = m_extension;
    return extension.empty() || extension.find('*') != extension.npos ? Entry
                                                                      : Entry + '.' + extension;
}

void frmCATDialog::Say(const QString& Text, BoxIcon Icon) {
    ShowBox(this, Title, Text, Icon);
}

bool frmCATDialog::eventFilter(QObject* Object, QEvent* Event) {
    if (Object == m_FileView && Event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(Event)->key() == Qt::Key_Backspace) {
        GoUp();
        return true;
    }
    return QDialog::eventFilter(Object, Event);
}
