// The launcher: an icon for each tool, and the place where every request to open a file arrives.
#pragma once

#include "app/LauncherItems.h"

#include <string>

class frmTXTEditor;

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain();

    /// Carries out the command line, asks for the data directory if there is none, shows the
    /// window.
    void MyShow(const std::string& CommandLine);
    /// A text from another instance; true if it was a request. Raises the launcher.
    bool ProcessRequest(const std::string& Request);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct IconAction;
    struct MenuAction;

    void BuildView();
    void BuildMenus();
    void ActivateIcon(const QModelIndex& Index);

    void ProcessCommandLine(const std::string& CommandLine);
    void OpenByType(const std::string& File, const std::string& Type);
    void OpenTFile(const std::string& File);
    void OpenEmptyTFile() { OpenTFile({}); }
    void ShowConfiguration();
    void Reload();
    void Help();
    void About();
    void Exit() { close(); }
    [[nodiscard]] bool CloseEditors();

    LauncherItems m_items;
    QListView* m_view = nullptr;
    QList<QPointer<frmTXTEditor>> m_editors;
};
