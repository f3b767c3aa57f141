#include "txteditor/panels/RecordPanel.h"

#include "core/mdlCommon.h"
#include "tdata/FieldLookup.h"
#include "tdata/NewObjectName.h"
#include "txteditor/frmEdit.h"
#include "txteditor/panels/PropertyView.h"
#include "ui/ModalResult.h"

#include <algorithm>

// The contract, as far as the tables and the record alone answer it

bool RecordPanel::Init(clsTxtParser& Parser) {
    m_parser = &Parser;
    SetCurrentObject({});
    return true;
}

bool RecordPanel::Validate(std::string&) {
    return true;
}

std::string RecordPanel::ObjectName(const RecordPtr& Object) const {
    return std::string(Object->ObjectName());
}

std::string RecordPanel::GetClass(const RecordPtr&) const {
    return {};
}

std::string RecordPanel::GetRace(const RecordPtr&) const {
    return {};
}

std::string RecordPanel::GetResourceName(const RecordPtr&) const {
    return {};
}

bool RecordPanel::InitObject(const RecordPtr& Object) {
    return Object != nullptr;
}

bool RecordPanel::RemoveObject(const RecordPtr& Object) {
    return Object != nullptr;
}

bool RecordPanel::LornAssignUniqueObjectName(const RecordPtr& Object) {
    Object->SetObjectName(NewObjectName(*m_parser));
    return true;
}

std::string RecordPanel::LornGetPropertyName(const RecordPtr& Object, std::int32_t Index) const {
    return FieldName(*Object, Index);
}

std::int32_t RecordPanel::LornGetValueType(const RecordPtr& Object, std::int32_t Index) const {
    return FieldValueType(Object->otype, Object->size(), Index);
}

std::string RecordPanel::LornGetValueUnit(const RecordPtr& Object, std::int32_t Index) const {
    return std::string(FieldUnit(Object->otype, Object->size(), Index));
}

std::int32_t RecordPanel::LornSupportValueTranslate(const RecordPtr& Object,
                                                    std::int32_t Index) const {
    return FieldTranslation(Object->otype, m_parser->Version(), Object->size(), Index);
}

std::vector<std::string> RecordPanel::LornGetPropertyValues(const RecordPtr& Object,
                                                            std::int32_t Index) const {
    return Converter() ? Converter()->Values(*Object, Index) : std::vector<std::string>();
}

bool RecordPanel::LornTranslateValue(const RecordPtr& Object, std::int32_t Index, std::string& Text,
                                     bool Raw) const {
    return Converter() && Converter()->Translate(*Object, Index, Text, Raw);
}

bool RecordPanel::LornTranslateValueBack(const RecordPtr& Object, std::string& Text,
                                         std::int32_t Index, KeshValue& Value) {
    return Converter() && Converter()->TranslateBack(*Object, Text, Index, Value);
}

bool RecordPanel::SetLastError(std::string Text) {
    m_lastError = std::move(Text);
    return false;
}

std::function<TextEncoding()> RecordPanel::FileEncoding() const {
    return [this] { return EncodingOf(*m_parser); };
}

// Rows

PropertyRow RecordPanel::IdRow() const {
    return {PropertyRow::IdField, tr("ID"), ToScreen(m_object->ObjectName())};
}

PropertyRow RecordPanel::RowOf(std::int32_t Field) const {
    const QString stored = ToScreen(m_object->ValueText(FieldPlace(m_object, Field)));
    PropertyRow row{Field, ToScreen(LornGetPropertyName(m_object, Field)), stored};
    std::string translated;
    try {
        if (LornTranslateValue(m_object, Field, translated, false))
            row.Value = RowText(ToScreen(translated), stored);
    } catch (const std::exception&) { // it stands there as it is stored
    }
    return row;
}

QString RecordPanel::RowText(const QString& Translated, const QString& Stored) const {
    return QStringLiteral("%1 (%2)").arg(Translated, Stored);
}

QList<PropertyRow> RecordPanel::RowsOf(std::span<const std::int32_t> Fields) const {
    QList<PropertyRow> rows;
    for (const std::int32_t field : Fields)
        if (m_object && field >= 0 && FieldPlace(m_object, field) < m_object->size())
            rows.append(RowOf(field));
    return rows;
}

// Entry

void RecordPanel::SetReadOnly(bool Value) {
    ObjectEditor::SetReadOnly(Value);
    if (Value)
        DropEntries();
}

void RecordPanel::DropEntries() {
    for (PropertyView* view : findChildren<PropertyView*>())
        view->DropEntry();
}

void RecordPanel::SetCurrentObject(RecordPtr Object) {
    if (Object != m_object)
        DropEntries();
    m_object = std::move(Object);
}

bool RecordPanel::MayEdit(std::int32_t) {
    return true;
}

bool RecordPanel::EditFields(std::int32_t) {
    return false;
}

bool RecordPanel::FollowEdit(std::int32_t) {
    return false;
}

std::optional<ValueEntry> RecordPanel::BeginEntry(std::int32_t Field) {
    if (ReadOnly() || !m_object || Field < PropertyRow::IdField || !MayEdit(Field))
        return {};
    ValueEntry entry = Field == PropertyRow::IdField ? ValueEntry(m_object, m_parser->ByIndex())
                                                     : ValueEntry(this, m_object, Field);
    entry.KeepsUntouched = true; // a click on a row begins an entry that nobody may have meant
    entry.AllowSlash = AllowsSlash();
    entry.FileEncoding = FileEncoding();
    return entry;
}

void RecordPanel::EndEntry(std::int32_t Field, bool Accepted) {
    HandleKey([&] {
        const bool followed = Field >= 0 && FollowEdit(Field);
        if (!Accepted && !followed)
            return;
        Q_EMIT OnObjectChanged(m_object);
        RefreshViews();
    });
}

bool RecordPanel::EditField(std::int32_t Field) {
    bool accepted = false;
    HandleKey([&] {
        if (ReadOnly() || !m_object || Field == PropertyRow::Computed || !MayEdit(Field))
            return;
        accepted = Field < PropertyRow::IdField ? EditFields(Field) : EditInDialog(Field);
        EndEntry(Field, accepted);
    });
    return accepted;
}

bool RecordPanel::EditInDialog(std::int32_t Field) {
    frmEdit dialog(this);
    dialog.AllowSlash = AllowsSlash();
    dialog.FileEncoding = FileEncoding();
    if (Field == PropertyRow::IdField)
        dialog.ShowName(m_object, m_parser->ByIndex());
    else
        dialog.ShowProperty(this, m_object, Field);
    return dialog.ModalResult() == modal::Ok;
}

std::optional<RecordAddress> RecordPanel::TargetOf(std::int32_t Field) const {
    return m_object && Field >= 0 ? ReferenceOf(*m_object, Field) : std::nullopt;
}

GoToAction* RecordPanel::OfferGoTo(QWidget& Widget, GoToAction::Target Find) {
    auto* action = new GoToAction(Widget, std::move(Find), [this] { return FinishEntry(); });
    connect(action, &GoToAction::Asked, this, &RecordPanel::GoToAsked);
    return action;
}

void RecordPanel::HandleKey(const std::function<void()>& Work) {
    try {
        Work();
    } catch (const std::exception& failure) {
        Say(tr("Error in key handler: ") + ToScreen(failure.what()), BoxIcon::Critical);
    }
}

void RecordPanel::RunAction(const std::function<void()>& Work) {
    if (FinishEntry())
        HandleKey(Work);
}

void RecordPanel::Say(const QString& Text, BoxIcon Icon) {
    ShowBox(this, ProgramName(), Text, Icon);
}

bool RecordPanel::Confirm(const QString& Question) {
    const MessageRequest request{ProgramName(), Question, BoxIcon::Question, BoxButtons::YesNo};
    return Ui().ShowMessage(this, request) == Answer::Yes;
}

bool RecordPanel::FinishEntry() {
    const auto views = findChildren<PropertyView*>();
    return std::all_of(views.begin(), views.end(),
                       [](PropertyView* view) { return view->FinishEntry(); });
}
