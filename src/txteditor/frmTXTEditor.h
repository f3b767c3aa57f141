// The window in which one T file is opened, its records picked from a list and changed.
#pragma once

#include "txteditor/ObjectEditor.h"
#include "txteditor/RecentFiles.h"
#include "txteditor/RecordClipboard.h"
#include "txteditor/RecordUndo.h"
#include "txteditor/RecoveryJournal.h"
#include "txteditor/clsTFile.h"
#include "ui/TextCodec.h"
#include "ui/UserInterface.h"

#include <array>
#include <functional>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

class RecordDataModel;
class RecordListModel;
class WatchModel;
class frmFind;

/// Where the windows keep their journals, in the program's form.
[[nodiscard]] std::string RecoveryDirectory();

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
    /// Removes a record, as another window's paste does to finish a cut. Failures are said in a
    /// box.
    void DeleteObj(const RecordPtr& Object) { DeleteObjects({Object}); }
    void DeleteObjects(const std::vector<RecordPtr>& Objects);
    /// Opens the file of a journal that a crash left, and brings its changes back; says what does
    /// not fit, and leaves the journal then.
    void Recover(LeftJournal Left);

    /// Selects their rows and shows the first; a filter that hides it is taken away.
    void SelectRecords(const std::vector<RecordPtr>& Records);
    void Tell(const QString& Text); ///< in the status bar
    /// What is being entered in the panel goes into its record; false if it is refused.
    [[nodiscard]] bool FinishEntry();
    void SetCanGoBack(bool Can); ///< whether "Back" leads anywhere

    // The find dialog's events
    void m_find_OnFindNext(bool WholeWords, bool ByID, QString& Text, QVariant& Tag, bool& Found);
    void m_find_OnClose();

    [[nodiscard]] const clsTxtParser& Parser() const noexcept { return m_file.Parser; }
    [[nodiscard]] RecordPtr SelectedObject() const { return m_selected; }

Q_SIGNALS:
    /// The record that is named where the user stands is to be shown.
    void GoToAsked(const RecordAddress& Address);
    void BackAsked(); ///< to where the last of these was asked

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct ActionEntry;
    static const std::vector<ActionEntry>& ActionTable();

    // Setting up
    void BuildControls();
    QWidget* BuildListSide();
    QWidget* BuildListOptions(QWidget* Side);
    void BuildObjectView(QWidget* Side);
    void BuildFilter(QWidget* Side);
    QWidget* BuildObjectSide();
    QWidget* BuildRawPage();
    QWidget* BuildWatch();
    QWidget* BuildPanelPage();
    void BuildStatusBar();
    void BuildActions();
    void BuildMenus();
    void BuildToolbar();
    void BuildPopup();
    void ConnectControls();
    void ConnectList();
    void ConnectUndo();
    void FollowDisk();
    void LoadSettings();
    void SaveSettings();
    [[nodiscard]] std::array<std::pair<const char*, QSplitter*>, 2> KeptSplitters() const;
    void KeepClassWidth();
    void GoToList();
    [[nodiscard]] bool OnKey(const QObject* Watched, int Key);

    // Actions
    [[nodiscard]] QAction* Action(const char* Id) const;
    void UpdateActions();
    [[nodiscard]] bool Always() const { return true; }
    [[nodiscard]] bool HasFile() const { return !m_file.Parser.FileName.empty(); }
    [[nodiscard]] bool HasPanel() const { return m_activeEditor != nullptr; }
    [[nodiscard]] bool HasField() const;
    [[nodiscard]] bool ShowsField() const;
    [[nodiscard]] bool CanPaste() const;
    [[nodiscard]] bool CanUndo() const;
    [[nodiscard]] bool CanRedo() const;
    [[nodiscard]] bool CanGoBack() const { return m_canGoBack; }
    [[nodiscard]] bool DropFile(QDropEvent* Drop);
    void ShowPopup(const QPoint& Place);
    [[nodiscard]] bool PopupWanted(QEvent* Event);
    void OpenDropped(const QString& Path);
    void OnOpen() { OpenFile({}); }
    void OnOpenFromView();
    void OnSave() { SaveFile(); }
    void OnExport();
    void OnClose() { close(); }
    void OnUndo();
    void OnRedo();
    void OnEditField();
    void OnCopyFields();
    void OnNew();
    void OnCopy() { Take(RecordClipboard::Mode::Copied); }
    void OnCut() { Take(RecordClipboard::Mode::Cut); }
    void OnPaste();
    void OnDelete();
    void OnFind();
    void OnFindNext();
    void OnFilter();
    void OnBack() { Q_EMIT BackAsked(); }
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
    void AddRecent(const std::string& Name);
    void RemoveRecent(const std::string& Name);
    void UpdateRecentActions();
    void Say(const QString& Text, BoxIcon Icon);

    // Copy, cut, paste, delete
    /// What is to be put into the file.
    struct Paste {
        std::vector<RecordPtr> Sources; ///< none: one new record
        bool FinishCut = false;
        QString Name; ///< of the action
    };
    void Take(RecordClipboard::Mode HowTaken);
    void PasteText(const QString& Text);
    void InsertRecords(const Paste& What);
    /// The record to insert before, or none for the end; nothing if it is not to be.
    [[nodiscard]] std::optional<RecordPtr> AskPlace();
    [[nodiscard]] std::optional<std::vector<RecordPtr>> MakeRecords(const Paste& What,
                                                                    const RecordPtr& Before);
    void AddRecords(const Paste& What, const RecordPtr& Before, std::vector<RecordPtr>& Made);
    void FillRecord(const RecordPtr& Made, const clsTXTObject& Source);
    void NameRecords(const std::vector<RecordPtr>& Made, std::unordered_set<std::string> Taken,
                     bool AreNew);
    void Forget(const std::vector<RecordPtr>& Made);
    void ListRecords(const std::vector<RecordPtr>& Made, const RecordPtr& Before);
    void FinishCut(const std::vector<RecordPtr>& Objects);
    [[nodiscard]] bool ForgetInPanel(const std::vector<RecordPtr>& Objects);
    void LeavePanel(std::span<const RecordPtr> Objects);
    void ReturnToPanel(std::span<const RecordPtr> Objects);
    [[nodiscard]] std::vector<RecordPtr> SelectedRecords() const;

    // Find and filter
    bool FindNext(const QString& Text, bool WholeWords, QVariant& Tag);
    void OfferFilters(); ///< those of the panel
    void ApplyFilter();
    void ClearFilter();
    [[nodiscard]] bool PassesChoices(const RecordPtr& Record) const;
    void OnFiltered();

    // Crashes, and other programs
    void FlushJournal();
    void BeginJournal();
    void AnnounceSave(const JournalBase& Base);
    void ShowTrouble(const std::string& Reason);
    void LookAtDisk();

    // Records
    void SelectFileType(std::int32_t OType);
    [[nodiscard]] std::int32_t PickPanel(std::int32_t OType);
    /// Calls the panel, if there is one, amid other work: a failure is said in the status bar, and
    /// false then.
    bool TellPanel(const std::function<void(ObjectEditor&)>& Call);
    void ApplyPanelInfo(std::int32_t Info);
    void UpdateCaption();
    [[nodiscard]] QString TypeText() const;
    [[nodiscard]] NameMode PickedMode() const; ///< by the radio buttons
    [[nodiscard]] NameMode Mode() const;       ///< without a panel there are only IDs
    [[nodiscard]] QString RowText(const RecordPtr& Record) const;
    [[nodiscard]] QString SearchText(const RecordPtr& Record) const; ///< of the panel
    void UpdateNameColumn();
    [[nodiscard]] std::vector<RecordPtr> ListedRecords();
    void FillList();
    void UpdateCount();
    void SelectRecord(const RecordPtr& Record);
    void OnSelection();
    void ShowObject(const RecordPtr& Record);
    void UpdateObjectViews();
    void UpdateWatch();
    void TakeChanges();
    void OnObjectChanged(const RecordPtr& Record);
    void OnRecordReset(const RecordPtr& Record);
    void OnRecordsAdded(const std::vector<RecordPtr>& Added);
    void OnRecordsRemoved(const std::vector<RecordPtr>& Removed);

    clsTFile m_file;
    RecordUndo m_undo{m_file.Parser};
    Panels m_editors;
    ObjectEditor* m_activeEditor = nullptr;
    static constexpr std::int32_t noType = -1; ///< served by no panel
    std::int32_t m_objectType = noType;
    RecordPtr m_selected;
    RecordPtr m_reported; ///< picked in the report, to be shown when the list is filled
    RecordPtr m_hidden;   ///< was on view until the filter took its row
    RecoveryJournal m_journal;
    QTimer m_flush;
    bool m_replaying = false;
    bool m_rowsLeave = false;
    bool m_canGoBack = false;
    QFileSystemWatcher m_watcher;
    frmFind* m_find = nullptr;
    QVariant m_findTag; ///< of finding without the dialog
    RecentFiles m_recent;
    std::vector<QAction*> m_actions; ///< in the order of ActionTable
    QList<QAction*> m_recentActions;

    RecordListModel* m_list;
    RecordDataModel* m_data;
    WatchModel* m_watch;
    QTreeView* m_objectView = nullptr;
    QLineEdit* m_filter = nullptr;
    QWidget* m_choiceRow = nullptr;
    QList<QComboBox*> m_choices; ///< of the panel's filters
    QTreeView* m_dataView = nullptr;
    QListView* m_watchList = nullptr;
    QLineEdit* m_watchFrom = nullptr;
    QLineEdit* m_watchTo = nullptr;
    QCheckBox* m_sort = nullptr;
    std::array<QRadioButton*, 3> m_names{};
    QLabel* m_objectName = nullptr;
    QTabWidget* m_tab = nullptr;
    QSplitter* m_splitter = nullptr;
    QSplitter* m_rawSplitter = nullptr;
    int m_classWidth = 0; ///< of the class column, pixels
    QLabel* m_barObject = nullptr;
    QLabel* m_barCount = nullptr;
    QMenu* m_openMenu = nullptr;
    QMenu* m_recentMenu = nullptr;
    QMenu* m_popup = nullptr;
};
