#include "txteditor/RecordUndo.h"

#include "ui/TextCodec.h"

/// Holds one record's values before and after.
class RecordCommand : public QUndoCommand {
public:
    RecordCommand(RecordUndo& owner, RecordPtr record, clsValueArray before, QUndoCommand* parent)
        : QUndoCommand(RecordUndo::tr("change of %1").arg(ToScreen(record->ObjectName())), parent),
          m_owner(owner),
          m_record(std::move(record)),
          m_before(std::move(before)),
          m_after(m_record->Values()) {}

    void undo() override { m_owner.Apply(m_record, m_before); }
    void redo() override {
        if (std::exchange(m_done, true))
            m_owner.Apply(m_record, m_after);
    }

private:
    RecordUndo& m_owner;
    RecordPtr m_record;
    clsValueArray m_before;
    clsValueArray m_after;
    bool m_done = false; ///< the first "redo" is the change that was already made
};

RecordUndo::RecordUndo(clsTxtParser& Parser, QObject* parent) : QObject(parent), m_parser(Parser) {}

bool RecordUndo::TakeChanges() {
    auto all = std::make_unique<QUndoCommand>();
    for (const RecordPtr& record : m_parser.ByIndex()) {
        auto former = record->TakeFormerValues();
        if (!former || former->SameAs(record->Values()))
            continue;
        m_saved.try_emplace(record->ID, *former);
        new RecordCommand(*this, record, std::move(*former), all.get());
    }
    if (all->childCount() == 0)
        return false;
    all->setText(all->child(0)->text());
    m_stack.push(all.release());
    return true;
}

void RecordUndo::MarkSaved() {
    for (auto& [id, values] : m_saved)
        if (const RecordPtr record = m_parser.Find(id))
            values = record->Values();
    m_stack.setClean();
}

void RecordUndo::Clear() {
    m_stack.clear();
    m_saved.clear();
}

void RecordUndo::Apply(const RecordPtr& Record, const clsValueArray& Values) {
    Record->SetValues(Values);
    const auto saved = m_saved.find(Record->ID);
    Record->Dirty = saved != m_saved.end() && !saved->second.SameAs(Values);
    Q_EMIT RecordReset(Record);
}
