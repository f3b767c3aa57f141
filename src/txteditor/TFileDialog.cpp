#include "txteditor/TFileDialog.h"

#include "core/KeshError.h"
#include "core/clsSettings.h"
#include "core/mdlComFunctions.h"
#include "core/mdlCommon.h"
#include "files/LornFileDialog.h"
#include "files/frmCATDialog.h"
#include "ui/TextCodec.h"
#include "ui/UserInterface.h"

namespace {

// Names under which the last directories are kept
constexpr const char* openKind = "TE open";
constexpr const char* viewKind = "TE vfs";

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(TFileDialog)
};

QString openFilter() {
    return Texts::tr(
        "Kesh T files (*.txt; *.pck; *.cat)|*.txt;*.pck;*.cat|Lorn Catalogs (*.cat)|*.cat|"
        "All files (*.*)|*.*");
}

QString saveFilter() {
    return Texts::tr("Kesh T files - plain (*.txt)|*.txt|Kesh T files - compressed (*.pck)|*.pck|"
                     "Kesh Catalogs (*.cat)|*.cat");
}

/// False after Cancel and after a failure, which is told.
template <class Show>
bool chosen(QWidget* owner, Show show) {
    try {
        return show();
    } catch (const KeshError& error) {
        if (error.Number() != errnum::Cancelled)
            ShowBox(owner, Texts::tr("TXT Editor"), ToScreen(error.what()), BoxIcon::Critical);
        return false;
    }
}

} // namespace

std::optional<std::string> ChooseTFileToOpen(QWidget* Owner) {
    LornFileDialog dialog(Owner);
    dialog.DialogTitle = Texts::tr("Open");
    dialog.Filter = openFilter();
    dialog.InitDir = Settings->DataRoot();
    dialog.Kind = openKind;
    const auto show = [&] {
        dialog.ShowOpen();
        return true;
    };
    return chosen(Owner, show) ? std::optional(dialog.FileName) : std::nullopt;
}

std::optional<std::string> ChooseTFileInView(QWidget* Owner) {
    frmCATDialog dialog(Owner);
    dialog.Title = Texts::tr("Select file");
    dialog.Filter = Texts::tr("All files (*.*)|*.*");
    dialog.InitDir = LornFileDialog::KeptDirectory(viewKind);
    const auto show = [&] {
        dialog.ShowOpen("vfs://", Owner);
        return dialog.ModalResult() == frmCATDialog::Chosen;
    };
    if (!chosen(Owner, show))
        return {};
    LornFileDialog::KeepDirectory(viewKind, ParentDir(StripVFS(dialog.FileName)));
    return dialog.FileName;
}

std::optional<SaveChoice> ChooseTFileToSave(QWidget* Owner, const std::string& Present) {
    LornFileDialog dialog(Owner);
    dialog.DialogTitle = Texts::tr("Save");
    dialog.Filter = saveFilter();
    dialog.FileName = Present;
    dialog.NewEntry = IsCatalogPath(Present)
                          ? EntryPart(Present)
                          : JoinPath({"types", BaseName(Present, true) + ".pck"});
    const auto show = [&] {
        dialog.ShowSave();
        return true;
    };
    if (!chosen(Owner, show))
        return {};
    return SaveChoice{dialog.FileName, dialog.FilterIndex};
}
