#include "ui/frmColorEdit.h"

#include "ui/ColorEdit.h"
#include "ui/CommonBoxes.h"
#include "ui/UserInterface.h"

namespace {

constexpr int nameWidth = 48; ///< characters

} // namespace

frmColorEdit::frmColorEdit(QWidget* Owner)
    : QDialog(Owner), m_name(new QLineEdit(this)), m_color(new ColorEdit(this)) {
    setObjectName(QStringLiteral("frmGalEdit"));
    setWindowTitle(tr("Value Edit"));
    m_name->setObjectName(QStringLiteral("PropNameEdit"));
    m_name->setReadOnly(true);
    m_name->setMinimumWidth(nameWidth * fontMetrics().averageCharWidth());
    auto* nameLabel = new QLabel(tr("Property name"), this);
    nameLabel->setBuddy(m_name);
    auto* valueLabel = new QLabel(tr("&Value"), this);
    valueLabel->setBuddy(m_color);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    auto* rows = new QVBoxLayout(this);
    for (QWidget* row :
         std::initializer_list<QWidget*>{nameLabel, m_name, valueLabel, m_color, buttons})
        rows->addWidget(row);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmColorEdit::OnOk);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    HelpOnF1(this, "valueedit.html");
}

std::optional<std::int32_t> frmColorEdit::Edit(const QString& Name, std::int32_t Value) {
    m_name->setText(Name);
    m_color->SetValue(Value);
    m_color->SelectText();
    return exec() == QDialog::Accepted ? m_color->Value() : std::nullopt;
}

void frmColorEdit::OnOk() {
    if (m_color->Value())
        return accept();
    ShowBox(this, windowTitle(), tr("Entered value is invalid."), BoxIcon::Exclamation);
    m_color->SelectText();
}
