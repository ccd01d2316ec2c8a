#include "platform/FileAssociation.h"

#include "platform/DetachedProcess.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/RegularFile.h"
#include "platform/files/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString MimePackage = QStringLiteral("mime/packages/glosaria.xml");
const QString DesktopEntry = QStringLiteral("applications/glosaria.desktop");
const QString ProgramIcon = QStringLiteral("icons/hicolor/scalable/apps/glosaria.svg");
const QString TypeIcon = QStringLiteral("icons/hicolor/scalable/mimetypes/application-x-glosaria.svg");
const QByteArray TryExec("TryExec=");

QString userFile(const QString &name)
{
    return UserFolders::sharedData() + QLatin1Char('/') + name;
}

/// A value of a desktop entry, in which a backslash begins an escape.
QByteArray entryValue(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"))
        .replace(QLatin1Char('\t'), QLatin1String("\\t"))
        .toUtf8();
}

/// An argument of an Exec line in quotes. Inside them four characters need a backslash; the percent sign is doubled.
QString quotedArgument(const QString &argument)
{
    QString quoted(QLatin1Char('"'));
    for (QChar c : argument) {
        if (QStringLiteral("\"`$\\").contains(c))
            quoted += QLatin1Char('\\');
        quoted += c == QLatin1Char('%') ? QStringLiteral("%%") : QString(c);
    }
    return quoted + QLatin1Char('"');
}

/// True when the file has this content now; changed tells whether it had another before.
bool ensureContent(const QString &path, const QByteArray &content, bool &changed)
{
    QFile file;
    if (RegularFile::open(file, path) && file.readAll() == content)
        return true;
    file.close();
    changed = true;
    return QDir().mkpath(QFileInfo(path).absolutePath()) && AtomicFile::write(path, content);
}

} // namespace

QString FileAssociation::mimeType()
{
    return QStringLiteral("application/x-glosaria");
}

bool FileAssociation::isInstalled()
{
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    return std::any_of(folders.begin(), folders.end(), [](const QString &folder) {
        return folder != UserFolders::sharedData() && QFileInfo::exists(folder + QLatin1Char('/') + MimePackage) &&
               QFileInfo::exists(folder + QLatin1Char('/') + DesktopEntry);
    });
}

bool FileAssociation::isBroken()
{
    QFile file;
    if (!RegularFile::open(file, userFile(DesktopEntry)))
        return false;
    const QByteArrayList lines = file.readAll().split('\n');
    return std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) {
        const QByteArray program = line.mid(TryExec.size()).replace("\\\\", "\\");
        return line.startsWith(TryExec) && program.startsWith('/') &&
               !QFileInfo(QFile::decodeName(program)).isExecutable();
    });
}

QByteArray FileAssociation::userEntry() const
{
    const QByteArray exec = "\nExec=" + entryValue(quotedArgument(programPath)) + ' ';
    const QByteArray tryExec = '\n' + TryExec + entryValue(programPath) + '\n';
    QByteArray entry = desktopEntry;
    return entry.replace("\nExec=glosaria ", exec).replace("\nTryExec=glosaria\n", tryExec);
}

bool FileAssociation::registerType() const
{
    if (isInstalled())
        return !isBroken() || QFile::remove(userFile(DesktopEntry));
    const std::pair<QString, QByteArray> files[] = {
        {MimePackage, mimePackage}, {ProgramIcon, programIcon}, {TypeIcon, typeIcon}, {DesktopEntry, userEntry()}};
    bool changed = false;
    bool written = true;
    for (const auto &[name, content] : files)
        written = ensureContent(userFile(name), content, changed) && written;
    if (changed) {
        DetachedProcess::start(QStringLiteral("update-mime-database"), {userFile(QStringLiteral("mime"))});
        DetachedProcess::start(QStringLiteral("update-desktop-database"), {userFile(QStringLiteral("applications"))});
        DetachedProcess::start(QStringLiteral("xdg-mime"),
                               {QStringLiteral("default"), QFileInfo(DesktopEntry).fileName(), mimeType()});
    }
    return written;
}
