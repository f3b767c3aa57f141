// A file dialog that looks inside catalogs and the merged view.
#pragma once

#include <QtCore>

#include <string>

class QWidget;

class LornFileDialog {
public:
    /// The directory of the last choice of a kind; empty if there was none.
    [[nodiscard]] static std::string KeptDirectory(const std::string& Kind);
    static void KeepDirectory(const std::string& Kind, const std::string& Directory);

    explicit LornFileDialog(QWidget* Owner) : m_owner(Owner) {}

    QString DialogTitle;  ///< "Open" and "Save" if empty
    QString Filter;       ///< pairs of label and mask joined by "|"
    int FilterIndex = 1;  ///< from 1; in the end the chosen one
    std::string InitDir;  ///< for a FileName without a directory
    std::string FileName; ///< plain, catalog or "vfs://" path: to start at; in the end the chosen
    std::string NewEntry; ///< proposed to a save in a catalog that is picked in the dialog
    std::string Kind;     ///< under this name the last directory is kept; empty: it is not
    bool Cancelled = false;

    /// Throw KeshError: number errnum::Cancelled after Cancel, others where a catalog fails.
    void ShowOpen();
    /// Does not ask about an existing file; offers to make a catalog that does not exist, and has
    /// made it in the end.
    void ShowSave();

private:
    void Show(bool Save);
    // Each step: true when the choice is made, false if another step follows
    [[nodiscard]] bool ShowCommon(bool Save);
    [[nodiscard]] bool ShowCatalog(bool Save);
    /// To the common dialog in the catalog's directory.
    [[nodiscard]] bool GoUp(const std::string& Catalog);
    [[nodiscard]] bool MayMakeCatalog(const std::string& Catalog) const;
    [[nodiscard]] bool MakeCatalog(const std::string& Catalog) const;
    [[noreturn]] void Cancel();

    QWidget* m_owner;
};
