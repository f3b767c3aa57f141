// The text of a settings file: "[key]" lines and "name=value" lines, values as bytes.
//
// QSettings keeps the file (lock, merge, replacement); its own INI codec is not used, since that
// builds any type of object that a file asks for, and takes "\" and bytes outside UTF-8 for its
// own.
#pragma once

#include <QSettings>

/// The format for QSettings objects. Keys and names stand in the file as they do in the map ("/" as
/// "\"), the root's values under "[General]". Lines that are neither are passed over. A value
/// stands as it is, or behind "@" with "%XX" for its bytes; a pair of quotes around it does not
/// count.
QSettings::Format SettingsFormat();

/// Largest file that is read or written, in bytes.
inline constexpr qint64 LargestSettingsFile = 1 << 20;
