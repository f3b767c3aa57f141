// One field or ID of a record while a person enters its value: what to show, what a typed text
// means, and in which words it is refused. The value dialog and the rows of the panels share it.
#pragma once

#include "txteditor/ObjectEditor.h"
#include "ui/TextCodec.h"

#include <functional>
#include <vector>

/// A text that was typed for a file, in the file's encoding, or why it cannot stand there.
struct EnteredText {
    std::string Bytes;
    QString Refusal; ///< empty if it can
};
/// Blanks around the text are left out, as the file would. `AllowSlash` keeps both.
/// `FileEncoding` is asked when the text goes beyond ASCII; without it, it is Windows-1252.
[[nodiscard]] EnteredText BytesForFile(const QString& Text,
                                       const std::function<TextEncoding()>& FileEncoding,
                                       bool AllowSlash = false);
/// The encoding in which the texts of a file stand.
[[nodiscard]] TextEncoding EncodingOf(const clsTxtParser& File);

class ValueEntry {
    Q_DECLARE_TR_FUNCTIONS(ValueEntry)

public:
    /// Of a field; the panel may be missing. Throws what the panel throws, and KeshError for an
    /// index outside the record.
    ValueEntry(ObjectEditor* Editor, RecordPtr Object, std::int32_t Index);
    /// Of the record's ID; no other of `Objects` may have it, as they are when it is taken. They
    /// live as long as the entry.
    ValueEntry(RecordPtr Object, const std::vector<RecordPtr>& Objects);

    bool AllowSlash = false; ///< lets a value hold "/", and the last one blanks at its ends
    std::function<TextEncoding()> FileEncoding;
    bool KeepsUntouched =
        false;               ///< takes the text that was shown, even one that could not be typed
    bool Translated = false; ///< of a Number: shown and entered with its unit, as at first

    [[nodiscard]] QString Name() const;                                   ///< of the field
    [[nodiscard]] std::int32_t Class() const noexcept { return m_class; } ///< translation
    [[nodiscard]] bool Translating() const noexcept;
    [[nodiscard]] QStringList Choices() const; ///< of a List
    [[nodiscard]] QString Unit() const;        ///< or the type of a value as it is stored
    [[nodiscard]] QString Text();              ///< of the present value, as it is to be entered
    /// What the control made of that text.
    void SetShown(const QString& Shown) { m_shown = Shown; }

    /// Stores what was typed, unless it is what was shown; gives the words of a refusal, empty if
    /// there is none.
    [[nodiscard]] QString Take(const QString& Typed);

private:
    [[nodiscard]] QString TakeName(const QString& Typed);
    [[nodiscard]] QString TakeValue(const QString& Typed);
    [[nodiscard]] std::optional<KeshValue> Read(std::string& Text);
    [[nodiscard]] std::optional<KeshValue> ReadByType(const std::string& Text) const;
    [[nodiscard]] EnteredText Encoded(const QString& Typed) const;

    ObjectEditor* m_editor = nullptr;
    RecordPtr m_object;
    const std::vector<RecordPtr>* m_objects = nullptr; ///< of an ID
    std::int32_t m_index = 0;
    std::int32_t m_place = 0; ///< of the field in the record
    std::int32_t m_class = translation::None;
    std::int32_t m_type = valuetype::String;
    QString m_shown; ///< the text that stands for the present value
    std::string m_shownBytes;
};
