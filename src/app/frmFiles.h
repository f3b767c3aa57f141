// The loaded files window: what the merged view sees, with the real place of each file.
#pragma once

#include "app/FilesModel.h"
#include "app/ViewWalk.h"

#include <QtWidgets>

#include <optional>

class frmFiles : public QMainWindow {
    Q_OBJECT

public:
    explicit frmFiles(QWidget* Owner = nullptr);

    /// Lists everything and shows the window; a modal one returns when it is closed.
    void ShowFiles(bool Modal = false);
    /// Lists anew, with the filter that stands in its box: the view was built again.
    void Refresh();

Q_SIGNALS:
    void OpenRequested(const std::string& Name); ///< a name of the view, without "vfs://"
    void Closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildControls();
    void BuildActions();
    void FillFiles(const QString& Filter);
    void ReadSlice(int Milliseconds);
    void Copy();
    void Open();
    void UpdateActions();

    FilesModel m_model;
    QTreeView* m_view = nullptr;
    QLineEdit* m_filter = nullptr;
    QLineEdit* m_activeMod = nullptr;
    QLabel* m_count = nullptr;
    QAction* m_open = nullptr;
    QAction* m_copy = nullptr;
    std::optional<ViewWalk> m_walk; ///< while it goes on
    QBasicTimer m_timer;
};
