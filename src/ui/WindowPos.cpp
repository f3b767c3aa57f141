#include "ui/WindowPos.h"

#include "core/clsSettings.h"

#include <limits>
#include <utility>

namespace {

constexpr int stateNormal = 0;
constexpr int stateMaximised = 2;
constexpr int widestFrame = 200; ///< of a window's border, in pixels
constexpr int unknown = std::numeric_limits<int>::min();

/// A stored number as a place or size that can be reckoned with.
int pixels(int stored) {
    return std::clamp(stored, 0, QWIDGETSIZE_MAX);
}

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
    const QSize room = Window.screen()->availableSize();
    if (read("state", stateNormal) == stateMaximised) {
        Window.resize(QSize(DefaultWidth, DefaultHeight).boundedTo(room));
        Window.setWindowState(Qt::WindowMaximized);
        return;
    }
    const QSize size(pixels(read("width", DefaultWidth)), pixels(read("height", DefaultHeight)));
    const int left = read("left", unknown);
    if (left == unknown) {
        Window.resize(size.boundedTo(room));
        return;
    }
    const QRect outer = onScreen(QRect(QPoint(pixels(left), pixels(read("top", 0))), size));
    const QSize frame(std::clamp(read("frameWidth", 0), 0, widestFrame),
                      std::clamp(read("frameHeight", 0), 0, widestFrame));
    Window.resize(outer.size() - frame);
    Window.move(outer.topLeft());
}
