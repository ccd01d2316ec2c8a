#include "services/help/HelpFile.h"
#include "services/help/rules/HelpBook.h"

namespace {

const QString HelpFolder = SOURCE_FOLDER "/src/resources/help/";

QStringList pagesOf(const HelpBook &book)
{
    QStringList pages;
    for (const HelpChapter *chapter : book.pages())
        pages.append(chapter->page);
    return pages;
}

HelpBook book()
{
    return parseHelpBook(readFile(HelpFolder + "glhelp.qhp"));
}

TEST(HelpContent, EveryTopicOfTheProgramHasAPage)
{
    const auto topics = parseHelpContexts(readFile(HelpFolder + "context.txt"));
    for (const int id : {1110, 1120, 1400, 1410, 1420, 1430, 1440}) // file dialogs, print dialogs and alert boxes
        EXPECT_TRUE(topics.contains(id)) << id;
    for (const QString &page : topics)
        EXPECT_TRUE(pagesOf(book()).contains(page)) << page.toStdString();
}

TEST(HelpContent, EveryPageStandsInTheContentsOnceUnderItsTitleAndHasNoColours)
{
    static const QRegularExpression colour("#[0-9a-f]{3}|color[:=]|bgcolor");
    QStringList files;
    for (const QString &name : QDir(HelpFolder + "html").entryList(QDir::Files))
        files.append("html/" + name);
    QStringList listed = pagesOf(book());
    listed.sort();
    EXPECT_EQ(listed, files);
    const HelpBook all = book();
    for (const HelpChapter *chapter : all.pages()) {
        const QString page = readFile(HelpFolder + chapter->page);
        for (const char *heading : {"<title>%1</title>", "<h1>%1</h1>"})
            EXPECT_TRUE(page.contains(QString(heading).arg(chapter->title))) << chapter->page.toStdString();
        EXPECT_FALSE(page.contains(colour)) << chapter->page.toStdString();
    }
    for (const HelpKeyword &keyword : all.keywords)
        EXPECT_TRUE(files.contains(keyword.page)) << keyword.word.toStdString();
}

TEST(HelpContent, NoLinkIsDead)
{
    HelpFile file(HELP_FILE);
    ASSERT_TRUE(file.open());
    static const QRegularExpression link(R"rx((?:href|src)="([^"#]*))rx");
    int links = 0;
    for (const QString &page : pagesOf(book())) {
        auto match = link.globalMatch(QString::fromUtf8(file.contents(page)));
        for (; match.hasNext(); ++links) {
            const QString target = QDir::cleanPath("html/" + match.next().captured(1));
            EXPECT_FALSE(file.contents(target).isEmpty()) << page.toStdString() << ": " << target.toStdString();
        }
    }
    EXPECT_GT(links, 100);
}

} // namespace
