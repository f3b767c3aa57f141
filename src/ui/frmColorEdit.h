// The value dialog of a colour.
#pragma once

#include <QtWidgets>

#include <cstdint>
#include <optional>

class ColorEdit;

class frmColorEdit : public QDialog {
    Q_OBJECT

public:
    explicit frmColorEdit(QWidget* Owner = nullptr);

    /// The value that was chosen, as ColorOf takes it; nothing after Cancel. Modal.
    [[nodiscard]] std::optional<std::int32_t> Edit(const QString& Name, std::int32_t Value);

private:
    void OnOk();

    QLineEdit* m_name;
    ColorEdit* m_color;
};
