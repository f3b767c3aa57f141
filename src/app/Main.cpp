#include "app/Main.h"

#include "app/LoadKeshData.h"
#include "app/Requests.h"
#include "app/SecondInstance.h"
#include "app/frmMain.h"
#include "core/clsSettings.h"
#include "keshvfs/keshvfs.h"
#include "tdata/clsArchive.h"
#include "tdata/mdlKeshConst.h"
#include "textres/clsDescServer.h"
#include "ui/Icons.h"
#include "ui/TextCodec.h"
#include "ui/UserInterface.h"
#include "ui/frmWait.h"

#include <csignal>

namespace {

constexpr std::array viewMasks = {"types\\*",    "t\\*",       "dds\\*",
                                  "textures\\*", "objects\\*", "maps\\*"};

QString instanceName() {
    return InstanceName(QString::fromStdString(clsSettings().ConfigDirectory()));
}

std::string commandLine() {
    std::vector<std::string> arguments;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        arguments.push_back(argument.toStdString());
    return RequestOf(std::move(arguments), QDir::currentPath().toStdString());
}

void createServices() {
    InitArrays();
    Settings = std::make_unique<clsSettings>();
    DescServer = std::make_unique<clsDescServer>();
    Archive = std::make_unique<clsArchive>();
}

constexpr int lookTime = 500; ///< milliseconds between looks at a wish to end
volatile std::sig_atomic_t endWished = 0;

/// A program that is told to end ends as if its window were closed: unsaved work asks first. A box
/// that is open is answered before, and work that lets events through is finished: their window
/// must not go away below them.
void closeWhenTold(frmMain& launcher) {
    std::signal(SIGTERM, [](int) { endWished = 1; });
    auto* look = new QTimer(&launcher);
    QObject::connect(look, &QTimer::timeout, &launcher, [&launcher] {
        const bool busy = QApplication::activeModalWidget() || QGuiApplication::overrideCursor();
        if (!busy && std::exchange(endWished, 0) != 0)
            launcher.close();
    });
    look->start(lookTime);
}

int runMessageLoop(frmMain& launcher) {
    closeWhenTold(launcher);
    QGuiApplication::setQuitOnLastWindowClosed(true);
    QTimer::singleShot(0, &launcher, &frmMain::OfferRecovery);
    return QCoreApplication::exec();
}

void addViewFilters() {
    for (const char* mask : viewMasks)
        KeshVFS_AddVFSFilter(mask);
    CloseWait();
}

void createLauncher(Program& started) {
    LoadKeshData();
    started.Launcher = std::make_unique<frmMain>();
    started.Server = std::make_unique<InstanceServer>(instanceName(), [&](const QString& request) {
        return started.Launcher->ProcessRequest(request.toStdString());
    });
}

} // namespace

Program::Program() = default;
Program::~Program() = default;

bool FindInstance(const std::string& CommandLine) {
    const QString request = QString::fromStdString(std::string(RequestPrefix) + CommandLine);
    return HandOver(instanceName(), request) == Handover::Accepted;
}

std::vector<Phase> StartUpPhases(Program& Started, const std::string& CommandLine) {
    return {
        {"",
         [] {
             ShowWait(ProgramName() + QCoreApplication::translate("Main", " - Starting up..."));
         }},
        {"mdlKeshConst.InitArrays", createServices},
        {"Settings.InitEnviroment", [] { Settings->InitEnviroment(); }},
        {"KeshVFS_AddVFSFilter", addViewFilters},
        {"LoadKeshData", [&Started] { createLauncher(Started); }},
        {"frmMain.MyShow", [&Started, CommandLine] { Started.Launcher->MyShow(CommandLine); }},
    };
}

bool StartUp(const std::vector<Phase>& Phases) {
    try {
        RunPhases(Phases, "Main");
        return true;
    } catch (const std::exception& failure) {
        ShowBox(nullptr, ProgramName(),
                QCoreApplication::translate("Main", "Error starting program: ") +
                    ToScreen(failure.what()),
                BoxIcon::Critical);
        return false;
    }
}

int Main() {
    QGuiApplication::setWindowIcon(ToolIcon("te"));
    const std::string arguments = commandLine();
    if (FindInstance(arguments))
        return EXIT_SUCCESS;
    int result = EXIT_FAILURE;
    {
        Program started;
        QGuiApplication::setQuitOnLastWindowClosed(false); // boxes come and go before the launcher
        if (StartUp(StartUpPhases(started, arguments)))
            result = runMessageLoop(*started.Launcher);
        CloseWait();
    }
    Archive.reset();
    DescServer.reset();
    Settings.reset(); // removes the temporary directory
    return result;
}
