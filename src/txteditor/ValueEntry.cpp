#include "txteditor/ValueEntry.h"

#include "core/mdlComFunctions.h"
#include "keshobjects/value.h"
#include "lornfd/paths.h"
#include "tdata/FieldConversion.h"

#include <algorithm>

namespace {

QString wrongType(std::int32_t type) {
    return QString::fromStdString(ValueErrorText({}, type));
}

EnteredText encode(const QString& text, const std::function<TextEncoding()>& fileEncoding,
                   bool keepBlanks) {
    auto bytes = FromScreen(text, TextEncoding::Windows1252);
    const bool ascii =
        bytes && std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii && fileEncoding)
        bytes = FromScreen(text, fileEncoding());
    const bool broken = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.isNull() || c == QChar::LineFeed || c == QChar::CarriageReturn;
    });
    if (bytes && !broken)
        return {keepBlanks ? std::move(*bytes) : std::string(TrimmedValue(*bytes)), {}};
    return {{}, ValueEntry::tr("Value holds a character that this file cannot hold.")};
}

/// What would end the value, or begin a remark, in a T file.
QString signRefusal(std::string_view text, bool allowSlash) {
    if (text.find(';') != std::string_view::npos)
        return ValueEntry::tr("Value cannot contain semicolon (;)");
    if (!allowSlash && text.find('/') != std::string_view::npos)
        return ValueEntry::tr("Value cannot contain slash (/)");
    return {};
}

} // namespace

EnteredText BytesForFile(const QString& Text, const std::function<TextEncoding()>& FileEncoding,
                         bool AllowSlash) {
    EnteredText entered = encode(Text, FileEncoding, AllowSlash);
    if (entered.Refusal.isEmpty())
        entered.Refusal = signRefusal(entered.Bytes, AllowSlash);
    return entered;
}

TextEncoding EncodingOf(const clsTxtParser& File) {
    EncodingGuess guess;
    for (const RecordPtr& record : File.ByIndex())
        for (std::int32_t i = 0; i < record->size() && !guess.Decided(); ++i)
            guess.Add(record->ValueText(i));
    return guess.Result();
}

ValueEntry::ValueEntry(ObjectEditor* Editor, RecordPtr Object, std::int32_t Index)
    : m_editor(Editor), m_object(std::move(Object)), m_index(Index), m_place(Index) {
    if (m_editor) {
        m_place = m_editor->FieldPlace(m_object, m_index);
        m_class = m_editor->LornSupportValueTranslate(m_object, m_index);
        m_type = m_editor->LornGetValueType(m_object, m_index);
    }
    Translated = m_class == translation::Number;
}

ValueEntry::ValueEntry(RecordPtr Object, const std::vector<RecordPtr>& Objects)
    : m_object(std::move(Object)), m_objects(&Objects) {}

QString ValueEntry::Name() const {
    return m_editor ? ToScreen(m_editor->LornGetPropertyName(m_object, m_index)) : QString();
}

bool ValueEntry::Translating() const noexcept {
    return m_class == translation::List || (m_class == translation::Number && Translated);
}

QStringList ValueEntry::Choices() const {
    QStringList choices;
    if (m_class == translation::List)
        for (const std::string& choice : m_editor->LornGetPropertyValues(m_object, m_index))
            choices.append(ToScreen(choice));
    return choices;
}

QString ValueEntry::Unit() const {
    if (!Translating())
        return QStringList{tr("Integer"), tr("Float"), tr("String")}.value(m_type);
    return m_class == translation::Number ? ToScreen(m_editor->LornGetValueUnit(m_object, m_index))
                                          : QString();
}

QString ValueEntry::Text() {
    m_shownBytes = m_objects ? m_object->ObjectName() : m_object->ValueText(m_place);
    std::string translated;
    if (Translating() && m_editor->LornTranslateValue(m_object, m_index, translated, true))
        m_shownBytes = std::move(translated);
    m_shown = ToScreen(m_shownBytes);
    return m_shown;
}

QString ValueEntry::Take(const QString& Typed) {
    try {
        return m_objects ? TakeName(Typed) : TakeValue(Typed);
    } catch (const std::exception&) {
        return wrongType(m_type);
    }
}

EnteredText ValueEntry::Encoded(const QString& Typed) const {
    if (Typed == m_shown)
        return {m_shownBytes, {}};
    // What a choice says comes from a text that has its own encoding, and never reaches the file.
    if (m_class == translation::List)
        for (std::string& choice : m_editor->LornGetPropertyValues(m_object, m_index))
            if (ToScreen(choice) == Typed)
                return {std::move(choice), {}};
    // Where "/" may stand, the last value is the rest of its line, and no other keeps blanks.
    const bool last = m_objects || m_place + 1 == m_object->size();
    return encode(Typed, FileEncoding, AllowSlash && last);
}

QString ValueEntry::TakeName(const QString& Typed) {
    EnteredText entered = Encoded(Typed);
    if (entered.Refusal.isEmpty())
        entered.Refusal = signRefusal(entered.Bytes, AllowSlash);
    if (!entered.Refusal.isEmpty())
        return entered.Refusal;
    const bool used =
        std::any_of(m_objects->begin(), m_objects->end(), [&](const RecordPtr& other) {
            return other != m_object && lornfd::equalNoCase(other->ObjectName(), entered.Bytes);
        });
    if (used)
        return tr("This object ID is already used.");
    if (Typed != m_shown)
        m_object->SetObjectName(entered.Bytes);
    return {};
}

QString ValueEntry::TakeValue(const QString& Typed) {
    if (KeepsUntouched && Typed == m_shown)
        return {};
    EnteredText entered = Encoded(Typed);
    if (!entered.Refusal.isEmpty())
        return entered.Refusal;
    const auto value = Read(entered.Bytes);
    if (!value) // a refused translation has the same words for every type
        return wrongType(m_editor && Translating() ? valuetype::Integer : m_type);
    QString refusal = signRefusal(keshobjects::spellValue(*value), AllowSlash);
    // An untouched text keeps the value's spelling, and what a translated one rounds away.
    if (refusal.isEmpty() && Typed != m_shown)
        m_object->SetValue(m_place, *value);
    return refusal;
}

std::optional<KeshValue> ValueEntry::Read(std::string& Text) {
    if (!m_editor || !Translating())
        return ReadByType(Text);
    KeshValue back;
    return m_editor->LornTranslateValueBack(m_object, Text, m_index, back)
               ? std::optional<KeshValue>(std::move(back))
               : std::nullopt;
}

std::optional<KeshValue> ValueEntry::ReadByType(const std::string& Text) const {
    const auto number = EnteredNumber(Text);
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
