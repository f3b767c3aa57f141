// The panels of a TXT Editor window, in the order in which they are asked for a file.
#pragma once

#include "txteditor/frmTXTEditor.h"

/// New ones, which the window takes over.
[[nodiscard]] frmTXTEditor::Panels AllPanels();
