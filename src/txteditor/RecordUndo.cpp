#include "txteditor/RecordUndo.h"

#include "tdata/RecordNames.h"
#include "ui/TextCodec.h"

#include <algorithm>

namespace {

using Kind = RecordStep::Kind;

RecordSteps stepsOfAdded(const RecordUndo::Records& added) {
    RecordSteps steps;
    steps.reserve(added.size());
    for (const RecordPtr& record : added)
        steps.push_back({Kind::Insert, record->Index, record->Values()});
    return steps;
}

/// From the last to the first, so that each Index still counts.
RecordSteps stepsOfRemoved(const RecordUndo::Records& removed) {
    RecordSteps steps;
    steps.reserve(removed.size());
    for (auto record = removed.rbegin(); record != removed.rend(); ++record)
        steps.push_back({Kind::Remove, (*record)->Index, {}});
    return steps;
}

} // namespace

/// One record's values before and after.
class ValuesCommand : public QUndoCommand {
public:
    ValuesCommand(RecordUndo& owner, RecordPtr record, clsValueArray before, QUndoCommand* parent)
        : QUndoCommand(RecordUndo::tr("change of %1").arg(ToScreen(RecordID(*record))), parent),
          m_owner(owner),
          m_record(std::move(record)),
          m_before(std::move(before)),
          m_after(m_record->Values()) {}

    void undo() override { m_owner.PutValues(m_record, m_before); }
    void redo() override {
        if (std::exchange(m_done, true))
            m_owner.PutValues(m_record, m_after);
        else
            Q_EMIT m_owner.Stepped({{Kind::Change, m_record->Index, m_after}});
    }

private:
    RecordUndo& m_owner;
    RecordPtr m_record;
    clsValueArray m_before;
    clsValueArray m_after;
    bool m_done = false; ///< the first "redo" is the change that was already made
};

/// Records that came or went; their places are in themselves.
class RecordsCommand : public QUndoCommand {
public:
    RecordsCommand(RecordUndo& owner, RecordUndo::Records records, Kind what, const QString& text)
        : QUndoCommand(text),
          m_owner(owner),
          m_records(std::move(records)),
          m_what(what),
          m_former(owner.m_structure),
          m_next(owner.NextStructure()) {}

    void undo() override {
        m_what == Kind::Insert ? m_owner.TakeOut(m_records) : m_owner.PutBack(m_records);
        m_owner.SetStructure(m_former);
    }
    void redo() override {
        if (std::exchange(m_done, true))
            m_what == Kind::Insert ? m_owner.PutBack(m_records) : m_owner.TakeOut(m_records);
        else
            Q_EMIT m_owner.Stepped(m_what == Kind::Insert ? stepsOfAdded(m_records)
                                                          : stepsOfRemoved(m_records));
        m_owner.SetStructure(m_next);
    }

private:
    RecordUndo& m_owner;
    RecordUndo::Records m_records; ///< by Index
    Kind m_what;
    int m_former;
    int m_next;
    bool m_done = false;
};

RecordUndo::RecordUndo(clsTxtParser& Parser, QObject* parent) : QObject(parent), m_parser(Parser) {}

bool RecordUndo::TakeChanges() {
    if (m_held || std::exchange(m_remembered, clsTXTObject::TimesRemembered()) ==
                      clsTXTObject::TimesRemembered())
        return false; // without a look at every record of a large file
    auto all = std::make_unique<QUndoCommand>();
    for (const RecordPtr& record : m_parser.ByIndex()) {
        auto former = record->TakeFormerValues();
        if (!former || former->SameAs(record->Values()))
            continue;
        m_saved.try_emplace(record->ID, *former);
        new ValuesCommand(*this, record, std::move(*former), all.get());
    }
    if (all->childCount() == 0)
        return false;
    all->setText(all->child(0)->text());
    m_stack.push(all.release());
    return true;
}

void RecordUndo::TakeAdded(Records Added, const QString& Text) {
    for (const RecordPtr& record : Added)
        static_cast<void>(record->TakeFormerValues()); // of its making
    PushAdded(std::move(Added), Text);
}

void RecordUndo::PushAdded(Records Added, const QString& Text) {
    m_stack.push(new RecordsCommand(*this, std::move(Added), Kind::Insert, Text));
}

bool RecordUndo::Remove(Records Removed, const QString& Text) {
    std::ranges::sort(Removed, {}, &clsTXTObject::Index);
    if (!m_parser.RemoveObjects(Removed))
        return false;
    m_stack.push(new RecordsCommand(*this, Removed, Kind::Remove, Text));
    Q_EMIT RecordsRemoved(Removed);
    return true;
}

bool RecordUndo::Replay(const std::vector<RecordSteps>& Commands, const QString& Text) {
    m_stack.beginMacro(Text);
    const auto end = qScopeGuard([this] { m_stack.endMacro(); });
    bool good = true;
    for (const RecordSteps& command : Commands) {
        const auto* step = command.data();
        const auto* const last = step + command.size();
        while (good && step != last) {
            const auto* const first = step;
            while (step != last && step->What == Kind::Insert &&
                   step->Index == first->Index + (step - first))
                ++step;
            if (step != first)
                ReplayInserts(first, step);
            else
                good = ReplayStep(*step++);
        }
    }
    return good;
}

void RecordUndo::ReplayInserts(const RecordStep* First, const RecordStep* End) {
    Records added;
    {
        const BulkInsert bulk(m_parser, m_parser.FindIndex(First->Index));
        for (const RecordStep* step = First; step != End; ++step) {
            added.push_back(m_parser.CreateObject({}));
            added.back()->SetValues(step->Values);
        }
    }
    PushAdded(added, {});
    Q_EMIT RecordsAdded(added);
}

bool RecordUndo::ReplayStep(const RecordStep& Step) {
    const RecordPtr record = m_parser.FindIndex(Step.Index);
    if (!record)
        return false;
    if (Step.What == Kind::Remove) {
        Q_EMIT RecordsLeaving({record});
        return Remove({record}, {});
    }
    const clsValueArray before = record->Values();
    m_saved.try_emplace(record->ID, before);
    PutValues(record, Step.Values);
    m_stack.push(new ValuesCommand(*this, record, before, nullptr));
    return true;
}

void RecordUndo::MarkSaved() {
    for (auto& [id, values] : m_saved)
        if (const RecordPtr record = m_parser.Find(id))
            values = record->Values();
    m_savedStructure = m_structure;
    m_stack.setClean();
}

void RecordUndo::Clear() {
    m_stack.clear();
    m_saved.clear();
    m_structure = m_savedStructure = m_lastStructure = 0;
}

void RecordUndo::PutValues(const RecordPtr& Record, const clsValueArray& Values) {
    const auto held = Hold();
    Record->SetValues(Values);
    const auto saved = m_saved.find(Record->ID);
    Record->Dirty = saved != m_saved.end() && !saved->second.SameAs(Values);
    Q_EMIT RecordReset(Record);
    Q_EMIT Stepped({{Kind::Change, Record->Index, Values}});
}

void RecordUndo::PutBack(const Records& Added) {
    const auto held = Hold();
    m_parser.RestoreObjects(Added);
    Q_EMIT RecordsAdded(Added);
    Q_EMIT Stepped(stepsOfAdded(Added));
}

void RecordUndo::TakeOut(const Records& Removed) {
    const auto held = Hold();
    Q_EMIT RecordsLeaving(Removed);
    if (!m_parser.RemoveObjects(Removed))
        return; // undo and redo go back to a state in which all of them were there
    Q_EMIT RecordsRemoved(Removed);
    Q_EMIT Stepped(stepsOfRemoved(Removed));
}

void RecordUndo::SetStructure(int State) {
    m_structure = State;
    m_parser.SetDirty(m_structure != m_savedStructure);
}
