#include "MainWindowFixture.h"

#include "app/StartPage.h"
#include "widgets/LinkList.h"

namespace {

struct StartPageTest : MainWindowFixture
{
    QWidget &page() { return *window->findChild<StartPage *>(); }
    LinkButton *link(const QString &text)
    {
        QCoreApplication::processEvents(); // the page shows
        for (LinkButton *link : page().findChildren<LinkButton *>()) {
            if (link->text() == text && link->isVisible())
                return link;
        }
        return nullptr;
    }
};

TEST_F(StartPageTest, ShowsWhileNoDocumentIsOpen)
{
    QTest::mouseClick(link("1 Greetings"), Qt::LeftButton); // a lesson, which opens without a name
    ASSERT_TRUE(documents().active());
    frmDoc &lesson = *documents().active();
    EXPECT_TRUE(lesson.Caption() == "Untitled 1" && lesson.DocName().isEmpty() && !lesson.Dirty());
    EXPECT_TRUE(lesson.Rutor()->Rows() > 5 && window->context().recentFiles.FileCount() == 0);
    lesson.frame()->close();
    window->resize(900, 500);
    EXPECT_EQ(page().geometry(), window->documentArea()->geometry());
    const auto lists = page().findChildren<LinkList *>();
    QStringList columns; // how many lists stand in each
    for (const int width : {500, 1100, 1600}) {
        window->resize(width, 700);
        QCoreApplication::processEvents();
        QMap<int, int> found;
        for (const LinkList *each : lists) {
            if (each->isVisible())
                ++found[each->mapTo(&page(), QPoint()).x()];
        }
        EXPECT_EQ(found.firstKey(), 24);
        for (const int count : found)
            columns += QString::number(count);
    }
    EXPECT_EQ(columns.join(' ').toStdString(), "1 6 1 2 2 1 1 1 1 1 1 1 1 1");
    const auto right = [&](int list) { return lists[list]->mapTo(&page(), lists[list]->rect().topRight()).x() + 1; };
    EXPECT_EQ(lists[2]->mapTo(&page(), QPoint()).x() - right(0), 48);
    EXPECT_EQ(lists[3]->mapTo(&page(), QPoint()).x() - right(2), 24);
    EXPECT_EQ(
        shown(page()).remove(QRegularExpression(" \\| \\d[^|]*[^| ]")).toStdString(),
        " | *Start* | New vocabulary | Open a vocabulary... | Import a list... | *French* | *German* | *Italian* | "
        "*Japanese* | *Russian* | *Spanish*");
    EXPECT_EQ(page().accessibleName(), resText(14700));
    QTest::mouseClick(link("New vocabulary"), Qt::LeftButton);
    EXPECT_EQ(documents().active()->Caption(), "Untitled 2");
    const QString file = writeVocabulary("words.gla");
    window->OpenRequestedFile(file);
    documents().open().front()->frame()->close();
    EXPECT_FALSE(page().isVisible());
    documents().open().front()->frame()->close();
    EXPECT_TRUE(page().isVisible());
    QTest::keyClick(link(file), Qt::Key_Return);
    EXPECT_EQ(documents().active()->DocName(), file);
}

} // namespace
