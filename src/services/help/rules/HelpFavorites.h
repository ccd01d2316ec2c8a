#pragma once

#include <QString>
#include <QStringList>

/// The help topics that the user has marked, kept as a file with a page a line. A file that cannot be read or written
/// is no reason to trouble the user: the list then lasts as long as the program.
class HelpFavorites
{
public:
    explicit HelpFavorites(const QString &path);

    /// In the order in which they were added.
    const QStringList &pages() const { return m_pages; }
    /// A page that is in the list already stays where it is.
    void add(const QString &page);
    void remove(const QString &page);

private:
    void save() const;

    QString m_path;
    QStringList m_pages;
};
