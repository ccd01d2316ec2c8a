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
    ASSERT_TRUE(link("New vocabulary"));
    window->resize(900, 500);
    EXPECT_EQ(page().geometry(), window->documentArea()->geometry());
    QTest::mouseClick(link("New vocabulary"), Qt::LeftButton);
    EXPECT_EQ(documents().active()->Caption(), "Untitled 1");
    EXPECT_FALSE(page().isVisible());
    const QString file = writeVocabulary("words.gla");
    window->OpenRequestedFile(file);
    documents().open().front()->frame()->close();
    EXPECT_FALSE(page().isVisible());
    documents().open().front()->frame()->close();
    EXPECT_TRUE(page().isVisible());
    EXPECT_EQ(status(0), resText(506));
    ASSERT_TRUE(link(file));
    QTest::keyClick(link(file), Qt::Key_Return);
    EXPECT_EQ(documents().active()->DocName(), file);
}

TEST_F(StartPageTest, KeysGoFromListToListAndFromLineToLine)
{
    link("New vocabulary")->setFocus();
    const auto lists = page().findChildren<LinkList *>();
    const auto lessons = std::find_if(lists.begin(), lists.end(), [](auto *list) { return list->links().size() > 3; });
    ASSERT_NE(lessons, lists.end()) << "no lessons";
    const std::vector<LinkButton *> &links = (*lessons)->links();
    const QList<Qt::Key> keys{Qt::Key_Up,      Qt::Key_Down, Qt::Key_Tab, Qt::Key_End,
                              Qt::Key_Backtab, Qt::Key_Tab,  Qt::Key_Home};
    QWidget *const open = link("Open a vocabulary...");
    QList<QWidget *> focused;
    for (const Qt::Key key : keys) {
        QTest::keyClick(QApplication::focusWidget(), key);
        focused += QApplication::focusWidget();
    }
    EXPECT_EQ(focused,
              QList<QWidget *>({link("New vocabulary"), open, links[0], links.back(), open, links.back(), links[0]}));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(links[1]);
    EXPECT_EQ(accessible->role(), QAccessible::Link);
    EXPECT_EQ(accessible->text(QAccessible::Name), links[1]->text());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(QTest::qWaitFor([this] { return documents().active(); }));
    const frmDoc &lesson = *documents().active();
    EXPECT_TRUE(lesson.Caption() == "Untitled 1" && lesson.DocName().isEmpty() && !lesson.Dirty());
    EXPECT_GT(lesson.Rutor()->Rows(), 5);
    EXPECT_EQ(window->context().recentFiles.FileCount(), 0);
}

} // namespace
