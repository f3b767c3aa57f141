// The program's directory for temporary files.
#pragma once

#include <QString>

/// Makes "Lorn Editor" below the system's temporary path, or takes the one that stands there, if it
/// is a real directory of this user; else the same with "-" and the user id behind it. Native path,
/// empty if both belong to somebody else.
QString MakeTempDirectory();

/// Removes everything in it that is not a directory, then the directory itself, which stays if it
/// is not empty. A link is removed, never followed.
void RemoveTempDirectory(const QString& Path);
