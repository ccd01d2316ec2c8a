#include "support/TestEnvironment.h"

#include <QDir>

TestEnvironment::TestEnvironment()
{
    for (const char *name : {"CONFIG", "DATA", "STATE", "CACHE", "RUNTIME"}) {
        const QString folder = m_home.filePath(QString::fromLatin1(name).toLower());
        QDir().mkpath(folder);
        const QByteArray variable = QByteArray("XDG_") + name + (qstrcmp(name, "RUNTIME") ? "_HOME" : "_DIR");
        qputenv(variable.constData(), folder.toLocal8Bit());
    }
    QFile::setPermissions(m_home.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
}
