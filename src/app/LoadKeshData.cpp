#include "app/LoadKeshData.h"

#include "app/Phases.h"
#include "core/clsSettings.h"
#include "files/mdlPaths.h"
#include "keshvfs/keshvfs.h"
#include "tdata/clsArchive.h"
#include "textres/clsDescServer.h"
#include "ui/TextCodec.h"
#include "ui/UserInterface.h"
#include "ui/frmWait.h"

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LoadKeshData)
};

void traceWarnings() {
    for (const QString& line :
         QString::fromStdString(KeshVFS_Warnings()).split(u'\n', Qt::SkipEmptyParts))
        Settings->Trace(line.toStdString(), true);
}

void createView(QWidget* owner) {
    KeshVFS_CreateVFS(Settings->DataRoot());
    const std::string mod = Settings->ActiveModFullName();
    if (mod.empty() || KeshVFS_AppendCatalog(mod) != 0)
        return;
    const QString text =
        Texts::tr("Warning:\nError loading active mod \"%1\".\n"
                  "This is not fatal. Maybe your \"Directory with data\" is different from "
                  "real Kesh path?");
    ShowBox(owner, ProgramName(), text.arg(ShownText(mod)), BoxIcon::Exclamation);
}

void loadResources(QWidget* owner) {
    if (DescServer->LoadResources(Settings->DescLangID()) || Settings->DataRoot().empty())
        return;
    ShowBox(owner, ProgramName(),
            Texts::tr("Error loading resources: ") + QStringLiteral("\n\n") +
                ToScreen(DescServer->GetLastError()) + QStringLiteral("\n\n") +
                Texts::tr("Object descriptions and names may be unavailable."),
            BoxIcon::Critical);
}

} // namespace

void LoadKeshData(QWidget* Owner) {
    std::vector<Phase> phases = {
        {"",
         [&] {
             ShowWait(ProgramName() + Texts::tr(" - scanning Kesh data files. Please wait..."),
                      Owner);
         }},
        {"KeshVFS_CreateVFS",
         [&] {
             createView(Owner);
             traceWarnings();
         }},
        {"Archive.Clear", [] { Archive->Clear(); }},
    };
    if (Settings->LoadDescriptions()) {
        phases.push_back({"Archive.Clear", [] {
                              UpdateWait(ProgramName() +
                                         Texts::tr(" - Loading resource strings. Please wait..."));
                          }});
        phases.push_back({"DescServer.Unload", [] { DescServer->Unload(); }});
        phases.push_back({"DescServer.LoadResources", [&] { loadResources(Owner); }});
    }
    RunPhases(phases, "LoadKeshData");
    CloseWait(Owner);
}

bool ReloadKeshData(QWidget* Owner) {
    try {
        LoadKeshData(Owner);
        return true;
    } catch (const std::exception& failure) {
        CloseWait(Owner);
        ShowBox(Owner, ProgramName(),
                Texts::tr("Error reloading files: ") + ToScreen(failure.what()), BoxIcon::Critical);
        return false;
    }
}
