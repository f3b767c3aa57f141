#include "txteditor/frmEdit.h"

#include "ui/CommonBoxes.h"

frmEdit::frmEdit(QWidget* Owner) : QDialog(Owner) {
    setObjectName(QStringLiteral("frmEdit"));
    setWindowTitle(tr("Value Edit"));
    BuildControls();
    HelpOnF1(this, "valueedit.html");
}

void frmEdit::BuildControls() {
    m_name = new QLineEdit(this);
    m_name->setObjectName(QStringLiteral("PropNameEdit"));
    m_name->setReadOnly(true);
    m_name->setMinimumWidth(48 * fontMetrics().averageCharWidth());
    auto* nameLabel = new QLabel(tr("Property name"), this);
    nameLabel->setObjectName(QStringLiteral("Label1"));
    nameLabel->setBuddy(m_name);
    m_value = new QComboBox(this);
    m_value->setObjectName(QStringLiteral("cmbValue"));
    m_value->setEditable(true);
    m_value->setInsertPolicy(QComboBox::NoInsert);
    m_value->setCompleter(nullptr); // it would change what is typed
    m_value->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_value->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    m_value->setAccessibleName(tr("Value"));
    m_valueLabel = new QLabel(tr("Value"), this);
    m_valueLabel->setObjectName(QStringLiteral("lblValue"));
    m_valueLabel->setBuddy(m_value);
    m_translated = new QCheckBox(tr("Translated value"), this);
    m_translated->setObjectName(QStringLiteral("chkTranslatedValue"));
    m_translated->setToolTip(tr("Show the value with its unit instead of as it is stored"));

    m_reason = new QLabel(this);
    m_reason->setObjectName(QStringLiteral("lblReason"));
    m_reason->setWordWrap(true);
    m_reason->setTextFormat(Qt::PlainText);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    auto* rows = new QVBoxLayout(this);
    for (QWidget* row : std::initializer_list<QWidget*>{nameLabel, m_name, m_valueLabel, m_value,
                                                        m_reason, m_translated, buttons})
        rows->addWidget(row);

    connect(m_translated, &QCheckBox::toggled, this,
            [this] { static_cast<void>(Load([this] { UpdateValue(); })); });
    connect(m_value, &QComboBox::editTextChanged, m_reason, &QLabel::clear);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmEdit::OnOk);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_value->setFocus();
}

void frmEdit::ShowProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index) {
    m_modalResult = modal::Cancel;
    if (Load([&] { LoadProperty(Editor, Object, Index); }))
        exec();
}

bool frmEdit::Load(const std::function<void()>& Step) {
    try {
        Step();
        return true;
    } catch (const std::exception&) {
        ShowBox(this, windowTitle(), tr("Error loading property."), BoxIcon::Exclamation);
        return false;
    }
}

void frmEdit::LoadProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index) {
    m_entry.emplace(Editor, Object, Index);
    m_name->setText(m_entry->Name() + tr(" (offset %1)").arg(Index));
    {
        const QSignalBlocker quiet(m_translated);
        m_translated->setVisible(true);
        m_translated->setEnabled(m_entry->Class() == translation::Number);
        m_translated->setChecked(m_entry->Class() == translation::Number);
    }
    m_value->clear();
    m_value->addItems(m_entry->Choices());
    UpdateValue();
}

void frmEdit::UpdateValue() {
    m_entry->Translated = m_translated->isChecked();
    const QString unit = m_entry->Unit();
    m_valueLabel->setText(tr("Value") + (unit.isEmpty() ? QString() : tr(" [%1]").arg(unit)));
    ShowText();
}

void frmEdit::ShowText() {
    const QString text = m_entry->Text();
    m_value->setCurrentIndex(m_value->findText(text)); // where the arrow keys go on from
    m_value->setEditText(text);
    m_entry->SetShown(m_value->currentText());
    m_value->lineEdit()->selectAll();
}

void frmEdit::ShowName(const RecordPtr& Object, const std::vector<RecordPtr>& Objects) {
    m_entry.emplace(Object, Objects);
    m_modalResult = modal::Cancel;
    m_translated->setVisible(false);
    m_name->setText(tr("Name"));
    m_value->clear();
    ShowText();
    exec();
}

void frmEdit::OnOk() {
    m_entry->AllowSlash = AllowSlash;
    m_entry->FileEncoding = FileEncoding;
    const QString refusal = m_entry->Take(m_value->currentText());
    if (refusal.isEmpty()) {
        m_modalResult = modal::Ok;
        accept();
        return;
    }
    m_reason->setText(refusal); // stays beside the field behind the box
    ShowBox(this, windowTitle(), refusal, BoxIcon::Exclamation);
    m_value->setFocus();
    m_value->lineEdit()->selectAll();
}
