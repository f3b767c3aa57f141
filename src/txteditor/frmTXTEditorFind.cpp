// Finding and filtering records in the TXT Editor's list.
#include "core/clsSettings.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/frmFind.h"

namespace {

constexpr auto settingsKey = "TE";
constexpr auto lastFind = "LastFindString";
constexpr int leastChoice = 8; ///< letters that a box of choices has room for

} // namespace

void frmTXTEditor::OnFind() {
    if (!m_find) {
        m_find = new frmFind(this);
        connect(m_find, &frmFind::OnFindNext, this, &frmTXTEditor::m_find_OnFindNext);
        connect(m_find, &frmFind::OnClose, this, &frmTXTEditor::m_find_OnClose);
    }
    const QString text = m_find->isVisible()
                             ? m_find->FindString()
                             : ToScreen(Settings->ReadRegValue(settingsKey, lastFind));
    m_find->ClearTag();
    m_find->ShowFind(text, false, this);
}

void frmTXTEditor::OnFindNext() {
    const QString text =
        m_find ? m_find->FindString() : ToScreen(Settings->ReadRegValue(settingsKey, lastFind));
    if (text.isEmpty())
        OnFind();
    else if (!FindNext(text, m_find && m_find->WholeWords(), m_find ? m_find->Tag : m_findTag))
        ShowBox(this, tr("Find"), tr("No more occurencies found."), BoxIcon::Information);
}

void frmTXTEditor::m_find_OnFindNext(bool WholeWords, bool ByID, QString& Text, QVariant& Tag,
                                     bool& Found) {
    Q_UNUSED(ByID);
    Found = FindNext(Text, WholeWords, Tag);
}

void frmTXTEditor::m_find_OnClose() {
    Settings->SaveRegValue(settingsKey, lastFind, m_find->FindString().toStdString(), false);
}

/// From the selected row on; behind it if that is where the last search ended. Tag is the key of
/// that row.
bool frmTXTEditor::FindNext(const QString& Text, bool WholeWords, QVariant& Tag) {
    const auto fits = [&](const QString& row) {
        return WholeWords ? row.compare(Text, Qt::CaseInsensitive) == 0
                          : row.contains(Text, Qt::CaseInsensitive);
    };
    const auto keyOf = [this](int row) { return m_list->index(row, 0).data(Qt::UserRole); };
    const int selected = std::max(0, m_list->IndexOf(m_selected.get()).row());
    const bool goOn = Tag.isValid() && Tag == keyOf(selected);
    for (int row = selected + (goOn ? 1 : 0); row < m_list->rowCount(); ++row) {
        const QModelIndex index = m_list->index(row, 0);
        if (!fits(index.data().toString()))
            continue;
        SelectRecord(m_list->Record(index));
        Tag = keyOf(row);
        return true;
    }
    return false;
}

void frmTXTEditor::OnFilter() {
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void frmTXTEditor::OfferFilters() {
    qDeleteAll(std::exchange(m_choices, {}));
    std::vector<RecordFilter> filters;
    TellPanel([&](ObjectEditor& panel) { filters = panel.Filters(); });
    QWidget* before = m_filter;
    for (const RecordFilter& filter : filters) {
        auto* box = new QComboBox(m_choiceRow);
        box->setObjectName(QStringLiteral("cmbFilter%1").arg(m_choices.size()));
        box->setAccessibleName(ToScreen(filter.Name));
        box->setToolTip(tr("List only the records of one choice: %1").arg(ToScreen(filter.Name)));
        box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        box->setMinimumWidth(leastChoice * fontMetrics().averageCharWidth());
        box->addItem(ToScreen(filter.Any));
        for (const std::string& choice : filter.Choices)
            box->addItem(ToScreen(choice));
        connect(box, &QComboBox::currentIndexChanged, this, &frmTXTEditor::ApplyFilter);
        m_choiceRow->layout()->addWidget(box);
        setTabOrder(before, box);
        before = box;
        m_choices.append(box);
    }
    setTabOrder(before, m_objectView);
    m_choiceRow->setVisible(!m_choices.isEmpty());
}

void frmTXTEditor::ApplyFilter() {
    const bool chosen = std::any_of(m_choices.cbegin(), m_choices.cend(),
                                    [](const QComboBox* box) { return box->currentIndex() > 0; });
    m_list->SetFilter(m_filter->text(),
                      chosen ? [this](const RecordPtr& record) { return PassesChoices(record); }
                             : RecordListModel::Test());
}

void frmTXTEditor::ClearFilter() {
    {
        const QSignalBlocker quiet(m_filter);
        m_filter->clear();
        for (QComboBox* box : m_choices) {
            const QSignalBlocker alsoQuiet(box);
            box->setCurrentIndex(0);
        }
    }
    if (m_list->HasFilter())
        ApplyFilter();
}

bool frmTXTEditor::PassesChoices(const RecordPtr& Record) const {
    try {
        for (int filter = 0; filter < m_choices.size(); ++filter)
            if (const int choice = m_choices[filter]->currentIndex() - 1;
                choice >= 0 && !m_activeEditor->Passes(Record, filter, choice))
                return false;
    } catch (const std::exception&) { // better shown than lost
    }
    return true;
}

void frmTXTEditor::OnFiltered() {
    if (m_selected)
        m_hidden = m_selected;
    UpdateCount();
    const RecordPtr wanted = std::exchange(m_hidden, {});
    if (m_list->IndexOf(wanted.get()).isValid() || !wanted) {
        SelectRecord(wanted);
        return;
    }
    ShowObject({});
    m_hidden = wanted; // comes back with its row
}
