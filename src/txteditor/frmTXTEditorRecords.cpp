// The record list, the views of one record and their panel in the TXT Editor.
#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/RecordDataModel.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/frmEdit.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/frmText.h"
#include "ui/frmWait.h"

namespace {

constexpr std::size_t longSort = 100'000; ///< records from which the wait window shows
constexpr int rawTab = 0;
constexpr int panelTab = 1;
constexpr int messageTime = 10'000; ///< milliseconds in the status bar

/// What a panel says, or a text in brackets if it fails.
template <class Ask>
QString askPanel(const Ask& ask, const char* failure) {
    try {
        return ToScreen(ask());
    } catch (const std::exception&) {
        return frmTXTEditor::tr(failure);
    }
}

} // namespace

void frmTXTEditor::SelectFileType(std::int32_t OType) {
    std::int32_t info = 0;
    try {
        m_objectType = OType;
        info = PickPanel(OType);
    } catch (const std::exception& failure) {
        m_activeEditor = nullptr;
        Say(tr("Error in SelectFileType: ") + ToScreen(failure.what()), BoxIcon::Critical);
    }
    for (ObjectEditor* panel : m_editors)
        panel->setVisible(panel == m_activeEditor);
    // The tab alone: on the way of the tab widget all that stands in the page would hear of it too.
    m_tab->tabBar()->setTabEnabled(panelTab, m_activeEditor != nullptr);
    m_tab->setCurrentIndex(m_activeEditor ? panelTab : rawTab);
    ApplyPanelInfo(info);
    OfferFilters();
    UpdateNameColumn();
    UpdateActions();
}

/// Its panelinfo bits.
std::int32_t frmTXTEditor::PickPanel(std::int32_t OType) {
    m_activeEditor = nullptr;
    const auto serves = [&](ObjectEditor* panel) {
        std::int32_t type = OType;
        return panel->LornQueryInterfaceEx(type);
    };
    const auto found = std::find_if(m_editors.begin(), m_editors.end(), serves);
    if (found == m_editors.end())
        return 0;
    if (!(*found)->Init(m_file.Parser)) {
        Say(ToScreen((*found)->GetLastError()), BoxIcon::Critical);
        return 0;
    }
    m_activeEditor = *found;
    m_tab->setTabText(panelTab, ToScreen(m_activeEditor->PageName(OType)));
    const std::int32_t info = m_activeEditor->LornQueryInfo(OType);
    std::string report;
    if (m_activeEditor->Validate(report))
        return info;
    frmText text(this);
    text.setWindowTitle(tr("Errors in file data"));
    text.SetText(ToScreen(report));
    text.SetGoTo([this](const QString& line) {
        m_reported = m_activeEditor->ReportedObject(line);
        return m_reported != nullptr;
    });
    text.MyShow();
    return info;
}

bool frmTXTEditor::TellPanel(const std::function<void(ObjectEditor&)>& Call) {
    try {
        if (m_activeEditor)
            Call(*m_activeEditor);
        return true;
    } catch (const std::exception& failure) {
        Tell(ToScreen(failure.what()));
        return false;
    }
}

void frmTXTEditor::Tell(const QString& Text) {
    statusBar()->showMessage(Text, messageTime);
}

bool frmTXTEditor::FinishEntry() {
    bool finished = true;
    return !TellPanel([&](ObjectEditor& panel) { finished = panel.FinishEntry(); }) || finished;
}

void frmTXTEditor::ApplyPanelInfo(std::int32_t Info) {
    KeepClassWidth();
    if ((Info & panelinfo::HasClasses) != 0) {
        m_list->SetClassColumn([this](const RecordPtr& record) {
            return askPanel([&] { return m_activeEditor->GetClass(record); },
                            QT_TR_NOOP("[error getting class]"));
        });
        m_objectView->header()->setStretchLastSection(false);
        m_objectView->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        m_objectView->setColumnWidth(1, m_classWidth);
    } else {
        m_list->SetClassColumn({});
        m_objectView->header()->setStretchLastSection(true);
    }
    m_names[0]->setEnabled((Info & panelinfo::HasNames) != 0 && Settings->LoadDescriptions());
    m_names[1]->setEnabled((Info & panelinfo::HasRaces) != 0);
}

void frmTXTEditor::KeepClassWidth() {
    if (m_list->columnCount() > 1)
        m_classWidth = m_objectView->columnWidth(1);
}

void frmTXTEditor::UpdateCaption() {
    QString caption = tr("TXT Editor");
    if (HasFile())
        caption +=
            QStringLiteral(" - [%1 (%2)]").arg(ShownText(m_file.Parser.FileName), TypeText());
    if (m_file.Parser.CheckDirty())
        caption += QStringLiteral(" *");
    setWindowTitle(caption);
}

QString frmTXTEditor::TypeText() const {
    const QString text = askPanel(
        [&] {
            return m_activeEditor ? m_activeEditor->ObjectTypeName(m_objectType) : std::string();
        },
        QT_TR_NOOP("[error getting object type]"));
    return text.isEmpty() ? tr("unknown") : text;
}

NameMode frmTXTEditor::Mode() const {
    return m_activeEditor ? PickedMode() : NameMode::ID;
}

NameMode frmTXTEditor::PickedMode() const {
    const auto on = std::find_if(m_names.begin(), m_names.end(),
                                 [](const QRadioButton* button) { return button->isChecked(); });
    return static_cast<NameMode>(on - m_names.begin());
}

QString frmTXTEditor::SearchText(const RecordPtr& Record) const {
    return askPanel([&] { return m_activeEditor->SearchText(Record); },
                    QT_TR_NOOP("[error getting name]"));
}

QString frmTXTEditor::RowText(const RecordPtr& Record) const {
    const auto id = [&]() -> std::string {
        return m_activeEditor ? m_activeEditor->ObjectName(Record)
                              : std::string(Record->ObjectName());
    };
    const auto idUnlessText = [&](const std::string& text) { return text.empty() ? id() : text; };
    const NameMode mode = Mode();
    if (mode == NameMode::Name)
        return askPanel([&] { return idUnlessText(m_activeEditor->GetResourceName(Record)); },
                        QT_TR_NOOP("[error getting description]"));
    if (mode == NameMode::Race)
        return askPanel([&] { return idUnlessText(m_activeEditor->GetRace(Record)); },
                        QT_TR_NOOP("[error getting race]"));
    return askPanel(id, QT_TR_NOOP("[error getting name]"));
}

void frmTXTEditor::UpdateNameColumn() {
    const std::array headers = {tr("Name"), tr("Race"), tr("ID")};
    m_list->SetNameColumn([this](const RecordPtr& record) { return RowText(record); },
                          HasFile() ? headers[static_cast<std::size_t>(Mode())] : tr("Name/ID"),
                          m_activeEditor
                              ? [this](const RecordPtr& record) { return SearchText(record); }
                              : RecordListModel::TextOf());
    UpdateObjectViews();
}

std::vector<RecordPtr> frmTXTEditor::ListedRecords() {
    const clsTxtParser& parser = m_file.Parser;
    if (!m_sort->isChecked())
        return parser.ByIndex();
    const Busy busy(tr("Sorting the records"), this, parser.ByIndex().size() > longSort);
    std::vector<RecordPtr> records;
    records.reserve(parser.ByName().size());
    for (const clsTXTObject* record : parser.ByName())
        records.push_back(parser.FindIndex(record->Index));
    return records;
}

void frmTXTEditor::FillList() {
    const RecordPtr selected = m_selected;
    if (selected && m_list->HasFilter())
        m_hidden = selected; // its row may come later
    m_list->SetRecords(ListedRecords());
    UpdateCount();
    SelectRecord(selected);
}

void frmTXTEditor::UpdateCount() {
    const int all = m_list->RecordCount();
    m_barCount->setText(m_list->HasFilter()
                            ? tr("%1 of %2 objects").arg(m_list->rowCount()).arg(all)
                            : tr("%1 objects").arg(all));
}

void frmTXTEditor::SelectRecord(const RecordPtr& Record) {
    const QModelIndex row = m_list->IndexOf(Record.get());
    if (!row.isValid()) {
        ShowObject({});
        return;
    }
    const bool stood = m_objectView->selectionModel()->isSelected(row);
    // The view itself would heed the keys that are held for a shortcut. Shows it if another was on.
    m_objectView->selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect |
                                                             QItemSelectionModel::Rows);
    if (stood || Record != m_selected)
        ShowObject(Record);
    m_objectView->scrollTo(row);
}

void frmTXTEditor::SelectRecords(const std::vector<RecordPtr>& Records) {
    const bool hidden = !m_list->IndexOf(Records.front().get()).isValid();
    if (m_list->HasFilter() && (hidden || m_list->Filtering())) // what comes may hide it
        ClearFilter();
    SelectRecord(Records.front());
    if (Records.size() == 1)
        return;
    std::unordered_set<const clsTXTObject*> wanted;
    for (const RecordPtr& record : Records)
        wanted.insert(record.get());
    QItemSelection rows;
    for (int row = 0; row < m_list->rowCount(); ++row) {
        const QModelIndex index = m_list->index(row, 0);
        if (!wanted.contains(m_list->Record(index).get()))
            continue;
        if (!rows.isEmpty() && rows.last().bottom() == row - 1)
            rows.last() = QItemSelectionRange(rows.last().topLeft(), index);
        else
            rows.append(QItemSelectionRange(index));
    }
    m_objectView->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect |
                                                     QItemSelectionModel::Rows);
}

void frmTXTEditor::OnSelection() {
    if (m_rowsLeave) // some that are still selected are gone from the panel
        return;
    const QItemSelectionModel* selection = m_objectView->selectionModel();
    QModelIndex row = selection->currentIndex();
    if (!selection->isSelected(row))
        row = selection->selection().value(0).topLeft();
    const RecordPtr record = m_list->Record(row);
    if (record == m_selected)
        return;
    TakeChanges();
    ShowObject(record);
}

void frmTXTEditor::ShowObject(const RecordPtr& Record) {
    m_selected = Record;
    UpdateObjectViews();
    if (!m_activeEditor)
        return;
    try {
        m_activeEditor->ShowObject(Record, m_objectType);
    } catch (const std::exception& failure) {
        Say(tr("Error showing object: ") + ToScreen(failure.what()), BoxIcon::Critical);
    }
}

void frmTXTEditor::UpdateObjectViews() {
    const int field = m_dataView->currentIndex().row();
    m_data->ShowRecord(m_selected);
    m_dataView->setCurrentIndex(m_data->index(field, 0)); // the same field of the next record
    UpdateWatch();
    m_objectName->setText(m_selected ? RowText(m_selected) : QString());
    m_barObject->setText(m_selected ? tr("Selected object index: %1").arg(m_selected->Index)
                                    : QString());
    UpdateActions();
}

void frmTXTEditor::UpdateWatch() {
    m_watch->Watch(m_selected, m_watchFrom->text(), m_watchTo->text());
}

void frmTXTEditor::OnEditField() {
    if (!HasField())
        return;
    frmEdit dialog(this);
    dialog.FileEncoding = [this] { return EncodingOf(m_file.Parser); };
    dialog.ShowProperty(nullptr, m_selected, m_dataView->currentIndex().row());
    TakeChanges();
    if (dialog.ModalResult() != 1)
        return;
    TellPanel([this](ObjectEditor& panel) { panel.ObjectReset(m_selected); });
    m_list->Refresh(m_selected.get());
    ShowObject(m_selected);
    UpdateCaption();
}

void frmTXTEditor::TakeChanges() {
    if (m_undo.TakeChanges())
        UpdateCaption();
}

void frmTXTEditor::OnObjectChanged(const RecordPtr& Record) {
    TakeChanges();
    m_list->Refresh(Record.get());
    if (Record == m_selected)
        UpdateObjectViews();
    UpdateCaption();
}

void frmTXTEditor::OnRecordReset(const RecordPtr& Record) {
    TellPanel([&](ObjectEditor& panel) { panel.ObjectReset(Record); });
    if (m_replaying)
        return;
    m_list->Refresh(Record.get());
    SelectRecords({Record});
    UpdateCaption();
}
