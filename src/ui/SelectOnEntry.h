// Edits whose text is selected as a whole when the user comes to them.
#pragma once

#include <QtWidgets>

/// Installed on an edit: getting the focus selects all its text, by key or by press.
class SelectOnEntry : public QObject {
    Q_OBJECT

public:
    /// With OnEveryPress a press selects all also where the edit has the focus, unless all is
    /// selected already; then it sets the cursor.
    explicit SelectOnEntry(QLineEdit& Edit, bool OnEveryPress = false);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool SelectsOnPress(const QLineEdit& Edit);

    bool m_onEveryPress;
    bool m_came = false; ///< by the press that follows
};
