#include "MainWindowFixture.h"

#include "document/ctlGridEdit.h"
#include "support/TextLetters.h"
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
    const auto over = [this](QWidget &widget, const QPoint &place) {
        QTest::mouseMove(window->windowHandle(), widget.mapTo(window.get(), place));
    };
    QMenuBar &bar = *window->menuBar();
    dialogs.duringSetup = [this] { alert.shown.push_back({.prompt = "page setup"}); };
    bool ended = false;
    QObject::connect(window.get(), &frmApp::closed, [&ended] { ended = true; });
    Actions actions{{"front", [this] { QApplication::setActiveWindow(window.get()); }},
                    {"words",
                     [this] {
                         documents().active()->Rutor()->setWords({"A", "", "", "ñ", ""}, {"R&D", "", "", "", ""}, {});
                     }},
                    {"close", [&] { answer("mnuFileClose"); }},
                    {"exit", [&] { answer("mnuFileExit"); }},
                    {"cut", [this] { window->setUndoAction("&Undo Cut"); }},
                    {"import", [this] { window->setUndoAction("&Undo Import"); }},
                    {"none", [this] { window->setUndoAction("Undo"); }},
                    {"sort", [this] { undo.setKind(UndoKind::Sort, documents().open().front()); }},
                    {"sizes", [&] { frame(0)->showMinimized(), frame(1)->showMaximized(); }},
                    {"keypad", [&] { press(Qt::Key_Minus, Qt::KeypadModifier); }},
                    {"back", [&] { press(Qt::Key_Backtab, Qt::ShiftModifier); }},
                    {"icon", [&] { frame(0)->showMinimized(); }},
                    {"restore", [&] { frame(0)->showNormal(); }},
                    {"to title", [&] { over(bar, bar.actionGeometry(bar.actions().at(2)).center()); }},
                    {"to free", [&] { over(bar, bar.rect().bottomRight() - QPoint(20, 5)); }},
                    {"to button", [&] { over(*button("tbrStandard", "Quiz"), QPoint(9, 9)); }},
                    {"to status", [&] { over(window->context().status, QPoint(5, 5)); }},
                    {"to area", [&] { over(*window->documentArea(), QPoint(5, 5)); }},
                    {"letter", [this] { window->findChild<LetterRow *>()->findChild<QToolButton *>()->click(); }},
                    {"ahead", [this] { // a key of a menu, typed before the command of the one before it is done
                         menu("mnuEdit")->popup(QPoint());
                         QTest::keyClick(menu("mnuEdit"), Qt::Key_U);
                     }}};
    for (const Command *each : window->commands().commands())
        actions[each->key] = [this, key = each->key] { window->DoMenuClick(key); };
    for (const char *key : {"mnuWin(0)", "mnuWin(1)", "mnuWin(2)"})
        actions[key] = [this, key] { window->DoMenuClick(key); };
    for (const char *key : {"Up", "Down", "Left", "Right", "Esc", "Return"}) // in a menu
        actions[QString("m:") + key] = [key] {
            QTest::keySequence(QApplication::activePopupWidget(), QKeySequence(key));
        };
    playFile(
        SOURCE_FOLDER "/tests/app/data/commands.txt", [this] { return news(); }, actions);
    EXPECT_TRUE(ended);
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

TEST_F(MenusAndToolbarsTest, ADialogKeepsItsTextWhenThePointerLeavesItsButton)
{
    newDocument();
    QStringList shown;
    QTimer visitor;
    visitor.callOnTimeout([&] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            shown << status(0), dialog->reject();
    });
    visitor.start(1);
    for (const char *key : {"Sort", "Font", "Languages"}) {
        const QPoint place = button("tbrStandard", key)->mapTo(window.get(), QPoint(9, 9));
        QTest::mouseMove(window->windowHandle(), place);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    }
    EXPECT_EQ(shown, QStringList(3, resText(504)));
}

TEST_F(MenusAndToolbarsTest, TheWindowMenuListsDocuments)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(documents().open().size(), 1U) << "what a key asks for is done before the next one";
    documents().active()->setCaption(QString(33, 'x'));
    QCoreApplication::processEvents();
    window->commands().action("mnuFileNew")->trigger();
    EXPECT_EQ(documents().open().size(), 1U) << "nobody else is kept waiting";
    QCoreApplication::processEvents();
    documents().active()->setCaption(QString(32, 'y'));
    EXPECT_EQ(entries("mnuWindow").mid(4), (QStringList{"-", QString(32, 'x') + "...", QString(32, 'y')}));
    window->DoMenuClick("mnuFileClose");
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

TEST_F(MenusAndToolbarsTest, EveryTitleAndEntryHasItsCaptionAndHelpText)
{
    window->OpenRequestedFile(writeVocabulary("recent.gla"));
    newDocument()->frame()->hide(); // and not listed
    QStringList found;              // the titles and the entries with their texts, and * those with a picture
    for (const QAction *title : window->menuBar()->actions())
        found += title->text() + " | " + title->statusTip();
    for (QMenu *each : window->findChildren<QMenu *>()) {
        QList<int> texts;
        if (!each->property("helpContextId").toInt())
            continue; // of a document's window
        found += each->objectName() + ' ' + each->property("helpContextId").toString();
        Q_EMIT each->aboutToShow();
        for (const QAction *entry : each->actions()) {
            const int textId = texts.emplace_back(entry->property("textId").toInt());
            found += "    " + entry->objectName() + (entry->icon().isNull() ? " " : " * ") + QString::number(textId);
            found.back() += entry->isSeparator() ? " -" : ": " + entry->text() + " | " + entry->statusTip();
        }
        texts.removeAll(400); // of recent files
        expectDifferentLetters(texts, each->objectName());
    }
    // how much shows of the path of a recent file depends on the letters of the folder
    expectAsIn("menus.txt", found.join('\n').remove(QRegularExpression("/.*(?=/recent)")) + '\n');
}
