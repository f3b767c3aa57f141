// The one value dialog for a field or an ID of a record, for all panels.
#pragma once

#include "txteditor/ValueEntry.h"
#include "ui/ModalResult.h"

class frmEdit : public QDialog {
    Q_OBJECT

public:
    explicit frmEdit(QWidget* Owner = nullptr);

    /// Lets a value hold "/".
    bool AllowSlash = false;
    /// Asked for the encoding of the record's file when a text goes beyond ASCII.
    std::function<TextEncoding()> FileEncoding;
    /// modal::Ok or modal::Cancel.
    [[nodiscard]] int ModalResult() const noexcept { return m_modalResult; }

    /// Edits a field, modally; the panel may be missing.
    void ShowProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index);
    /// Edits the record's ID, modally; no other of `Objects` may have it.
    void ShowName(const RecordPtr& Object, const std::vector<RecordPtr>& Objects);

private:
    void BuildControls();
    /// False after a failure, which is said.
    [[nodiscard]] bool Load(const std::function<void()>& Step);
    void LoadProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index);
    void UpdateValue();
    void ShowText();
    void OnOk();

    std::optional<ValueEntry> m_entry;
    int m_modalResult = modal::Cancel;

    QLineEdit* m_name = nullptr;
    QLabel* m_valueLabel = nullptr;
    QComboBox* m_value = nullptr;
    QLabel* m_reason = nullptr; ///< why the value was refused
    QCheckBox* m_translated = nullptr;
};
