#include "app/frmMain.h"

#include "app/LoadKeshData.h"
#include "app/Requests.h"
#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshobjects.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/CommonBoxes.h"
#include "ui/WindowPos.h"
#include "ui/frmAbout.h"
#include "ui/frmWait.h"

namespace {

constexpr auto settingsKey = "main";
constexpr int defaultWidth = 375;
constexpr int defaultHeight = 143;
constexpr int iconSide = 48;

QString programTitle() {
    return QString::fromStdString(ProgramTitle());
}

} // namespace

struct frmMain::IconAction {
    const char* Key;
    void (frmMain::*Run)();
};

struct frmMain::MenuAction {
    const char* Menu; ///< the menu's name; its title stands in the first entry of each menu
    const char* MenuText;
    const char* Name;
    const char* Text; ///< empty for a separator
    const char* Keys;
    void (frmMain::*Run)(); ///< none where the tool does not exist yet
};

frmMain::frmMain() {
    setObjectName(QStringLiteral("frmMain"));
    BuildView();
    BuildMenus();
    HelpOnF1(this, "launcher.html");
    LoadWindowPos(*this, settingsKey, defaultWidth, defaultHeight);
    m_items.LoadIcons();
}

void frmMain::BuildView() {
    m_view = new QListView(this);
    m_view->setObjectName(QStringLiteral("View"));
    m_view->setAccessibleName(tr("Tools"));
    m_view->setViewMode(QListView::IconMode);
    m_view->setMovement(QListView::Static);
    m_view->setResizeMode(QListView::Adjust);
    m_view->setIconSize({iconSide, iconSide});
    m_view->setGridSize(
        {14 * fontMetrics().averageCharWidth(), iconSide + 3 * fontMetrics().height()});
    m_view->setWordWrap(true);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_view->setModel(&m_items);
    m_view->setCurrentIndex(m_items.index(0, 0));
    m_view->installEventFilter(this);
    connect(m_view, &QListView::doubleClicked, this, &frmMain::ActivateIcon);
    setCentralWidget(m_view);
}

void frmMain::BuildMenus() {
    const MenuAction actions[] = {
        {"mnuFile", QT_TR_NOOP("&File"), "mnuExit", QT_TR_NOOP("E&xit"), "Ctrl+Q", &frmMain::Exit},
        {"mnuSettings", QT_TR_NOOP("&Settings"), "mnuConfig", QT_TR_NOOP("&Configuration"), "",
         &frmMain::ShowConfiguration},
        {"mnuSettings", "", "mnuSep", "", "", nullptr},
        {"mnuSettings", "", "mnuShowVFS", QT_TR_NOOP("Show &loaded files"), "", nullptr},
        {"mnuSettings", "", "mnuReload", QT_TR_NOOP("&Reload files"), "F5", &frmMain::Reload},
        {"mnuHelp", QT_TR_NOOP("&Help"), "mnuHelpContent", QT_TR_NOOP("&Content"), "",
         &frmMain::Help},
        {"mnuHelp", "", "mnuAbout", QT_TR_NOOP("&About"), "", &frmMain::About},
    };
    QMenu* menu = nullptr;
    for (const MenuAction& entry : actions) {
        if (!menu || menu->objectName() != QLatin1String(entry.Menu)) {
            menu = menuBar()->addMenu(tr(entry.MenuText));
            menu->setObjectName(QString::fromLatin1(entry.Menu));
        }
        QAction* action =
            *entry.Text == '\0' ? menu->addSeparator() : menu->addAction(tr(entry.Text));
        action->setObjectName(QString::fromLatin1(entry.Name));
        action->setShortcut(QKeySequence(QString::fromLatin1(entry.Keys)));
        action->setEnabled(entry.Run != nullptr);
        if (entry.Run)
            connect(action, &QAction::triggered, this, entry.Run);
    }
}

void frmMain::MyShow(const std::string& CommandLine) {
    setWindowTitle(programTitle() +
                   QStringLiteral(" (%1)").arg(QString::fromStdString(ProgramVersion())));
    ProcessCommandLine(CommandLine);
    if (Settings->DataRoot().empty()) {
        const QString question =
            tr("Kesh Editor was unable to find Kesh path in your registry. Do you "
               "want to set it now manually?");
        if (Ui().ShowMessage(this, {programTitle(), question, BoxIcon::Question,
                                    BoxButtons::YesNo}) == Answer::Yes)
            ShowConfiguration();
    }
    show();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const QModelIndex item = m_view->currentIndex();
        const bool renaming = m_view->isPersistentEditorOpen(item); // passes its Enter on
        if (!renaming && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            ActivateIcon(item);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::ActivateIcon(const QModelIndex& Index) {
    static constexpr std::array actions = {
        IconAction{"te", &frmMain::OpenEmptyTFile},
        IconAction{"settings", &frmMain::ShowConfiguration},
        IconAction{"help", &frmMain::Help},
        IconAction{"about", &frmMain::About},
    };
    const QString key = LauncherItems::KeyOf(Index);
    for (const IconAction& action : actions)
        if (key == QLatin1String(action.Key))
            (this->*action.Run)();
}

bool frmMain::ProcessRequest(const std::string& Request) {
    showNormal();
    raise();
    activateWindow();
    const auto at = Request.find(RequestPrefix);
    if (at == std::string::npos)
        return false;
    ProcessCommandLine(Request.substr(at + RequestPrefix.size()));
    return true;
}

void frmMain::ProcessCommandLine(const std::string& CommandLine) {
    const auto arguments = Kesh_CommandLineToArgV(CommandLine);
    switch (arguments.size()) {
    case 0:
        return;
    case 1:
        OpenByType(arguments[0], {});
        return;
    case 2:
        OpenByType(arguments[1], arguments[0]);
        return;
    default:
        ShowBox(
            this, programTitle(),
            tr("Invalid command line parameters.\n\nUsage: [file type] <file name>\nFile type:\n"
               "-TFile - TFiles\n-Map - galaxy map\n-xml - xml text file"),
            BoxIcon::Exclamation);
    }
}

void frmMain::OpenByType(const std::string& File, const std::string& Type) {
    switch (FileKindOf(File, Type)) {
    case FileKind::TFile:
        OpenTFile(File);
        return;
    case FileKind::GalaxyMap:
        ShowBox(this, programTitle(), tr("The Galaxy Editor is not available in this version."),
                BoxIcon::Information);
        return;
    case FileKind::Xml:
        ShowBox(this, programTitle(),
                tr("The Text Resource Editor is not available in this version."),
                BoxIcon::Information);
        return;
    case FileKind::Unknown:
        ShowBox(this, programTitle(),
                tr("Don't know how to open file ") + u'"' +
                    QString::fromStdString(ShownPath(File)) + u'"',
                BoxIcon::Exclamation);
    }
}

void frmMain::OpenTFile(const std::string& File) {
    auto* editor = new frmTXTEditor;
    editor->setAttribute(Qt::WA_DeleteOnClose);
    m_editors.removeAll(nullptr);
    m_editors.append(editor);
    editor->MyShow();
    editor->setWindowState(Qt::WindowNoState);
    if (!File.empty())
        editor->OpenFile(FromPlatform(File));
}

void frmMain::ShowConfiguration() {
    const auto directory =
        Ui().PickDirectory(this, tr("Select directory containing game data files."),
                           QString::fromStdString(ShownPath(Settings->DataRoot())));
    if (!directory)
        return;
    Settings->SetDataRoot(FromPlatform(directory->toStdString()));
    Reload();
}

void frmMain::Reload() {
    try {
        LoadKeshData(this);
    } catch (const std::exception& failure) {
        CloseWait(this);
        ShowBox(this, programTitle(), tr("Error reloading files: ") + ToScreen(failure.what()),
                BoxIcon::Critical);
    }
}

void frmMain::Help() {
    ShowHelp(this, {});
}

void frmMain::About() {
    frmAbout(this).exec();
}

bool frmMain::CloseEditors() {
    const auto isOpen = [](const QPointer<frmTXTEditor>& editor) {
        return editor && editor->isVisible();
    };
    // Found anew each time: a request may open one more while another asks.
    while (true) {
        const auto at = std::find_if(m_editors.cbegin(), m_editors.cend(), isOpen);
        if (at == m_editors.cend())
            return true;
        frmTXTEditor* const editor = *at;
        if (!editor->close())
            return false;
    }
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!CloseEditors()) {
        event->ignore();
        return;
    }
    if (IsNormal(*this))
        SaveWindowPos(*this, settingsKey);
    m_items.SaveIcons();
    event->accept();
}
