#include "platform/files/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>

namespace ProgramFiles {

QString path(const QString &name)
{
    const QDir folder(QCoreApplication::applicationDirPath());
    QString beside = folder.filePath(name);
    QString installed = QDir::cleanPath(folder.filePath(QStringLiteral(GLOSARIA_DATA_FROM_PROGRAM "/") + name));
    return !QFile::exists(beside) && QFile::exists(installed) ? installed : beside;
}

} // namespace ProgramFiles
