#include "ui/CommonBoxes.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "lornfd/lornfd.h"

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("CommonBoxes", text);
}

/// A stored path as the platform writes it.
QString nativePath(std::string path) {
    if (QDir::separator() == u'/')
        ReplaceAll(path, "\\", "/");
    return QString::fromStdString(path);
}

} // namespace

void ValueError(QWidget* Owner, const QString& Title, std::string_view Name, int Kind) {
    ShowBox(Owner, Title, QString::fromStdString(ValueErrorText(Name, Kind)), BoxIcon::Exclamation);
}

bool OverwriteQuestion(const std::string& Name, const QString& Shown, const QString& Title,
                       QWidget* Owner, BoxIcon Icon) {
    if (LornFD_FileExists(Name) == 0)
        return true;
    const QString text = u'"' + Shown + tr("\" already exists.\n\nDo you want to overwrite it?");
    return Ui().ShowMessage(Owner, {Title, text, Icon, BoxButtons::YesNo}) == Answer::Yes;
}

bool RunGame(QWidget* Owner) {
    const QString title = QString::fromStdString(ProgramTitle());
    const QString game = nativePath(Settings->KeshEXEPath());
    if (game.isEmpty()) {
        ShowBox(
            Owner, title,
            tr("Program cannot found registry entry of Kesh Origins. You will have to specify path "
               "to the game executable in the Settings window."),
            BoxIcon::Exclamation);
        return false;
    }
    if (Ui().RunProgram(game, {}))
        return true;
    ShowBox(Owner, title, tr("Error starting program: ") + game, BoxIcon::Exclamation);
    return false;
}

void ShowHelp(QWidget* Owner, std::string_view Topic) {
    const QDir pages(
        QFileInfo(nativePath(Settings->HelpPath())).dir().filePath(QStringLiteral("help")));
    const std::string name = Topic.empty() ? "index.html" : std::string(Topic);
    const QString page = pages.filePath(QString::fromStdString(name));
    const bool installed = QFileInfo::exists(page);
    if (installed && Ui().OpenUrl(QUrl::fromLocalFile(page)))
        return;
    const QString what =
        installed ? tr("No browser was found to show the help:\n") : tr("Help is not installed:\n");
    ShowBox(Owner, QString::fromStdString(ProgramTitle()), what + QDir::toNativeSeparators(page),
            BoxIcon::Exclamation);
}

void HelpOnF1(QWidget* Window, const char* Topic) {
    auto* key = new QShortcut(QKeySequence::HelpContents, Window);
    QObject::connect(key, &QShortcut::activated, Window,
                     [Window, Topic] { ShowHelp(Window, Topic); });
}
