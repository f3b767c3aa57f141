#include "txteditor/panels/ExportShipsFile.h"

#include "core/KeshError.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/LornFileDialog.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "tdata/ShipExport.h"
#include "ui/CommonBoxes.h"
#include "ui/TextCodec.h"
#include "ui/frmWait.h"

namespace {

constexpr const char* exportKind = "TE export";
constexpr std::size_t longExport = 10'000; ///< ships from which the wait window shows

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ExportShipsFile)
};

QString shown(const std::string& path) {
    return QString::fromStdString(ShownPath(path));
}

QString exportError(std::string_view reason) {
    return Texts::tr("Error in Export file: ") + ToScreen(reason);
}

/// An export cannot be loaded again.
void mayNotBe(const std::string& target, const clsTxtParser& ships) {
    const auto source = RealPath(ships.FileName);
    const auto real = RealPath(target);
    if (source && real && SamePlace(*source, *real))
        throw KeshError(
            errnum::General, "ExportShipsFile",
            Texts::tr("The ships would be lost: an export cannot be loaded again.").toStdString());
}

/// False if the user does not want to replace a file.
bool ask(QWidget* owner, const clsTxtParser& ships, LornFileDialog& dialog) {
    dialog.DialogTitle = Texts::tr("Export TShips");
    dialog.Filter =
        Texts::tr("Semicolon delimeted file (*.txt)|*.txt|Record structure (*.txt)|*.txt");
    dialog.FileName = BaseName(NameOfFile(ships.FileName), true) + "_export.txt";
    dialog.NewEntry = dialog.FileName;
    dialog.Kind = exportKind;
    dialog.ShowSave();
    mayNotBe(dialog.FileName, ships);
    return OverwriteQuestion(dialog.FileName, shown(dialog.FileName), dialog.DialogTitle, owner);
}

/// Gives what went wrong, empty if nothing did.
QString write(const std::string& name, const clsTxtParser& ships, const ShipFields& fields,
              ExportForm form) {
    const std::int32_t file = LornFD_OpenFile(name, 1, 1, LORNFD_PLAIN);
    if (file == 0)
        return Texts::tr("Error opening file %1:").arg(shown(name)) + u'\n' +
               ToScreen(LornFDErrorText());
    try {
        std::string error;
        if (!ExportShips(file, ships, fields, form, error))
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

bool ExportShipsFile(QWidget* Owner, const clsTxtParser& Ships, const ShipFields& Fields) {
    const QString title = Texts::tr("Export TShips");
    QString trouble;
    try {
        LornFileDialog dialog(Owner);
        if (!ask(Owner, Ships, dialog))
            return false;
        const Busy busy(Texts::tr("Saving %1").arg(shown(dialog.FileName)), Owner,
                        Ships.ByIndex().size() > longExport);
        trouble = write(dialog.FileName, Ships, Fields,
                        dialog.FilterIndex == 2 ? ExportForm::Records : ExportForm::Table);
    } catch (const KeshError& error) {
        if (error.Number() == errnum::Cancelled)
            return false;
        trouble = exportError(error.what());
    } catch (const std::exception& error) {
        trouble = exportError(error.what());
    }
    if (!trouble.isEmpty())
        ShowBox(Owner, title, trouble, BoxIcon::Critical);
    return trouble.isEmpty();
}
