// A list of a record's fields. F2, or a click on the selected row, edits the value in its place; a
// double click or Enter does it in the value dialog; Ctrl+Insert copies it.
#pragma once

#include "txteditor/ValueEntry.h"
#include "txteditor/panels/PropertyModel.h"

class RecordPanel;

class PropertyView : public QTreeView {
    Q_OBJECT

public:
    PropertyView(const char* Name, RecordPanel& Editor, QWidget* Parent);

    /// The row of the same place stays selected.
    void SetRows(QList<PropertyRow> Rows);
    /// What is being entered goes into the record; false if it is refused, and stays open.
    [[nodiscard]] bool FinishEntry();

    void DropEntry(); ///< what is being entered is gone

    // For the delegate
    /// The editor of a row's value; none if it may not be changed.
    [[nodiscard]] QWidget* OpenEntry(QWidget* Parent, const QModelIndex& Index);
    void ShowEntry(QWidget* Editor);
    void TakeEntry(QWidget* Editor);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void EditRow();
    void CopyValue() const;
    void ReturnTo(QWidget* Editor); ///< once the click or key that was refused is over

    RecordPanel& m_panel;
    PropertyModel* m_model;
    int m_nameWidth = 0; ///< given last; the user may have set another
    std::optional<ValueEntry> m_entry;
    QPointer<QWidget> m_editor; ///< of m_entry
    std::int32_t m_field = 0;   ///< of m_entry
    bool m_refused = false;
    bool m_told = false; ///< of the refusal; one click may ask several times to take the entry
    bool m_taken = false;
};
