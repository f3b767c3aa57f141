// Edits whose text is selected as a whole when the user comes to them.
#pragma once

#include <QtWidgets>

/// Installed on an edit: getting the focus selects all its text, and so does a press, unless all
/// is selected already; then the press sets the cursor.
class SelectOnEntry : public QObject {
    Q_OBJECT

public:
    explicit SelectOnEntry(QLineEdit& Edit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
