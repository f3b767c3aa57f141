#include "ui/ColorEdit.h"

#include "core/mdlComFunctions.h"
#include "ui/UserInterface.h"

namespace {

constexpr std::int32_t white = 0xFFFFFF;
constexpr std::int32_t digits = 6;
constexpr int previewWidth = 6; ///< characters

} // namespace

QColor ColorOf(std::int32_t Value) {
    return {GetRed(Value), GetGreen(Value), GetBlue(Value)};
}

std::int32_t ValueOf(const QColor& Color) {
    return Color.red() | Color.green() << 8 | Color.blue() << 16;
}

ColorEdit::ColorEdit(QWidget* Parent) : QWidget(Parent) {
    BuildControls();
    connect(m_value, &QLineEdit::textChanged, this, &ColorEdit::UpdatePreview);
    connect(m_hexadecimal, &QRadioButton::toggled, this, &ColorEdit::SetHexadecimal);
    ShowValue(0);
}

void ColorEdit::BuildControls() {
    m_value = new QLineEdit(this);
    m_value->setObjectName(QStringLiteral("ValEdit"));
    m_value->setAccessibleName(tr("Value"));
    setFocusProxy(m_value);
    m_preview = new QLabel(this);
    m_preview->setObjectName(QStringLiteral("ColorPreview"));
    m_preview->setFrameShape(QFrame::StyledPanel);
    m_preview->setAutoFillBackground(true);
    m_preview->setFixedWidth(previewWidth * fontMetrics().averageCharWidth());
    auto* browse = new QPushButton(tr("&Browse..."), this);
    browse->setObjectName(QStringLiteral("btnColorBrowse"));
    browse->setAutoDefault(false);
    browse->setToolTip(tr("Choose the color in a dialog"));
    connect(browse, &QPushButton::clicked, this, &ColorEdit::Browse);

    auto* group = new QGroupBox(tr("Format"), this);
    group->setObjectName(QStringLiteral("FormatGroup"));
    auto* decimal = new QRadioButton(tr("&Decadic"), group);
    decimal->setObjectName(QStringLiteral("rbFormat0"));
    m_hexadecimal = new QRadioButton(tr("&Hexa"), group);
    m_hexadecimal->setObjectName(QStringLiteral("rbFormat1"));
    m_hexadecimal->setChecked(true);
    auto* formats = new QHBoxLayout(group);
    formats->addWidget(decimal);
    formats->addWidget(m_hexadecimal);
    formats->addStretch();

    auto* line = new QHBoxLayout;
    line->addWidget(m_value, 1);
    line->addWidget(m_preview);
    line->addWidget(browse);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addLayout(line);
    rows->addWidget(group);
}

void ColorEdit::SetValue(std::int32_t Value) {
    ShowValue(Value & white);
}

std::optional<std::int32_t> ColorEdit::Value() const {
    return Read(m_hexadecimal->isChecked());
}

void ColorEdit::SelectText() {
    m_value->setFocus();
    m_value->selectAll();
}

/// The same value in the other base; what is no colour stays as it was typed.
void ColorEdit::SetHexadecimal(bool On) {
    if (const auto value = Read(!On))
        ShowValue(*value);
    UpdatePreview();
}

std::optional<std::int32_t> ColorEdit::Read(bool Hexadecimal) const {
    QString text = m_value->text().trimmed();
    if (Hexadecimal && text.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive))
        text.remove(0, 2);
    bool good = false;
    const uint value = text.toUInt(&good, Hexadecimal ? 16 : 10);
    if (Hexadecimal && !IsHexText(text.toStdString())) // such as a second "0x"
        return {};
    return good && value <= uint{white} ? std::optional(static_cast<std::int32_t>(value))
                                        : std::nullopt;
}

void ColorEdit::ShowValue(std::int32_t Value) {
    m_value->setText(m_hexadecimal->isChecked()
                         ? QStringLiteral("0x") + QString::fromStdString(ToHex(
                                                      static_cast<std::uint32_t>(Value), digits))
                         : QString::number(Value));
    UpdatePreview();
}

void ColorEdit::UpdatePreview() {
    const auto value = Value();
    QPalette colors = palette();
    if (value)
        colors.setColor(QPalette::Window, ColorOf(*value));
    m_preview->setPalette(colors);
    m_preview->setText(value ? QString() : QStringLiteral("?"));
}

void ColorEdit::Browse() {
    if (const auto picked = Ui().PickColor(this, tr("Color"), ColorOf(Value().value_or(0))))
        ShowValue(ValueOf(*picked));
}
