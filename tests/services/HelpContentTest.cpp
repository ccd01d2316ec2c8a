#include "resources/TextLanguage.h"
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

/// Every page, in every language.
QStringList pageFiles()
{
    QStringList files;
    for (QDirIterator file(HelpFolder + "html", QDir::Files, QDirIterator::Subdirectories); file.hasNext();)
        files.append(QDir(HelpFolder).relativeFilePath(file.next()));
    files.sort();
    return files;
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
    QStringList listed;
    for (const QString &language : QStringList{""} + TextLanguage::available()) {
        HelpFile file(HELP_FILE, language);
        ASSERT_TRUE(file.open());
        for (const HelpChapter *chapter : file.book().pages()) {
            const QString name = file.shownFor(chapter->page);
            if (!language.isEmpty() && name == chapter->page)
                continue;
            listed.append(name);
            const QString page = readFile(HelpFolder + name);
            for (const char *heading : {"<title>%1</title>", "<h1>%1</h1>"})
                EXPECT_TRUE(page.contains(QString(heading).arg(chapter->title))) << name.toStdString();
            EXPECT_FALSE(page.contains(colour)) << name.toStdString();
        }
    }
    listed.sort();
    EXPECT_EQ(listed, pageFiles());
    for (const HelpKeyword &keyword : book().keywords)
        EXPECT_TRUE(listed.contains(keyword.page)) << keyword.word.toStdString();
}

TEST(HelpContent, NoLinkIsDead)
{
    HelpFile file(HELP_FILE);
    ASSERT_TRUE(file.open());
    static const QRegularExpression link(R"rx((?:href|src)="([^"#]*))rx");
    int links = 0;
    for (const QString &page : pageFiles()) {
        auto match = link.globalMatch(QString::fromUtf8(file.contents(page)));
        for (; match.hasNext(); ++links) {
            const QString target = QDir::cleanPath(QFileInfo(page).path() + '/' + match.next().captured(1));
            EXPECT_FALSE(file.contents(target).isEmpty()) << page.toStdString() << ": " << target.toStdString();
        }
    }
    EXPECT_GT(links, 100);
}

} // namespace
