#include "ui/WindowPos.h"

#include "core/clsSettings.h"

#include <limits>
#include <utility>

namespace {

constexpr int stateNormal = 0;
constexpr int stateMaximised = 2;
constexpr int widestFrame = 200; ///< of a window's border, in pixels
constexpr int unknown = std::numeric_limits<int>::min();

/// Keeps a window that was left on a screen which is gone within reach.
QRect onScreen(QRect wanted) {
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    wanted.setSize(wanted.size().boundedTo(area.size()));
    wanted.moveLeft(std::clamp(wanted.left(), area.left(), area.right() - wanted.width() + 1));
    wanted.moveTop(std::clamp(wanted.top(), area.top(), area.bottom() - wanted.height() + 1));
    return wanted;
}

} // namespace

bool IsNormal(const QWidget& Window) {
    return !Window.isMinimized() && !Window.isMaximized() && !Window.isFullScreen();
}

void SaveWindowPos(const QWidget& Window, std::string_view Key) {
    const QRect outer = Window.frameGeometry();
    const std::pair<const char*, int> values[] = {
        {"state", Window.isMaximized() ? stateMaximised : stateNormal},
        {"left", outer.left()},
        {"top", outer.top()},
        {"width", outer.width()},
        {"height", outer.height()},
        {"frameWidth", outer.width() - Window.width()},
        {"frameHeight", outer.height() - Window.height()},
    };
    std::vector<SettingsStore::Entry> entries;
    for (const auto& [name, value] : values)
        entries.push_back({std::string(Key), name, std::to_string(value)});
    Settings->SaveRegValues(entries);
}

void LoadWindowPos(QWidget& Window, std::string_view Key, int DefaultWidth, int DefaultHeight) {
    const auto read = [Key](std::string_view name, int fallback) {
        return Settings->ReadRegValue(Key, name, fallback);
    };
    if (read("state", stateNormal) == stateMaximised) {
        Window.resize(DefaultWidth, DefaultHeight);
        Window.setWindowState(Qt::WindowMaximized);
        return;
    }
    const QSize size(std::max(1, read("width", DefaultWidth)),
                     std::max(1, read("height", DefaultHeight)));
    const int left = read("left", unknown);
    if (left == unknown) {
        Window.resize(size);
        return;
    }
    const QPoint corner(std::max(0, left), std::max(0, read("top", 0)));
    const QRect outer = onScreen(QRect(corner, size));
    const QSize frame(std::clamp(read("frameWidth", 0), 0, widestFrame),
                      std::clamp(read("frameHeight", 0), 0, widestFrame));
    Window.resize(outer.size() - frame);
    Window.move(outer.topLeft());
}
