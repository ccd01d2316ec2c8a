#include "platform/instance/LocalListener.h"

#include <QFile>
#include <QLocalSocket>
#include <QSocketNotifier>
#include <QTimer>

#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int MostWaiting = 50;
constexpr int Rest = 100; // ms

bool bindTo(int handle, const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::copy(path.begin(), path.end(), address.sun_path);
    return ::bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

} // namespace

LocalListener::LocalListener(QObject *parent)
    : QObject(parent)
{
}

LocalListener::~LocalListener()
{
    close();
}

bool LocalListener::listen(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int handle = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (handle < 0)
        return false;
    if (!bindTo(handle, name) || ::chmod(name.constData(), S_IRUSR | S_IWUSR) != 0 ||
        ::listen(handle, MostWaiting) != 0) {
        ::close(handle);
        return false;
    }
    m_handle = handle;
    m_path = name;
    m_notifier = new QSocketNotifier(handle, QSocketNotifier::Read, this);
    m_notifier->setEnabled(false);
    connect(m_notifier, &QSocketNotifier::activated, this, &LocalListener::called);
    return true;
}

void LocalListener::setEnabled(bool enabled)
{
    if (m_notifier)
        m_notifier->setEnabled(enabled);
}

QLocalSocket *LocalListener::next()
{
    if (!isListening())
        return nullptr;
    const int caller = ::accept4(m_handle, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (caller < 0) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED)
            rest();
        return nullptr;
    }
    auto *socket = new QLocalSocket(this);
    socket->setSocketDescriptor(caller);
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    return socket;
}

/// A caller that cannot be taken would be told of again at once, and again.
void LocalListener::rest()
{
    if (!m_notifier->isEnabled())
        return;
    m_notifier->setEnabled(false);
    QTimer::singleShot(Rest, m_notifier, [this] { m_notifier->setEnabled(true); });
}

void LocalListener::close()
{
    if (!isListening())
        return;
    delete m_notifier;
    m_notifier = nullptr;
    ::close(m_handle);
    m_handle = -1;
    ::unlink(m_path.constData());
}
