// Boxes and starts of other programs that several windows share.
#pragma once

#include "ui/UserInterface.h"

#include <string>
#include <string_view>

/// "Entered value is incorrect. It must be ...": Kind 0 whole number, 1 float number, else string.
void ValueError(QWidget* Owner, const QString& Title, std::string_view Name, int Kind);
/// True if there is no such file or the user lets it be replaced. `Shown` is the name for people.
[[nodiscard]] bool OverwriteQuestion(const std::string& Name, const QString& Shown,
                                     const QString& Title, QWidget* Owner,
                                     BoxIcon Icon = BoxIcon::Question);
/// Starts a program, found without regard to case, in its own directory; false if it did not start.
[[nodiscard]] bool RunProgram(const std::string& Path, const QStringList& Arguments = {});
/// Why a program did not start, as far as can be seen.
[[nodiscard]] QString NotStartedText(const std::string& Path);
/// Starts a program and says so where that fails.
bool StartProgram(QWidget* Owner, const std::string& Path);
/// Starts the game; says what is missing where no path is set.
bool RunGame(QWidget* Owner);
/// Opens the help pages beside the program, at a topic ("ships.html") if one is given, in the
/// browser; says why where that fails.
void ShowHelp(QWidget* Owner, std::string_view Topic);
/// The key for help shows this topic while the window is active.
void HelpOnF1(QWidget* Window, const char* Topic);
