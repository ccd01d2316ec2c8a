#include "platform/SingleInstance.h"

#include "platform/FolderLock.h"
#include "platform/HandOff.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <utility>

namespace {

constexpr int RetryInterval = 5;     // ms
constexpr int ClosingLockWait = 100; // ms

bool isRefusal(QLocalSocket::LocalSocketError error)
{
    return error == QLocalSocket::ConnectionRefusedError || error == QLocalSocket::ServerNotFoundError;
}

/// A copy that has no time to accept connections lets them pile up until no more fit; a new one then waits.
bool isBusy(const QLocalSocket &socket)
{
    return socket.state() == QLocalSocket::ConnectingState || socket.error() == QLocalSocket::SocketTimeoutError;
}

int remaining(const QDeadlineTimer &deadline)
{
    return int(deadline.remainingTime());
}

} // namespace

SingleInstance::SingleInstance(const QString &socketPath, const SingleInstanceLimits &limits, QObject *parent)
    : QObject(parent)
    , m_socketPath(socketPath)
    , m_limits(limits)
{
}

SingleInstance::~SingleInstance()
{
    leave();
}

void SingleInstance::serve()
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnections);
    acceptConnections();
}

QStringList SingleInstance::leave()
{
    if (!m_server.isListening())
        return {};
    m_server.disconnect(this);
    while (m_server.waitForNewConnection(0))
        acceptConnections();
    const QList<QLocalSocket *> senders = m_server.findChildren<QLocalSocket *>();
    for (QLocalSocket *sender : senders) {
        while (sender->waitForReadyRead(0)) { // what it sent, and that it has hung up
        }
    }
    QStringList givenUp;
    for (const Message &message : std::exchange(m_messages, {})) {
        if (!message.text.isEmpty() && (!message.sender || message.sender->state() != QLocalSocket::ConnectedState))
            givenUp.append(message.text);
    }
    // Closing removes the socket, which must not by then be that of a copy which found nobody here.
    const FolderLock lock(QFileInfo(m_socketPath).path(), ClosingLockWait);
    m_server.close();
    for (QLocalSocket *sender : senders)
        sender->abort();
    return givenUp;
}

SingleInstance::Role SingleInstance::start(const QString &commandLine)
{
    if (m_socketPath.isEmpty())
        return Role::First;
    const QDeadlineTimer deadline(m_limits.answer);
    for (;;) {
        const Answer answer = ActivatePreviousInstance(commandLine, deadline);
        if (answer == Answer::Handled)
            return Role::Second;
        if (answer == Answer::Nobody && becomeFirst(deadline.hasExpired()))
            return Role::First;
        if (answer != Answer::Nobody && deadline.hasExpired())
            return Role::Second;
        QThread::msleep(RetryInterval);
    }
}

SingleInstance::Answer SingleInstance::ActivatePreviousInstance(const QString &commandLine,
                                                                const QDeadlineTimer &deadline) const
{
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(remaining(deadline)))
        return isBusy(socket) ? Answer::None : Answer::Nobody;
    socket.write(HandOff::message(commandLine));
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(remaining(deadline))) {
    }
    while (socket.bytesAvailable() == 0 && socket.waitForReadyRead(remaining(deadline))) {
    }
    char handled = 0;
    if (socket.getChar(&handled) && handled == HandOff::Handled)
        return Answer::Handled;
    return deadline.hasExpired() ? Answer::None : Answer::Lost;
}

bool SingleInstance::becomeFirst(bool atAnyRate)
{
    const FolderLock lock(QFileInfo(m_socketPath).path(), 0);
    if (!lock.isHeld() && !atAnyRate)
        return false;
    // Another copy may have become the first between the refusal and the lock.
    QLocalSocket probe;
    probe.connectToServer(m_socketPath);
    if (probe.waitForConnected(m_limits.answer) || isBusy(probe))
        return false;
    if (isRefusal(probe.error()))
        QLocalServer::removeServer(m_socketPath);
    if (!m_server.listen(m_socketPath))
        return atAnyRate;
    QFile::setPermissions(m_socketPath, QFile::ReadOwner | QFile::WriteOwner);
    return true;
}

void SingleInstance::acceptConnections()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        socket->setReadBufferSize(HandOff::LargestMessage + 1);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto *stall = new QTimer(socket);
        stall->setSingleShot(true);
        connect(stall, &QTimer::timeout, socket, &QLocalSocket::abort);
        stall->start(m_limits.stall);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, stall] { readMessage(socket, stall); });
        readMessage(socket, stall);
    }
}

void SingleInstance::readMessage(QLocalSocket *socket, QTimer *stall)
{
    const HandOff::Parsed parsed = HandOff::parse(socket->peek(HandOff::LargestMessage + 1));
    if (parsed.state == HandOff::State::Incomplete)
        return;
    socket->disconnect(this);
    if (parsed.state == HandOff::State::Malformed) {
        socket->abort();
        return;
    }
    stall->stop();
    m_messages.push_back({socket, parsed.text});
    // Not from inside the socket's own signal: slots may run event loops, in which the sender can go away.
    QMetaObject::invokeMethod(this, &SingleInstance::handleNext, Qt::QueuedConnection);
}

void SingleInstance::handleNext()
{
    if (m_messages.empty())
        return;
    const Message message = m_messages.front();
    m_messages.erase(m_messages.begin());
    Q_EMIT activated();
    if (!message.text.isEmpty())
        Q_EMIT received(message.text);
    if (!message.sender)
        return;
    // At once: the slots may have ended the program.
    message.sender->putChar(HandOff::Handled);
    message.sender->flush();
    message.sender->disconnectFromServer();
}
