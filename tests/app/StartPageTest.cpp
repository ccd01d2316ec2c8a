#include "MainWindowFixture.h"

#include "app/StartPage.h"
#include "widgets/LinkList.h"

namespace {

struct StartPageTest : MainWindowFixture
{
    void SetUp() override
    {
        MainWindowFixture::SetUp();
        QCoreApplication::processEvents();
    }
    QWidget &page() { return *window->findChild<StartPage *>(); }
    LinkButton *link(const QString &text)
    {
        for (LinkButton *link : page().findChildren<LinkButton *>()) {
            if (link->text() == text && link->isVisible())
                return link;
        }
        return nullptr;
    }
};

TEST_F(StartPageTest, ShowsWhileNoDocumentIsOpen)
{
    EXPECT_TRUE(page().isVisible());
    EXPECT_EQ(page().geometry(), window->documentArea()->geometry());
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
    const auto lists = page().findChildren<LinkList *>();
    const auto lessons = std::find_if(lists.begin(), lists.end(), [](auto *list) { return list->links().size() > 3; });
    ASSERT_NE(lessons, lists.end()) << "no lessons";
    const std::vector<LinkButton *> &links = (*lessons)->links();
    link("New vocabulary")->setFocus();
    const std::pair<int, QWidget *> keys[] = {{Qt::Key_Up, link("New vocabulary")},
                                              {Qt::Key_Down, link("Open a vocabulary...")},
                                              {Qt::Key_Tab, links[0]},
                                              {Qt::Key_End, links.back()},
                                              {Qt::Key_Backtab, link("Open a vocabulary...")},
                                              {Qt::Key_Tab, links.back()},
                                              {Qt::Key_Home, links[0]}};
    for (const auto &[key, focused] : keys) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        EXPECT_EQ(QApplication::focusWidget(), focused) << key;
    }
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(links[1]);
    EXPECT_EQ(accessible->role(), QAccessible::Link);
    EXPECT_EQ(accessible->text(QAccessible::Name), links[1]->text());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(QTest::qWaitFor([this] { return documents().active(); }));
    EXPECT_EQ(documents().active()->Caption(), "Untitled 1");
    EXPECT_EQ(documents().active()->DocName(), "");
    EXPECT_GT(documents().active()->Rutor()->Rows(), 5);
    EXPECT_FALSE(documents().active()->Dirty());
    EXPECT_EQ(window->context().recentFiles.FileCount(), 0);
}

} // namespace
