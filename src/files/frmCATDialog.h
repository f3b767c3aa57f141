// The file dialog inside a catalog or the merged view.
#pragma once

#include "files/CatalogListing.h"
#include "ui/FileFilter.h"
#include "ui/UserInterface.h"

#include <string>

class CatalogModel;

class frmCATDialog : public QDialog {
    Q_OBJECT

public:
    enum Result { Chosen = 0, WentUp = 1, Cancelled = 2 };

    explicit frmCATDialog(QWidget* Owner = nullptr);
    ~frmCATDialog() override;

    // Set before the dialog is shown
    QString Title;
    QString Filter;       ///< pairs of label and mask joined by "|"
    int FilterIndex = 1;  ///< from 1; in the end the chosen one
    std::string InitDir;  ///< directory in the catalog to start in if the entry names none
    std::string FileName; ///< the entry to start at; in the end the whole path, empty after Cancel
    bool CanGoUp = false; ///< there is a dialog to go back to
    bool NewCatalog = false; ///< the catalog will be made for what is saved: it is empty yet

    /// How the last run ended.
    [[nodiscard]] int ModalResult() const { return m_result; }
    /// Modal. A catalog that does not open is told, and counts as going up. Throws KeshError where
    /// it cannot be listed.
    void ShowOpen(const std::string& Catalog, QWidget* Owner);
    /// The same for a name to save to; does not ask about an existing one.
    void ShowSave(const std::string& Catalog);

    void reject() override { Finish(Cancelled); }

protected:
    bool eventFilter(QObject* Object, QEvent* Event) override;

private:
    void MakeControls();
    void MakeSortActions();
    void MakeBars();
    void LayOut();
    void Connect();

    void SetTask(bool Save);
    void Run(const std::string& Catalog, bool Save);
    [[nodiscard]] bool Open();
    void FillFilters();
    void Start();
    void Finish(int Ending);

    void TakeFilter();
    void List();
    void ShowLevels();
    void Enter(const std::string& Directory);
    void GoTo(int Level);
    void GoUp() { GoTo(static_cast<int>(m_directory.size()) - 1); }
    void PointAt(const QString& Name);
    void Refresh();
    void CopyName(const QModelIndex& Index);
    void TakeName();
    void AcceptFile(std::string Entry);
    void EnterTyped(const std::string& Directory);
    void ListMask(const std::string& Directory, const std::string& Mask);
    [[nodiscard]] std::string TypedName() const;
    [[nodiscard]] bool IsPickedFile() const;
    [[nodiscard]] std::string WithDefaultExtension(const std::string& Entry) const;
    void Say(const QString& Text, BoxIcon Icon);

    QLabel* m_lblCaption;
    QComboBox* m_cmbDir;
    QToolBar* m_DirBar;
    QToolBar* m_CloseBar;
    QTreeView* m_FileView;
    QLabel* m_Label1;
    QComboBox* m_cmbFileName;
    QLabel* m_lblFilter;
    QComboBox* m_cmbFilter;
    QPushButton* m_btnOK;
    QPushButton* m_btnCancel;
    QAction* m_up = nullptr;
    QAction* m_leave = nullptr;
    CatalogModel* m_model;

    CatalogListing m_listing;
    std::string m_catalog;
    std::vector<std::string> m_directory; ///< names of the levels below the catalog
    QList<FilterEntry> m_filters;
    std::vector<std::string> m_masks;
    QString m_copied;             ///< a name as it is shown,
    CatalogListing::Row m_picked; ///< and as it stands in the catalog
    QString m_fileName;           ///< the name to save to, while directories are walked
    QString m_proposed;           ///< the one at the start
    std::string m_extension;      ///< of the entry that a save started at
    bool m_save = false;
    int m_result = Cancelled;
};
