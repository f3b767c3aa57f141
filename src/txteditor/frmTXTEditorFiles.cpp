// Opening, saving and closing in the TXT Editor.
#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "tdata/mdlKeshConst.h"
#include "txteditor/RecordListModel.h"
#include "txteditor/TFileDialog.h"
#include "txteditor/frmTXTEditor.h"
#include "ui/CommonBoxes.h"
#include "ui/frmFind.h"
#include "ui/frmWait.h"

namespace {

constexpr std::int64_t longWork = std::int64_t{16}
                                  << 20; ///< bytes from which the wait window shows

QString lines(std::initializer_list<QString> texts) {
    return QStringList(texts).join(u'\n');
}

std::int32_t fileTypeOf(int filterIndex) {
    switch (filterIndex) {
    case 1:
        return LORNFD_PLAIN;
    case 2:
        return Settings->Ashfall() ? LORNFD_ZSTD : LORNFD_GZIP;
    default:
        return LORNFD_AS_IS;
    }
}

} // namespace

void frmTXTEditor::Say(const QString& Text, BoxIcon Icon) {
    ShowBox(this, tr("TXT Editor"), Text, Icon);
}

Answer frmTXTEditor::AskAboutChanges() {
    TakeChanges();
    if (!m_file.Parser.CheckDirty())
        return Answer::No;
    return Ui().ShowMessage(
        this, {tr("TXT Editor"),
               lines({tr("You have changed data in file ") + ShownText(m_file.Parser.FileName),
                      tr("Do you want to save your changes?")}),
               BoxIcon::Exclamation, BoxButtons::YesNoCancel});
}

bool frmTXTEditor::MayClose() {
    switch (AskAboutChanges()) {
    case Answer::Yes:
        return SaveFile();
    case Answer::Cancel:
        return false;
    default:
        return true;
    }
}

void frmTXTEditor::OpenFile(std::string Name) {
    if (!FinishEntry())
        return;
    const Answer answer = AskAboutChanges();
    if (answer == Answer::Yes)
        SaveFile();
    if (answer != Answer::No)
        return;
    if (Name.empty())
        Name = ChooseTFileToOpen(this).value_or(std::string());
    else if (Name == "vfs://")
        Name = ChooseTFileInView(this).value_or(std::string());
    if (!Name.empty())
        LoadFile(Name);
}

void frmTXTEditor::LoadFile(const std::string& Name) {
    clsTFile::Result result;
    {
        const Busy busy(tr("Loading %1").arg(ShownText(Name)), this, FileSizeHint(Name) > longWork);
        result = m_file.Open(Name);
    }
    const bool loaded = result.Kind == clsTFile::Outcome::Done;
    if (loaded || result.Kind == clsTFile::Outcome::NotLoaded)
        ShowFile();
    if (loaded)
        AddRecent(Name);
    else
        ReportOpenFailure(Name, result);
}

void frmTXTEditor::ShowFile() {
    m_undo.Clear();
    BeginJournal();
    FollowDisk();
    m_selected.reset();
    m_hidden.reset();
    ClearFilter();
    m_findTag.clear();
    if (m_find)
        m_find->ClearTag();
    m_list->SetRecords({});
    SelectFileType(HasFile() ? m_file.Parser.otype() : noType);
    FillList();
    UpdateCaption();
    if (const RecordPtr reported = std::exchange(m_reported, {}))
        SelectRecords({reported});
}

void frmTXTEditor::ReportOpenFailure(const std::string& Name, const clsTFile::Result& Failure) {
    const QString reason = ToScreen(Failure.Reason);
    switch (Failure.Kind) {
    case clsTFile::Outcome::NotFound:
        Say(tr("File ") + ShownText(Name) + tr(" not found."), BoxIcon::Exclamation);
        return;
    case clsTFile::Outcome::NotOpened:
        Say(lines({tr("Error opening file: "), ShownText(Name), reason}), BoxIcon::Critical);
        break;
    default:
        Say(lines({tr("Error loading from file: "), ShownText(Name), reason}), BoxIcon::Critical);
        break;
    }
    RemoveRecent(Name);
}

void frmTXTEditor::OpenDropped(const QString& Path) {
    OpenFile(FromPlatform(Path.toStdString()));
}

bool frmTXTEditor::SaveFile() {
    if (!HasFile())
        return false;
    const auto choice = ChooseTFileToSave(this, SaveStart());
    if (!choice)
        return false;
    const auto name = RealPath(choice->Name);
    if (!name) {
        Say(tr("File ") + ShownText(choice->Name) + tr(" not found."), BoxIcon::Exclamation);
        return false;
    }
    if (!MayReplace(*name) || !MayLoseData())
        return false;
    TakeChanges(); // also of what was finished by going to the dialogs
    clsTFile::Result result;
    {
        const Busy busy(tr("Saving %1").arg(ShownText(*name)), this,
                        FileSizeHint(m_file.Parser.FileName) > longWork);
        result = m_file.Save(*name, fileTypeOf(choice->FilterIndex),
                             [this](const JournalBase& base) { AnnounceSave(base); });
    }
    if (result.Kind != clsTFile::Outcome::Done) {
        const QString what = result.Kind == clsTFile::Outcome::NotOpened
                                 ? tr("Error opening file: ")
                                 : tr("Error writing data to file: ");
        Say(lines({what, ToScreen(result.Reason)}), BoxIcon::Critical);
        return false;
    }
    m_undo.MarkSaved();
    BeginJournal();
    FollowDisk();
    AddRecent(*name);
    UpdateCaption();
    return true;
}

std::string frmTXTEditor::SaveStart() const {
    const std::string stored = m_file.StoredPath();
    return stored.empty() ? JoinPath({Settings->DataRoot(), StripVFS(m_file.Parser.FileName)})
                          : stored;
}

bool frmTXTEditor::MayReplace(const std::string& Name) {
    if (!OverwriteQuestion(Name, ShownText(Name), tr("TXT Editor"), this))
        return false;
    if (LornFD_FileExists(Name) == 0 || !m_file.ChangedOnDisk(Name))
        return true;
    const QString text = tr("\"%1\" was changed by another program since it was opened here.\n\n"
                            "Do you want to replace it, so that those changes are lost?")
                             .arg(ShownText(Name));
    return Ui().ShowMessage(this, {tr("TXT Editor"), text, BoxIcon::Exclamation, BoxButtons::YesNo,
                                   true}) == Answer::Yes;
}

bool frmTXTEditor::MayLoseData() {
    const auto may = [this](const QString& finding, const QString& question) {
        const QString text = lines({finding, QString(), question});
        return finding.isEmpty() ||
               Ui().ShowMessage(this, {tr("TXT Editor"), text, BoxIcon::Exclamation,
                                       BoxButtons::YesNo, true}) == Answer::Yes;
    };
    const QString otherForm = tr("Files of this type have a form of their own. They are written as "
                                 "plain records, which are not read back as this file was read.");
    const QString anyway = tr("Do you want to save the file anyway?");
    return may(m_file.ReadsBack() ? QString() : otherForm, anyway) &&
           may(ToScreen(m_file.Parser.LeftOut()), tr("Do you want to save the file without it?")) &&
           may(ToScreen(m_file.Parser.Misfit()), anyway);
}

void frmTXTEditor::AddRecent(const std::string& Name) {
    m_recent.Add(Name);
    UpdateRecentActions();
}

void frmTXTEditor::RemoveRecent(const std::string& Name) {
    m_recent.Remove(Name);
    UpdateRecentActions();
}
