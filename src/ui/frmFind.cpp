#include "ui/frmFind.h"

#include "ui/CommonBoxes.h"

frmFind::frmFind(QWidget* Owner)
    : QDialog(Owner),
      m_FindEdit(new QLineEdit(this)),
      m_btnFindNext(new QPushButton(tr("&Find Next"), this)),
      m_btnCancel(new QPushButton(tr("&Close"), this)),
      m_Frame1(new QGroupBox(tr("Conditions"), this)),
      m_chkWholeWords(new QCheckBox(tr("Match &whole words"), m_Frame1)),
      m_lblIDText(new QLabel(tr("Compare:"), m_Frame1)),
      m_rbIDText{new QRadioButton(tr("&ID"), m_Frame1), new QRadioButton(tr("&Text"), m_Frame1)} {
    setObjectName(QStringLiteral("frmFind"));
    setWindowTitle(tr("Find"));
    const std::pair<QWidget*, const char*> names[] = {
        {m_FindEdit, "FindEdit"},           {m_btnFindNext, "btnFindNext"},
        {m_btnCancel, "btnCancel"},         {m_Frame1, "Frame1"},
        {m_chkWholeWords, "chkWholeWords"}, {m_lblIDText, "lblIDText"},
        {m_rbIDText[0], "rbIDText0"},       {m_rbIDText[1], "rbIDText1"}};
    for (const auto& [widget, name] : names)
        widget->setObjectName(QString::fromLatin1(name));
    m_rbIDText[1]->setChecked(true);
    m_btnFindNext->setDefault(true);
    LayOut();
    Connect();
    HelpOnF1(this, "find.html");
    SetResEditorMode(false);
}

void frmFind::Connect() {
    m_FindEdit->installEventFilter(this);
    connect(m_FindEdit, &QLineEdit::textChanged, this, &frmFind::Enable);
    connect(m_rbIDText[0], &QRadioButton::toggled, this, &frmFind::Enable);
    connect(m_btnFindNext, &QPushButton::clicked, this, &frmFind::FindNext);
    connect(m_btnCancel, &QPushButton::clicked, this, &frmFind::reject);
}

void frmFind::LayOut() {
    auto* what = new QLabel(tr("Find w&hat"), this);
    what->setBuddy(m_FindEdit);
    m_FindEdit->setMinimumWidth(32 * fontMetrics().averageCharWidth());

    auto* compare = new QHBoxLayout;
    compare->addWidget(m_lblIDText);
    for (QRadioButton* choice : m_rbIDText)
        compare->addWidget(choice);
    compare->addStretch();
    auto* conditions = new QVBoxLayout(m_Frame1);
    conditions->addWidget(m_chkWholeWords);
    conditions->addLayout(compare);

    auto* grid = new QGridLayout(this);
    grid->addWidget(what, 0, 0);
    grid->addWidget(m_FindEdit, 0, 1);
    grid->addWidget(m_btnFindNext, 0, 2);
    grid->addWidget(m_Frame1, 1, 0, 2, 2);
    grid->addWidget(m_btnCancel, 1, 2, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);

    QWidget* order[] = {m_FindEdit,    m_chkWholeWords, m_rbIDText[0],
                        m_rbIDText[1], m_btnFindNext,   m_btnCancel};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QString frmFind::FindString() const {
    return m_FindEdit->text();
}

void frmFind::ShowFind(const QString& Text, bool Modal, QWidget* Owner) {
    SetResEditorMode(false);
    Show(Text, Modal, Owner);
}

void frmFind::ShowFindResEditor(const QString& Text, bool Modal, QWidget* Owner) {
    SetResEditorMode(true);
    Show(Text, Modal, Owner);
}

void frmFind::Show(const QString& Text, bool Modal, QWidget* Owner) {
    if (Owner && Owner != parentWidget())
        setParent(Owner, windowFlags());
    setWindowModality(Modal ? Qt::WindowModal : Qt::NonModal);
    m_FindEdit->setText(Text);
    show();
    raise();
    activateWindow();
    m_FindEdit->setFocus();
    m_FindEdit->selectAll();
}

void frmFind::SetResEditorMode(bool On) {
    m_ResEditorMode = On;
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_lblIDText, m_rbIDText[0], m_rbIDText[1]})
        widget->setVisible(On);
    Enable();
}

void frmFind::Enable() {
    m_btnFindNext->setEnabled(!m_FindEdit->text().isEmpty());
    m_chkWholeWords->setEnabled(!m_ResEditorMode || !m_rbIDText[0]->isChecked());
}

void frmFind::FindNext() {
    const bool byID = m_rbIDText[0]->isChecked();
    const bool whole = m_chkWholeWords->isChecked() || (m_ResEditorMode && byID);
    QString text = m_FindEdit->text();
    bool found = false;
    Q_EMIT OnFindNext(whole, byID, text, Tag, found);
    if (text != m_FindEdit->text())
        m_FindEdit->setText(text);
    if (!found)
        ShowBox(this, tr("Find"), tr("No more occurencies found."), BoxIcon::Information);
}

void frmFind::reject() {
    Q_EMIT OnClose();
    QDialog::reject();
}

bool frmFind::eventFilter(QObject* Object, QEvent* Event) {
    const bool comes = Object == m_FindEdit && Event->type() == QEvent::FocusIn &&
                       static_cast<QFocusEvent*>(Event)->reason() != Qt::PopupFocusReason;
    if (comes) // behind the press that gave it the focus
        QMetaObject::invokeMethod(m_FindEdit, &QLineEdit::selectAll, Qt::QueuedConnection);
    return QDialog::eventFilter(Object, Event);
}
