// What the TXT Editor keeps against crashes, and what it does when another program changes the
// file.
#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "files/mdlPaths.h"
#include "txteditor/frmTXTEditor.h"

namespace {

constexpr int lookAgain = 500; ///< milliseconds

} // namespace

std::string RecoveryDirectory() {
    return JoinPath({Settings->StateDirectory(), "recovery"});
}

void frmTXTEditor::BeginJournal() {
    m_flush.stop();
    m_journal.Begin([this] { return m_file.Base(); });
}

/// Trouble with it is said in the status bar: the work itself goes on.
void frmTXTEditor::FlushJournal() {
    m_flush.stop();
    ShowTrouble(m_journal.Flush());
}

void frmTXTEditor::AnnounceSave(const JournalBase& Base) {
    m_flush.stop();
    ShowTrouble(m_journal.AnnounceSave(Base));
}

void frmTXTEditor::ShowTrouble(const std::string& Reason) {
    if (!Reason.empty())
        statusBar()->showMessage(ToScreen(Reason));
    if (m_journal.HasPending())
        m_flush.start(); // again
}

void frmTXTEditor::Recover(LeftJournal Left) {
    const std::string document = Left.Base.Document;
    // The view may have another file under that name by now.
    LoadFile(RealPath(document) == Left.Base.StoredPath ? document : Left.Base.StoredPath);
    const bool fits = HasFile() && m_file.Base().IsState(Left.Base) &&
                      StepsFit(m_file.Parser.ByIndex().size(), Left.Commands);
    if (!fits) {
        Say(tr("File %1 is not as it was when it was changed. The changes cannot be brought back "
               "into it.")
                .arg(ShownText(document)),
            BoxIcon::Exclamation);
        return;
    }
    m_replaying = true;
    const bool good = m_undo.Replay(Left.Commands, tr("recovered changes"));
    m_replaying = false;
    if (good)
        m_journal.TakeOver(std::move(Left));
    else
        Say(tr("Not all changes of file %1 could be brought back.").arg(ShownText(document)),
            BoxIcon::Exclamation);
    FillList();
    UpdateCaption();
    UpdateActions();
}

void frmTXTEditor::FollowDisk() {
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    if (HasFile())
        m_watcher.addPath(QString::fromStdString(m_file.ContainerPath()));
}

void frmTXTEditor::LookAtDisk() {
    if (QGuiApplication::overrideCursor()) { // amid work that lets events through
        QTimer::singleShot(lookAgain, this, &frmTXTEditor::LookAtDisk);
        return;
    }
    if (m_watcher.files().isEmpty())
        FollowDisk(); // what it held was replaced, perhaps by a save of ours next to this file
    // A box amid an action is no time for it either: the window becomes active again behind it.
    if (QApplication::activeModalWidget() || !isActiveWindow() || !HasFile() ||
        !m_file.NoticeChange())
        return;
    TakeChanges();
    QString question = tr("File %1 was changed by another program.\nDo you want to load it again?")
                           .arg(ShownText(m_file.Parser.FileName));
    const bool changed = m_file.Parser.CheckDirty();
    if (changed)
        question += u'\n' + tr("Your changes are lost then.");
    if (Ui().ShowMessage(this, {tr("TXT Editor"), question, BoxIcon::Exclamation, BoxButtons::YesNo,
                                changed}) == Answer::Yes)
        LoadFile(std::string(m_file.Parser.FileName));
}

void frmTXTEditor::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        QMetaObject::invokeMethod(this, &frmTXTEditor::LookAtDisk, Qt::QueuedConnection);
}
