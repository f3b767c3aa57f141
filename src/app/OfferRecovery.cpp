#include "app/OfferRecovery.h"

#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "txteditor/frmTXTEditor.h"

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OfferRecovery)
};

QString lines(std::initializer_list<QString> texts) {
    return QStringList(texts).join(u'\n');
}

QString whatIsLeft(const LeftJournal& left) {
    const QDateTime changed = QDateTime::fromMSecsSinceEpoch(left.Changed);
    return Texts::tr("Changes of file %1 were not saved when the program ended the last time.\n"
                     "Changes: %2, the last of them at %3.")
        .arg(ShownText(left.Base.Document), // at once: it may hold a "%2"
             QString::number(left.Commands.size()),
             QLocale().toString(changed, QLocale::ShortFormat));
}

/// Yes drops them.
bool mayDrop(QWidget* owner, const LeftJournal& left) {
    const QString text =
        lines({whatIsLeft(left),
               {},
               Texts::tr("The file is not as it was then, so the changes cannot be brought back."),
               Texts::tr("Do you want to drop them?")});
    const MessageRequest request{ProgramName(), text, BoxIcon::Exclamation, BoxButtons::YesNo,
                                 true};
    return Ui().ShowMessage(owner, request) == Answer::Yes;
}

Answer askAbout(QWidget* owner, const LeftJournal& left) {
    const QString text = lines({whatIsLeft(left),
                                {},
                                Texts::tr("Do you want to bring them back?"),
                                Texts::tr("Press Yes to open the file with the changes."),
                                Texts::tr("Press No to drop them."),
                                Texts::tr("Press Cancel to be asked at the next start.")});
    return Ui().ShowMessage(owner,
                            {ProgramName(), text, BoxIcon::Question, BoxButtons::YesNoCancel});
}

void offer(QWidget* owner, LeftJournal left, const std::function<frmTXTEditor*()>& newEditor) {
    if (!left.Fits) {
        if (mayDrop(owner, left))
            left.File.Remove();
        return;
    }
    switch (askAbout(owner, left)) {
    case Answer::Yes:
        newEditor()->Recover(std::move(left));
        return;
    case Answer::No:
        left.File.Remove();
        return;
    default:
        return;
    }
}

} // namespace

void OfferRecovery(QWidget* Owner, const std::function<frmTXTEditor*()>& NewEditor) {
    for (LeftJournal& left : FindLeftJournals(RecoveryDirectory()))
        offer(Owner, std::move(left), NewEditor);
}
