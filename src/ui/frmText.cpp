#include "ui/frmText.h"

#include "ui/CommonBoxes.h"

frmText::frmText(QWidget* Owner) : QDialog(Owner), m_txt(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmText"));
    m_txt->setObjectName(QStringLiteral("txt"));
    m_txt->setReadOnly(true);
    m_txt->setAccessibleName(tr("Report"));
    auto* close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("btnOK"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_txt);
    rows->addWidget(close, 0, Qt::AlignRight);
    HelpOnF1(this, "report.html");
    const QFontMetrics font = fontMetrics();
    resize(80 * font.averageCharWidth(), 24 * font.height());
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
