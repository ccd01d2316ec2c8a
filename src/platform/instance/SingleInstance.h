#pragma once

#include "platform/instance/LocalListener.h"

#include <QLocalSocket>
#include <QPointer>

#include <vector>

class QDeadlineTimer;
class QTimer;

/// How long copies wait for each other, in milliseconds.
struct SingleInstanceLimits
{
    int answer = 5000; ///< a second copy for the first to handle its message
    int stall = 2000;  ///< the first copy for a message to arrive whole
};

/// Sees to it that one copy of the program runs per user and display: the first copy listens at a socket, each later
/// one hands over its command line and ends.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Role { First, Second };

    /// An empty path means that copies cannot meet: then every copy is a first one.
    explicit SingleInstance(const QString &socketPath, const SingleInstanceLimits &limits = {},
                            QObject *parent = nullptr);
    ~SingleInstance() override;

    /// Makes this copy the first, or has the first one handle the command line (empty: only come to the front) and
    /// waits until it has. A first copy that does not answer in time finds the message later; this copy is a second
    /// one all the same. The token is what the desktop lets the first copy come to the front by; it may be empty.
    Role start(const QString &commandLine, const QString &token = {});

    /// From now on messages are handled; those that came since start() come first. To be called when the signals are
    /// connected: a message that nobody took would be lost.
    void serve();

    /// To be called when this copy is about to end: it takes no more messages, and who still waits for an answer tries
    /// again and becomes the first. Returns the command lines whose senders have given up waiting: nobody else will
    /// act on them.
    QStringList leave();

Q_SIGNALS:
    /// Another copy was started: bring the main window to the front.
    void activated(const QString &token);
    /// What that copy was started with, never empty; follows activated. It waits until the slots have returned.
    void received(const QString &commandLine);

private:
    enum class Answer { Handled, Nobody, Lost, None };
    struct Message
    {
        QPointer<QLocalSocket> sender; ///< null or not connected: it has given up waiting
        QString text;
        QString token;
    };

    Answer ActivatePreviousInstance(const QByteArray &message, const QDeadlineTimer &deadline) const;
    bool becomeFirst(bool atAnyRate);
    void acceptConnections();
    void take(QLocalSocket *socket);
    void readMessage(QLocalSocket *socket, QTimer *stall);
    void forgetOldest();
    void handleNext();

    QString m_socketPath;
    SingleInstanceLimits m_limits;
    LocalListener m_listener;
    std::vector<QPointer<QLocalSocket>> m_callers; ///< whose message is not whole yet, the oldest first
    std::vector<Message> m_messages;               ///< whole and not yet handled
};
