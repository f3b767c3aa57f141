#include "ui/SelectOnEntry.h"

#include "ui/ListHelpers.h"

SelectOnEntry::SelectOnEntry(QLineEdit& Edit, bool OnEveryPress)
    : QObject(&Edit), m_onEveryPress(OnEveryPress) {
    Edit.installEventFilter(this);
}

bool SelectOnEntry::SelectsOnPress(const QLineEdit& Edit) {
    const bool came = std::exchange(m_came, false);
    return (came || m_onEveryPress) && Edit.selectedText() != Edit.text();
}

bool SelectOnEntry::eventFilter(QObject* watched, QEvent* event) {
    auto* const edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || edit->text().isEmpty())
        return false;
    const bool press = event->type() == QEvent::MouseButtonPress &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (press && SelectsOnPress(*edit)) {
        TextBoxSelectAll(*edit, true);
        return true; // the edit would set the cursor
    }
    if (event->type() != QEvent::FocusIn)
        return false;
    // The edit selects by itself on Tab; a menu or another window that goes away is no coming.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    m_came = reason == Qt::MouseFocusReason;
    if (reason == Qt::OtherFocusReason)
        TextBoxSelectAll(*edit, false);
    return false;
}
