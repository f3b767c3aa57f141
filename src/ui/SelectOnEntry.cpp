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
    // The edit selects by itself on Tab; a menu or another window that goes away is no coming.
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() == Qt::OtherFocusReason)
        TextBoxSelectAll(*edit, false);
    return false;
}
