// Where windows stood, kept in the settings under a key of each window.
#pragma once

#include <QtWidgets>

#include <string_view>

/// Neither minimised nor maximised.
[[nodiscard]] bool IsNormal(const QWidget& Window);
/// Stores state (0 normal, 2 maximised; minimised counts as normal), outer rectangle, and what
/// of it is frame: a window that is not shown yet does not know its own.
void SaveWindowPos(const QWidget& Window, std::string_view Key);
/// Brings the stored state back, and in normal state the rectangle. The defaults are inner sizes in
/// pixels.
void LoadWindowPos(QWidget& Window, std::string_view Key, int DefaultWidth, int DefaultHeight);
