#include "ui/frmWait.h"

namespace {

std::unique_ptr<frmWait> waitWindow;

constexpr int exposeTime = 500; ///< milliseconds at most

/// Paints; keys, clicks and requests from outside wait until the work is done.
void pumpEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
}

} // namespace

frmWait::frmWait(QWidget* Owner)
    : QWidget(Owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setObjectName(QStringLiteral("frmWait"));
    setWindowTitle(tr("Loading"));
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Fram"));
    frame->setFrameShape(QFrame::StyledPanel);
    m_status = new QLabel(tr("Loading resources, please wait..."), frame);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setAlignment(Qt::AlignCenter);
    auto* progress = new QProgressBar(frame);
    progress->setObjectName(QStringLiteral("Progress"));
    progress->setRange(0, 0);
    progress->setTextVisible(false);
    progress->setAccessibleName(tr("Progress"));

    auto* inner = new QVBoxLayout(frame);
    const int gap = 2 * fontMetrics().height();
    inner->setContentsMargins(gap, gap / 2, gap, gap / 2);
    inner->addWidget(m_status);
    inner->addWidget(progress);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(frame, 0, Qt::AlignHCenter);
}

QString frmWait::WaitHint() const {
    return m_status->text();
}

void frmWait::SetWaitHint(const QString& Text) {
    m_status->setText(Text);
    m_status->parentWidget()->layout()->activate(); // now, not with the next events
    layout()->invalidate();
    layout()->activate();
    resize(isVisible() ? sizeHint().expandedTo(size()) : sizeHint());
}

void AwaitExposed(const QWidget& Window) {
    const QDeadlineTimer deadline(exposeTime);
    while (Window.windowHandle() && !Window.windowHandle()->isExposed() && !deadline.hasExpired()) {
        pumpEvents();
        QThread::msleep(1);
    }
}

void ShowWait(const QString& Text, QWidget* Owner) {
    if (Owner && Owner->isVisible())
        AwaitExposed(*Owner);
    waitWindow = std::make_unique<frmWait>(Owner);
    waitWindow->SetWaitHint(Text);
    if (!Owner)
        waitWindow->raise();
    waitWindow->show();
    if (Owner)
        Owner->setCursor(Qt::WaitCursor);
    AwaitExposed(*waitWindow);
    pumpEvents();
}

void UpdateWait(const QString& Text) {
    if (!waitWindow)
        return;
    waitWindow->SetWaitHint(Text);
    pumpEvents();
}

void CloseWait(QWidget* Owner) {
    waitWindow.reset();
    if (Owner)
        Owner->unsetCursor();
    pumpEvents();
}

Busy::Busy(const QString& Text, QWidget* Owner, bool Long) : m_owner(Owner), m_long(Long) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_long)
        ShowWait(Text, Owner);
}

Busy::~Busy() {
    if (m_long)
        CloseWait(m_owner);
    QGuiApplication::restoreOverrideCursor();
}
