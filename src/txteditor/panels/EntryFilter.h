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
        if (!IsEntry(*event))
            return QObject::eventFilter(watched, event);
        m_enter();
        return true;
    }

private:
    static bool IsEntry(const QEvent& event) {
        if (event.type() == QEvent::MouseButtonDblClick) {
            const auto& click = static_cast<const QMouseEvent&>(event);
            return click.button() == Qt::LeftButton && click.modifiers() == Qt::NoModifier;
        }
        if (event.type() != QEvent::KeyPress)
            return false;
        const auto& key = static_cast<const QKeyEvent&>(event);
        const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
        return modifiers == Qt::NoModifier &&
               (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
    }

    std::function<void()> m_enter;
};
