#include "app/frmMain.h"

#include "app/IconView.h"
#include "app/LoadKeshData.h"
#include "app/OfferRecovery.h"
#include "app/Requests.h"
#include "app/frmFiles.h"
#include "app/frmSettings.h"
#include "core/clsSettings.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "keshobjects/keshobjects.h"
#include "txteditor/Navigator.h"
#include "txteditor/frmTXTEditor.h"
#include "txteditor/panels/AllPanels.h"
#include "ui/CommonBoxes.h"
#include "ui/WindowPos.h"
#include "ui/frmAbout.h"

namespace {

constexpr auto settingsKey = "main";
constexpr int defaultWidth = 375;
constexpr int defaultHeight = 143;
constexpr int firstColumns = 4; ///< that show at first, however large the font
constexpr int firstRows = 2;

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

frmMain::frmMain() : m_navigator(new Navigator([this] { return NewEditor(); }, this)) {
    setObjectName(QStringLiteral("frmMain"));
    BuildView();
    BuildMenus();
    BuildPopup();
    HelpOnF1(this, "launcher.html");
    const QSize cell = m_view->sizeHintForIndex(m_items.index(0, 0));
    LoadWindowPos(*this, settingsKey,
                  std::max(defaultWidth, (2 * firstColumns + 1) * cell.width() / 2),
                  std::max(defaultHeight, menuBar()->sizeHint().height() +
                                              (4 * firstRows + 1) * cell.height() / 4));
    m_items.LoadIcons();
}

void frmMain::BuildView() {
    m_view = new IconView(this);
    m_view->setObjectName(QStringLiteral("View"));
    m_view->setAccessibleName(tr("Tools"));
    m_view->setModel(&m_items);
    m_view->setCurrentIndex(m_items.index(0, 0));
    connect(m_view, &IconView::Activated, this, &frmMain::ActivateIcon);
    setCentralWidget(m_view);
}

void frmMain::BuildMenus() {
    const MenuAction actions[] = {
        {"mnuFile", QT_TR_NOOP("&File"), "mnuExit", QT_TR_NOOP("E&xit"), "Ctrl+Q", &frmMain::Exit},
        {"mnuSettings", QT_TR_NOOP("&Settings"), "mnuConfig", QT_TR_NOOP("&Configuration"), "",
         &frmMain::ShowConfiguration},
        {"mnuSettings", "", "mnuSep", "", "", nullptr},
        {"mnuSettings", "", "mnuShowVFS", QT_TR_NOOP("Show &loaded files"), "Ctrl+L",
         &frmMain::ShowVFS},
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

void frmMain::BuildPopup() {
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("mnuPopup"));
    QMenu* icons = m_popup->addMenu(tr("&Icons"));
    icons->menuAction()->setObjectName(QStringLiteral("mnuPopIcons"));
    QAction* arrange = icons->addAction(tr("&Auto Arrange"));
    arrange->setObjectName(QStringLiteral("mnuPopAutoArrange"));
    arrange->setCheckable(true);
    arrange->setChecked(Settings->AutoArrangeIcons());
    connect(arrange, &QAction::triggered, this, &frmMain::SetAutoArrange);
    QAction* rename = m_popup->addAction(tr("&Rename"));
    rename->setObjectName(QStringLiteral("mnuPopRename"));
    rename->setShortcut(QKeySequence(Qt::Key_F2)); // shown; the list itself knows the key
    connect(rename, &QAction::triggered, this, [this] { m_view->edit(m_view->Selected()); });
    connect(m_popup, &QMenu::aboutToShow, this, [this, arrange, rename] {
        arrange->setChecked(Settings->AutoArrangeIcons());
        rename->setEnabled(m_view->Selected().isValid());
    });
}

void frmMain::SetAutoArrange(bool On) {
    Settings->SetAutoArrangeIcons(On);
    m_view->SetAutoArrange(On);
}

void frmMain::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint icon = m_view->visualRect(m_view->Selected()).center();
    m_popup->popup(byKey ? m_view->viewport()->mapToGlobal(icon) : event->globalPos());
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !m_view->Cell().isValid()) {
        m_view->MeasureCell();
        m_view->SetAutoArrange(Settings->AutoArrangeIcons());
    }
    return QMainWindow::event(event);
}

void frmMain::MyShow(const std::string& CommandLine) {
    setWindowTitle(ProgramName() +
                   QStringLiteral(" (%1)").arg(QString::fromStdString(ProgramVersion())));
    ProcessCommandLine(CommandLine);
    if (Settings->DataRoot().empty()) {
        const QString question =
            tr("Kesh Editor was unable to find Kesh path in your registry. Do you "
               "want to set it now manually?");
        if (Ui().ShowMessage(this, {ProgramName(), question, BoxIcon::Question,
                                    BoxButtons::YesNo}) == Answer::Yes)
            ShowConfiguration();
    }
    show();
}

void frmMain::ActivateIcon(const QModelIndex& Index) {
    static constexpr std::array actions = {
        IconAction{"te", &frmMain::OpenEmptyTFile},
        IconAction{"lorn", &frmMain::StartGame},
        IconAction{"settings", &frmMain::ShowConfiguration},
        IconAction{"help", &frmMain::Help},
        IconAction{"about", &frmMain::About},
    };
    const QString key = LauncherItems::KeyOf(Index);
    const auto* const action = std::find_if(actions.begin(), actions.end(), [&](const auto& one) {
        return key == QLatin1String(one.Key);
    });
    if (action != actions.end())
        (this->*action->Run)();
    else
        StartProgram(this, LauncherItems::ProgramOf(key));
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
            this, ProgramName(),
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
        ShowBox(this, ProgramName(), tr("The Galaxy Editor is not available in this version."),
                BoxIcon::Information);
        return;
    case FileKind::Xml:
        ShowBox(this, ProgramName(),
                tr("The Text Resource Editor is not available in this version."),
                BoxIcon::Information);
        return;
    case FileKind::Unknown:
        ShowBox(this, ProgramName(),
                tr("Don't know how to open file ") + u'"' + ShownText(File) + u'"',
                BoxIcon::Exclamation);
    }
}

frmTXTEditor* frmMain::NewEditor() {
    auto* editor = new frmTXTEditor(AllPanels());
    editor->setAttribute(Qt::WA_DeleteOnClose);
    m_editors.removeAll(nullptr);
    m_editors.append(editor);
    m_navigator->Add(editor);
    editor->MyShow();
    editor->setWindowState(Qt::WindowNoState);
    return editor;
}

void frmMain::OpenTFile(const std::string& File) {
    frmTXTEditor* editor = NewEditor();
    if (!File.empty())
        editor->OpenFile(FromPlatform(File));
}

void frmMain::OfferRecovery() {
    ::OfferRecovery(this, [this] { return NewEditor(); });
}

void frmMain::StartGame() {
    RunGame(this);
}

void frmMain::ShowConfiguration() {
    frmSettings window(this);
    window.ShowSettings();
    if (window.ModalResult == modal::None)
        return;
    for (const char* key : {"lorn", "custom", "3Dviwer"})
        m_view->PlaceIcon(m_items.Update(QString::fromLatin1(key)));
    RefreshFiles();
}

void frmMain::ShowVFS() {
    if (!m_files) {
        m_files = new frmFiles(this);
        m_files->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_files, &frmFiles::OpenRequested, this,
                [this](const std::string& name) { OpenByType("vfs://" + name, {}); });
        m_files->ShowFiles();
    }
    m_files->raise();
    m_files->activateWindow();
}

void frmMain::Reload() {
    ReloadKeshData(this);
    RefreshFiles();
}

void frmMain::RefreshFiles() {
    if (m_files)
        m_files->Refresh();
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
    if (m_files)
        m_files->close();
    event->accept();
}
