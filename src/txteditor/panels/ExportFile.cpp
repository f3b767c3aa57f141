#include "txteditor/panels/ExportFile.h"

#include "core/KeshError.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/LornFileDialog.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "ui/CommonBoxes.h"
#include "ui/TextCodec.h"
#include "ui/frmWait.h"

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ExportFile)
};

QString exportError(std::string_view reason) {
    return Texts::tr("Error in Export file: ") + ToScreen(reason);
}

/// An export cannot be loaded again.
void mayNotBe(const std::string& target, const clsTxtParser& source, const QString& why) {
    const auto from = RealPath(source.FileName);
    const auto to = RealPath(target);
    if (from && to && SamePlace(*from, *to))
        throw KeshError(errnum::General, "ExportFile", why.toStdString());
}

std::string proposedName(const clsTxtParser& source, bool keptDirectory) {
    std::string name = BaseName(NameOfFile(source.FileName), true) + "_export.txt";
    const auto place = RealPath(source.FileName);
    if (keptDirectory || !place)
        return name;
    const bool entry = IsCatalogPath(*place);
    const std::string directory = ParentDir(entry ? EntryPart(*place) : *place);
    name = JoinPath({directory, name});
    return entry ? BuildCatalogPath(name, CatalogPart(*place)) : name;
}

/// False for a filter that has no form, which is said.
bool knows(QWidget* owner, const ExportRequest& request, int filter) {
    const bool known = filter >= 1 && filter <= (request.Filter.count(u'|') + 1) / 2;
    if (!known)
        ShowBox(owner, request.Title, Texts::tr("Don't know how to export."), BoxIcon::Exclamation);
    return known;
}

/// False if the user does not want to replace a file.
bool ask(QWidget* owner, const clsTxtParser& source, const ExportRequest& request,
         LornFileDialog& dialog) {
    dialog.DialogTitle = request.Title;
    dialog.Filter = request.Filter;
    dialog.FileName = proposedName(source, !request.Kind.empty());
    dialog.NewEntry = NameOfFile(dialog.FileName);
    dialog.Kind = request.Kind;
    dialog.ShowSave();
    mayNotBe(dialog.FileName, source, request.Overwriting);
    return knows(owner, request, dialog.FilterIndex) &&
           OverwriteQuestion(dialog.FileName, ShownText(dialog.FileName), dialog.DialogTitle,
                             owner);
}

/// Gives what went wrong, empty if nothing did.
QString write(const std::string& name, const ExportRequest& request, int filter) {
    const std::int32_t file = LornFD_OpenFile(name, LORNFD_WRITE, LORNFD_CREATE, LORNFD_PLAIN);
    if (file == 0)
        return Texts::tr("Error opening file %1:").arg(ShownText(name)) + u'\n' +
               ToScreen(LornFDErrorText());
    try {
        std::string error = request.Write(file, filter);
        if (!error.empty())
            LornFD_AbandonFile(file);
        else if (LornFD_CloseFile(file) == 0)
            error = LornFDErrorText();
        return error.empty() ? QString() : exportError(error);
    } catch (...) {
        LornFD_AbandonFile(file);
        throw;
    }
}

} // namespace

bool ExportFile(QWidget* Owner, const clsTxtParser& Source, const ExportRequest& Request) {
    QString trouble;
    try {
        LornFileDialog dialog(Owner);
        if (!ask(Owner, Source, Request, dialog))
            return false;
        const Busy busy(Texts::tr("Saving %1").arg(ShownText(dialog.FileName)), Owner,
                        Request.LongWork);
        trouble = write(dialog.FileName, Request, dialog.FilterIndex);
    } catch (const KeshError& error) {
        if (error.Number() == errnum::Cancelled)
            return false;
        trouble = exportError(error.what());
    } catch (const std::exception& error) {
        trouble = exportError(error.what());
    }
    if (!trouble.isEmpty())
        ShowBox(Owner, Request.Title, trouble, BoxIcon::Critical);
    return trouble.isEmpty();
}
