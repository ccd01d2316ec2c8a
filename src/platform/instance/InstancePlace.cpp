#include "platform/instance/InstancePlace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QSysInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The display of the session; one X display has several screens.
QString displayName()
{
    QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (!wayland.isEmpty())
        return wayland;
    const QString display = qEnvironmentVariable("DISPLAY");
    const qsizetype screen = display.indexOf(QLatin1Char('.'), display.lastIndexOf(QLatin1Char(':')));
    return screen < 0 ? display : display.left(screen);
}

/// A home folder can be shared between machines, so the name tells them apart.
QString socketName()
{
    const QString place = displayName() + QLatin1Char('\n') + QSysInfo::machineHostName();
    const QByteArray digest = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("copy-") + QString::fromLatin1(digest.toHex().left(16));
}

bool isOwnFolder(const QByteArray &path, struct stat &status)
{
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
}

/// In a folder that others may write to, what stands under the name can be anybody's.
bool makePrivate(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    struct stat status = {};
    if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
        return false;
    return isOwnFolder(path, status) && ((status.st_mode & 0077) == 0 || ::chmod(path.constData(), 0700) == 0);
}

QStringList candidateFolders()
{
    QStringList folders;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    struct stat status = {};
    if (QDir::isAbsolutePath(runtime) && isOwnFolder(QFile::encodeName(runtime), status))
        folders += runtime + QStringLiteral("/glosaria");
    folders += QStringLiteral("/tmp/glosaria-%1").arg(::geteuid());
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(cache);
    folders += cache + QStringLiteral("/glosaria");
    return folders;
}

} // namespace

namespace InstancePlace {

QString socketPath()
{
    for (const QString &folder : candidateFolders()) {
        QString path = folder + QLatin1Char('/') + socketName();
        if (QFile::encodeName(path).size() <= LongestPath && makePrivate(folder))
            return path;
    }
    return QString();
}

} // namespace InstancePlace
