// The launcher: an icon for each tool, and the place where every request to open a file arrives.
#pragma once

#include "app/LauncherItems.h"

#include <string>

class IconView;
class Navigator;
class frmFiles;
class frmTXTEditor;

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain();

    /// Carries out the command line, asks for the data directory if there is none, shows the
    /// window.
    void MyShow(const std::string& CommandLine);
    /// Asks about unsaved work that a crash left behind.
    void OfferRecovery();
    /// A text from another instance; true if it was a request. Raises the launcher.
    bool ProcessRequest(const std::string& Request);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct IconAction;
    struct MenuAction;

    void BuildView();
    void BuildMenus();
    void BuildPopup();
    void SetAutoArrange(bool On);
    void ActivateIcon(const QModelIndex& Index);

    void ProcessCommandLine(const std::string& CommandLine);
    void OpenByType(const std::string& File, const std::string& Type);
    frmTXTEditor* NewEditor();
    void OpenTFile(const std::string& File);
    void OpenEmptyTFile() { OpenTFile({}); }
    void StartGame();
    void ShowConfiguration();
    void ShowVFS();
    void Reload();
    void RefreshFiles();
    void Help();
    void About();
    void Exit() { close(); }
    [[nodiscard]] bool CloseEditors();

    LauncherItems m_items;
    IconView* m_view = nullptr;
    QMenu* m_popup = nullptr;
    QPointer<frmFiles> m_files;
    Navigator* m_navigator;
    QList<QPointer<frmTXTEditor>> m_editors;
};
