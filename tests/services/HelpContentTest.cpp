#include "resources/TextLanguage.h"
#include "services/help/HelpFile.h"

const QString HelpFolder = SOURCE_FOLDER "/src/resources/help/";

TEST(HelpContent, EveryTopicOfTheProgramAndEveryKeywordHasAPage)
{
    const HelpBook book = parseHelpBook(readFile(HelpFolder + "glhelp.qhp"));
    const auto topics = parseHelpContexts(readFile(HelpFolder + "context.txt"));
    QStringList pages = topics.values();
    pages += {topics.value(1110), topics.value(1120), topics.value(1400)}; // file dialogs and alert boxes
    for (const HelpKeyword &keyword : book.keywords)
        pages += keyword.page;
    for (const QString &page : pages)
        EXPECT_NE(book.titleOf(page), "") << page.toStdString();
}

TEST(HelpContent, EveryPageStandsInTheContentsOnceUnderItsTitleAndHasNoColoursAndNoDeadLinks)
{
    static const QRegularExpression colour("#[0-9a-f]{3}|color[:=]|bgcolor");
    static const QRegularExpression link(R"rx((?:href|src)="([^"#]*))rx");
    QStringList listed;
    int links = 0;
    for (const QString &language : QStringList{""} + TextLanguage::available()) {
        HelpFile file(HELP_FILE, language);
        ASSERT_TRUE(file.open());
        for (const HelpChapter *chapter : file.book().pages()) {
            const QString name = file.shownFor(chapter->page);
            if (!language.isEmpty() && name == chapter->page)
                continue;
            listed.append(name);
            const QString page = QString::fromUtf8(file.contents(name));
            EXPECT_TRUE(page.contains("<h1>" + chapter->title) && !page.contains(colour)) << name.toStdString();
            for (auto match = link.globalMatch(page); match.hasNext(); ++links) {
                const QString to = QDir::cleanPath(QFileInfo(name).path() + '/' + match.next().captured(1));
                EXPECT_NE(file.contents(to), "") << name.toStdString() << ": " << to.toStdString();
            }
        }
    }
    for (QDirIterator file(HelpFolder + "html", QDir::Files, QDirIterator::Subdirectories); file.hasNext();)
        EXPECT_EQ(listed.removeAll(QDir(HelpFolder).relativeFilePath(file.next())), 1) << file.filePath().toStdString();
    EXPECT_TRUE(listed.isEmpty() && links > 100);
}
