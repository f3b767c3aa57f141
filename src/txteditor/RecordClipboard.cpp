#include "txteditor/RecordClipboard.h"

namespace {

constexpr auto ownFormat = "application/x-kesh-records";

/// Marks the text as this process's, whose records are at hand themselves.
const QByteArray& ownMark() {
    static const QByteArray mark = QUuid::createUuid().toByteArray();
    return mark;
}

} // namespace

RecordClipboard& RecordClipboard::Instance() {
    static QPointer<RecordClipboard> instance;
    if (!instance) {
        instance = new RecordClipboard;
        instance->setParent(qApp);
    }
    return *instance;
}

RecordClipboard::RecordClipboard() {
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &RecordClipboard::LookAtSystem);
    LookAtSystem();
}

RecordPtr RecordClipboard::ClipboardObject() const {
    return m_objects.empty() ? RecordPtr() : m_objects.front();
}

QWidget* RecordClipboard::ClipboardSource() const {
    return m_source;
}

bool RecordClipboard::HasObjects() const {
    return !m_objects.empty() && m_mode != Mode::Nothing;
}

void RecordClipboard::Set(std::vector<RecordPtr> Objects, Mode HowTaken, QWidget* Source,
                          const QString& Text) {
    m_objects = std::move(Objects);
    m_mode = HowTaken;
    m_source = m_objects.empty() ? nullptr : Source;
    auto data = std::make_unique<QMimeData>();
    data->setText(Text);
    data->setData(QString::fromLatin1(ownFormat), ownMark());
    QGuiApplication::clipboard()->setMimeData(data.release());
    Q_EMIT Changed();
}

void RecordClipboard::SetSource(QWidget* Source) {
    m_source = m_objects.empty() ? nullptr : Source;
    Q_EMIT Changed();
}

void RecordClipboard::Clear() {
    m_objects.clear();
    m_mode = Mode::Nothing;
    m_source = nullptr;
    Q_EMIT Changed();
}

void RecordClipboard::LookAtSystem() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    m_foreignText =
        data && data->hasText() && data->data(QString::fromLatin1(ownFormat)) != ownMark();
    Q_EMIT Changed();
}

QString RecordClipboard::ForeignText() const {
    const QString text = m_foreignText ? QGuiApplication::clipboard()->text() : QString();
    return text.contains(u';') ? text : QString();
}
