// A plain window for long reports; the caller sets its caption.
#pragma once

#include <QtWidgets>

#include <functional>

class frmText : public QDialog {
    Q_OBJECT

public:
    explicit frmText(QWidget* Owner = nullptr);

    /// Offers to go to what a line is about, by a double click on it or the button "Go to": GoTo is
    /// asked with that line and those above it until it knows one; the window closes then.
    void SetGoTo(std::function<bool(const QString& Line)> GoTo);
    /// Shows the window modally.
    void MyShow();
    [[nodiscard]] QString Text() const;
    void SetText(const QString& Text);
    void AddText(const QString& Text); ///< appends as it is

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* BuildButtons();
    void GoToLine();

    QPlainTextEdit* m_txt;
    QPushButton* m_goTo;
    std::function<bool(const QString&)> m_knows;
};
