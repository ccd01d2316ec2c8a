#include "services/HelpViewer.h"
#include "services/HelpBrowser.h"
#include "services/HelpViewers.h"
#include "support/ScriptedAlertBox.h"

#include <QDialog>
#include <QListWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QWindow>

namespace {

struct HelpViewerTest : ::testing::Test
{
    QTemporaryDir folder;
    ScriptedAlertBox alert;
    HelpViewers viewers{alert, folder.filePath(QStringLiteral("favorites"))};
    HelpTarget target;

    HelpViewerTest() { target.HTMLHelpFile = QStringLiteral(HELP_FILE); }
    HelpViewer *main() { return viewers.window(QStringLiteral("Main")); }
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

TEST_F(HelpViewerTest, TopicsOpenByIdAndByPath)
{
    EXPECT_TRUE(viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210));
    EXPECT_EQ(main()->page(), QStringLiteral("html/sort.html"));
    EXPECT_EQ(main()->windowTitle(), QStringLiteral("Sort - Glosaria Help"));
    EXPECT_EQ(part<QTreeWidget>("contents")->currentItem()->text(0), QStringLiteral("Sort"));
    EXPECT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_TOPIC, QStringLiteral("html\\documentwindow.html")));
    EXPECT_EQ(main()->page(), QStringLiteral("html/documentwindow.html"));
    EXPECT_FALSE(part<QTextEdit>("browser")->toPlainText().isEmpty());
}

TEST_F(HelpViewerTest, WhatIsMissingIsToldAndHarmsNothing)
{
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_HELP_CONTEXT, 4711));
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOPIC, QStringLiteral("html/nothing.html")));
    EXPECT_EQ(alert.shown.size(), 2u);
    target.HTMLHelpFile = folder.filePath(QStringLiteral("glhelp.qch"));
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.back().prompt.contains(target.HTMLHelpFile));
    EXPECT_FALSE(main());
    QFile damaged(target.HTMLHelpFile);
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("no help file") > 0);
    damaged.close();
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_EQ(alert.shown.size(), 4u);
}

TEST_F(HelpViewerTest, SearchFindsATopicAndMarksTheWords)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_SEARCH));
    EXPECT_EQ(main()->focusWidget(), part<QLineEdit>("words"));
    QTest::keyClicks(part<QLineEdit>("words"), QStringLiteral("arabic"));
    QTest::keyClick(part<QLineEdit>("words"), Qt::Key_Return);
    EXPECT_EQ(texts(part<QListWidget>("found")), QStringList{"Accents and other scripts"});
    EXPECT_EQ(main()->page(), QStringLiteral("html/accents.html"));
    EXPECT_FALSE(part<HelpBrowser>("browser")->extraSelections().isEmpty());
    part<QLineEdit>("words")->setText(QStringLiteral("xyzzy"));
    QTest::mouseClick(part<QPushButton>("listTopics"), Qt::LeftButton);
    EXPECT_EQ(part<QListWidget>("found")->count(), 0);
    EXPECT_EQ(part<QLabel>("outcome")->text(), QStringLiteral("No topic holds all these words."));
}

TEST_F(HelpViewerTest, TheIndexNarrowsWhileTyping)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_INDEX));
    QTest::keyClicks(part<QLineEdit>("keyword"), QStringLiteral("ac"));
    EXPECT_TRUE(texts(part<QListWidget>("keywords")).contains(QStringLiteral("accents")));
    EXPECT_FALSE(texts(part<QListWidget>("keywords")).contains(QStringLiteral("undo")));
    QTest::keyClick(part<QLineEdit>("keyword"), Qt::Key_Return);
    EXPECT_EQ(main()->page(), QStringLiteral("html/accents.html"));
}

TEST_F(HelpViewerTest, FavoritesAreKeptForTheNextTime)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1204);
    viewers.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    QTest::mouseClick(part<QPushButton>("add"), Qt::LeftButton);
    ScriptedAlertBox quiet;
    HelpViewers later(quiet, folder.filePath(QStringLiteral("favorites")));
    later.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    auto *list = later.window(QStringLiteral("Main"))->findChild<QListWidget *>(QStringLiteral("favorites"));
    EXPECT_EQ(texts(list), QStringList{"Font"});
}

TEST_F(HelpViewerTest, GoesBackFindsOnThePageAndCloses)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1204);
    QApplication::setActiveWindow(main());
    QTest::keyClick(main(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(main()->page(), QStringLiteral("html/sort.html"));
    QTest::keyClick(main(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(part<QLineEdit>("findText"), QStringLiteral("alphabet"));
    QTest::keyClick(part<QLineEdit>("findText"), Qt::Key_Return);
    EXPECT_EQ(part<HelpBrowser>("browser")->textCursor().selectedText(), QStringLiteral("alphabet"));
    QTest::keyClick(main(), Qt::Key_Escape);
    EXPECT_TRUE(main()->isVisible());
    QTest::keyClick(main(), Qt::Key_Escape);
    EXPECT_FALSE(main()->isVisible());
}

TEST_F(HelpViewerTest, StaysUsableWhileDialogsWait)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    const auto goesHome = [this] {
        main()->showPage(QStringLiteral("html/sort.html"));
        const auto *bar = part<QToolBar>("toolBar");
        const QWidget *home = bar->widgetForAction(bar->actions().at(4));
        QTest::mouseClick(main()->windowHandle(), Qt::LeftButton, {}, home->mapTo(main(), home->rect().center()));
        return main()->page() == QStringLiteral("html/welcome.html");
    };
    EXPECT_TRUE(goesHome());
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
    main()->close();
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    EXPECT_TRUE(goesHome()) << "the viewer opened after the dialog";
    first.close();
    EXPECT_TRUE(main()->isVisible() && goesHome());
}

TEST_F(HelpViewerTest, AlertBoxesHaveAWindowOfTheirOwn)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    target.HelpWindow = QStringLiteral("MboxHelp");
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1400);
    const HelpViewer *box = viewers.window(QStringLiteral("MboxHelp"));
    EXPECT_EQ(box->page(), QStringLiteral("html/savechanges.html"));
    EXPECT_EQ(main()->page(), QStringLiteral("html/sort.html"));
    EXPECT_FALSE(box->findChild<QTreeWidget *>(QStringLiteral("contents"))->isVisible());
}

} // namespace
