#include "MainWindowFixture.h"

#include "app/MenuLayout.h"
#include "document/ctlGridEdit.h"
#include "support/TextLetters.h"
#include "tools/frmFindReplace.h"
#include "widgets/grid/FlexGridView.h"

struct MenusAndToolbarsTest : MainWindowFixture
{
    /// The menus that show, each with the entries that cannot be chosen, and such buttons.
    QString refused()
    {
        QStringList all;
        for (const QAction *title : window->menuBar()->actions()) {
            const QString menu = title->menu()->objectName();
            all += title->isVisible() ? (menu.mid(3) + ' ' + entries(menu).filter("(").join(' ')).trimmed() : "";
        }
        for (QToolBar *bar : window->findChildren<QToolBar *>()) {
            for (const QAction *action : bar->isVisible() ? bar->actions() : QList<QAction *>())
                all += action->isEnabled() ? "" : action->objectName();
        }
        all.removeAll("");
        return all.join(" | ");
    }
};

TEST_F(MenusAndToolbarsTest, TheStateTellsWhatCanBeDone)
{
    std::vector<std::pair<AppState, std::string>> found;
    const auto look = [&] { found.emplace_back(window->state(), refused().toStdString()); };
    look();
    EXPECT_EQ(entries("mnuFile"), (QStringList{"New", "Open...", "-", "Exit"}));
    frmDoc *document = newDocument();
    look();
    document->Rutor()->setEditMode(true);
    look();
    document->endEdit();
    EXPECT_EQ(window->state(), AppState::StateDocument);
    window->DoMenuClick("mnuFilePrintPreview");
    look();
    window->DoMenuClick("mnuFilePrintPreview");
    window->DoMenuClick("mnuFileClose");
    look();
    const std::vector<std::pair<AppState, std::string>> expected{
        {AppState::StateNoDocument,
         "File | Help | Save | Print | Preview | Cut | Copy | Paste | Undo | Insert | Delete | Find | "
         "Font | Sort | Languages | Model | Quiz"},
        {AppState::StateDocument,
         "File | Edit (Can't Undo) | Vocabulary | Mode | Quiz (Continue Quiz) | Window | Help | Undo"},
        {AppState::StateEditing,
         "File (New) (Open...) (Import...) (Export...) (Print Preview...) (Print...) (Print Test...) | Edit (Clear) "
         "(Insert) (Delete) (Find...) (Replace...) (Paste List...) | Vocabulary (Languages...) (Row Height...) (Column "
         "Width...) (Font...) (Sort...) (Check...) (Progress...) | Mode | Quiz (Practice...) (Multiple Choice...) "
         "(Question and Answer...) (Continue Quiz) (Words to Ask) (Quiz Options...) | Window | Help | New | Open | "
         "Print | Preview | Insert | Delete | Find | Font | Sort | Languages | Model | Quiz"},
        {AppState::StatePreview, "File (New) (Open...) (Close) (Save) (Save As...) (Import...) (Export...) (Print "
                                 "Test...) | Help | Previous | Next"},
        {AppState::StateNoDocument, found.front().second}};
    EXPECT_EQ(found, expected);
    EXPECT_EQ(status(1) + status(2), "");
}

TEST_F(MenusAndToolbarsTest, AKeyTypedAheadComesAfterTheCommandOfTheOneBeforeIt)
{
    ctlGrid &grid = *newDocument()->Rutor();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(grid.Rows(), 102);
    menu("mnuEdit")->popup(QPoint());
    QTest::keyClick(menu("mnuEdit"), Qt::Key_U);
    EXPECT_EQ(grid.Rows(), 101);
}

TEST_F(MenusAndToolbarsTest, TheUndoCaptionNamesAndEnablesTheCommand)
{
    frmDoc *document = newDocument();
    EXPECT_EQ(window->UndoAction(), resText(419));
    window->setUndoAction("&Undo Cut");
    EXPECT_TRUE(undo.kind() == UndoKind::Cut && undo.belongsTo(document));
    EXPECT_EQ(window->commands().action("mnuEditUndo")->text(), "&Undo Cut");
    EXPECT_EQ(button("tbrStandard", "Undo")->toolTip(), "Undo Cut");
    undo.clear();
    EXPECT_FALSE(button("tbrStandard", "Undo")->isEnabled());
    newDocument();
    undo.setKind(UndoKind::Sort, document);
    EXPECT_FALSE(button("tbrStandard", "Undo")->isEnabled()) << "there is nothing to undo in the active document";
    EXPECT_EQ(window->UndoAction(), resText(419));
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

TEST_F(MenusAndToolbarsTest, ModesStepInARingAndShowEverywhere)
{
    frmDoc *document = newDocument();
    document->Rutor()->setTextMatrix(0, 1, "English");
    document->Rutor()->setTextMatrix(0, 2, "R&D");
    EXPECT_EQ(window->buttonPicture("Model"), 23);
    for (const int mode : {2, 3, 4, 5, 1, 2}) {
        window->DoMenuClick("Model");
        EXPECT_EQ(settings.QuizMode(), mode);
        EXPECT_EQ(window->buttonPicture("Model"), 22 + mode);
    }
    Q_EMIT menu("mnuMode")->aboutToShow();
    EXPECT_EQ(window->commands().action("mnuMode5")->text(), "&5 English <-> R&&D Randomly");
    for (int mode = 1; mode <= 5; ++mode)
        EXPECT_EQ(window->commands().action(QStringLiteral("mnuMode%1").arg(mode))->isChecked(), mode == 2);
    EXPECT_EQ(status(2), "R&D -> English In Order");
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

TEST_F(MenusAndToolbarsTest, ADialogKeepsItsTextWhenThePointerLeavesItsButton)
{
    newDocument();
    QString shown;
    QTimer visitor;
    QObject::connect(&visitor, &QTimer::timeout, window.get(), [&] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            shown = status(0);
            dialog->reject();
        }
    });
    visitor.start(1);
    for (const char *key : {"Sort", "Font", "Languages"}) {
        shown.clear();
        const QPoint place = button("tbrStandard", key)->mapTo(window.get(), QPoint(9, 9));
        QTest::mouseMove(window->windowHandle(), place);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.isEmpty(); })) << key;
        EXPECT_EQ(shown, resText(504));
    }
    visitor.stop();
    EXPECT_TRUE(inDialog("mnuHelpAbout", [this](QDialog &about) {
        EXPECT_EQ(about.findChild<QWidget *>("imgLink1")->toolTip(), resText(2007));
        QApplication::setActiveWindow(&about);
        for (const auto &[name, text] : {std::pair("imgLink1", 2002), {"btnOK", 506}}) {
            about.findChild<QWidget *>(name)->setFocus();
            EXPECT_EQ(status(0), resText(text));
        }
    }));
}

TEST_F(MenusAndToolbarsTest, TheWindowMenuListsAndActivatesDocuments)
{
    frmDoc *first = newDocument();
    first->setCaption(QString(33, 'x'));
    newDocument()->setCaption(QString(32, 'y'));
    EXPECT_EQ(entries("mnuWindow").mid(4), (QStringList{"-", QString(32, 'x') + "...", QString(32, 'y')}));
    const QList<QAction *> actions = menu("mnuWindow")->actions();
    EXPECT_TRUE(!actions[5]->isChecked() && actions[6]->isChecked());
    for (frmDoc *each : {first, documents().open().back()}) {
        window->DoMenuClick(QStringLiteral("mnuWin(%1)").arg(each->Tag()));
        EXPECT_EQ(documents().active(), each);
    }
    window->DoMenuClick("mnuFileClose");
    window->DoMenuClick("mnuWin(1)");
    EXPECT_EQ(documents().active(), first);
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

TEST_F(MenusAndToolbarsTest, KeysZoomTheActiveVocabulary)
{
    const ctlGrid &grid = *newDocument()->Rutor();
    QList<int> percents;
    for (const char *key : {"Ctrl++", "Ctrl+=", "Num+Ctrl++", "Ctrl+-", "Num+Ctrl+-", "Ctrl+0", "-"}) {
        QTest::keySequence(grid.hwndGrid(), QKeySequence(key));
        percents += grid.Zoom();
    }
    EXPECT_EQ(percents, QList<int>({110, 125, 150, 125, 110, 100, 100}));
    EXPECT_TRUE(grid.EditMode()) << "a minus alone is typed";
}
