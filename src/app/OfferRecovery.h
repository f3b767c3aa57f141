// Unsaved work that a crash left behind.
#pragma once

#include <QtWidgets>

#include <functional>

class frmTXTEditor;

/// Asks about each journal that no living program holds: whether its changes are to be brought back
/// (into a window that `NewEditor` shows), dropped, or left for the next start.
void OfferRecovery(QWidget* Owner, const std::function<frmTXTEditor*()>& NewEditor);
