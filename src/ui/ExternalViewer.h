// The user's own program that shows bodies of game objects.
#pragma once

#include <QtWidgets>

#include <string>

/// The command line as arguments: split first (quotes keep blanks), then "%1" and "%2" replaced
/// inside each, so that no path or data can become another argument.
[[nodiscard]] QStringList ViewerArguments(const QString& Template, const QString& Path,
                                          const QString& Data);

/// Starts the viewer on a file (plain or catalog path). An entry of a catalog is unpacked into the
/// temporary directory for a viewer that reads no catalogs. Says what is missing or failed.
void ShowIn3DViewer(QWidget* Owner, const std::string& Path, const std::string& Data);
