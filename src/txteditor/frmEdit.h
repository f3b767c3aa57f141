// The one value dialog for a field or an ID of a record, for all panels.
#pragma once

#include "txteditor/ObjectEditor.h"
#include "ui/TextCodec.h"

#include <functional>
#include <span>

class frmEdit : public QDialog {
    Q_OBJECT

public:
    explicit frmEdit(QWidget* Owner = nullptr);

    /// Lets a value hold "/".
    bool AllowSlash = false;
    /// Asked for the encoding of the record's file when a text goes beyond ASCII.
    std::function<TextEncoding()> FileEncoding;
    /// 1 after OK, 2 after Cancel.
    [[nodiscard]] int ModalResult() const noexcept { return m_modalResult; }

    /// Edits a field, modally; the panel may be missing.
    void ShowProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index);
    /// Edits the record's ID, modally; no other of `Objects` may have it.
    void ShowName(const RecordPtr& Object, std::span<const RecordPtr> Objects);

private:
    void BuildControls();
    /// False after a failure, which is said.
    [[nodiscard]] bool Load(void (frmEdit::*Step)());
    void LoadProperty();
    void UpdateValue();
    void ShowText(const std::string& Text);
    [[nodiscard]] bool Untouched() const;
    [[nodiscard]] bool Translating() const;
    void OnOk();
    [[nodiscard]] bool AcceptName();
    [[nodiscard]] bool AcceptValue();
    [[nodiscard]] std::optional<KeshValue> ReadByType(const std::string& Text) const;
    [[nodiscard]] std::optional<std::string> EnteredText();
    [[nodiscard]] bool CheckText(const std::string& Text);
    bool Refuse(const QString& Text);

    ObjectEditor* m_editor = nullptr;
    RecordPtr m_object;
    std::span<const RecordPtr> m_objects;
    std::int32_t m_index = 0;
    std::int32_t m_class = translation::None;
    std::int32_t m_type = valuetype::String;
    bool m_nameMode = false;
    int m_modalResult = 2;
    QString m_shown; ///< the text that stands for the present value, as the edit line gives it
    std::string m_shownBytes;

    QLineEdit* m_name = nullptr;
    QLabel* m_valueLabel = nullptr;
    QComboBox* m_value = nullptr;
    QLabel* m_reason = nullptr; ///< why the value was refused
    QCheckBox* m_translated = nullptr;
};
