// The wire between two instances, both ends in this process.
#include "app/SecondInstance.h"

#include <QtNetwork>
#include <QtTest>
#include <gtest/gtest.h>

#include <future>

namespace {

class Instances : public testing::Test {
protected:
    Instances() : name(m_directory.filePath(QStringLiteral("socket"))) {}

    /// Hands over from a thread of its own, while this one serves.
    Handover send(const QString& request) {
        auto sent = std::async(std::launch::async, [&] { return HandOver(name, request); });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return sent.wait_for(std::chrono::seconds(0)) == std::future_status::ready; },
            20000));
        return sent.get();
    }

private:
    QTemporaryDir m_directory;

protected:
    QString name;
};

TEST_F(Instances, TheTextArrivesWholeAndTheAnswerComesBack) {
    QString arrived;
    bool answer = true;
    const InstanceServer server(name, [&](const QString& request) {
        arrived = request;
        return answer;
    });
    const QStringList requests = {QString(), QStringLiteral("keshe://\"ü 星\""),
                                  QString(300000, u'x')};
    for (const QString& request : requests) {
        answer = !answer;
        EXPECT_EQ(send(request), answer ? Handover::Accepted : Handover::Refused);
        EXPECT_EQ(arrived, request);
    }
}

TEST_F(Instances, NobodyAnswersWhereNobodyIs) {
    EXPECT_EQ(HandOver(name, QStringLiteral("x")), Handover::NoInstance);
}

TEST_F(Instances, ASilentInstanceIsGivenUpAfterTwoSeconds) {
    QLocalServer silent;
    ASSERT_TRUE(silent.listen(name));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(HandOver(name, QStringLiteral("x")), Handover::NoInstance);
    EXPECT_GE(timer.elapsed(), 1900) << "one that is slow would lose the request";
}

TEST_F(Instances, AnAcknowledgedSenderWaitsWhileABoxIsOpen) {
    QStringList finished;
    const InstanceServer server(name, [&](const QString& request) {
        if (request == QStringLiteral("first")) { // its box is open until the second was served
            EXPECT_TRUE(QTest::qWaitFor([&] { return finished.contains(QStringLiteral("second")); },
                                        20000));
        }
        finished.append(request);
        return true;
    });
    auto first =
        std::async(std::launch::async, [&] { return HandOver(name, QStringLiteral("first")); });
    auto second =
        std::async(std::launch::async, [&] { return HandOver(name, QStringLiteral("second")); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return finished.size() == 2; }, 20000));
    EXPECT_EQ(first.get(), Handover::Accepted);
    EXPECT_EQ(second.get(), Handover::Accepted);
}

TEST_F(Instances, AnInstanceThatEndsWithoutAnAnswerFreesTheSender) {
    auto server = std::make_unique<QLocalServer>();
    ASSERT_TRUE(server->listen(name));
    auto sent = std::async(std::launch::async, [&] { return HandOver(name, QStringLiteral("x")); });
    ASSERT_TRUE(server->waitForNewConnection(10000));
    QLocalSocket* socket = server->nextPendingConnection();
    socket->write("A");
    socket->flush();
    server.reset();
    EXPECT_EQ(sent.get(), Handover::NoInstance);
}

TEST_F(Instances, HoldsOutAgainstBrokenSenders) {
    int served = 0;
    const InstanceServer server(name, [&](const QString&) { return ++served > 0; });
    const QList<QByteArray> broken = {"", "\x00\x00",
                                      QByteArray("\x00\x00\x00\x09"
                                                 "ab",
                                                 6),
                                      QByteArray("\x7F\xFF\xFF\xFF", 4),
                                      QByteArray("\0\0\0\1x", 5)}; // whole, but it does not wait
    for (const QByteArray& bytes : broken) {
        QLocalSocket socket;
        socket.connectToServer(name);
        ASSERT_TRUE(socket.waitForConnected(5000));
        socket.write(bytes);
        socket.flush();
        QCoreApplication::processEvents();
        socket.disconnectFromServer();
    }
    EXPECT_EQ(send(QStringLiteral("good")), Handover::Accepted);
    EXPECT_EQ(served, 1);
}

TEST_F(Instances, TheNameGoesByTheSettingsDirectory) {
    EXPECT_EQ(InstanceName(QStringLiteral("/a")), InstanceName(QStringLiteral("/a")));
    EXPECT_NE(InstanceName(QStringLiteral("/a")), InstanceName(QStringLiteral("/b")));
}

TEST_F(Instances, ALiveNameIsNotTakenOver) {
    int first = 0;
    const InstanceServer server(name, [&](const QString&) { return ++first > 0; });
    const InstanceServer further(name, [](const QString&) { return false; });
    EXPECT_TRUE(server.IsListening());
    EXPECT_FALSE(further.IsListening());
    EXPECT_EQ(send(QStringLiteral("x")), Handover::Accepted);
    EXPECT_EQ(first, 1);
}

} // namespace
