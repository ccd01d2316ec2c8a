#include "resources/ResourceFiles.h"

#include <QFile>

// Outside every namespace, as the macro asks; without the call the linker drops the resources of a static library.
static void registerResources()
{
    Q_INIT_RESOURCE(resources);
}

namespace ResourceFiles {

QByteArray contents(QLatin1String name)
{
    registerResources();
    QFile file(QStringLiteral(":/resources/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ResourceFiles
