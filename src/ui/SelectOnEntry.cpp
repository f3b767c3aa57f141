#include "ui/SelectOnEntry.h"

#include "ui/ListHelpers.h"

SelectOnEntry::SelectOnEntry(QLineEdit& Edit) : QObject(&Edit) {
    Edit.installEventFilter(this);
}

bool SelectOnEntry::eventFilter(QObject* watched, QEvent* event) {
    auto* const edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || edit->text().isEmpty())
        return false;
    const bool press = event->type() == QEvent::MouseButtonPress &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (press && edit->selectedText() != edit->text()) {
        TextBoxSelectAll(*edit, true);
        return true; // the edit would set the cursor
    }
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
        TextBoxSelectAll(*edit, false);
    return false;
}
