#include "services/help/HelpViewer.h"
#include "services/help/HelpBrowser.h"
#include "services/help/HelpViewers.h"
#include "support/ScriptedAlertBox.h"

struct HelpViewerTest : ::testing::Test
{
    QTemporaryDir folder;
    ScriptedAlertBox alert;
    HelpViewers viewers{alert, folder.filePath("favorites")};
    HelpTarget target;

    HelpViewerTest() { target.HTMLHelpFile = HELP_FILE; }
    HelpViewer *main() { return viewers.window("Main"); }
    template <typename Widget> Widget *part(const char *name)
    {
        return main()->findChild<Widget *>(QString::fromLatin1(name));
    }
    static QStringList texts(const QListWidget *list)
    {
        QStringList shown;
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->isHidden())
                shown.append(list->item(row)->text());
        }
        return shown;
    }
};

TEST_F(HelpViewerTest, WhatIsMissingIsToldAndHarmsNothing)
{
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_HELP_CONTEXT, 4711));
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOPIC, "html/nothing.html"));
    EXPECT_EQ(alert.shown.size(), 2u);
    target.HTMLHelpFile = folder.filePath("glhelp.qch");
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.back().prompt.contains(target.HTMLHelpFile));
    writeFile(target.HTMLHelpFile, "no help file");
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_EQ(alert.shown.size(), 4u);
    EXPECT_FALSE(main());
}

TEST_F(HelpViewerTest, SearchMarksTheWordsOfATopicOrTellsThatNoneHoldsThem)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_SEARCH));
    EXPECT_EQ(main()->focusWidget(), part<QLineEdit>("words"));
    for (const auto &[words, topics] : {std::pair("arabic", QStringList{"Accents and other scripts"}), {"xyzzy", {}}}) {
        part<QLineEdit>("words")->setText(words);
        QTest::mouseClick(part<QPushButton>("listTopics"), Qt::LeftButton);
        EXPECT_EQ(texts(part<QListWidget>("found")), topics);
        EXPECT_EQ(part<QLabel>("outcome")->text() == "No topic holds all these words.", topics.isEmpty());
        EXPECT_FALSE(part<HelpBrowser>("browser")->extraSelections().isEmpty());
    }
}

TEST_F(HelpViewerTest, TheIndexNarrowsWhileTyping)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_INDEX));
    QTest::keyClicks(part<QLineEdit>("keyword"), "ac");
    EXPECT_TRUE(texts(part<QListWidget>("keywords")).contains("accents"));
    EXPECT_FALSE(texts(part<QListWidget>("keywords")).contains("undo"));
    QTest::keyClick(part<QLineEdit>("keyword"), Qt::Key_Return);
    EXPECT_EQ(main()->page(), "html/accents.html");
}

TEST_F(HelpViewerTest, FavoritesAreKeptForTheNextTime)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1204);
    viewers.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    QTest::mouseClick(part<QPushButton>("add"), Qt::LeftButton);
    ScriptedAlertBox quiet;
    HelpViewers later(quiet, folder.filePath("favorites"));
    later.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    auto *list = later.window("Main")->findChild<QListWidget *>("favorites");
    EXPECT_EQ(texts(list), QStringList{"Font"});
}

TEST_F(HelpViewerTest, EveryLinkLeadsToItsPageByMouseAndByKeyAndBackAndForward)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    QApplication::setActiveWindow(main());
    auto *browser = part<HelpBrowser>("browser");
    const auto links = [browser] {
        QList<QTextCursor> found;
        QString last;
        for (QTextCursor at(browser->document()); !at.atEnd();) {
            at.movePosition(QTextCursor::NextCharacter);
            const QString link = at.charFormat().anchorHref();
            if (!link.isEmpty() && link != last)
                found.append(at);
            last = link;
        }
        return found;
    };
    int followed = 0;
    for (QTreeWidgetItemIterator item(part<QTreeWidget>("contents")); *item; ++item) {
        const QString start = (*item)->data(0, Qt::UserRole).toString();
        main()->showPage(start);
        const int count = int(links().size());
        for (int i = 0; i < count; ++i, ++followed) {
            const QTextCursor link = links().at(i);
            const QString to = "html/" + link.charFormat().anchorHref();
            SCOPED_TRACE((start + " to " + to).toStdString());
            browser->setTextCursor(link);
            browser->ensureCursorVisible();
            QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->cursorRect().center());
            EXPECT_EQ(main()->page(), to);
            QTest::keyClick(browser, Qt::Key_Left, Qt::AltModifier);
            EXPECT_EQ(main()->page(), start);
            QTest::keyClick(browser, Qt::Key_Right, Qt::AltModifier);
            EXPECT_EQ(main()->page(), to);
            main()->showPage(start);
            browser->moveCursor(QTextCursor::Start);
            for (int tab = 0; tab <= i; ++tab)
                QTest::keyClick(browser, Qt::Key_Tab);
            QTest::keyClick(browser, Qt::Key_Return);
            EXPECT_EQ(main()->page(), to);
            main()->showPage(start);
        }
    }
    EXPECT_GT(followed, 60);
}

TEST_F(HelpViewerTest, FindsOnThePageAndCloses)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    QApplication::setActiveWindow(main());
    QTest::keyClick(main(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(part<QLineEdit>("findText"), "alphabet");
    QTest::keyClick(part<QLineEdit>("findText"), Qt::Key_Return);
    EXPECT_EQ(part<HelpBrowser>("browser")->textCursor().selectedText(), "alphabet");
    QTest::keyClick(main(), Qt::Key_Escape);
    EXPECT_TRUE(main()->isVisible());
    QTest::keyClick(main(), Qt::Key_Escape);
    EXPECT_FALSE(main()->isVisible());
}

TEST_F(HelpViewerTest, StaysUsableWhileDialogsOpenAndClose)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    const auto goesHome = [this] {
        main()->showPage("html/sort.html");
        const auto *bar = part<QToolBar>("toolBar");
        const QWidget *home = bar->widgetForAction(bar->actions().at(4));
        QTest::mouseClick(main()->windowHandle(), Qt::LeftButton, {}, home->mapTo(main(), home->rect().center()));
        return main()->page() == "html/welcome.html";
    };
    QDialog first;
    first.setModal(true);
    first.show();
    EXPECT_TRUE(goesHome()) << "a dialog opened after the viewer";
    QDialog second(&first);
    second.setModal(true);
    second.show();
    EXPECT_TRUE(goesHome()) << "a dialog of the dialog";
    second.close();
    EXPECT_TRUE(goesHome()) << "back in the first dialog";
}
