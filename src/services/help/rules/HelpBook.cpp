#include "services/help/rules/HelpBook.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

void collect(const std::vector<HelpChapter> &chapters, std::vector<const HelpChapter *> &pages)
{
    for (const HelpChapter &chapter : chapters) {
        pages.push_back(&chapter);
        collect(chapter.chapters, pages);
    }
}

void retitle(std::vector<HelpChapter> &chapters, const QString &page, const QString &title)
{
    for (HelpChapter &chapter : chapters) {
        if (chapter.page == page)
            chapter.title = title;
        retitle(chapter.chapters, page, title);
    }
}

/// Reads the sections up to the end of the element that holds them.
std::vector<HelpChapter> readChapters(QXmlStreamReader &project)
{
    std::vector<HelpChapter> chapters;
    while (project.readNextStartElement()) {
        if (project.name() != QStringLiteral("section")) {
            project.skipCurrentElement();
            continue;
        }
        HelpChapter chapter;
        chapter.title = project.attributes().value(QStringLiteral("title")).toString();
        chapter.page = project.attributes().value(QStringLiteral("ref")).toString();
        chapter.chapters = readChapters(project);
        chapters.push_back(std::move(chapter));
    }
    return chapters;
}

std::vector<HelpKeyword> readKeywords(QXmlStreamReader &project)
{
    std::vector<HelpKeyword> keywords;
    while (project.readNextStartElement()) {
        const QXmlStreamAttributes attributes = project.attributes();
        keywords.push_back(
            {attributes.value(QStringLiteral("name")).toString(), attributes.value(QStringLiteral("ref")).toString()});
        project.skipCurrentElement();
    }
    return keywords;
}

} // namespace

QString HelpBook::titleOf(const QString &page) const
{
    const std::vector<const HelpChapter *> all = pages();
    const auto found =
        std::find_if(all.begin(), all.end(), [&page](const HelpChapter *each) { return each->page == page; });
    return found == all.end() ? QString() : (*found)->title;
}

void HelpBook::setTitle(const QString &page, const QString &title)
{
    retitle(chapters, page, title);
}

std::vector<const HelpChapter *> HelpBook::pages() const
{
    std::vector<const HelpChapter *> all;
    collect(chapters, all);
    return all;
}

HelpBook parseHelpBook(const QByteArray &project)
{
    HelpBook book;
    QXmlStreamReader reader(project);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QStringLiteral("toc"))
            book.chapters = readChapters(reader);
        else if (reader.name() == QStringLiteral("keywords"))
            book.keywords = readKeywords(reader);
    }
    return book;
}

QString translatedPage(const QString &page, const QString &language)
{
    const qsizetype name = page.lastIndexOf(QLatin1Char('/')) + 1;
    return page.left(name) + language + QLatin1Char('/') + page.mid(name);
}

QString titleOfPage(const QByteArray &html)
{
    static const QRegularExpression title(QStringLiteral("<title>(.*)</title>"));
    return title.match(QString::fromUtf8(html)).captured(1);
}

QHash<int, QString> parseHelpContexts(const QByteArray &table)
{
    QHash<int, QString> pages;
    for (const QString &line : QString::fromUtf8(table).split(QLatin1Char('\n'))) {
        const QStringList fields = line.trimmed().split(QLatin1Char('\t'));
        if (fields.size() == 2 && !line.startsWith(QLatin1Char('#')))
            pages.insert(fields[0].toInt(), fields[1]);
    }
    return pages;
}
