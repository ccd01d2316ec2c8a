#include "platform/files/LongPath.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

bool isSameEntry(const QString &path, const QString &other)
{
    struct stat first = {};
    struct stat second = {};
    return ::lstat(QFile::encodeName(path).constData(), &first) == 0 &&
           ::lstat(QFile::encodeName(other).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

QString withCaseSwapped(QString name)
{
    for (QChar &c : name)
        c = c.isUpper() ? c.toLower() : c.toUpper();
    return name;
}

/// Leaves a folder. Behind a symbolic link that is the folder above its target, not the one that holds the link.
QString parentOf(const QString &folder)
{
    const QFileInfo info(folder);
    const QString place = info.isSymLink() ? info.canonicalFilePath() : folder;
    return place.left(std::max<qsizetype>(place.lastIndexOf(QLatin1Char('/')), 0));
}

} // namespace

namespace LongPath {

QString directoryEntry(const QString &folder, const QString &name)
{
    const QString place = folder + QLatin1Char('/');
    const QFileInfo entry(place + name);
    if (!entry.exists() && !entry.isSymLink())
        return QString();
    const QString swapped = withCaseSwapped(name);
    if (swapped == name || !isSameEntry(place + name, place + swapped))
        return name;
    const QStringList names = QDir(place).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    const auto listed = std::find_if(names.begin(), names.end(), [&name](const QString &candidate) {
        return candidate.compare(name, Qt::CaseInsensitive) == 0;
    });
    return listed == names.end() || names.contains(name) ? name : *listed;
}

QString ExpandLongPath(const QString &path, const Lookup &lookup)
{
    if (!QDir::isAbsolutePath(path))
        return QString();
    QString result;
    for (const QString &part : QDir::fromNativeSeparators(path).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (part == QStringLiteral("."))
            continue;
        if (part == QStringLiteral("..")) {
            result = parentOf(result);
            continue;
        }
        const QString name = lookup(result, part);
        if (name.isEmpty())
            return QString();
        result += QLatin1Char('/') + name;
    }
    return result.isEmpty() ? QStringLiteral("/") : result;
}

} // namespace LongPath
