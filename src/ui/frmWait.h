// The small window that says what the program is busy with.
#pragma once

#include <QtWidgets>

class frmWait : public QWidget {
    Q_OBJECT

public:
    explicit frmWait(QWidget* Owner = nullptr);

    [[nodiscard]] QString WaitHint() const;
    /// Shows another text and refits the window.
    void SetWaitHint(const QString& Text);

private:
    QLabel* m_status;
};

/// Returns when a window that was shown stands on the screen, or after a moment. Keys, clicks and
/// requests from outside wait.
void AwaitExposed(const QWidget& Window);

/// Shows the wait window, gives the owner the busy pointer, and lets the window paint.
void ShowWait(const QString& Text, QWidget* Owner = nullptr);
/// Another text in the window; nothing without one.
void UpdateWait(const QString& Text);
void CloseWait(QWidget* Owner = nullptr);

/// Busy pointer for its lifetime, with the wait window where the work is long.
class Busy {
public:
    Busy(const QString& Text, QWidget* Owner, bool Long);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    QPointer<QWidget> m_owner;
    bool m_long;
};
