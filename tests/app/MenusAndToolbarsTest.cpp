#include "MainWindowFixture.h"

#include "app/MenuLayout.h"
#include "document/ctlGrid.h"
#include "resources/StringTable.h"

using MenusAndToolbarsTest = MainWindowFixture;

TEST_F(MenusAndToolbarsTest, WithoutADocumentOnlyFilesCanBeOpened)
{
    EXPECT_EQ(menuTitles(), (QStringList{"File", "Help"}));
    EXPECT_EQ(entries("mnuFile"), (QStringList{"New", "Open...", "-", "Exit"}));
    for (const char *key : {"Save", "Print", "Cut", "Copy", "Paste", "Undo", "Find", "Quiz"})
        EXPECT_FALSE(button("STANDARD", key)->isEnabled()) << key;
    EXPECT_TRUE(button("STANDARD", "New")->isEnabled());
}

TEST_F(MenusAndToolbarsTest, StatesFollowTheActiveDocument)
{
    frmDoc *document = newDocument();
    EXPECT_EQ(window->state(), AppState::StateDocument);
    EXPECT_EQ(menuTitles().size(), 7);
    document->Rutor()->setEditMode(true);
    EXPECT_EQ(window->state(), AppState::StateEditing);
    const QStringList editing = entries("mnuFile");
    for (const char *entry : {"(New)", "(Open...)", "Close", "Save", "Save As...", "(Print Preview...)", "(Print...)"})
        EXPECT_TRUE(editing.contains(QLatin1String(entry))) << entry;
    EXPECT_FALSE(button("STANDARD", "Find")->isEnabled());
    EXPECT_TRUE(button("STANDARD", "Save")->isEnabled());
    document->endEdit();
    EXPECT_EQ(window->state(), AppState::StateDocument);
    window->DoMenuClick("mnuFileClose");
    EXPECT_EQ(window->state(), AppState::StateNoDocument);
    EXPECT_EQ(status(1) + status(2), "");
}

TEST_F(MenusAndToolbarsTest, TheUndoCaptionNamesAndEnablesTheCommand)
{
    frmDoc *document = newDocument();
    EXPECT_EQ(window->UndoAction(), resText(419));
    undo.setKind(UndoKind::Cut, document);
    EXPECT_EQ(window->UndoAction(), "&Undo Cut");
    EXPECT_EQ(window->commands().action("mnuEditUndo")->text(), "&Undo Cut");
    EXPECT_EQ(button("STANDARD", "Undo")->toolTip(), "Undo Cut");
    undo.clear();
    EXPECT_FALSE(button("STANDARD", "Undo")->isEnabled());
    newDocument();
    undo.setKind(UndoKind::Sort, document);
    EXPECT_FALSE(button("STANDARD", "Undo")->isEnabled()) << "there is nothing to undo in the active document";
    EXPECT_EQ(window->UndoAction(), resText(419));
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

    menu("mnuMode")->popup(QPoint(0, 0));
    menu("mnuMode")->setActiveAction(window->commands().action("mnuMode1"));
    EXPECT_EQ(status(0), resText(41) + " English -> R&D In Order");
    menu("mnuMode")->close();
    EXPECT_EQ(status(0), resText(506));
}

TEST_F(MenusAndToolbarsTest, TheWindowMenuListsAndActivatesDocuments)
{
    frmDoc *first = newDocument();
    first->setCaption(QString(33, 'x'));
    newDocument()->setCaption(QString(32, 'y'));
    EXPECT_EQ(entries("mnuWindow").mid(4), (QStringList{"-", QString(32, 'x') + "...", QString(32, 'y')}));
    const QList<QAction *> actions = menu("mnuWindow")->actions();
    EXPECT_FALSE(actions[5]->isChecked());
    EXPECT_TRUE(actions[6]->isChecked());
    actions[5]->trigger();
    EXPECT_EQ(documents().active(), first);
}

TEST_F(MenusAndToolbarsTest, EveryPlaceIsACommandWithItsTexts)
{
    for (const MenuLayout::Menu &each : MenuLayout::menus()) {
        for (const QString &key : each.entries)
            EXPECT_TRUE(key.isEmpty() || window->commands().find(key)) << key.toStdString();
    }
    for (const auto *buttons : {&MenuLayout::standardButtons(), &MenuLayout::previewButtons()}) {
        for (const MenuLayout::Button &each : *buttons)
            EXPECT_TRUE(each.key.isEmpty() || !window->commands().action(each.command)->icon().isNull());
    }
    QStringList shortcuts;
    for (const Command *command : window->commands().commands()) {
        EXPECT_FALSE(resText(command->captionId).isEmpty()) << command->key.toStdString();
        EXPECT_FALSE(resText(command->helpId).isEmpty()) << command->key.toStdString();
        if (!command->shortcut.isEmpty())
            shortcuts.append(command->shortcut);
    }
    EXPECT_EQ(shortcuts.removeDuplicates(), 0);
}
