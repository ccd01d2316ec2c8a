#pragma once

#include <QLocalServer>
#include <QPointer>

class QDeadlineTimer;
class QLocalSocket;
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
    /// one all the same.
    Role start(const QString &commandLine);

Q_SIGNALS:
    /// Another copy was started: bring the main window to the front.
    void activated();
    /// What that copy was started with, never empty; follows activated. It waits until the slots have returned.
    void received(const QString &commandLine);

private:
    enum class Answer { Handled, Nobody, Lost, None };

    Answer ActivatePreviousInstance(const QString &commandLine, const QDeadlineTimer &deadline) const;
    bool becomeFirst(bool atAnyRate);
    void acceptConnections();
    void readMessage(QLocalSocket *socket, QTimer *stall);
    void handle(const QPointer<QLocalSocket> &sender, const QString &text);

    QString m_socketPath;
    SingleInstanceLimits m_limits;
    QLocalServer m_server;
};
