#include "txteditor/panels/EntryDialog.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/value.h"
#include "tdata/FieldConversion.h"
#include "txteditor/ValueEntry.h"
#include "ui/CommonBoxes.h"
#include "ui/ListHelpers.h"
#include "ui/ModalResult.h"
#include "ui/SelectOnEntry.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int editWidth = 30;       ///< characters
constexpr std::int32_t noPath = -1; ///< stands for a number that may be missing

} // namespace

EntryDialog::EntryDialog(const QString& Name, const QString& Title, QWidget* Owner)
    : QDialog(Owner), m_rows(new QVBoxLayout(this)), m_reason(new QLabel(this)) {
    setObjectName(Name);
    m_reason->setObjectName(QStringLiteral("lblReason"));
    m_reason->setWordWrap(true);
    m_reason->setTextFormat(Qt::PlainText);
    setWindowTitle(Title);
    HelpOnF1(this, "ship.html");
}

QFormLayout* EntryDialog::AddRows() {
    auto* form = new QFormLayout;
    m_rows->addLayout(form);
    return form;
}

QFormLayout* EntryDialog::AddFrame(const QString& Title) {
    auto* frame = new QGroupBox(Title, this);
    m_rows->addWidget(frame);
    return new QFormLayout(frame);
}

QLineEdit* EntryDialog::AddEdit(QFormLayout& Form, const QString& Name, const QString& Label,
                                const QString& Spoken) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(Name);
    edit->setMaxLength(std::numeric_limits<int>::max());
    edit->setMinimumWidth(editWidth * fontMetrics().averageCharWidth());
    edit->setAccessibleName(Spoken.isEmpty() ? Label : Spoken);
    new SelectOnEntry(*edit); // the edit owns it
    Form.addRow(Label, edit);
    return edit;
}

QLineEdit* EntryDialog::AddShown(QFormLayout& Form, const QString& Name, const QString& Label) {
    QLineEdit* edit = AddEdit(Form, Name, Label);
    edit->setReadOnly(true);
    return edit;
}

QComboBox* EntryDialog::AddCombo(QFormLayout& Form, const QString& Name, const QString& Label) {
    auto* combo = new QComboBox(this);
    combo->setObjectName(Name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr); // it would change what is typed, and so would these two:
    combo->setDuplicatesEnabled(true);
    disconnect(combo->lineEdit(), &QLineEdit::editingFinished, combo, nullptr);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(editWidth);
    combo->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    combo->setAccessibleName(Label);
    connect(combo, &QComboBox::editTextChanged, m_reason, &QLabel::clear);
    Form.addRow(Label, combo);
    return combo;
}

void EntryDialog::Finish(QList<Entry> Entries) {
    m_entries = std::move(Entries);
    for (const Entry& entry : m_entries)
        connect(entry.Edit, &QLineEdit::textChanged, m_reason, &QLabel::clear);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &EntryDialog::OnOk);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_rows->addWidget(m_reason);
    m_rows->addWidget(buttons);
}

void EntryDialog::Run(const clsTXTObject* Record, std::int32_t Offset, QLineEdit& First) {
    m_new = !Record;
    m_modalResult = modal::Cancel;
    try {
        ShowEntries(Record, Offset);
        ShowOthers();
    } catch (const std::exception& error) {
        ShowBox(this, windowTitle(), ToScreen(error.what()), BoxIcon::Exclamation);
        return;
    }
    m_reason->clear();
    TextBoxSelectAll(First, true);
    exec();
}

void EntryDialog::ShowEntries(const clsTXTObject* Record, std::int32_t Offset) {
    for (Entry& entry : m_entries) {
        entry.Edit->setText(Record ? ToScreen(Record->ValueText(Offset + entry.Index)) : QString());
        entry.Shown = entry.Edit->text();
    }
}

bool EntryDialog::Typed(const Entry& Of) const {
    return m_new || Of.Edit->text() != Of.Shown;
}

std::optional<std::int32_t> EntryDialog::WholeNumber(const QString& Text) {
    const auto number = EnteredNumber(Text.toStdString());
    if (!number || !IsWholeNumber(keshobjects::spellNumber(*number)))
        return {};
    return static_cast<std::int32_t>(*number);
}

bool EntryDialog::IsNumber(const QString& Text) {
    return EnteredNumber(Text.toStdString()).has_value();
}

void EntryDialog::OnOk() {
    try {
        if (!CheckAll(&EntryDialog::CheckPresence) || !CheckOthers() ||
            !CheckAll(&EntryDialog::CheckContent))
            return;
        Store();
    } catch (const std::exception& error) {
        SayReason(ToScreen(error.what()));
        return;
    }
    m_modalResult = modal::Ok;
    accept();
}

bool EntryDialog::CheckAll(bool (EntryDialog::*Check)(const Entry&)) {
    return std::all_of(m_entries.cbegin(), m_entries.cend(),
                       [&](const Entry& entry) { return (this->*Check)(entry); });
}

bool EntryDialog::CheckPresence(const Entry& Checked) {
    if (Checked.Missing.isEmpty())
        return true;
    const QString text = Checked.Edit->text();
    if (text.trimmed().isEmpty())
        return Refuse(*Checked.Edit, Checked.Missing);
    // A fraction that the file brought may stay; none is entered.
    const bool whole =
        Checked.What == Holds::Text || (Typed(Checked) ? WholeNumber(text) : IsNumber(text));
    return whole || Refuse(*Checked.Edit, Checked.NotWhole);
}

bool EntryDialog::CheckContent(const Entry& Checked) {
    const QString text = Checked.Edit->text();
    if (!Typed(Checked) || (Checked.What == Holds::Number && text.trimmed().isEmpty()))
        return true;
    if (Checked.What == Holds::Number)
        return CheckNumber(Checked);
    const QString refusal = BytesForFile(text, FileEncoding).Refusal;
    return refusal.isEmpty() || Refuse(*Checked.Edit, refusal);
}

bool EntryDialog::CheckNumber(const Entry& Checked) {
    const auto number = WholeNumber(Checked.Edit->text());
    if (!number)
        return Refuse(*Checked.Edit, Checked.NotWhole);
    return *number >= 0 || Checked.Negative.isEmpty() || Refuse(*Checked.Edit, Checked.Negative);
}

void EntryDialog::SayReason(const QString& Text) {
    m_reason->setText(Text);
    resize(size().expandedTo({0, heightForWidth(width())})); // more lines must not press the edits
}

bool EntryDialog::Refuse(QWidget& At, const QString& Text, bool Quiet) {
    SayReason(Text); // stays beside the edits behind the box
    if (!Quiet)
        ShowBox(this, windowTitle(), Text, BoxIcon::Exclamation);
    const auto* combo = qobject_cast<QComboBox*>(&At);
    At.setFocus();
    TextBoxSelectAll(combo ? *combo->lineEdit() : static_cast<QLineEdit&>(At), false);
    return false;
}

KeshValue EntryDialog::ValueOf(const Entry& Of) const {
    if (Of.What == Holds::Number)
        return WholeNumber(Of.Edit->text()).value_or(noPath);
    return BytesForFile(Of.Edit->text(), FileEncoding).Bytes;
}

void EntryDialog::WriteEntries(clsShip& Ship, std::int32_t Offset) const {
    for (const Entry& entry : m_entries)
        if (Typed(entry))
            Ship.SetValue(Offset + entry.Index, ValueOf(entry));
}
