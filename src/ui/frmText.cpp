#include "ui/frmText.h"

#include "ui/CommonBoxes.h"

frmText::frmText(QWidget* Owner)
    : QDialog(Owner), m_txt(new QPlainTextEdit(this)), m_goTo(new QPushButton(tr("Go to"), this)) {
    setObjectName(QStringLiteral("frmText"));
    m_txt->setObjectName(QStringLiteral("txt"));
    m_txt->setReadOnly(true);
    m_txt->setAccessibleName(tr("Report"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_txt);
    rows->addLayout(BuildButtons());
    HelpOnF1(this, "report.html");
    const QFontMetrics font = fontMetrics();
    resize(80 * font.averageCharWidth(), 24 * font.height());
}

QLayout* frmText::BuildButtons() {
    auto* close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("btnOK"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    m_goTo->setObjectName(QStringLiteral("btnGoTo"));
    m_goTo->setToolTip(tr("Show the object that the line with the cursor is about"));
    m_goTo->setAutoDefault(false);
    m_goTo->hide();
    connect(m_goTo, &QPushButton::clicked, this, &frmText::GoToLine);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_goTo);
    buttons->addWidget(close);
    return buttons;
}

void frmText::SetGoTo(std::function<bool(const QString& Line)> GoTo) {
    m_knows = std::move(GoTo);
    m_goTo->show();
    m_txt->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_txt->viewport()->installEventFilter(this);
}

bool frmText::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick)
        return QDialog::eventFilter(watched, event);
    m_txt->setTextCursor(
        m_txt->cursorForPosition(static_cast<QMouseEvent*>(event)->position().toPoint()));
    GoToLine();
    return true;
}

void frmText::GoToLine() {
    for (QTextBlock line = m_txt->textCursor().block(); line.isValid(); line = line.previous())
        if (m_knows(line.text())) {
            accept();
            return;
        }
}

void frmText::MyShow() {
    exec();
}

QString frmText::Text() const {
    return m_txt->toPlainText();
}

void frmText::SetText(const QString& Text) {
    m_txt->setPlainText(Text);
}

void frmText::AddText(const QString& Text) {
    m_txt->moveCursor(QTextCursor::End);
    m_txt->insertPlainText(Text);
}
