// Undo and redo of changes to the records of a file.
//
// Panels and dialogs change records as they like: a record remembers its values from before its
// first change, and this class makes a command of that when the window asks it to. Records that
// were added, and records to remove, are told to it.
#pragma once

#include "tdata/clsTxtParser.h"
#include "txteditor/RecordStep.h"

#include <QtWidgets>

#include <unordered_map>
#include <vector>

class RecordUndo : public QObject {
    Q_OBJECT

public:
    using Records = std::vector<RecordPtr>;

    explicit RecordUndo(clsTxtParser& Parser, QObject* parent = nullptr);

    [[nodiscard]] QUndoStack& Stack() noexcept { return m_stack; }
    [[nodiscard]] const QUndoStack& Stack() const noexcept { return m_stack; }

    /// Makes one command of all changes since the last call; false if there were none, or while
    /// they are held.
    bool TakeChanges();
    /// Holds them while it lives: a panel may tell of a change amid a step that is not a command
    /// yet, or is being undone.
    [[nodiscard]] QScopedValueRollback<bool> Hold() {
        return QScopedValueRollback<bool>(m_held, true);
    }
    /// Makes one command of records that are new in the file, in file order.
    void TakeAdded(Records Added, const QString& Text);
    /// Records that were added are out of the file again, without a command.
    void RestoreStructure() { SetStructure(m_structure); }
    /// Takes records out of the file as one command; false, and nothing changed, if one is not in
    /// it.
    [[nodiscard]] bool Remove(Records Removed, const QString& Text);
    /// Carries commands of a journal out, as one command; false at the first step that does not fit
    /// the file, with all before it done.
    bool Replay(const std::vector<RecordSteps>& Commands, const QString& Text);

    /// The file was saved as it stands now.
    void MarkSaved();
    /// Another file was loaded.
    void Clear();

Q_SIGNALS:
    /// The record's values were replaced.
    void RecordReset(const RecordPtr& Record);
    /// Records are in the file again, or new.
    void RecordsAdded(const RecordUndo::Records& Added);
    /// Undo or redo is about to take records out of the file.
    void RecordsLeaving(const RecordUndo::Records& Leaving);
    /// Records are out of the file.
    void RecordsRemoved(const RecordUndo::Records& Removed);
    /// What a command, its undo or its redo has done.
    void Stepped(const RecordSteps& Steps);

private:
    friend class ValuesCommand;
    friend class RecordsCommand;

    void PutValues(const RecordPtr& Record, const clsValueArray& Values);
    void PutBack(const Records& Added);
    void TakeOut(const Records& Removed);
    void SetStructure(int State);
    [[nodiscard]] int NextStructure() noexcept { return ++m_lastStructure; }
    void PushAdded(Records Added, const QString& Text);
    [[nodiscard]] bool ReplayStep(const RecordStep& Step);
    void ReplayInserts(const RecordStep* First, const RecordStep* End);

    clsTxtParser& m_parser;
    QUndoStack m_stack;
    /// Values on the disk of the records that were changed since loading, by their ID.
    std::unordered_map<std::int32_t, clsValueArray> m_saved;
    // Which records there are, and in which order, is numbered; a state that is left and reached
    // again by undo has its number again.
    int m_structure = 0;
    int m_savedStructure = 0;
    int m_lastStructure = 0;
    bool m_held = false;
    std::uint64_t m_remembered = 0; ///< that count of the records at the last call
};
