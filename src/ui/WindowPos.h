// Where windows stood, kept in the settings under a key of each window.
#pragma once

#include <QtWidgets>

#include <string_view>

/// Stores state (0 normal, 2 maximised; minimised counts as normal) and outer rectangle.
void SaveWindowPos(const QWidget& Window, std::string_view Key);
/// Brings the stored state back, and in normal state the rectangle. The defaults are inner sizes in
/// pixels.
void LoadWindowPos(QWidget& Window, std::string_view Key, int DefaultWidth, int DefaultHeight);
