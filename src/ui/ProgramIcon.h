// Pictures of other programs, as the user's desktop shows them.
#pragma once

#include <QIcon>

#include <string>

/// The icon of an executable: from its desktop entry, or from the file itself where the platform
/// keeps it there. Null if it has none.
[[nodiscard]] QIcon ProgramIcon(const std::string& Path);
