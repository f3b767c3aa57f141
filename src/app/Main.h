// From process entry to the launcher.
#pragma once

#include "app/Phases.h"

#include <memory>
#include <string>
#include <vector>

class frmMain;
class InstanceServer;

/// What lives as long as the program shows windows.
struct Program {
    Program();
    ~Program();
    std::unique_ptr<frmMain> Launcher;
    std::unique_ptr<InstanceServer> Server;
};

/// True if a running instance took this start's command line over.
bool FindInstance(const std::string& CommandLine);
/// The steps from the wait window to the launcher, by name.
std::vector<Phase> StartUpPhases(Program& Started, const std::string& CommandLine);
/// Runs the steps; a failure is said in a box, and gives false.
[[nodiscard]] bool StartUp(const std::vector<Phase>& Phases);
/// The process, after the application object was made: its exit code.
int Main();
