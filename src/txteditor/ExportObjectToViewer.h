// A record's body in the user's 3D viewer.
#pragma once

#include "tdata/clsTXTObject.h"

#include <QtWidgets>

/// Finds the body file that a field of the record names ("v\00012" for a number, "cut\00012" of a
/// scene) and shows it, with the values of a ship or factory. Nothing if there is no such file.
void ExportObjectToViewer(QWidget* Owner, const clsTXTObject& Record, std::int32_t Field,
                          bool CutScene);
