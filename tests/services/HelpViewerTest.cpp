#include "services/help/HelpViewer.h"
#include "services/help/HelpBrowser.h"
#include "services/help/HelpViewers.h"
#include "support/ScriptedAlertBox.h"

struct HelpViewerTest : ::testing::Test
{
    QTemporaryDir folder;
    ScriptedAlertBox alert;
    QString kept = folder.filePath("favorites");
    std::unique_ptr<HelpViewers> viewers = std::make_unique<HelpViewers>(alert, kept);
    HelpTarget target{.HTMLHelpFile = HELP_FILE};

    HelpViewer *window() { return viewers->window(target.HelpWindow); }
    template <class Part = HelpBrowser> Part *part(QString name = {}) { return window()->findChild<Part *>(name); }
    bool show(HelpCommand command, const QVariant &data = {}) { return viewers->HtmlHelp(target, command, data); }

    /// What is done: help is asked for ("Main 15 1204": the window, the command and what it needs), the wheel is turned
    /// ("wheel 0 120 Ctrl"), the program is started again in a language, with a favorite page that has gone, a button
    /// is clicked by its name, or the first entry of a list, or a key or, after "=", letters are typed.
    void act(const QString &step)
    {
        const QStringList words = step.split(' ');
        if (step[0] == '=') {
            QTest::keyClicks(window()->focusWidget(), step.mid(1));
        } else if (words[0] == "again") {
            writeFile(kept, "html/gone.html\n" + readFile(kept));
            viewers = std::make_unique<HelpViewers>(alert, kept, words.value(1));
        } else if (words[0] == "wheel") {
            QWheelEvent turn({}, {}, {}, {words[1].toInt(), words[2].toInt()}, Qt::NoButton,
                             words.size() > 3 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(part()->viewport(), &turn);
        } else if (words.size() > 1) {
            target.HelpWindow = words[0];
            show(HelpCommand(words[1].toInt()), words.value(2));
            QApplication::setActiveWindow(window());
        } else if (auto *button = part<QPushButton>(step)) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else if (auto *list = part<QListWidget>(step)) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        } else {
            QTest::keySequence(window()->focusWidget(), QKeySequence(step));
        }
    }
    /// What shows and how large the window is; the page, how far its letters are larger than normal, which way it
    /// reads, what is selected up to where and what is marked on it; where the focus is, the chosen entry of the
    /// contents and the first entries of the list.
    QString state()
    {
        const QTextCursor caret = part()->textCursor();
        QStringList tools, entries, marked(caret.selectedText() + '@' + QString::number(caret.position()));
        for (const QAction *tool : part<QToolBar>("toolBar")->actions())
            tools += tool->isSeparator() ? "-" : tool->toolTip();
        for (const QTextEdit::ExtraSelection &mark : part()->extraSelections()) {
            marked += mark.cursor.selectedText();
            EXPECT_EQ(mark.format.foreground(), part()->palette().highlightedText());
            EXPECT_EQ(mark.format.background(), part()->palette().highlight());
        }
        for (const QListWidget *list : window()->findChildren<QListWidget *>()) {
            for (const QListWidgetItem *item : list->findItems("", Qt::MatchContains)) {
                if (list->isVisible() && !item->isHidden() && entries.size() < 5)
                    entries += (item == list->currentItem() ? "*" : "") + item->text();
            }
        }
        EXPECT_EQ(part()->horizontalScrollBar()->maximum(), 0) << "pictures fit";
        const auto *chapter = part<QTreeWidget>("contents")->currentItem();
        QStringList parts(window()->isVisible() ? shown(*window()) : "closed");
        parts << tools.join(", ") << QString("%1 x %2").arg(window()->width()).arg(window()->height())
              << window()->page() << QString::number(part()->font().pointSizeF() - QFont().pointSizeF())
              << QString::number(part()->document()->defaultTextOption().textDirection()) << marked.join('*')
              << window()->focusWidget()->objectName() << QString::number(part<HelpNavigation>()->isVisible())
              << (chapter ? chapter->text(0) : "") << entries.join(", ");
        return parts.join('\n') + '\n';
    }
};

TEST_F(HelpViewerTest, WhatIsMissingIsToldAndHarmsNothing)
{
    EXPECT_FALSE(show(HH_HELP_CONTEXT, 4711) || show(HH_DISPLAY_TOPIC, "html/nothing.html"));
    target.HTMLHelpFile = folder.filePath("glhelp.qch");
    EXPECT_FALSE(show(HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.back().prompt.contains(target.HTMLHelpFile));
    writeFile(target.HTMLHelpFile, "no help file");
    EXPECT_FALSE(show(HH_DISPLAY_TOC));
    EXPECT_TRUE(alert.shown.size() == 4 && !window());
}

/// In help.txt a line "> STEPS" tells what is done.
TEST_F(HelpViewerTest, EveryStepShowsWhatTheTranscriptSays)
{
    const QLocale before;
    QLocale::setDefault(QLocale::c()); // which has no order of its own
    const QString transcript = readFile(SOURCE_FOLDER "/tests/services/help.txt");
    QString played;
    for (const QString &line : transcript.split('\n').filter(QRegularExpression("^> "))) {
        for (const QString &step : line.mid(2).split(", "))
            act(step);
        played += line + '\n' + state();
    }
    QLocale::setDefault(before);
    EXPECT_EQ(played.toStdString(), transcript.toStdString());
}

TEST_F(HelpViewerTest, EveryLinkLeadsToItsPageByKeyAndByMouseAndBackAndForward)
{
    show(HH_DISPLAY_TOC);
    QApplication::setActiveWindow(window());
    HelpBrowser *browser = part();
    const auto press = [browser](Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(browser, key, with); };
    int followed = 0;
    for (QTreeWidgetItemIterator item(part<QTreeWidget>("contents")); *item; ++item) {
        const QString start = (*item)->data(0, Qt::UserRole).toString();
        EXPECT_TRUE((*item)->isExpanded());
        part<QTreeWidget>("contents")->setCurrentItem(*item);
        browser->setFocus();
        press(Qt::Key_Tab);
        for (int last = -1; browser->textCursor().position() > last; ++followed, press(Qt::Key_Tab)) {
            const QString to = "html/" + QFileInfo(browser->textCursor().charFormat().anchorHref()).fileName();
            press(Qt::Key_Return);
            EXPECT_EQ(window()->page(), to) << start.toStdString();
            press(Qt::Key_Left, Qt::AltModifier);
            EXPECT_EQ(window()->page(), start);
            if (std::exchange(last, browser->textCursor().position()) >= 0)
                continue;
            QTextCursor within(browser->document());
            within.setPosition(last - 1);
            QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->cursorRect(within).center());
            EXPECT_EQ(window()->page(), to) << start.toStdString();
            press(Qt::Key_Left, Qt::AltModifier);
            press(Qt::Key_Right, Qt::AltModifier);
            EXPECT_EQ(window()->page(), to) << start.toStdString();
            press(Qt::Key_Left, Qt::AltModifier);
        }
    }
    EXPECT_GT(followed, 160);
}

TEST_F(HelpViewerTest, LinksOutsideAreTheDesktopsAndLinksHaveTheColourOfThePalette)
{
    show(HH_HELP_CONTEXT, 1210);
    QTextBrowser desktop;
    QDesktopServices::setUrlHandler("https", &desktop, "setSource");
    Q_EMIT part()->anchorClicked(QUrl("https://example.org/"));
    QDesktopServices::unsetUrlHandler("https");
    EXPECT_TRUE(desktop.source().toString() == "https://example.org/" && window()->page() == "html/sort.html");
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Link, Qt::red);
    QApplication::setPalette(std::exchange(palette, QApplication::palette()));
    QCoreApplication::processEvents();
    EXPECT_TRUE(part()->toHtml().contains("#ff0000"));
    QApplication::setPalette(palette);
}

TEST_F(HelpViewerTest, StaysUsableWhileDialogsOpenAndClose)
{
    show(HH_HELP_CONTEXT, 1210);
    QDialog first, second(&first);
    // a dialog opens after the viewer, a dialog of the dialog opens, and closes
    for (const auto &[dialog, shows] : {std::pair(&first, true), {&second, true}, {&second, false}}) {
        dialog->setModal(true);
        dialog->setVisible(shows);
        window()->showPage("html/sort.html");
        const auto *bar = part<QToolBar>("toolBar");
        const QWidget *home = bar->widgetForAction(bar->actions().at(4));
        QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, {}, home->mapTo(window(), home->rect().center()));
        EXPECT_EQ(window()->page(), "html/welcome.html") << shows;
    }
}
