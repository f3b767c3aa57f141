// Export of a file of ships, for spreadsheets and for reading.
#pragma once

#include "tdata/ShipFields.h"
#include "tdata/clsTxtParser.h"

#include <QtWidgets>

/// Asks where to and in which form, and writes there. True only when all is written; failures are
/// said in a box.
bool ExportShipsFile(QWidget* Owner, const clsTxtParser& Ships, const ShipFields& Fields);
