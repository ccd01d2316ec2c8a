#include "platform/files/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString besideOr(const QString &installation, const QString &name)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    QString beside = folder.filePath(name);
    QString installed = QDir::cleanPath(folder.filePath(installation + u'/' + name));
    return !QFile::exists(beside) && QFile::exists(installed) ? installed : beside;
}

} // namespace

namespace ProgramFiles {

QString path(const QString &name)
{
    return besideOr(QStringLiteral(GLOSARIA_DATA_FROM_PROGRAM), name);
}

QString module(const QString &name)
{
    return besideOr(QStringLiteral(GLOSARIA_MODULES_FROM_PROGRAM), name);
}

} // namespace ProgramFiles
