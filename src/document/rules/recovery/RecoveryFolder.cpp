#include "document/rules/recovery/RecoveryFolder.h"

#include "platform/files/AtomicFile.h"
#include "platform/files/FolderLock.h"
#include "platform/files/RegularFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace {

const QString CopySuffix = QStringLiteral(".copy");
constexpr int LockWait = 1000; // ms; another program that looks for orphans holds a lock for a moment
constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

std::optional<RecoveryCopy> readCopy(const QString &path)
{
    QFile file;
    return RegularFile::open(file, path) ? RecoveryCopy::read(file) : std::nullopt;
}

bool isHeld(const QString &place)
{
    return !FolderLock(place, 0).isHeld();
}

} // namespace

RecoveryFolder::RecoveryFolder(const QString &folder)
    : m_folder(folder)
    , m_place(folder + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::Id128))
{
}

RecoveryFolder::~RecoveryFolder()
{
    if (m_lock)
        QDir().rmdir(m_place); // unless copies are left in it
}

bool RecoveryFolder::takePlace()
{
    // The folder can be removed under a running program.
    if (m_lock && QFileInfo::exists(m_place))
        return true;
    m_lock.reset();
    if (!QDir().mkpath(m_place))
        return false;
    QFile::setPermissions(m_folder, OwnerOnly);
    QFile::setPermissions(m_place, OwnerOnly);
    auto lock = std::make_unique<FolderLock>(m_place, LockWait);
    if (!lock->isHeld())
        return false;
    m_lock = std::move(lock);
    return true;
}

std::vector<RecoveryFolder::Orphan> RecoveryFolder::orphans() const
{
    std::vector<Orphan> found;
    const QFileInfoList places = QDir(m_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &place : places) {
        const QString path = place.filePath();
        if (path == m_place || isHeld(path))
            continue;
        QDir().rmdir(path); // when nothing is left in it
        for (const QFileInfo &file : QDir(path).entryInfoList({QLatin1Char('*') + CopySuffix}, QDir::Files)) {
            if (std::optional<RecoveryCopy> copy = readCopy(file.filePath()))
                found.push_back({file.filePath(), std::move(*copy)});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Orphan &a, const Orphan &b) { return a.copy.time > b.copy.time; });
    return found;
}

QString RecoveryFolder::newPath()
{
    return QStringLiteral("%1/%2%3").arg(m_place).arg(++m_count).arg(CopySuffix);
}

bool RecoveryFolder::write(QString &path, const RecoveryCopy &copy)
{
    if (!takePlace())
        return false;
    if (path.isEmpty())
        path = newPath();
    return AtomicFile::write(path, copy.toBytes());
}

QString RecoveryFolder::adopt(const QString &orphanPath)
{
    QString path = newPath();
    if (takePlace() && QFile::rename(orphanPath, path)) {
        QDir().rmdir(QFileInfo(orphanPath).path());
        return path;
    }
    return QFileInfo::exists(orphanPath) ? orphanPath : QString();
}

bool RecoveryFolder::remove(const QString &path) const
{
    if (path.isEmpty())
        return true;
    const bool removed = QFile::remove(path) || !QFileInfo::exists(path);
    const QString place = QFileInfo(path).path();
    if (place != m_place)
        QDir().rmdir(place);
    return removed;
}
