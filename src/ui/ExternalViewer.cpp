#include "ui/ExternalViewer.h"

#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "ui/CommonBoxes.h"

#include <utility>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ExternalViewer)
};

void say(QWidget* owner, const QString& text, BoxIcon icon) {
    ShowBox(owner, ProgramName(), text, icon);
}

void sayFailure(QWidget* owner, const QString& reason) {
    say(owner, Texts::tr("Error starting external 3D viewer: ") + reason, BoxIcon::Exclamation);
}

/// Writes the entry to a file of its own and puts that file's path in place of it; else a reason.
QString unpack(std::string& path) {
    const std::int32_t file =
        LornFD_OpenFile(path, LORNFD_READ, LORNFD_OPEN_EXISTING, LORNFD_AS_IS);
    const std::string_view content = file != 0 ? LornFD_ViewFile(file) : std::string_view();
    if (!content.data()) {
        QString reason = QString::fromStdString(LornFDErrorText());
        if (file != 0)
            LornFD_CloseFile(file);
        return reason;
    }
    path = JoinPath({Settings->TempDirectory(), BaseName(EntryPart(path), false) + ".bod"});
    QFile copy(QString::fromStdString(lornfd::nativePath(path)));
    const bool written = !Settings->TempDirectory().empty() &&
                         copy.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                         copy.write(content.data(), std::ssize(content)) == std::ssize(content) &&
                         copy.flush();
    LornFD_CloseFile(file);
    return written ? QString()
                   : Texts::tr("cannot write %1 (%2)").arg(copy.fileName(), copy.errorString());
}

} // namespace

QStringList ViewerArguments(const QString& Template, const QString& Path, const QString& Data) {
    QStringList arguments = QProcess::splitCommand(Template);
    for (QString& argument : arguments) {
        QStringList pieces = argument.split(QStringLiteral("%2"));
        pieces.replaceInStrings(QStringLiteral("%1"), Path);
        argument = pieces.join(Data);
    }
    return arguments;
}

void ShowIn3DViewer(QWidget* Owner, const std::string& Path, const std::string& Data) {
    const std::string viewer = Settings->Ext3DViewerPath();
    if (viewer.empty()) {
        say(Owner,
            Texts::tr(
                "You didn't specified path to external 3D viewer.\nGo to Settings and set it up."),
            BoxIcon::Information);
        return;
    }
    std::string shown = Path;
    if (!Settings->Ext3DViewerSupportsLornFD() && IsCatalogPath(Path))
        if (const QString reason = unpack(shown); !reason.isNull()) {
            sayFailure(Owner, reason);
            return;
        }
    const QStringList arguments = ViewerArguments(
        QString::fromStdString(Settings->Ext3DViewerCmdLine()),
        QString::fromStdString(lornfd::nativePath(shown)), QString::fromStdString(Data));
    if (!RunProgram(viewer, arguments))
        sayFailure(Owner, NotStartedText(viewer));
}
