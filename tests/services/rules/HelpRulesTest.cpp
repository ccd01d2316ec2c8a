#include "services/help/rules/HelpBook.h"
#include "services/help/rules/HelpFavorites.h"

TEST(HelpBook, ReadsContentsAndIndex)
{
    const HelpBook book = parseHelpBook(
        "<QtHelpProject><filterSection><toc><section title='A &amp; B' ref='a'><section title='C' ref='c'/>"
        "<note><section title='N' ref='n'/></note></section><section title='D' ref='d'/></toc><keywords><keyword "
        "name='k' ref='c'><note/></keyword><keyword name='l' ref='d'/></keywords></filterSection>"
        "</QtHelpProject>");
    ASSERT_TRUE(book.pages().size() == 3 && book.chapters.size() == 2 && book.keywords.size() == 2);
    EXPECT_EQ(book.titleOf("a"), "A & B");
    EXPECT_EQ(book.pages()[1]->page + book.keywords[0].page + book.keywords[1].word, "ccl");
    EXPECT_EQ(parseHelpBook("<QtHelpProject><toc><section title='A' ref='a'/><sec").pages().size(), 1u);
    EXPECT_EQ(parseHelpContexts("# head\n#1\ta\n1160\thtml/find.html\r\n\nnonsense\n1170\thtml/replace.html"),
              (QHash<int, QString>{{1160, "html/find.html"}, {1170, "html/replace.html"}}));
}

TEST(HelpFavorites, StandInTheirFileOnceEach)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("new/favorites");
    HelpFavorites favorites(path);
    for (const char *page : {"a", "b", "a"})
        favorites.add(page);
    EXPECT_EQ(HelpFavorites(path).pages() + favorites.pages(), (QStringList{"a", "b", "a", "b"}));
    favorites.remove("a");
    EXPECT_EQ(readFile(path), "b\n");
    QFile::remove(path);
    favorites.remove("a");
    EXPECT_FALSE(QFile::exists(path)) << "nothing has changed";
    writeFile(path, "x\r\n\ny \nx\n");
    EXPECT_EQ(HelpFavorites(path).pages(), (QStringList{"x", "y"}));
}
