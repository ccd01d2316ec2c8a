#include "MainWindowFixture.h"

#include "app/MenuLayout.h"
#include "document/ctlGridEdit.h"
#include "support/Play.h"
#include "support/TextLetters.h"
#include "tools/frmFindReplace.h"
#include "widgets/grid/FlexGridView.h"

using MenusAndToolbarsTest = MainWindowFixture;

TEST_F(MenusAndToolbarsTest, EachCommandChangesWhatItIsToChangeAndNothingElse)
{
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers more = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier | more);
    };
    const auto answer = [this](const char *key) {
        alert.answers.assign(3, AlertBox::AnswerNo), window->DoMenuClick(key), alert.answers.clear();
    };
    const auto frame = [this](size_t at) { return documents().open()[at]->frame(); };
    bool ended = false;
    QObject::connect(window.get(), &frmApp::closed, [&ended] { ended = true; });
    Actions actions{{"start", [] {}},
                    {"front", [this] { QApplication::setActiveWindow(window.get()); }},
                    {"name", [this] { documents().active()->Rutor()->setTextMatrix(0, 2, "R&D"); }},
                    {"close", [&] { answer("mnuFileClose"); }},
                    {"exit", [&] { answer("mnuFileExit"); }},
                    {"cut", [this] { window->setUndoAction("&Undo Cut"); }},
                    {"import", [this] { window->setUndoAction("&Undo Import"); }},
                    {"none", [this] { window->setUndoAction("Undo"); }},
                    {"sort", [this] { undo.setKind(UndoKind::Sort, documents().open().front()); }},
                    {"sizes", [&] { frame(0)->showMinimized(), frame(1)->showMaximized(); }},
                    {"keypad", [&] { press(Qt::Key_Minus, Qt::KeypadModifier); }},
                    {"back", [&] { press(Qt::Key_Backtab, Qt::ShiftModifier); }},
                    {"ahead", [this] { // a key of a menu, typed before the command of the one before it is done
                         menu("mnuEdit")->popup(QPoint());
                         QTest::keyClick(menu("mnuEdit"), Qt::Key_U);
                     }}};
    for (const Command *each : window->commands().commands())
        actions[each->key] = [this, key = each->key] { window->DoMenuClick(key); };
    for (const char *key : {"mnuWin(0)", "mnuWin(1)"})
        actions[key] = [this, key] { window->DoMenuClick(key); };
    QStringList steps = QString(readFile(SOURCE_FOLDER "/tests/app/data/commands.txt")).split('\n', Qt::SkipEmptyParts);
    for (QString &each : steps)
        each += each.contains(" -> ") ? "" : " -> ";
    play(
        steps.join(", "), [this] { return news(); }, actions);
    EXPECT_TRUE(ended);
}

TEST_F(MenusAndToolbarsTest, TheSearchGoesOnByKeysAndAlongWithTheActiveDocument)
{
    std::vector<ctlGrid *> grids;
    for (const char *word : {"a cat", "the cat"}) {
        grids.push_back(newDocument()->Rutor());
        for (const int row : {1, 4, 7})
            grids.back()->setTextMatrix(row, 2, word);
    }
    grids[0]->setTextMatrix(0, 2, "English");
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(QApplication::activeWindow()->focusWidget(), key);
        QCoreApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    press(Qt::Key_F3);
    const QPointer<QDialog> search = window->findChild<frmFindReplace *>();
    ASSERT_TRUE(search) << "nothing was searched yet";
    EXPECT_TRUE(flags.FindMode && !flags.ReplaceMode && status(0) == resText(504));
    search->findChild<QLineEdit *>("txtFind")->setText("cat");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(grids[1]->SelText(), "cat");
    window->documentArea()->activate(*documents().open()[0]);
    EXPECT_FALSE(grids[1]->EditMode());
    EXPECT_EQ(search->findChild<QAbstractButton *>("optScope2")->text(), "&2 English");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(grids[0]->SelText(), "cat");
    window->DoMenuClick("mnuEditFindNext");
    EXPECT_EQ(grids[0]->Row(), 4);
    search->close();
    QApplication::setActiveWindow(window.get());
    press(Qt::Key_F3);
    EXPECT_FALSE(search);
    EXPECT_EQ(grids[0]->Row(), 7);
    press(Qt::Key_Delete);
    EXPECT_EQ(grids[0]->TextMatrix(7, 2), "");
    EXPECT_EQ(undo.kind(), UndoKind::Clear);
    window->DoMenuClick("mnuEditReplace");
    for (const bool left : {true, false}) {
        alert.answers = {AlertBox::AnswerNo};
        window->DoMenuClick("mnuFileClose");
        QCoreApplication::processEvents();
        EXPECT_EQ(flags.searching(), left) << "while a document is open";
    }
}

TEST_F(MenusAndToolbarsTest, TheTableOfProgressGoesToTheFileThatTheUserChooses)
{
    newDocument()->Rutor()->setWords({"", "1", ""}, {"", "2", ""}, {});
    dialogs.chosen = QStringList(folder.filePath("a"));
    EXPECT_TRUE(inDialog("mnuVocabularyProgress", [this](QDialog &dialog) {
        for (int i = 0; i < 2; ++i) // the second time the user does not want to
            dialog.findChild<QPushButton *>("btnExport")->click();
        EXPECT_EQ(dialogs.file.owner, &dialog);
    }));
    const FileRequest &asked = dialogs.file;
    EXPECT_EQ((asked.title + '|' + asked.fileName + '|' + asked.nameFilters.join(' ')).toStdString(),
              "Export Table|Untitled 1.csv|Tables (*.csv)");
    EXPECT_TRUE(QFile::exists(folder.filePath("a.csv")) && alert.shown.empty());
}

TEST_F(MenusAndToolbarsTest, TheStatusBarFollowsTheHighlight)
{
    newDocument()->setCaption("first");
    window->documentArea()->activate(*newDocument());
    const QString modes[] = {resText(41) + " Language 1 -> Language 2 In Order",
                             resText(42) + " Language 2 -> Language 1 In Order"};
    // A document has nothing to tell, and there is nothing to undo.
    const QStringList keys = QString("Alt+M Down Left Esc Right Esc Alt+W Up Return Alt+E Esc Esc").split(' ');
    const QStringList texts{modes[0],    modes[1], resText(33),  resText(102), resText(103), resText(506),
                            resText(51), "",       resText(506), resText(22),  resText(101), resText(506)};
    QStringList shown;
    for (const QString &key : keys) {
        QWidget *popup = QApplication::activePopupWidget();
        QTest::keySequence(popup ? popup : QApplication::focusWidget(), QKeySequence(key));
        shown += status(0);
    }
    EXPECT_EQ(shown.join('|').toStdString(), texts.join('|').toStdString());
    EXPECT_EQ(documents().active(), documents().open().back());
    QMenuBar &bar = *window->menuBar();
    const auto over = [&](QWidget &widget, const QPoint &place) {
        QTest::mouseMove(window->windowHandle(), widget.mapTo(window.get(), place));
        return status(0);
    };
    const QPoint title = bar.actionGeometry(bar.actions().at(2)).center();
    const QPoint quiz = button("tbrStandard", "Quiz")->rect().center();
    for (const bool searching : {false, true}) {
        QTest::qWait(150); // a title that a key has pressed is let go after a tenth of a second
        flags.FindMode = searching;
        const QString ready = resText(506);
        EXPECT_EQ(over(bar, title), searching ? ready : resText(102));
        EXPECT_EQ(over(bar, bar.rect().bottomRight() - QPoint(20, 5)), ready);
        EXPECT_EQ(over(*button("tbrStandard", "Quiz"), quiz), searching ? ready : resText(222));
        EXPECT_EQ(over(window->context().status, QPoint(5, 5)), searching ? ready : resText(2000));
        EXPECT_EQ(over(*window->documentArea(), QPoint(5, 5)), ready);
        QApplication::setActiveWindow(window.get()); // this platform makes menus active, even closed ones
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::AltModifier);
        EXPECT_EQ(status(0), resText(47));
        QApplication::activePopupWidget()->close();
        EXPECT_EQ(status(0), ready);
    }
}

TEST_F(MenusAndToolbarsTest, TheLinksOfTheProgramsDescriptionAreExplained)
{
    EXPECT_TRUE(inDialog("mnuHelpAbout", [this](QDialog &about) {
        EXPECT_EQ(about.findChild<QWidget *>("imgLink1")->toolTip(), resText(2007));
        QApplication::setActiveWindow(&about);
        for (const auto &[name, text] : {std::pair("imgLink1", 2002), {"btnOK", 506}}) {
            about.findChild<QWidget *>(name)->setFocus();
            EXPECT_EQ(status(0), resText(text));
        }
    }));
}

TEST_F(MenusAndToolbarsTest, TheWindowMenuListsDocuments)
{
    newDocument()->setCaption(QString(33, 'x'));
    newDocument()->setCaption(QString(32, 'y'));
    EXPECT_EQ(entries("mnuWindow").mid(4), (QStringList{"-", QString(32, 'x') + "...", QString(32, 'y')}));
    window->DoMenuClick("mnuFileClose");
    window->DoMenuClick("mnuWin(1)");
    EXPECT_EQ(documents().active(), documents().open().front());
    EXPECT_FALSE(window->commands().find("mnuWin(1)"));
}

TEST_F(MenusAndToolbarsTest, ARightClickShowsTheProgramsOwnMenusOnly)
{
    ctlGrid *grid = newDocument()->Rutor();
    const auto rightClick = [](QWidget *widget) {
        const QPoint place = widget->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
        const QWidget *menu = QApplication::activePopupWidget();
        return menu ? menu->objectName() : QString("nothing");
    };
    EXPECT_EQ(rightClick(window->menuBar()), "nothing");
    EXPECT_EQ(rightClick(window->findChild<QToolBar *>("tbrStandard")->findChild<QToolButton *>()), "nothing");
    grid->setText("word");
    grid->setEditMode(true);
    grid->SelectEditText(1, 2);
    EXPECT_EQ(rightClick(grid->hwndText()), "oPopUpGrid");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_U);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->EditText(), "wd");
}

// Captions run on from 400 with a number for each title, entry and separator; help texts follow them 399 below.
TEST_F(MenusAndToolbarsTest, EveryTitleAndEntryHasItsCaptionAndHelpText)
{
    newDocument()->frame()->hide(); // and not listed
    const auto expectItsTexts = [](const QAction &entry) {
        const int text = entry.property("textId").toInt(), tip = text < 14500 || text > 14502 ? 1 : 3;
        EXPECT_TRUE(entry.isSeparator() || entry.text().startsWith(resText(text))) << text;
        EXPECT_TRUE(entry.isSeparator() || entry.statusTip() == resText(text + tip)) << text;
    };
    int id = 400;
    int title = 0;
    QString separators;
    for (QAction *each : window->menuBar()->actions()) {
        QMenu *dropDown = each->menu();
        EXPECT_EQ(each->text(), resText(id));
        EXPECT_EQ(each->statusTip(), resText(100 + title++));
        Q_EMIT dropDown->aboutToShow();
        QStringList letters;
        for (QAction *entry : dropDown->actions()) {
            letters += QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_LE(letters.count(letters.back()), letters.back().isEmpty() ? 99 : 1) << entry->text().toStdString();
            // Additions have texts from 14000 on, and separators without a name.
            if (entry->property("textId").toInt() >= 14000 || (entry->isSeparator() && entry->objectName().isEmpty())) {
                expectItsTexts(*entry);
                for (const QAction *inner : entry->menu() ? entry->menu()->actions() : QList<QAction *>())
                    expectItsTexts(*inner);
                continue;
            }
            id = entry->objectName() == "mnuFileExit" ? 417 : id + 1;
            separators += entry->isSeparator() ? entry->objectName() + ' ' : "";
            if (entry->isSeparator())
                continue;
            EXPECT_EQ(entry->property("textId").toInt(), id);
            EXPECT_TRUE(entry->text().startsWith(resText(id))) << id;
            EXPECT_TRUE(!entry->icon().isNull() || dropDown->objectName() == "mnuMode") << id;
            EXPECT_TRUE(entry->statusTip().startsWith(resText(id - 399))) << id;
        }
        ++id;
    }
    for (const QMenu *each : window->findChildren<QMenu *>()) {
        QList<int> texts;
        for (const QAction *entry : each->actions())
            texts += entry->property("textId").toInt();
        expectDifferentLetters(texts, each->objectName());
    }
    EXPECT_EQ(id, 458);
    EXPECT_EQ(separators, "mnuFile(3) mnuFile(8) mnuFileSep mnuEdit(1) mnuEdit(5) mnuEdit(5) mnuToolbar(0) "
                          "mnuToolbar(3) mnuHelp(4) ");
}
