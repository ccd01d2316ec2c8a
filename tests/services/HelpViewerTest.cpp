#include "services/help/HelpViewer.h"
#include "resources/TextLanguage.h"
#include "services/help/HelpBrowser.h"
#include "services/help/HelpFile.h"
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
    template <typename Widget> Widget *part(const char *name) { return main()->findChild<Widget *>(name); }
    static QStringList texts(const QListWidget *list)
    {
        QStringList shown;
        for (const QListWidgetItem *item : list->findItems("", Qt::MatchContains))
            shown += item->isHidden() ? QStringList() : QStringList(item->text());
        return shown;
    }
};

TEST_F(HelpViewerTest, WhatIsMissingIsToldAndHarmsNothing)
{
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_HELP_CONTEXT, 4711));
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOPIC, "html/nothing.html"));
    target.HTMLHelpFile = folder.filePath("glhelp.qch");
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.back().prompt.contains(target.HTMLHelpFile));
    writeFile(target.HTMLHelpFile, "no help file");
    EXPECT_FALSE(viewers.HtmlHelp(target, HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.size() == 4 && !main());
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
        const auto marks = part<HelpBrowser>("browser")->extraSelections();
        ASSERT_FALSE(marks.isEmpty());
        EXPECT_EQ(marks[0].format.foreground(), main()->palette().highlightedText());
        EXPECT_EQ(marks[0].format.background(), main()->palette().highlight());
    }
}

TEST_F(HelpViewerTest, TheIndexIsSortedAndNarrowsToWhatIsTyped)
{
    ASSERT_TRUE(viewers.HtmlHelp(target, HH_DISPLAY_INDEX));
    const auto *list = part<QListWidget>("keywords");
    QStringList sorted = texts(list);
    sorted.sort(Qt::CaseInsensitive);
    EXPECT_EQ(texts(list), sorted);
    // what is typed, the entry that is chosen then, and the page that Enter shows
    for (const auto &[typed, chosen, page] :
         {std::tuple("ac", "accents", "accents"), {"an", "answers", "quizzes"}, {"xyzzy", "", "quizzes"}}) {
        part<QLineEdit>("keyword")->clear();
        QTest::keyClicks(part<QLineEdit>("keyword"), typed);
        EXPECT_EQ(texts(list), sorted.filter(typed, Qt::CaseInsensitive));
        EXPECT_EQ(list->currentItem() ? list->currentItem()->text() : "", chosen);
        QTest::keyClick(part<QLineEdit>("keyword"), Qt::Key_Return);
        EXPECT_EQ(main()->page(), QString("html/%1.html").arg(page));
    }
}

TEST_F(HelpViewerTest, FavoritesAreKeptForTheNextTimeUntilTheyAreRemoved)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1204);
    viewers.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    QTest::mouseClick(part<QPushButton>("add"), Qt::LeftButton);
    writeFile(folder.filePath("favorites"), "html/gone.html\n" + readFile(folder.filePath("favorites")));
    HelpViewers later(alert, folder.filePath("favorites"));
    later.HtmlHelp(target, HH_DISPLAY_FAVORITES);
    auto *list = later.window("Main")->findChild<QListWidget *>("favorites");
    EXPECT_EQ(texts(list), QStringList{"Font"});
    auto *remove = later.window("Main")->findChild<QPushButton *>("remove");
    remove->click();
    EXPECT_EQ(list->count(), 1) << "nothing is chosen";
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    EXPECT_EQ(later.window("Main")->page(), "html/font.html");
    remove->click();
    EXPECT_EQ(list->count(), 0);
}

TEST_F(HelpViewerTest, KeysDoWhatTheToolsDo)
{
    target.HelpWindow = "MboxHelp";
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    HelpViewer &viewer = *viewers.window("MboxHelp");
    QApplication::setActiveWindow(&viewer);
    const auto *browser = viewer.findChild<HelpBrowser *>();
    const double size = browser->font().pointSizeF();
    const auto state = [&] {
        const QList<QAction *> tools = viewer.findChild<QToolBar *>("toolBar")->actions();
        QString text = (tools.at(2)->isEnabled() ? "<" : "") + viewer.windowTitle().section(' ', 0, 0) +
                       (tools.at(3)->isEnabled() ? ">" : "");
        text += viewer.findChild<QWidget *>("navigation")->isVisible() ? " contents" : "";
        if (viewer.findChild<QWidget *>("findBar")->isVisible())
            text += " find:" + browser->textCursor().selectedText() + viewer.findChild<QLabel *>("findOutcome")->text();
        return text + QString(" %1").arg(browser->font().pointSizeF() - size) + (viewer.isVisible() ? "" : " closed");
    };
    EXPECT_EQ(state(), "Sort 0");
    const QString steps =
        "Alt+Home: <Welcome 0; F1: <Using 0; Alt+Left: <Welcome> 0; Alt+Right: <Using 0; "
        "F9: <Using contents 0; F9: <Using 0; Ctrl+F, z, q: <Using find: 0; "
        "Return: <Using find:Not on this page 0; Backspace: <Using find: 0; "
        "q, Return: <Using find:Not on this page 0; Alt+Left, Alt+Right: <Using find: 0; "
        "Backspace, Return: <Using find:Z 0; Return: <Using find:z 0; Esc: <Using 0; Ctrl++, Ctrl++: <Using 2; "
        "Ctrl+-: <Using 1; Ctrl+0: <Using 0; Ctrl+-, Ctrl+-, Ctrl+-, Ctrl+-: <Using -4; Ctrl+-: <Using -4; "
        "Esc: <Using -4 closed";
    QStringList seen;
    for (const QString &step : steps.split("; ")) {
        const QKeySequence keys(step.section(": ", 0, 0));
        for (int i = 0; i < keys.count(); ++i)
            QTest::keySequence(viewer.focusWidget(), keys[uint(i)]);
        seen += step.section(": ", 0, 0) + ": " + state();
    }
    EXPECT_EQ(seen.join("; ").toStdString(), steps.toStdString());
}

TEST_F(HelpViewerTest, WindowsHaveTheirSizesToolsAndPanes)
{
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(10, 36);
    for (const auto &[name, size] : {std::pair("Main", QSize(970, 660)), {"MboxHelp", QSize(560, 460)}}) {
        target.HelpWindow = name;
        viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
        EXPECT_EQ(viewers.window(name)->size(), size.boundedTo(room));
    }
    QStringList tools;
    for (const QAction *tool : part<QToolBar>("toolBar")->actions())
        tools += tool->isSeparator() ? "-" : tool->toolTip();
    EXPECT_EQ(tools.join(", "),
              "Show or hide the contents (F9), -, Back (Alt+Left), Forward (Alt+Right), Home (Alt+Home), -, Find on "
              "this page (Ctrl+F), Larger text (Ctrl++), Smaller text (Ctrl+-), Normal text size (Ctrl+0)");
    auto *panes = part<QTabWidget>("navigation");
    QString shownPanes;
    for (const int pane : {1, 2, 3, 0}) {
        panes->setCurrentIndex(pane);
        shownPanes += panes->tabText(pane) + '>' + main()->focusWidget()->objectName() + ' ';
    }
    EXPECT_EQ(shownPanes.toStdString(), "&Index>keyword &Search>words &Favorites>favorites &Contents>contents ");
    auto *browser = part<HelpBrowser>("browser");
    const double before = browser->font().pointSizeF();
    const auto ctrl = Qt::ControlModifier;
    for (const auto &[turn, keys] : {std::pair(QPoint(0, 120), Qt::KeyboardModifiers(ctrl)),
                                     {{0, 120}, ctrl},
                                     {{0, -120}, ctrl},
                                     {{120, 0}, ctrl},
                                     {{0, 120}, Qt::NoModifier}}) {
        QWheelEvent wheel({}, {}, {}, turn, Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(browser->viewport(), &wheel);
    }
    EXPECT_EQ(browser->font().pointSizeF(), before + 1);
    browser->resetZoom();
    EXPECT_EQ(browser->font().pointSizeF(), before);
    part<QLineEdit>("findText")->setText("the");
    QList<int> found;
    for (const char *button : {"findNext", "findNext", "findPrevious"}) {
        part<QPushButton>(button)->click();
        found += browser->textCursor().position();
    }
    EXPECT_TRUE(found[0] < found[1] && found[2] == found[0]);
}

TEST_F(HelpViewerTest, EveryLinkLeadsToItsPageByKeyAndByMouseAndBackAndForward)
{
    viewers.HtmlHelp(target, HH_DISPLAY_TOC);
    QApplication::setActiveWindow(main());
    auto *browser = part<HelpBrowser>("browser");
    auto *contents = part<QTreeWidget>("contents");
    int followed = 0;
    for (QTreeWidgetItemIterator item(contents); *item; ++item) {
        const QString start = (*item)->data(0, Qt::UserRole).toString();
        contents->setCurrentItem(*item);
        browser->setFocus();
        int last = -1;
        for (QTest::keyClick(browser, Qt::Key_Tab); browser->textCursor().position() > last; ++followed) {
            const QString to = "html/" + QFileInfo(browser->textCursor().charFormat().anchorHref()).fileName();
            SCOPED_TRACE((start + " to " + to).toStdString());
            QTest::keyClick(browser, Qt::Key_Return);
            EXPECT_EQ(main()->page(), to);
            QTest::keyClick(browser, Qt::Key_Left, Qt::AltModifier);
            EXPECT_TRUE(main()->page() == start && contents->currentItem() == *item);
            if (std::exchange(last, browser->textCursor().position()) < 0) {
                QTextCursor within(browser->document());
                within.setPosition(last - 1);
                QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->cursorRect(within).center());
                EXPECT_EQ(main()->page(), to);
                QTest::keyClick(browser, Qt::Key_Left, Qt::AltModifier);
                QTest::keyClick(browser, Qt::Key_Right, Qt::AltModifier);
                EXPECT_EQ(main()->page(), to);
                QTest::keyClick(browser, Qt::Key_Left, Qt::AltModifier);
            }
            QTest::keyClick(browser, Qt::Key_Tab);
        }
    }
    EXPECT_GT(followed, 160);
}

TEST_F(HelpViewerTest, PagesAreShownInTheLanguageThatTheyExistIn)
{
    const Qt::LayoutDirection right = Qt::RightToLeft, left = Qt::LeftToRight;
    // a language, a page, and its title in the contents
    const std::tuple<const char *, const char *, const char *, Qt::LayoutDirection> cases[] = {
        {"", "quizzes", "Quizzes", left}, {"de", "quizzes", "Abfragen", left},    {"de", "sort", "Sort", left},
        {"ar", "sort", "Sort", left},     {"ar", "quizzes", "الاختبارات", right}, {"xx", "quizzes", "Quizzes", left}};
    for (const auto &[language, page, title, direction] : cases) {
        HelpViewers translated{alert, folder.filePath("favorites"), language};
        translated.HtmlHelp(target, HH_DISPLAY_TOPIC, QString("html\\%1.html").arg(page));
        HelpViewer &viewer = *translated.window("Main");
        viewer.resize(500, 400);
        EXPECT_EQ(viewer.findChild<HelpBrowser *>()->horizontalScrollBar()->maximum(), 0) << "pictures fit";
        EXPECT_EQ(viewer.page(), QString("html/%1.html").arg(page));
        EXPECT_EQ(viewer.findChild<HelpBrowser *>()->document()->firstBlock().textDirection(), direction);
        EXPECT_EQ(viewer.windowTitle().section(" - ", 0, 0), title) << language;
        EXPECT_EQ(viewer.findChild<QTreeWidget *>("contents")->currentItem()->text(0), title);
        EXPECT_TRUE(viewer.findChild<HelpBrowser *>()->toPlainText().startsWith(title));
    }
}

TEST_F(HelpViewerTest, StaysUsableWhileDialogsOpenAndClose)
{
    viewers.HtmlHelp(target, HH_HELP_CONTEXT, 1210);
    QDialog first, second(&first);
    // a dialog opens after the viewer, a dialog of the dialog opens, and closes
    for (const auto &[dialog, shows] : {std::pair(&first, true), {&second, true}, {&second, false}}) {
        dialog->setModal(true);
        dialog->setVisible(shows);
        main()->showPage("html/sort.html");
        const auto *bar = part<QToolBar>("toolBar");
        const QWidget *home = bar->widgetForAction(bar->actions().at(4));
        QTest::mouseClick(main()->windowHandle(), Qt::LeftButton, {}, home->mapTo(main(), home->rect().center()));
        EXPECT_EQ(main()->page(), "html/welcome.html") << shows;
    }
}
