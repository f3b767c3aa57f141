// Where a T file is opened from and saved to: the file chooser, and the names inside catalogs and
// the view.
#pragma once

#include <QtWidgets>

#include <optional>
#include <string>

/// A path in the program's form: plain, "catalog::entry" or "vfs://entry". Nothing after Cancel.
std::optional<std::string> ChooseTFileToOpen(QWidget* Owner);
/// One of the merged view's T files, as "vfs://entry".
std::optional<std::string> ChooseTFileInView(QWidget* Owner);

struct SaveChoice {
    std::string Name;
    int FilterIndex = 1; ///< 1 plain, 2 packed, 3 catalog
};
/// Starts at `Present`, a plain or catalog path.
std::optional<SaveChoice> ChooseTFileToSave(QWidget* Owner, const std::string& Present);
