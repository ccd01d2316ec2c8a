#include "document/rules/RecoveryFolder.h"

#include "platform/AtomicFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUuid>

namespace {

const QString CopySuffix = QStringLiteral(".copy");

/// Names are "session-number.copy": the session is what stands before the last hyphen.
QString sessionOf(const QString &path)
{
    const QString name = QFileInfo(path).completeBaseName();
    return name.left(name.lastIndexOf(QLatin1Char('-')));
}

bool isHeld(const QString &lockPath)
{
    if (!QFile::exists(lockPath))
        return false;
    QLockFile lock(lockPath);
    lock.setStaleLockTime(0);
    return !lock.tryLock(0);
}

std::optional<RecoveryCopy> readCopy(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? RecoveryCopy::fromBytes(file.readAll()) : std::nullopt;
}

} // namespace

RecoveryFolder::RecoveryFolder(const QString &folder)
    : m_folder(folder)
{
}

QString RecoveryFolder::lockPath(const QString &session) const
{
    return m_folder + QLatin1Char('/') + session + QStringLiteral(".lock");
}

bool RecoveryFolder::takePlace()
{
    if (m_lock)
        return true;
    if (!QDir().mkpath(m_folder))
        return false;
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_session = QUuid::createUuid().toString(QUuid::Id128);
    auto lock = std::make_unique<QLockFile>(lockPath(m_session));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return false;
    m_lock = std::move(lock);
    return true;
}

std::vector<RecoveryFolder::Orphan> RecoveryFolder::orphans() const
{
    std::vector<Orphan> found;
    const QFileInfoList files = QDir(m_folder).entryInfoList({QLatin1Char('*') + CopySuffix}, QDir::Files, QDir::Time);
    for (const QFileInfo &file : files) {
        const QString session = sessionOf(file.filePath());
        if (session == m_session || isHeld(lockPath(session)))
            continue;
        if (std::optional<RecoveryCopy> copy = readCopy(file.filePath()))
            found.push_back({file.filePath(), std::move(*copy)});
    }
    return found;
}

QString RecoveryFolder::newPath()
{
    if (!takePlace())
        return {};
    return QStringLiteral("%1/%2-%3%4").arg(m_folder, m_session).arg(++m_count).arg(CopySuffix);
}

bool RecoveryFolder::write(const QString &path, const RecoveryCopy &copy) const
{
    return AtomicFile::write(path, copy.toBytes());
}

QString RecoveryFolder::adopt(const QString &orphanPath)
{
    const QString path = newPath();
    return !path.isEmpty() && QFile::rename(orphanPath, path) ? path : QString();
}

void RecoveryFolder::remove(const QString &path) const
{
    if (!path.isEmpty())
        QFile::remove(path);
}
