#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

/// An entry of the contents, with what stands below it.
struct HelpChapter
{
    QString title;
    QString page; ///< path in the help file, for example "html/sort.html"
    std::vector<HelpChapter> chapters;
};

/// An entry of the index.
struct HelpKeyword
{
    QString word;
    QString page;
};

/// Contents and index of the help, as its project file lists them.
struct HelpBook
{
    std::vector<HelpChapter> chapters;
    std::vector<HelpKeyword> keywords; ///< in the project file's order

    /// Title of a page in the contents; empty for a page that is not in them.
    QString titleOf(const QString &page) const;
    void setTitle(const QString &page, const QString &title);
    /// Every page of the contents, in reading order.
    std::vector<const HelpChapter *> pages() const;
};

/// Reads the project file; one that is damaged gives what stands before the damage.
HelpBook parseHelpBook(const QByteArray &project);

/// Where a page stands in another language, if it does: "html/de/sort.html" for "html/sort.html".
QString translatedPage(const QString &page, const QString &language);

/// The title that a page tells of itself.
QString titleOfPage(const QByteArray &html);

/// Reads the table of context numbers: lines "id<TAB>page"; empty lines and lines that begin with # are skipped, and so
/// are lines of any other form.
QHash<int, QString> parseHelpContexts(const QByteArray &table);
