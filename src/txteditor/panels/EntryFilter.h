// Entry into a field that is shown and not edited itself.
#pragma once

#include <QtWidgets>

#include <functional>

/// Asks for an entry at a double click or Enter on a widget, which owns it.
class EntryFilter : public QObject {
public:
    EntryFilter(QObject* watched, std::function<void()> enter)
        : QObject(watched), m_enter(std::move(enter)) {
        watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool key = event->type() == QEvent::KeyPress;
        const int code = key ? static_cast<QKeyEvent*>(event)->key() : 0;
        if (event->type() != QEvent::MouseButtonDblClick && code != Qt::Key_Return &&
            code != Qt::Key_Enter)
            return QObject::eventFilter(watched, event);
        m_enter();
        return true;
    }

private:
    std::function<void()> m_enter;
};
