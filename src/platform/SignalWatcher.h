#pragma once

#include <QObject>

#include <map>

#include <csignal>

class QSocketNotifier;

/// Turns the signals by which a system asks a program to end (SIGTERM, SIGINT, SIGHUP) into a Qt signal, and has failed
/// writes (SIGPIPE, SIGXFSZ) reported where they happen instead of killing the program. A request that the program was
/// started to ignore stays ignored. One object at a time; its end restores what was before.
class SignalWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SignalWatcher(QObject *parent = nullptr);
    ~SignalWatcher() override;

Q_SIGNALS:
    /// Sent from the event loop, once for each request.
    void endRequested(int signalNumber);

private:
    void readRequests();

    int m_pipe[2] = {-1, -1};
    QSocketNotifier *m_notifier = nullptr;
    std::map<int, struct sigaction> m_before;
};
