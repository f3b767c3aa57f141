// Builds the merged view of the game's files and loads the text resources.
#pragma once

class QWidget;

/// Shows the wait window, over `Owner` if there is one. A wrong data root gives an empty view; what
/// else is missing is said in a box. Unexpected failures leave as KeshError, with the wait window
/// still shown.
void LoadKeshData(QWidget* Owner = nullptr);
/// The same on demand: an unexpected failure is said in a box, and gives false.
bool ReloadKeshData(QWidget* Owner);
