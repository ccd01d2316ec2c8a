#include "platform/FileAssociation.h"

#include "platform/AtomicFile.h"
#include "platform/DetachedProcess.h"
#include "platform/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString MimePackage = QStringLiteral("mime/packages/glosaria.xml");
const QString DesktopEntry = QStringLiteral("applications/glosaria.desktop");
const QString ProgramIcon = QStringLiteral("icons/hicolor/scalable/apps/glosaria.svg");
const QString TypeIcon = QStringLiteral("icons/hicolor/scalable/mimetypes/application-x-glosaria.svg");

/// A value of a desktop entry, in which a backslash begins an escape.
QString entryValue(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"))
        .replace(QLatin1Char('\t'), QLatin1String("\\t"));
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
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.readAll() == content)
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

QByteArray FileAssociation::mimePackage() const
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
                          "  <mime-type type=\"%1\">\n"
                          "    <comment>%2</comment>\n"
                          "    <sub-class-of type=\"text/plain\"/>\n"
                          "    <glob pattern=\"*.gla\"/>\n"
                          "  </mime-type>\n"
                          "</mime-info>\n")
        .arg(mimeType(), typeName.toHtmlEscaped())
        .toUtf8();
}

QByteArray FileAssociation::desktopEntry() const
{
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=%1\n"
                          "Exec=%2 %f\n"
                          "TryExec=%3\n"
                          "Icon=glosaria\n"
                          "MimeType=%4;\n"
                          "Categories=Education;Languages;Qt;\n"
                          "StartupNotify=true\n"
                          "StartupWMClass=glosaria\n")
        .arg(entryValue(programName), entryValue(quotedArgument(programPath)), entryValue(programPath), mimeType())
        .toUtf8();
}

bool FileAssociation::registerType() const
{
    if (isInstalled())
        return true;
    const QString folder = UserFolders::sharedData() + QLatin1Char('/');
    const std::pair<QString, QByteArray> files[] = {
        {MimePackage, mimePackage()}, {ProgramIcon, programIcon}, {TypeIcon, typeIcon}, {DesktopEntry, desktopEntry()}};
    bool changed = false;
    bool written = true;
    for (const auto &[name, content] : files)
        written = ensureContent(folder + name, content, changed) && written;
    if (changed) {
        DetachedProcess::start(QStringLiteral("update-mime-database"), {folder + QStringLiteral("mime")});
        DetachedProcess::start(QStringLiteral("update-desktop-database"), {folder + QStringLiteral("applications")});
        DetachedProcess::start(QStringLiteral("xdg-mime"),
                               {QStringLiteral("default"), QFileInfo(DesktopEntry).fileName(), mimeType()});
    }
    return written;
}
