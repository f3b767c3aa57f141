// The settings window: edits the stored settings and applies what changed at OK.
#pragma once

#include "ui/ModalResult.h"

#include <QtWidgets>

class frmSettings : public QDialog {
    Q_OBJECT

public:
    explicit frmSettings(QWidget* Owner = nullptr);

    /// Fills the controls from the settings and shows the window; a modal one returns when it is
    /// closed.
    void ShowSettings(bool Modal = true);

    int ModalResult = modal::None; ///< or Ok

private:
    struct PathField;
    struct CheckField;
    static const std::vector<PathField>& PathFields();
    static const std::vector<CheckField>& CheckFields();

    // Setting up
    QWidget* BuildCommonPage();
    QWidget* BuildGraphicsPage();
    QWidget* BuildViewerPage();
    QWidget* BuildGamePage();
    QLayout* BuildButtons();
    void AddPathField(QFormLayout* Form, const char* Edit);
    QCheckBox* AddCheckField(const char* Check);

    void Fill();
    void EnableControls();
    void BrowseProgram(const PathField& Field);
    void BrowseDataDir();
    void OnOK();
    void StoreFields();
    [[nodiscard]] bool StoreLanguage();
    void ApplyChanges();

    [[nodiscard]] QLineEdit* Edit(const char* Name) const;
    [[nodiscard]] QCheckBox* Check(const char* Name) const;

    QTabWidget* m_tabs = nullptr;
    QComboBox* m_language = nullptr;
    QLineEdit* m_viewerCommand = nullptr;
    struct Applied { ///< what the loaded data were made from
        std::string DataRoot;
        bool LoadDescriptions = false;
        int Language = 0;
    } m_applied;
};
