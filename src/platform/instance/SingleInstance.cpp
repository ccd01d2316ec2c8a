#include "platform/instance/SingleInstance.h"

#include "platform/files/FolderLock.h"
#include "platform/instance/HandOff.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <utility>

namespace {

constexpr int RetryInterval = 5;     // ms
constexpr int ClosingLockWait = 100; // ms
// However many call, handles are left for the user's own work.
constexpr size_t MostCallers = 32;
constexpr size_t MostMessages = 64;

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
    connect(&m_listener, &LocalListener::called, this, &SingleInstance::acceptConnections);
    m_listener.setEnabled(true);
    acceptConnections();
}

QStringList SingleInstance::leave()
{
    if (!m_listener.isListening())
        return {};
    m_listener.disconnect(this);
    while (QLocalSocket *socket = m_listener.next())
        take(socket);
    const QList<QLocalSocket *> senders = m_listener.findChildren<QLocalSocket *>();
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
    m_listener.close();
    for (QLocalSocket *sender : senders)
        sender->abort();
    return givenUp;
}

SingleInstance::Role SingleInstance::start(const QString &commandLine, const QString &token)
{
    if (m_socketPath.isEmpty())
        return Role::First;
    const QDeadlineTimer deadline(m_limits.answer);
    QByteArray message = HandOff::message(commandLine, token);
    for (;;) {
        const Answer answer = ActivatePreviousInstance(message, deadline);
        if (answer == Answer::Handled)
            return Role::Second;
        if (answer == Answer::Nobody && becomeFirst(deadline.hasExpired()))
            return Role::First;
        if (answer != Answer::Nobody && deadline.hasExpired())
            return Role::Second;
        if (answer == Answer::Lost) // a first copy of an earlier version knows no tokens
            message = HandOff::message(commandLine);
        QThread::msleep(RetryInterval);
    }
}

SingleInstance::Answer SingleInstance::ActivatePreviousInstance(const QByteArray &message,
                                                                const QDeadlineTimer &deadline) const
{
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(remaining(deadline)))
        return isBusy(socket) ? Answer::None : Answer::Nobody;
    socket.write(message);
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
        QFile::remove(m_socketPath);
    return m_listener.listen(m_socketPath) || atAnyRate;
}

void SingleInstance::acceptConnections()
{
    while (m_messages.size() < MostMessages) {
        QLocalSocket *const socket = m_listener.next();
        if (!socket)
            return;
        take(socket);
    }
    m_listener.setEnabled(false); // until a message has been handled
}

void SingleInstance::take(QLocalSocket *socket)
{
    socket->setReadBufferSize(HandOff::LargestMessage + 1);
    auto *stall = new QTimer(socket);
    stall->setSingleShot(true);
    connect(stall, &QTimer::timeout, socket, &QLocalSocket::abort);
    stall->start(m_limits.stall);
    socket->waitForReadyRead(0); // of a crowd, who has sent its message counts, also if it has hung up since
    connect(socket, &QLocalSocket::readyRead, this, [this, socket, stall] { readMessage(socket, stall); });
    m_callers.emplace_back(socket);
    readMessage(socket, stall);
    forgetOldest();
}

/// A copy of the program sends its message at once; who has called and says nothing makes room.
void SingleInstance::forgetOldest()
{
    std::erase(m_callers, nullptr);
    if (m_callers.size() <= MostCallers)
        return;
    QLocalSocket *const oldest = m_callers.front();
    m_callers.erase(m_callers.begin());
    oldest->abort();
}

void SingleInstance::readMessage(QLocalSocket *socket, QTimer *stall)
{
    const HandOff::Parsed parsed = HandOff::parse(socket->peek(HandOff::LargestMessage + 1));
    if (parsed.state == HandOff::State::Incomplete)
        return;
    socket->disconnect(this);
    std::erase(m_callers, socket);
    if (parsed.state == HandOff::State::Malformed) {
        socket->abort();
        return;
    }
    stall->stop();
    m_messages.push_back({socket, parsed.text, parsed.token});
    // Not from inside the socket's own signal: slots may run event loops, in which the sender can go away.
    QMetaObject::invokeMethod(this, &SingleInstance::handleNext, Qt::QueuedConnection);
}

void SingleInstance::handleNext()
{
    if (m_messages.empty())
        return;
    const Message message = m_messages.front();
    m_messages.erase(m_messages.begin());
    m_listener.setEnabled(true);
    Q_EMIT activated(message.token);
    if (!message.text.isEmpty())
        Q_EMIT received(message.text);
    if (!message.sender)
        return;
    // At once: the slots may have ended the program.
    message.sender->putChar(HandOff::Handled);
    message.sender->flush();
    message.sender->disconnectFromServer();
}
