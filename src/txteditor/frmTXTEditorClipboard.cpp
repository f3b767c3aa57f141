// Adding, copying, cutting, pasting and deleting records in the TXT Editor.
#include "core/KeshError.h"
#include "tdata/RecordNames.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/RecordText.h"
#include "txteditor/ValueEntry.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/frmWait.h"

namespace {

constexpr std::size_t longPaste = 500; ///< records from which the wait window shows
constexpr int progressTime = 100;      ///< milliseconds between two progress texts

/// Says how far a long work is, now and then.
class Progress {
public:
    explicit Progress(std::size_t all) : m_all(all) {}
    void Done() {
        ++m_done;
        if (!m_next.hasExpired())
            return;
        UpdateWait(frmTXTEditor::tr("Pasting records: %1 of %2").arg(m_done).arg(m_all));
        m_next.setRemainingTime(progressTime);
    }

private:
    std::size_t m_all;
    std::size_t m_done = 0;
    QDeadlineTimer m_next{progressTime};
};

QString nameOf(const std::vector<RecordPtr>& records) {
    return records.size() == 1 ? ToScreen(RecordID(*records.front()))
                               : frmTXTEditor::tr("%1 objects").arg(records.size());
}

QString twoLines(const QString& first, const QString& second) {
    return first + u'\n' + second;
}

} // namespace

std::vector<RecordPtr> frmTXTEditor::SelectedRecords() const {
    std::vector<RecordPtr> records;
    for (const QModelIndex& row : m_objectView->selectionModel()->selectedRows())
        records.push_back(m_list->Record(row));
    std::ranges::sort(records, {}, &clsTXTObject::Index);
    return records;
}

void frmTXTEditor::Take(RecordClipboard::Mode HowTaken) {
    const std::vector<RecordPtr> records = SelectedRecords();
    if (!records.empty())
        RecordClipboard::Instance().Set(records, HowTaken, this, ToScreen(TextOfRecords(records)));
}

bool frmTXTEditor::CanPaste() const {
    const RecordClipboard& clipboard = RecordClipboard::Instance();
    return clipboard.HasObjects() || (HasFile() && clipboard.HasForeignText());
}

void frmTXTEditor::OnNew() {
    if (HasFile())
        InsertRecords({{}, false, tr("new object")});
}

void frmTXTEditor::OnPaste() {
    const RecordClipboard& clipboard = RecordClipboard::Instance();
    // What came from elsewhere came after what was copied here.
    const QString text = HasFile() ? clipboard.ForeignText() : QString();
    if (text.isEmpty() && clipboard.HasObjects())
        InsertRecords({clipboard.Objects(), clipboard.ClipboardMode() == RecordClipboard::Mode::Cut,
                       tr("paste of %1").arg(nameOf(clipboard.Objects()))});
    else if (HasFile() && clipboard.HasForeignText())
        PasteText(text);
}

void frmTXTEditor::PasteText(const QString& Text) {
    const auto bytes = FromScreen(Text, EncodingOf(m_file.Parser));
    const ReadRecords read = bytes ? RecordsOfText(*bytes, m_file.Parser) : ReadRecords();
    if (read.Records.empty() && HasPanel()) { // without one nothing can be added at all
        Say(twoLines(tr("The text on the clipboard holds no objects of this file's type."),
                     ToScreen(read.Reason))
                .trimmed(),
            BoxIcon::Exclamation);
        return;
    }
    InsertRecords({read.Records, false, tr("paste of %1").arg(nameOf(read.Records))});
}

void frmTXTEditor::InsertRecords(const Paste& What) {
    if (!m_activeEditor) {
        Say(tr("This type of file is not recognized. You cannot add objects to it."),
            BoxIcon::Exclamation);
        return;
    }
    const auto fits = [this](const RecordPtr& source) { return source->otype == m_objectType; };
    if (!std::ranges::all_of(What.Sources, fits)) {
        Say(tr("Cannot insert: object types are different."), BoxIcon::Exclamation);
        return;
    }
    const auto before = AskPlace();
    if (!before)
        return;
    TakeChanges();
    const auto made = MakeRecords(What, *before);
    if (!made)
        return;
    {
        m_undo.Stack().beginMacro(What.Name); // a cut may take the originals from this file too
        const auto end = qScopeGuard([this] { m_undo.Stack().endMacro(); });
        m_undo.TakeAdded(*made, What.Name);
        ListRecords(*made, *before);
        if (What.FinishCut)
            FinishCut(What.Sources);
    }
    SelectRecords(*made);
    UpdateCaption();
    UpdateCount();
}

std::optional<RecordPtr> frmTXTEditor::AskPlace() {
    if (!m_selected)
        return RecordPtr();
    const QString question =
        tr("Do you want to insert new object before currenty selected object?\n"
           "Press Yes to insert object before the current one.\n"
           "Press No to add object at the end.");
    const Answer answer = Ui().ShowMessage(
        this, {tr("TXT Editor"), question, BoxIcon::Question, BoxButtons::YesNoCancel});
    if (answer == Answer::No)
        return RecordPtr();
    if (answer != Answer::Yes)
        return {};
    if (!m_sort->isChecked())
        return m_selected;
    Say(tr("You cannot insert object into sorted list.\n"
           "Uncheck the Sort checkbox and insert the object again."),
        BoxIcon::Exclamation);
    return {};
}

std::optional<std::vector<RecordPtr>> frmTXTEditor::MakeRecords(const Paste& What,
                                                                const RecordPtr& Before) {
    const auto held = m_undo.Hold();
    std::vector<RecordPtr> made;
    try {
        AddRecords(What, Before, made);
        return made;
    } catch (const std::exception& failure) {
        Forget(made);
        Say(twoLines(tr("Error creating object: "), ToScreen(failure.what())), BoxIcon::Critical);
        return {};
    }
}

/// What is in the file already when something fails is in `Made` too.
void frmTXTEditor::AddRecords(const Paste& What, const RecordPtr& Before,
                              std::vector<RecordPtr>& Made) {
    const std::vector<RecordPtr> sources =
        What.Sources.empty() ? std::vector<RecordPtr>{RecordPtr()} : What.Sources;
    const Busy busy(tr("Pasting records"), this, sources.size() > longPaste);
    Progress progress(sources.size());
    std::unordered_set<std::string> names;
    for (const RecordPtr& record : m_file.Parser.ByIndex())
        names.insert(m_activeEditor->UniqueName(record));
    std::optional<BulkInsert> bulk;
    if (sources.size() > 1)
        bulk.emplace(m_file.Parser, Before);
    for (const RecordPtr& source : sources) {
        const RecordPtr made = m_activeEditor->CreateObject(m_objectType, m_file.Parser, Before);
        if (!made)
            throw KeshError(errnum::General, "frmTXTEditor", m_activeEditor->GetLastError());
        Made.push_back(made);
        if (source)
            FillRecord(made, *source);
        progress.Done();
    }
    if (!What.FinishCut)
        NameRecords(Made, std::move(names), What.Sources.empty());
}

void frmTXTEditor::FillRecord(const RecordPtr& Made, const clsTXTObject& Source) {
    const auto index = Made->Index;
    const auto id = Made->ID;
    Source.CopyTo(*Made);
    Made->Index = index;
    Made->ID = id;
    static_cast<void>(m_activeEditor->InitObject(Made));
}

/// IDs of new records, and those that are empty or taken, are replaced.
void frmTXTEditor::NameRecords(const std::vector<RecordPtr>& Made,
                               std::unordered_set<std::string> Taken, bool AreNew) {
    for (const RecordPtr& record : Made) {
        const std::string name = m_activeEditor->UniqueName(record);
        if (!AreNew && !name.empty() && Taken.insert(name).second)
            continue;
        m_activeEditor->LornAssignUniqueObjectName(record);
        Taken.insert(m_activeEditor->UniqueName(record));
    }
}

/// Takes back what could not be finished.
void frmTXTEditor::Forget(const std::vector<RecordPtr>& Made) {
    LeavePanel(Made);
    static_cast<void>(m_file.Parser.RemoveObjects(Made));
    m_undo.RestoreStructure();
}

void frmTXTEditor::ListRecords(const std::vector<RecordPtr>& Made, const RecordPtr& Before) {
    ClearFilter(); // it might hide them
    const QModelIndex row = m_list->IndexOf(Before.get());
    m_list->Insert(row.isValid() ? row.row() : m_list->rowCount(), Made);
}

void frmTXTEditor::FinishCut(const std::vector<RecordPtr>& Objects) {
    auto* const source = qobject_cast<frmTXTEditor*>(RecordClipboard::Instance().ClipboardSource());
    if (source)
        source->DeleteObjects(Objects);
    else
        Say(tr("Cannot delete object from source window - maybe it was closed?"),
            BoxIcon::Exclamation);
    RecordClipboard::Instance().Clear();
}

void frmTXTEditor::OnDelete() {
    const std::vector<RecordPtr> records = SelectedRecords();
    if (records.empty())
        return;
    const QString question =
        records.size() == 1
            ? tr("Do you really want to delete the selected object ") + nameOf(records) + tr(" ?")
            : tr("Do you really want to delete the %1 selected objects ?").arg(records.size());
    if (Ui().ShowMessage(this, {tr("TXT Editor"), question, BoxIcon::Question,
                                BoxButtons::YesNo}) == Answer::Yes)
        DeleteObjects(records);
}

void frmTXTEditor::DeleteObjects(const std::vector<RecordPtr>& Objects) {
    TakeChanges();
    if (!ForgetInPanel(Objects)) {
        Say(tr("Error removing object from control."), BoxIcon::Critical);
        return;
    }
    if (!m_undo.Remove(Objects, tr("deletion of %1").arg(nameOf(Objects)))) {
        std::vector<RecordPtr> here;
        std::ranges::copy_if(Objects, std::back_inserter(here), [this](const RecordPtr& record) {
            return m_file.Parser.Find(record->ID) == record;
        });
        ReturnToPanel(here);
        Say(tr("Error removing object."), BoxIcon::Critical);
        return;
    }
    UpdateCaption();
}

/// All or none.
bool frmTXTEditor::ForgetInPanel(const std::vector<RecordPtr>& Objects) {
    for (std::size_t i = 0; i < Objects.size(); ++i) {
        bool gone = true;
        if (TellPanel([&](ObjectEditor& panel) { gone = panel.RemoveObject(Objects[i]); }) && gone)
            continue;
        ReturnToPanel(std::span(Objects).first(i));
        return false;
    }
    return true;
}

void frmTXTEditor::LeavePanel(std::span<const RecordPtr> Objects) {
    for (const RecordPtr& record : Objects)
        TellPanel([&](ObjectEditor& panel) { static_cast<void>(panel.RemoveObject(record)); });
}

void frmTXTEditor::ReturnToPanel(std::span<const RecordPtr> Objects) {
    for (const RecordPtr& record : Objects)
        TellPanel([&](ObjectEditor& panel) { panel.RestoreObject(record); });
}

void frmTXTEditor::OnRecordsAdded(const std::vector<RecordPtr>& Added) {
    ReturnToPanel(Added);
    if (m_replaying)
        return;
    FillList();
    SelectRecords(Added);
    UpdateCaption();
}

void frmTXTEditor::OnRecordsRemoved(const std::vector<RecordPtr>& Removed) {
    if (m_replaying)
        return;
    const int row = m_list->IndexOf(Removed.front().get()).row();
    const bool shown = std::ranges::find(Removed, m_selected) != Removed.end();
    {
        const QScopedValueRollback leaving(m_rowsLeave, true);
        m_list->Remove(Removed);
    }
    UpdateCount();
    UpdateCaption();
    const QModelIndex next = m_list->index(std::min(row, m_list->rowCount() - 1), 0);
    SelectRecord(shown ? m_list->Record(next) : m_selected); // whose index may be another now
}
