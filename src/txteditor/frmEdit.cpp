#include "txteditor/frmEdit.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/value.h"
#include "lornfd/paths.h"
#include "ui/CommonBoxes.h"

#include <algorithm>

namespace {

constexpr int resultOk = 1;
constexpr int resultCancel = 2;

/// Blanks around a number are no part of it.
std::optional<double> readTypedNumber(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    const auto last = text.find_last_not_of(" \t");
    return keshobjects::readNumber(std::string_view(text).substr(first, last - first + 1));
}

} // namespace

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

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    auto* rows = new QVBoxLayout(this);
    for (QWidget* row : std::initializer_list<QWidget*>{nameLabel, m_name, m_valueLabel, m_value,
                                                        m_reason, m_translated, buttons})
        rows->addWidget(row);

    connect(m_translated, &QCheckBox::toggled, this,
            [this] { static_cast<void>(Load(&frmEdit::UpdateValue)); });
    connect(m_value, &QComboBox::editTextChanged, m_reason, &QLabel::clear);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmEdit::OnOk);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_value->setFocus();
}

void frmEdit::ShowProperty(ObjectEditor* Editor, const RecordPtr& Object, std::int32_t Index) {
    m_editor = Editor;
    m_object = Object;
    m_index = Index;
    m_nameMode = false;
    m_modalResult = resultCancel;
    if (Load(&frmEdit::LoadProperty))
        exec();
}

bool frmEdit::Load(void (frmEdit::*Step)()) {
    try {
        (this->*Step)();
        return true;
    } catch (const std::exception&) {
        ShowBox(this, windowTitle(), tr("Error loading property."), BoxIcon::Exclamation);
        return false;
    }
}

void frmEdit::LoadProperty() {
    QString name;
    m_class = translation::None;
    m_type = valuetype::String;
    if (m_editor) {
        name = ToScreen(m_editor->LornGetPropertyName(m_object, m_index));
        m_class = m_editor->LornSupportValueTranslate(m_object, m_index);
        m_type = m_editor->LornGetValueType(m_object, m_index);
    }
    m_name->setText(name + tr(" (offset %1)").arg(m_index));
    {
        const QSignalBlocker quiet(m_translated);
        m_translated->setVisible(true);
        m_translated->setEnabled(m_class == translation::Number);
        m_translated->setChecked(m_class == translation::Number);
    }
    m_value->clear();
    if (m_class == translation::List)
        for (const std::string& choice : m_editor->LornGetPropertyValues(m_object, m_index))
            m_value->addItem(ToScreen(choice));
    UpdateValue();
}

bool frmEdit::Translating() const {
    return m_class == translation::List ||
           (m_class == translation::Number && m_translated->isChecked());
}

void frmEdit::UpdateValue() {
    const QStringList types = {tr("Integer"), tr("Float"), tr("String")};
    std::string text(m_object->ValueText(m_index));
    QString unit;
    if (Translating()) {
        if (m_class == translation::Number)
            unit = ToScreen(m_editor->LornGetValueUnit(m_object, m_index));
        std::string translated;
        if (m_editor->LornTranslateValue(m_object, m_index, translated, true))
            text = std::move(translated);
    } else {
        unit = types.value(m_type);
    }
    m_valueLabel->setText(tr("Value") + (unit.isEmpty() ? QString() : tr(" [%1]").arg(unit)));
    ShowText(text);
}

void frmEdit::ShowText(const std::string& Text) {
    m_value->setEditText(ToScreen(Text));
    m_shown = m_value->currentText();
    m_shownBytes = Text;
    m_value->lineEdit()->selectAll();
}

bool frmEdit::Untouched() const {
    return m_value->currentText() == m_shown;
}

void frmEdit::ShowName(const RecordPtr& Object, std::span<const RecordPtr> Objects) {
    m_editor = nullptr;
    m_object = Object;
    m_objects = Objects;
    m_nameMode = true;
    m_modalResult = resultCancel;
    m_translated->setVisible(false);
    m_name->setText(tr("Name"));
    m_value->clear();
    ShowText(std::string(Object->ObjectName()));
    exec();
}

void frmEdit::OnOk() {
    try {
        if (!(m_nameMode ? AcceptName() : AcceptValue()))
            return;
    } catch (const std::exception&) {
        Refuse(QString::fromStdString(ValueErrorText({}, m_type)));
        return;
    }
    m_modalResult = resultOk;
    accept();
}

bool frmEdit::AcceptName() {
    const auto text = EnteredText();
    if (!text || !CheckText(*text))
        return false;
    const bool used = std::any_of(m_objects.begin(), m_objects.end(), [&](const RecordPtr& other) {
        return other != m_object && lornfd::equalNoCase(other->ObjectName(), *text);
    });
    if (used)
        return Refuse(tr("This object ID is already used."));
    if (!Untouched())
        m_object->SetObjectName(*text);
    return true;
}

bool frmEdit::AcceptValue() {
    auto text = EnteredText();
    if (!text)
        return false;
    std::optional<KeshValue> value;
    int wanted = m_type;
    if (m_editor && Translating()) {
        KeshValue back;
        wanted =
            valuetype::Integer; // the words for a refused translation, whatever the field's type
        if (m_editor->LornTranslateValueBack(m_object, *text, m_index, back))
            value = std::move(back);
    } else {
        value = ReadByType(*text);
    }
    if (!value)
        return Refuse(QString::fromStdString(ValueErrorText({}, wanted)));
    if (!CheckText(keshobjects::spellValue(*value)))
        return false;
    // An untouched text keeps the value's spelling, and what a translated one rounds away.
    if (!Untouched())
        m_object->SetValue(m_index, *value);
    return true;
}

std::optional<KeshValue> frmEdit::ReadByType(const std::string& Text) const {
    const auto number = readTypedNumber(Text);
    if (!m_editor)
        return number ? KeshValue(*number) : KeshValue(Text);
    switch (m_type) {
    case valuetype::Integer:
        if (!number || !IsWholeNumber(keshobjects::spellNumber(*number)))
            return {};
        return static_cast<std::int32_t>(*number);
    case valuetype::Float:
        return number ? std::optional<KeshValue>(*number) : std::nullopt;
    default:
        return Text;
    }
}

std::optional<std::string> frmEdit::EnteredText() {
    if (Untouched())
        return m_shownBytes;
    const QString text = m_value->currentText();
    auto bytes = FromScreen(text, TextEncoding::Windows1252);
    const bool ascii =
        bytes && std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii && FileEncoding)
        bytes = FromScreen(text, FileEncoding());
    const bool broken = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.isNull() || c == QChar::LineFeed || c == QChar::CarriageReturn;
    });
    if (bytes && !broken)
        return bytes;
    Refuse(tr("Value holds a character that this file cannot hold."));
    return {};
}

bool frmEdit::CheckText(const std::string& Text) {
    if (Text.find(';') != std::string::npos)
        return Refuse(tr("Value cannot contain semicolon (;)"));
    if (!AllowSlash && Text.find('/') != std::string::npos)
        return Refuse(tr("Value cannot contain slash (/)"));
    return true;
}

bool frmEdit::Refuse(const QString& Text) {
    m_reason->setText(Text); // stays beside the field behind the box
    ShowBox(this, windowTitle(), Text, BoxIcon::Exclamation);
    m_value->setFocus();
    m_value->lineEdit()->selectAll();
    return false;
}
