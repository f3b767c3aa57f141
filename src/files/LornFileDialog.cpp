#include "files/LornFileDialog.h"

#include "core/KeshError.h"
#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/frmCATDialog.h"
#include "files/mdlPaths.h"
#include "lornfd/lornfd.h"
#include "lornfd/paths.h"
#include "ui/TextCodec.h"

namespace {

constexpr const char* directoriesKey = "Dialogs";

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LornFileDialog)
};

bool isCatalogFile(const std::string& path) {
    return !IsCatalogPath(path) && lornfd::equalNoCase(ExtensionOf(path), "cat");
}

bool leadsIntoCatalog(const std::string& path) {
    return IsVFSPath(path) || IsCatalogPath(path) || isCatalogFile(path);
}

} // namespace

std::string LornFileDialog::KeptDirectory(const std::string& Kind) {
    return Kind.empty() ? std::string() : Settings->ReadRegValue(directoriesKey, Kind);
}

void LornFileDialog::KeepDirectory(const std::string& Kind, const std::string& Directory) {
    if (!Kind.empty())
        Settings->SaveRegValue(directoriesKey, Kind, Directory, true);
}

void LornFileDialog::ShowOpen() {
    Show(false);
}

void LornFileDialog::ShowSave() {
    Show(true);
}

void LornFileDialog::Show(bool Save) {
    if (DialogTitle.isEmpty())
        DialogTitle = Save ? Texts::tr("Save") : Texts::tr("Open");
    Cancelled = false;
    if (const std::string kept = KeptDirectory(Kind); QFileInfo(ShownText(kept)).isDir())
        InitDir = kept;
    const auto chosen = [&] {
        return leadsIntoCatalog(FileName) ? ShowCatalog(Save) : ShowCommon(Save);
    };
    do {
        if (Save)
            FilterIndex = FilterForExtension(Filter, QString::fromStdString(ExtensionOf(FileName)),
                                             FilterIndex);
    } while (!chosen());
    if (!IsVFSPath(FileName))
        KeepDirectory(Kind, ParentDir(CatalogPart(FileName)));
}

bool LornFileDialog::ShowCommon(bool Save) {
    const std::string directory = ParentDir(FileName);
    const FileRequest request{DialogTitle, Filter, FilterIndex,
                              ShownText(directory.empty() ? InitDir : directory),
                              ShownText(FileName)};
    const auto choice = Save ? Ui().ShowSave(m_owner, request) : Ui().ShowOpen(m_owner, request);
    if (!choice)
        Cancel();
    FilterIndex = choice->FilterIndex;
    const QString& name = choice->FileName;
    const bool complete = !Save || name.contains(QStringLiteral("::"));
    FileName =
        FromPlatform((complete ? name : WithExtension(name, Filter, FilterIndex)).toStdString());
    if (isCatalogFile(FileName))
        return false; // on into the catalog
    const std::string catalog = CatalogPart(FileName);
    if (!Save || !IsCatalogPath(FileName) || LornFD_FileExists(catalog) != 0)
        return true;
    return (MayMakeCatalog(catalog) && MakeCatalog(catalog)) || GoUp(catalog);
}

bool LornFileDialog::ShowCatalog(bool Save) {
    const std::string catalog = IsVFSPath(FileName) ? "vfs://" : CatalogPart(FileName);
    const bool missing = Save && !IsVFSPath(catalog) && LornFD_FileExists(catalog) == 0;
    if (missing && !MayMakeCatalog(catalog))
        return GoUp(catalog);
    frmCATDialog dialog(m_owner);
    dialog.Title = DialogTitle;
    dialog.Filter = Save ? Filter : Texts::tr("All Files (*.*)|*.*");
    dialog.FilterIndex = FilterIndex;
    dialog.InitDir = InitDir;
    dialog.FileName = IsVFSPath(FileName) ? StripVFS(FileName) : EntryPart(FileName);
    if (Save && dialog.FileName.empty())
        dialog.FileName = NewEntry;
    dialog.CanGoUp = true;
    dialog.NewCatalog = missing;
    if (Save)
        dialog.ShowSave(catalog);
    else
        dialog.ShowOpen(catalog, m_owner);
    if (dialog.ModalResult() == frmCATDialog::WentUp)
        return GoUp(catalog);
    if (dialog.ModalResult() != frmCATDialog::Chosen)
        Cancel();
    if (missing && !MakeCatalog(catalog))
        return GoUp(catalog);
    FileName = dialog.FileName;
    if (Save)
        FilterIndex = dialog.FilterIndex;
    return true;
}

bool LornFileDialog::GoUp(const std::string& Catalog) {
    if (!IsVFSPath(Catalog))
        InitDir = ParentDir(Catalog);
    FileName.clear();
    return false;
}

bool LornFileDialog::MayMakeCatalog(const std::string& Catalog) const {
    const QString text = Texts::tr("Catalog \"%1\" does not exist.\n\nDo you want to create it?")
                             .arg(ShownText(Catalog));
    return Ui().ShowMessage(m_owner, {DialogTitle, text, BoxIcon::Question, BoxButtons::YesNo}) ==
           Answer::Yes;
}

bool LornFileDialog::MakeCatalog(const std::string& Catalog) const {
    const std::int32_t handle = LornFD_OpenCatalog(Catalog, LORNFD_CREATE);
    if (handle != 0) {
        LornFD_CloseCatalog(handle);
        return true;
    }
    ShowBox(m_owner, DialogTitle,
            Texts::tr("Error opening file ") + ShownText(Catalog) + QStringLiteral(":\n\n") +
                ToScreen(LornFDErrorText()),
            BoxIcon::Critical);
    return false;
}

void LornFileDialog::Cancel() {
    Cancelled = true;
    throw KeshError(errnum::Cancelled, "LornFileDialog", "Cancel was pressed.");
}
