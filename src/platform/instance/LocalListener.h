#pragma once

#include <QObject>

class QLocalSocket;
class QSocketNotifier;

/// Listens at a local socket that only the user can connect to. Unlike the toolkit's server it stays there when no
/// handle is left for a caller: who calls then waits.
class LocalListener : public QObject
{
    Q_OBJECT

public:
    explicit LocalListener(QObject *parent = nullptr);
    ~LocalListener() override;

    /// path: absolute, where nothing stands. False: see errno.
    bool listen(const QString &path);
    bool isListening() const { return m_handle >= 0; }

    /// Whether callers are told of by the event loop. Not at first.
    void setEnabled(bool enabled);

    /// The next caller, owned by this object until it has hung up; null when there is none, or no handle for it.
    QLocalSocket *next();

    /// Takes the socket away; who still waits at it finds nobody.
    void close();

Q_SIGNALS:
    void called();

private:
    void rest();

    int m_handle = -1;
    QByteArray m_path;
    QSocketNotifier *m_notifier = nullptr;
};
