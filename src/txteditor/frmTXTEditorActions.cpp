// Actions, menus and the toolbar of the TXT Editor.
#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/CommonBoxes.h"
#include "ui/Icons.h"
#include "ui/frmAbout.h"

struct frmTXTEditor::ActionEntry {
    const char* Id;
    const char* Text;
    const char* Tip;
    const char* Keys; ///< shortcuts, parted by ";"
    bool (frmTXTEditor::*Enabled)() const;
    void (frmTXTEditor::*Run)();
};

namespace {

constexpr int rawTab = 0;
constexpr const char* separator = "";
constexpr qsizetype shownRecent = 20;

struct MenuEntry {
    const char* Name;
    const char* Text;
    std::vector<const char*> Actions;
};

const std::vector<MenuEntry>& menuTable() {
    static const std::vector<MenuEntry> menus = {
        {"mnuFile",
         QT_TRANSLATE_NOOP("frmTXTEditor", "&File"),
         {"open", "vfs://", "mnuRecent", separator, "save", "export", separator, "close"}},
        {"mnuEdit",
         QT_TRANSLATE_NOOP("frmTXTEditor", "&Edit"),
         {"undo", "redo", separator, "mnuNew", "mnuCopy", "mnuCut", "mnuPaste", "mnuDel", separator,
          "find", "findNext", "filter", "back", separator, "edit", "copyFields"}},
        {"mnuTools", QT_TRANSLATE_NOOP("frmTXTEditor", "&Tools"), {"kesh", "desc"}},
        {"mnuHelp", QT_TRANSLATE_NOOP("frmTXTEditor", "&Help"), {"help", "about"}},
    };
    return menus;
}

constexpr std::array popupActions = {"mnuNew", "mnuCopy", "mnuCut", "mnuPaste", "mnuDel"};

constexpr std::array toolbarActions = {"open", "save",    separator, "kesh",
                                       "desc", separator, "about"};

/// A text in which "&" marks no key.
QString menuText(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

const std::vector<frmTXTEditor::ActionEntry>& frmTXTEditor::ActionTable() {
    using Window = frmTXTEditor;
    static const std::vector<ActionEntry> actions = {
        {"open", QT_TR_NOOP("&Open..."), QT_TR_NOOP("Open a T file"), "Ctrl+O", &Window::Always,
         &Window::OnOpen},
        {"vfs://", QT_TR_NOOP("Open from &VFS"),
         QT_TR_NOOP("Open a T file of the merged game data"), "Ctrl+Shift+O", &Window::Always,
         &Window::OnOpenFromView},
        {"save", QT_TR_NOOP("&Save"), QT_TR_NOOP("Save the file"), "Ctrl+S", &Window::HasFile,
         &Window::OnSave},
        {"export", QT_TR_NOOP("&Export"), QT_TR_NOOP("Export the objects as text"), "",
         &Window::HasPanel, &Window::OnExport},
        {"close", QT_TR_NOOP("&Close"), QT_TR_NOOP("Close this window"), "Ctrl+W", &Window::Always,
         &Window::OnClose},
        {"undo", QT_TR_NOOP("&Undo"), QT_TR_NOOP("Take back the last change"), "Ctrl+Z",
         &Window::CanUndo, &Window::OnUndo},
        {"redo", QT_TR_NOOP("&Redo"), QT_TR_NOOP("Make the change again"), "Ctrl+Shift+Z; Ctrl+Y",
         &Window::CanRedo, &Window::OnRedo},
        {"mnuNew", QT_TR_NOOP("&Add..."), QT_TR_NOOP("Add a new object"), "Ins", &Window::HasFile,
         &Window::OnNew},
        {"mnuCopy", QT_TR_NOOP("&Copy"), QT_TR_NOOP("Copy the selected objects"), "Ctrl+C",
         &Window::HasFile, &Window::OnCopy},
        {"mnuCut", QT_TR_NOOP("Cu&t"),
         QT_TR_NOOP("Copy the selected objects, and delete them where they are pasted"), "Ctrl+X",
         &Window::HasFile, &Window::OnCut},
        {"mnuPaste", QT_TR_NOOP("&Paste..."), QT_TR_NOOP("Add the objects that were copied or cut"),
         "Ctrl+V", &Window::CanPaste, &Window::OnPaste},
        {"mnuDel", QT_TR_NOOP("&Delete..."), QT_TR_NOOP("Delete the selected objects"), "Del",
         &Window::HasFile, &Window::OnDelete},
        {"find", QT_TR_NOOP("&Find..."), QT_TR_NOOP("Find a text in the list"), "Ctrl+F",
         &Window::Always, &Window::OnFind},
        {"findNext", QT_TR_NOOP("Find &next"), QT_TR_NOOP("Find the same text again"), "F3",
         &Window::HasFile, &Window::OnFindNext},
        {"filter", QT_TR_NOOP("Filter the &list"), QT_TR_NOOP("Go to the filter of the list"),
         "Ctrl+L", &Window::Always, &Window::OnFilter},
        {"back", QT_TR_NOOP("&Back"), QT_TR_NOOP("Return to where \"Go to\" was chosen"),
         "Alt+Left", &Window::CanGoBack, &Window::OnBack},
        {"edit", QT_TR_NOOP("Edit &value..."), QT_TR_NOOP("Change the selected field"), "F2",
         &Window::ShowsField, &Window::OnEditField},
        {"copyFields", QT_TR_NOOP("C&opy values"), QT_TR_NOOP("Copy the selected fields as text"),
         "Ctrl+C", &Window::ShowsField, &Window::OnCopyFields},
        {"kesh", QT_TR_NOOP("Run the &game"), QT_TR_NOOP("Run the game"), "", &Window::Always,
         &Window::OnKesh},
        {"desc", QT_TR_NOOP("&Text resources"), QT_TR_NOOP("Show the Text Resource Editor"), "",
         &Window::Always, &Window::OnDesc},
        {"help", QT_TR_NOOP("&Content"), QT_TR_NOOP("Show the help"), "F1", &Window::Always,
         &Window::OnHelp},
        {"about", QT_TR_NOOP("&About"), QT_TR_NOOP("About this program"), "", &Window::Always,
         &Window::OnAbout},
    };
    return actions;
}

void frmTXTEditor::BuildActions() {
    for (const ActionEntry& entry : ActionTable()) {
        auto* action = new QAction(tr(entry.Text), this);
        action->setObjectName(QString::fromLatin1(entry.Id));
        action->setToolTip(tr(entry.Tip));
        if (*entry.Keys != '\0')
            action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(entry.Keys)));
        connect(action, &QAction::triggered, this, [this, run = entry.Run] {
            if (FinishEntry())
                (this->*run)();
        });
        m_actions.push_back(action);
    }
}

QAction* frmTXTEditor::Action(const char* Id) const {
    const auto& table = ActionTable();
    for (std::size_t i = 0; i < table.size(); ++i)
        if (std::string_view(table[i].Id) == Id)
            return m_actions[i];
    return nullptr;
}

void frmTXTEditor::BuildMenus() {
    m_recentMenu = new QMenu(tr("&Recent files"), this);
    m_recentMenu->setObjectName(QStringLiteral("mnuRecent"));
    for (const MenuEntry& entry : menuTable()) {
        QMenu* menu = menuBar()->addMenu(tr(entry.Text));
        menu->setObjectName(QString::fromLatin1(entry.Name));
        for (const char* id : entry.Actions) {
            if (QAction* action = Action(id))
                menu->addAction(action);
            else if (*id == '\0')
                menu->addSeparator();
            else
                menu->addMenu(m_recentMenu);
        }
    }
}

void frmTXTEditor::BuildToolbar() {
    QToolBar* bar = addToolBar(tr("Main toolbar"));
    bar->setObjectName(QStringLiteral("MainToolbar"));
    bar->setMovable(false);
    for (const char* id : toolbarActions) {
        QAction* action = Action(id);
        if (!action) {
            bar->addSeparator();
            continue;
        }
        action->setIcon(ToolIcon(id));
        bar->addAction(action);
    }
    Action("kesh")->setToolTip(ShownText(Settings->KeshEXEPath()));

    const auto dropDown = [&](const char* id, QMenu* menu) {
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(Action(id)));
        button->setMenu(menu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
    };
    m_openMenu = new QMenu(this);
    m_openMenu->setObjectName(QStringLiteral("mnuOpen"));
    dropDown("open", m_openMenu);
    auto* saveMenu = new QMenu(this);
    saveMenu->setObjectName(QStringLiteral("mnuSave"));
    saveMenu->addAction(Action("save"));
    saveMenu->addAction(Action("export"));
    dropDown("save", saveMenu);
}

/// What the list's keys mean belongs to the list: elsewhere they mean something else.
void frmTXTEditor::BuildPopup() {
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("mnuPopup"));
    const auto only = [this](QWidget* widget, const char* id) {
        QAction* action = Action(id);
        action->setShortcutContext(Qt::WidgetShortcut);
        widget->addAction(action);
        return action;
    };
    for (const char* id : popupActions)
        m_popup->addAction(only(m_objectView, id));
    only(m_dataView, "copyFields");
}

void frmTXTEditor::UpdateActions() {
    const auto& table = ActionTable();
    for (std::size_t i = 0; i < table.size(); ++i)
        m_actions[i]->setEnabled((this->*table[i].Enabled)());
    Action("undo")->setText(tr("&Undo %1").arg(menuText(m_undo.Stack().undoText())).trimmed());
    Action("redo")->setText(tr("&Redo %1").arg(menuText(m_undo.Stack().redoText())).trimmed());
}

void frmTXTEditor::UpdateRecentActions() {
    qDeleteAll(m_recentActions);
    m_recentActions.clear();
    for (const std::string& name : m_recent.Names()) {
        if (m_recentActions.size() == shownRecent)
            break;
        const QString shown = menuText(ShownText(name));
        auto* action = new QAction(tr("%1 - %2").arg(m_recentActions.size() + 1).arg(shown), this);
        action->setObjectName(QString::fromStdString(name));
        connect(
            action, &QAction::triggered, this, [this, name] { OpenFile(name); },
            Qt::QueuedConnection); // opening rebuilds these actions
        m_recentActions.append(action);
    }
    m_openMenu->clear();
    m_openMenu->addAction(Action("vfs://"));
    if (!m_recentActions.isEmpty())
        m_openMenu->addSeparator();
    m_openMenu->addActions(m_recentActions);
    m_recentMenu->addActions(m_recentActions);
    m_recentMenu->setEnabled(!m_recentActions.isEmpty());
}

bool frmTXTEditor::HasField() const {
    return m_selected && m_dataView->currentIndex().isValid();
}

bool frmTXTEditor::ShowsField() const {
    return HasField() && m_tab->currentIndex() == rawTab;
}

bool frmTXTEditor::CanUndo() const {
    return m_undo.Stack().canUndo();
}

bool frmTXTEditor::CanRedo() const {
    return m_undo.Stack().canRedo();
}

void frmTXTEditor::SetCanGoBack(bool Can) {
    m_canGoBack = Can;
    UpdateActions();
}

void frmTXTEditor::OnCopyFields() {
    QModelIndexList rows = m_dataView->selectionModel()->selectedRows(1);
    std::sort(rows.begin(), rows.end());
    QStringList values;
    for (const QModelIndex& row : rows)
        values.append(row.data().toString());
    QGuiApplication::clipboard()->setText(values.join(u'\n'));
}

void frmTXTEditor::OnOpenFromView() {
    OpenFile("vfs://");
}

void frmTXTEditor::OnExport() {
    QString trouble;
    try {
        m_activeEditor->KeshExportData(this);
    } catch (const std::exception& failure) {
        trouble = ToScreen(failure.what());
    }
    TakeChanges();
    if (!trouble.isEmpty())
        Say(trouble, BoxIcon::Exclamation);
}

void frmTXTEditor::OnUndo() {
    TakeChanges();
    m_undo.Stack().undo();
}

void frmTXTEditor::OnRedo() {
    TakeChanges();
    m_undo.Stack().redo();
}

void frmTXTEditor::OnKesh() {
    RunGame(this);
}

void frmTXTEditor::OnDesc() {
    Say(tr("The Text Resource Editor is not available in this version."), BoxIcon::Information);
}

void frmTXTEditor::OnHelp() {
    ShowHelp(this, "txteditor.html");
}

void frmTXTEditor::OnAbout() {
    frmAbout(this).exec();
}
