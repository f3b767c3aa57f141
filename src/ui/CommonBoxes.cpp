#include "ui/CommonBoxes.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommonBoxes)
};

/// A stored path as the platform finds it.
QString nativePath(const std::string& path) {
    return QString::fromStdString(lornfd::resolvePath(path));
}

} // namespace

void ValueError(QWidget* Owner, const QString& Title, std::string_view Name, int Kind) {
    ShowBox(Owner, Title, QString::fromStdString(ValueErrorText(Name, Kind)), BoxIcon::Exclamation);
}

bool OverwriteQuestion(const std::string& Name, const QString& Shown, const QString& Title,
                       QWidget* Owner, BoxIcon Icon) {
    if (LornFD_FileExists(Name) == 0)
        return true;
    const QString text =
        u'"' + Shown + Texts::tr("\" already exists.\n\nDo you want to overwrite it?");
    return Ui().ShowMessage(Owner, {Title, text, Icon, BoxButtons::YesNo}) == Answer::Yes;
}

bool RunProgram(const std::string& Path, const QStringList& Arguments) {
    return !Path.empty() && Ui().RunProgram(nativePath(Path), Arguments);
}

QString NotStartedText(const std::string& Path) {
    const QFileInfo program(nativePath(Path));
    const QString reason = !program.isFile() ? Texts::tr("%1\nThere is no such file.")
                           : !program.isExecutable()
                               ? Texts::tr("%1\nThe file is not a program.")
                               : Texts::tr("%1\nThe system could not start it.");
    return reason.arg(program.filePath());
}

bool StartProgram(QWidget* Owner, const std::string& Path) {
    if (RunProgram(Path))
        return true;
    ShowBox(Owner, ProgramName(), Texts::tr("Error starting program: ") + NotStartedText(Path),
            BoxIcon::Exclamation);
    return false;
}

bool RunGame(QWidget* Owner) {
    const std::string game = Settings->KeshEXEPath();
    if (!game.empty())
        return StartProgram(Owner, game);
    ShowBox(
        Owner, ProgramName(),
        Texts::tr(
            "Program cannot found registry entry of Kesh Origins. You will have to specify path "
            "to the game executable in the Settings window."),
        BoxIcon::Exclamation);
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
    const QString what = installed ? Texts::tr("No browser was found to show the help:\n")
                                   : Texts::tr("Help is not installed:\n");
    ShowBox(Owner, ProgramName(), what + QDir::toNativeSeparators(page), BoxIcon::Exclamation);
}

void HelpOnF1(QWidget* Window, const char* Topic) {
    auto* key = new QShortcut(QKeySequence::HelpContents, Window);
    QObject::connect(key, &QShortcut::activated, Window,
                     [Window, Topic] { ShowHelp(Window, Topic); });
}
