// What the panels share: one file, the record on view, and the entry of its fields in rows or in
// the value dialog. Names, types, units and classes of fields come from the tables of their type.
#pragma once

#include "tdata/FieldConversion.h"
#include "txteditor/GoToAction.h"
#include "txteditor/ValueEntry.h"
#include "txteditor/panels/PropertyModel.h"
#include "ui/UserInterface.h"

#include <optional>
#include <span>
#include <string>

class RecordPanel : public ObjectEditor {
    Q_OBJECT

public:
    using ObjectEditor::ObjectEditor;

    void SetReadOnly(bool Value) override; ///< gives up what is being entered
    [[nodiscard]] std::string GetLastError() const override { return m_lastError; }
    [[nodiscard]] bool Init(clsTxtParser& Parser) override;
    [[nodiscard]] bool LornQueryInterfaceEx(std::int32_t& OType) override {
        return LornQueryInterface(OType);
    }
    [[nodiscard]] bool Validate(std::string& Text) override;
    [[nodiscard]] std::string ObjectName(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetClass(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetRace(const RecordPtr& Object) const override;
    [[nodiscard]] std::string GetResourceName(const RecordPtr& Object) const override;
    [[nodiscard]] bool InitObject(const RecordPtr& Object) override;
    [[nodiscard]] bool RemoveObject(const RecordPtr& Object) override;
    bool LornAssignUniqueObjectName(const RecordPtr& Object) override;
    [[nodiscard]] std::string LornGetPropertyName(const RecordPtr& Object,
                                                  std::int32_t Index) const override;
    [[nodiscard]] std::int32_t LornGetValueType(const RecordPtr& Object,
                                                std::int32_t Index) const override;
    [[nodiscard]] std::string LornGetValueUnit(const RecordPtr& Object,
                                               std::int32_t Index) const override;
    [[nodiscard]] std::int32_t LornSupportValueTranslate(const RecordPtr& Object,
                                                         std::int32_t Index) const override;
    [[nodiscard]] std::vector<std::string> LornGetPropertyValues(const RecordPtr& Object,
                                                                 std::int32_t Index) const override;
    [[nodiscard]] bool LornTranslateValue(const RecordPtr& Object, std::int32_t Index,
                                          std::string& Text, bool Raw) const override;
    [[nodiscard]] bool LornTranslateValueBack(const RecordPtr& Object, std::string& Text,
                                              std::int32_t Index, KeshValue& Value) override;
    [[nodiscard]] bool FinishEntry() override;

    // For the views of the panel. Fields are indices, or PropertyRow::IdField.
    /// An entry for a field of the record on view; none if it may not be changed.
    [[nodiscard]] std::optional<ValueEntry> BeginEntry(std::int32_t Field);
    /// The entry is over; Accepted if the value was taken.
    void EndEntry(std::int32_t Field, bool Accepted);
    /// The whole way of a field through the value dialog; failures are said in a box. True after
    /// OK.
    bool EditField(std::int32_t Field);
    /// The record that a field names; nothing if it names none.
    [[nodiscard]] std::optional<RecordAddress> TargetOf(std::int32_t Field) const;
    /// Gives a widget of the panel its way to the record that it names.
    GoToAction* OfferGoTo(QWidget& Widget, GoToAction::Target Find);
    /// Runs what a key or click asks for; failures are said as those of a key.
    void HandleKey(const std::function<void()>& Work);
    /// The same for an action: takes what is being entered before; not run if that is refused.
    void RunAction(const std::function<void()>& Work);
    void Say(const QString& Text, BoxIcon Icon);
    [[nodiscard]] bool Confirm(const QString& Question); ///< Yes or No
    [[nodiscard]] std::function<TextEncoding()> FileEncoding() const;

protected:
    [[nodiscard]] const clsTxtParser* Parser() const noexcept { return m_parser; }
    [[nodiscard]] const RecordPtr& CurrentObject() const noexcept { return m_object; }
    void SetCurrentObject(RecordPtr Object); ///< an entry of another record is given up
    bool SetLastError(std::string Text);     ///< gives false

    /// By what its fields read and are entered otherwise than they are stored; null if none does.
    [[nodiscard]] virtual const FieldConverter* Converter() const { return nullptr; }
    /// Rows of fields, as far as the record has them.
    [[nodiscard]] QList<PropertyRow> RowsOf(std::span<const std::int32_t> Fields) const;
    [[nodiscard]] PropertyRow RowOf(std::int32_t Field) const;
    [[nodiscard]] PropertyRow IdRow() const;
    /// What stands in a row for a translated value and the stored one.
    [[nodiscard]] virtual QString RowText(const QString& Translated, const QString& Stored) const;

    /// Lets values hold "/", and the last one blanks at its ends.
    [[nodiscard]] virtual bool AllowsSlash() const { return false; }
    /// Edits a row that stands for several fields; true if they were changed.
    virtual bool EditFields(std::int32_t Row);
    /// Asks whatever is to be asked before a field is changed.
    [[nodiscard]] virtual bool MayEdit(std::int32_t Field);
    /// A field was changed, or its entry was given up: puts right what depends on it. True if
    /// there was something.
    virtual bool FollowEdit(std::int32_t Field);
    /// Shows the record's values anew.
    virtual void RefreshViews() = 0;

private:
    void DropEntries();
    [[nodiscard]] bool EditInDialog(std::int32_t Field);

    clsTxtParser* m_parser = nullptr;
    RecordPtr m_object;
    std::string m_lastError;
};
