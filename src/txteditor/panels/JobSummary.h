// What a job does, in words.
#pragma once

#include "tdata/clsTXTObject.h"

#include <QString>

#include <functional>

/// One sentence in the user's language. `ShipName` reads for the ID of a ship.
[[nodiscard]] QString JobSummary(const clsTXTObject& Job,
                                 const std::function<QString(const std::string&)>& ShipName);
