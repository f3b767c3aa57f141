// The window in which one T file is opened, its records picked from a list and changed.
#pragma once

#include "txteditor/ObjectEditor.h"
#include "txteditor/RecordUndo.h"
#include "txteditor/clsTFile.h"
#include "ui/TextCodec.h"
#include "ui/UserInterface.h"

#include <array>
#include <string>
#include <vector>

class RecordDataModel;
class RecordListModel;
class WatchModel;

/// Which text the record list shows.
enum class NameMode { Name, Race, ID };

class frmTXTEditor : public QMainWindow {
    Q_OBJECT

public:
    using Panels = std::vector<ObjectEditor*>;

    /// Takes over the panels; the first that serves a file's type shows its records.
    explicit frmTXTEditor(const Panels& Editors = {}, QWidget* Owner = nullptr);
    ~frmTXTEditor() override;

    /// Shows the window with its settings.
    void MyShow();
    /// Opens a plain, catalog or "vfs://" path; asks for one if it is empty, for one of the view if
    /// it is "vfs://" alone. Asks about unsaved changes before.
    void OpenFile(std::string Name);
    /// Asks where to, and saves there; false if nothing was saved.
    bool SaveFile();

    [[nodiscard]] const clsTxtParser& Parser() const noexcept { return m_file.Parser; }
    [[nodiscard]] RecordPtr SelectedObject() const { return m_selected; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct ActionEntry;
    static const std::vector<ActionEntry>& ActionTable();

    // Setting up
    void BuildControls();
    QWidget* BuildListSide();
    QWidget* BuildObjectSide();
    QWidget* BuildRawPage();
    QWidget* BuildWatch();
    QWidget* BuildPanelPage();
    void BuildStatusBar();
    void BuildActions();
    void BuildMenus();
    void BuildToolbar();
    void ConnectControls();
    void LoadSettings();
    void SaveSettings();

    // Actions
    [[nodiscard]] QAction* Action(const char* Id) const;
    void UpdateActions();
    [[nodiscard]] bool Always() const { return true; }
    [[nodiscard]] bool HasFile() const { return !m_file.Parser.FileName.empty(); }
    [[nodiscard]] bool HasPanel() const { return m_activeEditor != nullptr; }
    [[nodiscard]] bool HasField() const;
    [[nodiscard]] bool CanUndo() const;
    [[nodiscard]] bool CanRedo() const;
    void OpenDropped(const QString& Path);
    void OnOpen() { OpenFile({}); }
    void OnOpenFromView();
    void OnSave() { SaveFile(); }
    void OnExport();
    void OnClose() { close(); }
    void OnUndo();
    void OnRedo();
    void OnEditField();
    void OnKesh();
    void OnDesc();
    void OnHelp();
    void OnAbout();

    // The file
    [[nodiscard]] Answer AskAboutChanges();
    [[nodiscard]] bool MayClose();
    void LoadFile(const std::string& Name);
    void ReportOpenFailure(const std::string& Name, const clsTFile::Result& Failure);
    void ShowFile();
    [[nodiscard]] std::string SaveStart() const;
    [[nodiscard]] bool MayReplace(const std::string& Name);
    [[nodiscard]] bool MayLoseData(); ///< asks where a save drops something or cannot be read back
    [[nodiscard]] bool MakeCatalog(const std::string& Name);
    void LoadRecent();
    void AddRecent(const std::string& Name);
    void RemoveRecent(const std::string& Name);
    void UpdateRecentActions();
    [[nodiscard]] TextEncoding FileEncoding() const;
    void Say(const QString& Text, BoxIcon Icon);

    // Records
    void SelectFileType(std::int32_t OType);
    void PickPanel(std::int32_t OType);
    void ApplyPanelInfo(std::int32_t Info);
    void UpdateCaption();
    [[nodiscard]] QString TypeText() const;
    [[nodiscard]] NameMode PickedMode() const; ///< by the radio buttons
    [[nodiscard]] NameMode Mode() const;       ///< without a panel there are only IDs
    [[nodiscard]] QString RowText(const RecordPtr& Record) const;
    void UpdateNameColumn();
    [[nodiscard]] std::vector<RecordPtr> ListedRecords();
    void FillList();
    void SelectRecord(const RecordPtr& Record);
    void ShowObject(const RecordPtr& Record);
    void UpdateObjectViews();
    void UpdateWatch();
    void TakeChanges();
    void OnObjectChanged(const RecordPtr& Record);
    void OnRecordReset(const RecordPtr& Record);

    clsTFile m_file;
    RecordUndo m_undo{m_file.Parser};
    Panels m_editors;
    ObjectEditor* m_activeEditor = nullptr;
    static constexpr std::int32_t noType = -1; ///< served by no panel
    std::int32_t m_objectType = noType;
    RecordPtr m_selected;
    std::vector<std::string> m_recent;
    std::vector<QAction*> m_actions; ///< in the order of ActionTable
    QList<QAction*> m_recentActions;

    RecordListModel* m_list;
    RecordDataModel* m_data;
    WatchModel* m_watch;
    QTreeView* m_objectView = nullptr;
    QTreeView* m_dataView = nullptr;
    QListView* m_watchList = nullptr;
    QLineEdit* m_watchFrom = nullptr;
    QLineEdit* m_watchTo = nullptr;
    QCheckBox* m_sort = nullptr;
    std::array<QRadioButton*, 3> m_names{};
    QLabel* m_objectName = nullptr;
    QTabWidget* m_tab = nullptr;
    QSplitter* m_splitter = nullptr;
    QLabel* m_barObject = nullptr;
    QLabel* m_barCount = nullptr;
    QMenu* m_openMenu = nullptr;
    QMenu* m_recentMenu = nullptr;
};
