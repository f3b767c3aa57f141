// Finding and filtering records in the TXT Editor's list.
#include "core/clsSettings.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/frmFind.h"

namespace {

constexpr auto settingsKey = "TE";
constexpr auto lastFind = "LastFindString";

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
