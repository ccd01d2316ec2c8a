#include "app/rules/Lessons.h"

#include <QDir>

namespace {

const QString Ending = QStringLiteral(".gla");

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isGap(QChar c)
{
    return c == u'-' || c == u'_' || c == u' ';
}

/// "02-at-home" is "2 At home".
QString titleOf(const QString &name)
{
    const auto digitsEnd = std::find_if_not(name.begin(), name.end(), isDigit);
    const auto rest = std::find_if_not(digitsEnd, name.end(), isGap);
    const bool isNumbered = digitsEnd != name.begin() && rest != digitsEnd && rest != name.end();
    QString number = isNumbered ? name.left(digitsEnd - name.begin()) + u' ' : QString();
    while (number.size() > 2 && number.startsWith(u'0'))
        number.remove(0, 1);
    QString title = isNumbered ? name.mid(rest - name.begin()) : name;
    title.replace(u'-', u' ').replace(u'_', u' ');
    title[0] = title[0].toUpper();
    return number + title;
}

Lessons::Group groupIn(const QDir &folder, const QString &title)
{
    Lessons::Group group{title, {}};
    const QStringList files = folder.entryList(QDir::Files, QDir::Name); // filters by name take longer than the folder
    for (const QString &file : files) {
        if (file.size() > Ending.size() && file.endsWith(Ending, Qt::CaseInsensitive))
            group.lessons.push_back({titleOf(file.chopped(Ending.size())), folder.filePath(file)});
    }
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
