#include "app/rules/Lessons.h"

#include <QDir>
#include <QRegularExpression>

namespace {

QString titleOf(const QString &name)
{
    static const QRegularExpression number(QStringLiteral("^0*(\\d+)[-_ ]+(?=.)"));
    QString title = name;
    QString digits;
    if (const QRegularExpressionMatch match = number.match(name); match.hasMatch()) {
        digits = match.captured(1) + u' ';
        title.remove(0, match.capturedLength());
    }
    title.replace(u'-', u' ').replace(u'_', u' ');
    title[0] = title[0].toUpper();
    return digits + title;
}

Lessons::Group groupIn(const QDir &folder, const QString &title)
{
    Lessons::Group group{title, {}};
    const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.gla")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        group.lessons.push_back({titleOf(file.completeBaseName()), file.filePath()});
    return group;
}

} // namespace

std::vector<Lessons::Group> Lessons::in(const QString &folder)
{
    const QDir all(folder);
    std::vector<Group> groups{groupIn(all, {})};
    const QStringList folders = all.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : folders)
        groups.push_back(groupIn(QDir(all.filePath(name)), titleOf(name)));
    std::erase_if(groups, [](const Group &group) { return group.lessons.empty(); });
    return groups;
}
