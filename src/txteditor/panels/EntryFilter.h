// Entry into a field that is shown and not edited itself, or into the row of a list.
#pragma once

#include <QtWidgets>

#include <functional>

/// Asks for an entry at a double click or Enter on a widget, which owns it.
class EntryFilter : public QObject {
public:
    /// In a list either leads only from a row, or from anywhere, as in other widgets.
    enum class From { Anywhere, Rows };

    EntryFilter(QWidget* watched, std::function<void()> enter, From from = From::Anywhere)
        : QObject(watched), m_enter(std::move(enter)) {
        watched->installEventFilter(this);
        auto* list = qobject_cast<QAbstractItemView*>(watched);
        if (list)
            list->viewport()->installEventFilter(this);
        if (from == From::Rows)
            m_rows = list;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!IsEntry(*event) || (m_rows && !LeadsFromRow(*event)))
            return QObject::eventFilter(watched, event);
        m_enter();
        return true;
    }

private:
    /// A plain double click of the left button, or Enter on either part of the keyboard.
    [[nodiscard]] static bool IsEntry(const QEvent& event) {
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
    [[nodiscard]] bool LeadsFromRow(const QEvent& event) const {
        if (event.type() == QEvent::KeyPress)
            return m_rows->selectionModel()->isSelected(m_rows->currentIndex());
        const QPoint place = static_cast<const QMouseEvent&>(event).globalPosition().toPoint();
        const QModelIndex row = m_rows->indexAt(m_rows->viewport()->mapFromGlobal(place));
        return row.isValid() && row.row() == m_rows->currentIndex().row(); // both clicks met it
    }

    std::function<void()> m_enter;
    QAbstractItemView* m_rows = nullptr; ///< none if anywhere
};
