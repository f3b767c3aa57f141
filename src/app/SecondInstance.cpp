#include "app/SecondInstance.h"

#include <QtNetwork>

namespace {

constexpr int acknowledgeTime = 2000; ///< milliseconds
constexpr quint32 longestRequest = 1U << 20;
constexpr char acknowledged = 'A';
constexpr char confirmed = 'C';
constexpr char accepted = '1';
constexpr char refused = '0';

/// The next byte of the other side, 0 if it is gone or silent; a negative time waits for ever.
char readByte(QLocalSocket& socket, int time) {
    while (socket.bytesAvailable() == 0)
        if (!socket.waitForReadyRead(time))
            return 0;
    char byte = 0;
    socket.getChar(&byte);
    return byte;
}

bool somebodyListens(const QString& name) {
    QLocalSocket socket;
    socket.connectToServer(name);
    return socket.waitForConnected(acknowledgeTime);
}

void send(QLocalSocket& socket, char byte) {
    socket.putChar(byte);
    socket.flush();
}

} // namespace

QString InstanceName(const QString& ConfigDirectory) {
    const QByteArray owner = (QDir::homePath() + u'\n' + ConfigDirectory).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(owner, QCryptographicHash::Sha256).toHex();
    return QStringLiteral("kesheditor-") + QString::fromLatin1(hash.left(16));
}

Handover HandOver(const QString& Name, const QString& Request) {
    QLocalSocket socket;
    socket.connectToServer(Name);
    if (!socket.waitForConnected(acknowledgeTime))
        return Handover::NoInstance;
    const QByteArray text = Request.toUtf8();
    QDataStream stream(&socket);
    stream.writeBytes(text.constData(), static_cast<uint>(text.size()));
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(acknowledgeTime)) {
    }
    if (readByte(socket, acknowledgeTime) != acknowledged)
        return Handover::NoInstance;
    send(socket, confirmed);
    switch (readByte(socket, -1)) {
    case accepted:
        return Handover::Accepted;
    case refused:
        return Handover::Refused;
    default:
        return Handover::NoInstance;
    }
}

InstanceServer::InstanceServer(const QString& Name, Handler OnRequest, QObject* parent)
    : QObject(parent),
      m_server(std::make_unique<QLocalServer>()),
      m_onRequest(std::move(OnRequest)) {
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &InstanceServer::Accept);
    if (somebodyListens(Name))
        return;                       // listening would quietly take the name away
    QLocalServer::removeServer(Name); // left by an instance that died
    m_server->listen(Name);
}

InstanceServer::~InstanceServer() = default;

bool InstanceServer::IsListening() const {
    return m_server->isListening();
}

void InstanceServer::Accept() {
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { Read(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        Read(socket);
    }
}

void InstanceServer::Read(QLocalSocket* Socket) {
    QDataStream stream(Socket);
    stream.startTransaction();
    quint32 size = 0;
    stream >> size;
    if (stream.status() == QDataStream::Ok && size > longestRequest) {
        Socket->abort();
        return;
    }
    stream.rollbackTransaction();
    QByteArray request;
    stream.startTransaction();
    stream >> request;
    if (!stream.commitTransaction())
        return; // the rest is still on its way
    Socket->disconnect(this);
    send(*Socket, acknowledged);
    connect(Socket, &QLocalSocket::readyRead, this,
            [this, Socket, request] { Serve(Socket, QString::fromUtf8(request)); });
}

/// Only for a sender that still waits: one that got no answer in time does its work itself.
void InstanceServer::Serve(QLocalSocket* Socket, const QString& Request) {
    Socket->disconnect(this);
    char byte = 0;
    if (!Socket->getChar(&byte) || byte != confirmed)
        return Socket->abort();
    const QPointer<QLocalSocket> sender(Socket);
    const bool good = m_onRequest(Request);
    if (sender) // it may have given up while a box was open
        send(*sender, good ? accepted : refused);
}
