// A plain window for long reports; the caller sets its caption.
#pragma once

#include <QtWidgets>

class frmText : public QDialog {
    Q_OBJECT

public:
    explicit frmText(QWidget* Owner = nullptr);

    /// Shows the window modally.
    void MyShow();
    [[nodiscard]] QString Text() const;
    void SetText(const QString& Text);
    void AddText(const QString& Text); ///< appends as it is

private:
    QPlainTextEdit* m_txt;
};
