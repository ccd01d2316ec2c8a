#include "platform/files/UserFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace UserFolders {

QString config()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/glosaria");
}

QString state()
{
    // A relative path in the variable counts as unset.
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isRelativePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir::cleanPath(folder) + QStringLiteral("/glosaria");
}

QString sharedData()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

} // namespace UserFolders
