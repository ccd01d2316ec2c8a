#include "print/rules/FileDialogRules.h"

namespace {

/// The position of the dot before the extension, or -1.
qsizetype extensionDot(const QString &path)
{
    const qsizetype name = path.lastIndexOf(u'/') + 1;
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > name ? dot : -1;
}

/// "Text (*.a)" gives "Text".
QString withoutPatterns(const QString &description)
{
    const qsizetype open = description.lastIndexOf(u'(');
    return open >= 0 && description.endsWith(u')') ? description.left(open).trimmed() : description;
}

} // namespace

namespace FileDialogRules {

QStringList nameFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString &pattern : parts.at(i + 1).split(u';', Qt::SkipEmptyParts)) {
            if (!pattern.trimmed().isEmpty())
                patterns.append(pattern.trimmed());
        }
        if (!patterns.isEmpty())
            filters.append(withoutPatterns(parts.at(i).trimmed()) + QStringLiteral(" (") + patterns.join(u' ') + u')');
    }
    return filters;
}

QString extension(const QString &path)
{
    const qsizetype dot = extensionDot(path);
    return dot < 0 ? QString() : path.mid(dot + 1);
}

QString withExtension(const QString &path, const QString &ext)
{
    if (extension(path).compare(ext, Qt::CaseInsensitive) == 0)
        return path;
    const qsizetype dot = extensionDot(path);
    return (dot < 0 ? path : path.left(dot)) + u'.' + ext;
}

QString withAppendedExtension(const QString &path, const QString &ext)
{
    return extension(path).compare(ext, Qt::CaseInsensitive) == 0 ? path : path + u'.' + ext;
}

} // namespace FileDialogRules
