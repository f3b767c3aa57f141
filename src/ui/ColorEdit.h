// A colour value as a number, with its preview and the colour dialog.
#pragma once

#include <QtWidgets>

#include <cstdint>
#include <optional>

/// Red in byte 0, green in byte 1, blue in byte 2; without alpha.
[[nodiscard]] QColor ColorOf(std::int32_t Value);
[[nodiscard]] std::int32_t ValueOf(const QColor& Color);

class ColorEdit : public QWidget {
    Q_OBJECT

public:
    explicit ColorEdit(QWidget* Parent = nullptr);

    void SetValue(std::int32_t Value);
    /// What was typed, in the base that is chosen; nothing if it is no colour. "0x" may stand in
    /// front of a hexadecimal number.
    [[nodiscard]] std::optional<std::int32_t> Value() const;
    void SelectText(); ///< and takes the focus

private:
    void BuildControls();
    void SetHexadecimal(bool On);
    [[nodiscard]] std::optional<std::int32_t> Read(bool Hexadecimal) const;
    void ShowValue(std::int32_t Value);
    void UpdatePreview();
    void Browse();

    QLineEdit* m_value = nullptr;
    QLabel* m_preview = nullptr;
    QRadioButton* m_hexadecimal = nullptr;
};
