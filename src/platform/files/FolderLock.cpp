#include "platform/files/FolderLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int RetryInterval = 5; // ms

} // namespace

FolderLock::FolderLock(const QString &folder, int wait)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC))
{
    const QDeadlineTimer deadline(wait);
    while (!tryLock() && !deadline.hasExpired())
        QThread::msleep(RetryInterval);
}

FolderLock::~FolderLock()
{
    ::close(m_folder);
}

bool FolderLock::tryLock()
{
    m_held = ::flock(m_folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    return m_held;
}
