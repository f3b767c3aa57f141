// The one search dialog of all editors. It searches nothing itself: the owner does, when asked.
#pragma once

#include <QtWidgets>

class frmFind : public QDialog {
    Q_OBJECT

public:
    explicit frmFind(QWidget* Owner = nullptr);

    /// Where the owner stopped; kept from one search to the next.
    QVariant Tag;

    [[nodiscard]] QString FindString() const;
    [[nodiscard]] bool WholeWords() const { return m_chkWholeWords->isChecked(); }
    /// The next search starts at the beginning.
    void ClearTag() { Tag.clear(); }
    /// Shows the dialog over an owner and returns at once; Modal keeps the owner from being used.
    void ShowFind(const QString& Text, bool Modal, QWidget* Owner);
    /// The same with the choice of comparing identifiers, which are always compared whole.
    void ShowFindResEditor(const QString& Text, bool Modal, QWidget* Owner);
    void SetCaption(const QString& Text) { setWindowTitle(Text); }
    /// By its button, by Esc and by the window's own button alike.
    void reject() override;

Q_SIGNALS:
    /// Connected directly: the owner sets Found, and may set Text and Tag.
    void OnFindNext(bool WholeWords, bool ByID, QString& Text, QVariant& Tag, bool& Found);
    void OnClose();

protected:
    bool eventFilter(QObject* Object, QEvent* Event) override;

private:
    void LayOut();
    void Connect();
    void Show(const QString& Text, bool Modal, QWidget* Owner);
    void SetResEditorMode(bool On);
    void Enable();
    void FindNext();

    QLineEdit* m_FindEdit;
    QPushButton* m_btnFindNext;
    QPushButton* m_btnCancel;
    QGroupBox* m_Frame1;
    QCheckBox* m_chkWholeWords;
    QLabel* m_lblIDText;
    QRadioButton* m_rbIDText[2]; ///< ID, text
    bool m_ResEditorMode = false;
};
