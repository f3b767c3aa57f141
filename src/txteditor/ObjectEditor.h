// What the editor windows and the value dialog know of a panel: a view of one kind of record, and
// the names, types, units and choices of its fields.
//
// Order of a panel's life: LornQueryInterfaceEx, Init, PageName, LornQueryInfo, Validate; then
// ShowObject at each selection and GetResourceName, GetRace, ObjectName, GetClass for the rows. A
// panel changes records and tells by OnObjectChanged; it never saves.
#pragma once

#include "core/KeshError.h"
#include "keshobjects/value.h"
#include "tdata/FieldTable.h"
#include "tdata/RecordReference.h"
#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <cstdint>
#include <string>
#include <vector>

/// Bits of LornQueryInfo.
namespace panelinfo {
inline constexpr std::int32_t HasNames = 1;
inline constexpr std::int32_t HasRaces = 2;
inline constexpr std::int32_t HasClasses = 4;
} // namespace panelinfo

/// By what a panel lets the list of records be narrowed.
struct RecordFilter {
    std::string Name; ///< what is chosen
    std::string Any;  ///< reads for no choice
    std::vector<std::string> Choices;
};

class ObjectEditor : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual bool ReadOnly() const { return m_readOnly; }
    virtual void SetReadOnly(bool Value) { m_readOnly = Value; } ///< offers no editing
    /// After Init gave false or CreateObject gave nothing.
    [[nodiscard]] virtual std::string GetLastError() const = 0;

    // The file
    [[nodiscard]] virtual bool
    LornQueryInterface(std::int32_t OType) const = 0; ///< serves this type
    /// The same, and prepares the panel for the type.
    [[nodiscard]] virtual bool LornQueryInterfaceEx(std::int32_t& OType) = 0;
    /// Builds the panel's views over a file; again for each file that is opened.
    [[nodiscard]] virtual bool Init(clsTxtParser& Parser) = 0;
    [[nodiscard]] virtual std::string
    ObjectTypeName(std::int32_t OType) const = 0; ///< empty if not served
    [[nodiscard]] virtual std::string PageName(std::int32_t OType) const = 0;
    [[nodiscard]] virtual std::int32_t
    LornQueryInfo(std::int32_t OType) const = 0; ///< panelinfo bits
    /// Checks the whole file; on false Text holds a report.
    [[nodiscard]] virtual bool Validate(std::string& Text) = 0;

    // Rows
    [[nodiscard]] virtual std::string ObjectName(const RecordPtr& Object) const = 0;
    /// What finding and filtering look through beside the row's own text.
    [[nodiscard]] virtual std::string SearchText(const RecordPtr& Object) const {
        return ObjectName(Object);
    }
    [[nodiscard]] virtual std::string GetClass(const RecordPtr& Object) const = 0;
    [[nodiscard]] virtual std::string GetRace(const RecordPtr& Object) const = 0;
    [[nodiscard]] virtual std::string
    GetResourceName(const RecordPtr& Object) const = 0; ///< may be empty

    /// What no two records of a file should share; empty for one that has none yet.
    [[nodiscard]] virtual std::string UniqueName(const RecordPtr& Object) const {
        return std::string(Object->ObjectName());
    }
    [[nodiscard]] virtual std::vector<RecordFilter> Filters() const { return {}; }
    /// Whether a record belongs to a choice of a filter.
    [[nodiscard]] virtual bool Passes(const RecordPtr& Object, int Filter, int Choice) const {
        Q_UNUSED(Object);
        Q_UNUSED(Filter);
        Q_UNUSED(Choice);
        return true;
    }

    // The selection and the file's records
    virtual void ShowObject(const RecordPtr& Object,
                            std::int32_t OType) = 0; ///< none clears the panel
    /// A new record in front of another, or at the end; none on failure.
    virtual RecordPtr CreateObject(std::int32_t OType, clsTxtParser& Parser,
                                   const RecordPtr& Before) = 0;
    /// Data were written into a new record; false on failure.
    [[nodiscard]] virtual bool InitObject(const RecordPtr& Object) = 0;
    /// The record is about to leave the file.
    [[nodiscard]] virtual bool RemoveObject(const RecordPtr& Object) = 0;
    virtual bool LornAssignUniqueObjectName(const RecordPtr& Object) = 0;

    // Fields
    /// Where a field stands in a record: elsewhere if an older version of the type lacks some.
    [[nodiscard]] virtual std::int32_t FieldPlace(const RecordPtr& Object,
                                                  std::int32_t Index) const {
        Q_UNUSED(Object);
        return Index;
    }
    [[nodiscard]] virtual std::string LornGetPropertyName(const RecordPtr& Object,
                                                          std::int32_t Index) const = 0;
    [[nodiscard]] virtual std::int32_t
    LornGetValueType(const RecordPtr& Object,
                     std::int32_t Index) const = 0; ///< valuetype
    [[nodiscard]] virtual std::string LornGetValueUnit(const RecordPtr& Object,
                                                       std::int32_t Index) const = 0;
    [[nodiscard]] virtual std::int32_t
    LornSupportValueTranslate(const RecordPtr& Object,
                              std::int32_t Index) const = 0; ///< translation
    [[nodiscard]] virtual std::vector<std::string>
    LornGetPropertyValues(const RecordPtr& Object, std::int32_t Index) const = 0;
    /// The text of a stored value, without its unit if Raw; false if it has no translation.
    [[nodiscard]] virtual bool LornTranslateValue(const RecordPtr& Object, std::int32_t Index,
                                                  std::string& Text, bool Raw) const = 0;
    /// From a person's text to the value to store; false refuses it.
    [[nodiscard]] virtual bool LornTranslateValueBack(const RecordPtr& Object, std::string& Text,
                                                      std::int32_t Index, KeshValue& Value) = 0;

    /// Writes the file's data for reading or for other programs; false if nothing was written.
    /// Failures are said in boxes; throws KeshError where the panel has no export.
    virtual bool KeshExportData(QWidget* Owner) {
        Q_UNUSED(Owner);
        throw KeshError(errnum::General, "ObjectEditor",
                        ObjectEditor::tr("This type of file cannot be exported.").toStdString());
    }
    /// The record that a line of Validate's report is about; none if it names none.
    [[nodiscard]] virtual RecordPtr ReportedObject(const QString& Line) const {
        Q_UNUSED(Line);
        return {};
    }
    /// What a person is entering in a row goes into its record. False if it is refused, which is
    /// said, and the entry goes on.
    [[nodiscard]] virtual bool FinishEntry() { return true; }

    // Undo
    /// The record's values were replaced from outside.
    virtual void ObjectReset(const RecordPtr& Object) { Q_UNUSED(Object); }
    /// A removed record is back in the file.
    virtual void RestoreObject(const RecordPtr& Object) { Q_UNUSED(Object); }

Q_SIGNALS:
    /// After each change that the panel made to a record.
    void OnObjectChanged(const RecordPtr& Object);
    /// The record that is named where the user stands is to be shown.
    void GoToAsked(const RecordAddress& Address);

private:
    bool m_readOnly = false;
};
