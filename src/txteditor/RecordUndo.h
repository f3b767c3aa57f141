// Undo and redo of changes to records.
//
// Panels and dialogs change records as they like: a record remembers its values from before its
// first change, and this class makes a command of that when the window asks it to.
#pragma once

#include "tdata/clsTxtParser.h"

#include <QtWidgets>

#include <unordered_map>

class RecordUndo : public QObject {
    Q_OBJECT

public:
    explicit RecordUndo(clsTxtParser& Parser, QObject* parent = nullptr);

    [[nodiscard]] QUndoStack& Stack() noexcept { return m_stack; }
    [[nodiscard]] const QUndoStack& Stack() const noexcept { return m_stack; }
    /// Makes one command of all changes since the last call; false if there were none.
    bool TakeChanges();
    /// The file was saved as it stands now.
    void MarkSaved();
    /// Another file was loaded.
    void Clear();

Q_SIGNALS:
    /// Undo or redo replaced the record's values.
    void RecordReset(const RecordPtr& Record);

private:
    friend class RecordCommand;
    void Apply(const RecordPtr& Record, const clsValueArray& Values);

    clsTxtParser& m_parser;
    QUndoStack m_stack;
    /// Values on the disk of the records that were changed since loading, by their ID.
    std::unordered_map<std::int32_t, clsValueArray> m_saved;
};
