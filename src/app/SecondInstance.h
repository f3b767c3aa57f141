// One running program per user and settings directory: a second start hands its command line to the
// first.
//
// On a local socket the text travels whole, with its length in front. The first instance
// acknowledges on reading, also while one of its boxes is open; the second confirms that it still
// waits, and is answered later whether the request was accepted.
#pragma once

#include <QtCore>

#include <functional>
#include <memory>

class QLocalServer;
class QLocalSocket;

/// The socket's name for a settings directory of this user.
QString InstanceName(const QString& ConfigDirectory);

enum class Handover {
    NoInstance, ///< none runs, or it does not answer
    Accepted,
    Refused,
};
/// Hands a text to a running instance. Waits 2 seconds for it to read, then as long as it takes.
Handover HandOver(const QString& Name, const QString& Request);

/// The receiving side; lives with the launcher.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<bool(const QString&)>;

    InstanceServer(const QString& Name, Handler OnRequest, QObject* parent = nullptr);
    ~InstanceServer() override;

    /// False if another live instance holds the name: this one then receives nothing.
    [[nodiscard]] bool IsListening() const;

private:
    void Accept();
    void Read(QLocalSocket* Socket);
    void Serve(QLocalSocket* Socket, const QString& Request);

    std::unique_ptr<QLocalServer> m_server;
    Handler m_onRequest;
};
