#include "tools/frmFindReplace.h"

#include "document/ctlGridEdit.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"
#include "tools/FindOn.h"

struct FindReplace : ::testing::Test, OpenDocument
{
    FindReplace()
        : OpenDocument(Words{{"cat", "Katze"}, {"the cat sat", "die Katze saß"}, {"cats", "a"}})
    {
    }

    void open(bool replace, const QString &what = {}, const QString &with = {})
    {
        (replace ? flags.ReplaceMode : flags.FindMode) = true;
        dialog = std::make_unique<frmFindReplace>(document, frmFindReplace::Needs{flags, undo, alert, last}, &window);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        for (const auto &[box, text] : {std::pair("txtFind", what), {"txtReplace", with}})
            text.isEmpty() ? void() : type(box, text);
    }
    template <typename T> T *control(const char *name) { return dialog->findChild<T *>(name); }
    void click(const char *name) { QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton); }
    void type(const char *box, const QString &text) { control<QLineEdit>(box)->setText(text); }
    /// What the cell editor shows, as "row,col:[selected text]start".
    QString match() const
    {
        const QString place = QString("%1,%2:[%3]%4").arg(grid.Row()).arg(grid.Col()).arg(grid.SelText());
        return grid.EditMode() ? place.arg(grid.hwndText()->cursorPosition() - grid.SelText().size()) : "nothing";
    }

    ScriptedAlertBox alert;
    Search last;
    std::unique_ptr<frmFindReplace> dialog;
};

TEST_F(FindReplace, OpensWithTheCurrentCellsTextAndWidens)
{
    window.resize(600, 500);
    open(false);
    EXPECT_EQ(shown(*dialog).toStdString(),
              "Find | &Find | ><cat> | Scope | [x] Whole &Document | [ ] &1 Language 1 | "
              "[ ] &2 Language 2 | [ ] &Match Case | [ ] &Whole Words | Find &Next | &Replace... | &Close | ?");
    EXPECT_EQ(control<QLineEdit>("txtFind")->selectedText(), "cat");
    EXPECT_EQ(FormTexts::helpContextId(dialog.get()), 1160);
    EXPECT_EQ(dialog->whatsThis() + control<QPushButton>("btnReplace")->whatsThis(), resText(20043) + resText(20049));
    const QSize framed = dialog->size() + QSize(0, dialog->style()->pixelMetric(QStyle::PM_TitleBarHeight) + 27);
    EXPECT_EQ(QRect(dialog->pos(), framed).bottomRight(), window.frameGeometry().bottomRight());
    const int height = dialog->height();
    click("btnReplace");
    type("txtFind", "");
    EXPECT_EQ(shown(*dialog).toStdString(),
              "Replace | &Find | <> | R&eplace With | ><> | Scope | [x] Whole &Document | "
              "[ ] &1 Language 1 | [ ] &2 Language 2 | [ ] &Match Case | [ ] &Whole Words | "
              "(Find &Next) | (&Replace) | (Replace &All) | &Close | ?");
    EXPECT_GE(dialog->height() - height, 46); // 700 twips
    EXPECT_EQ(FormTexts::helpContextId(dialog.get()), 1170);
    EXPECT_EQ(dialog->whatsThis() + control<QPushButton>("btnReplace")->whatsThis(), resText(20051) + resText(20053));
    EXPECT_TRUE(flags.ReplaceMode && !flags.FindMode);
    EXPECT_EQ(match(), "nothing");
}

TEST_F(FindReplace, ShowsMatchAfterMatchAndReportsTheEnd)
{
    open(false);
    grid.setTextMatrix(3, 2, "far");
    grid.insertRows(2, 200);
    type("txtFind", "far");
    click("btnFind");
    EXPECT_TRUE(grid.RowIsVisible(203));
    grid.removeRows(2, 200);
    type("txtFind", "cat");
    // the match and how often the user was told of the end
    play(
        "Return -> 1,1:[cat]0 0, Return -> 2,1:[cat]4 0, Return -> 3,1:[cat]0 0, btnFind -> 3,1:[cat]0 1, "
        "btnFind -> 1,1:[cat]0 1, F3 -> 2,1:[cat]4 1, Shift+F3 -> 1,1:[cat]0 1, KATZE -> 1,1:[cat]0 1, "
        "chkCase -> 1,1:[cat]0 1, btnFind -> 1,1:[cat]0 2, chkCase -> 1,1:[cat]0 2, btnFind -> 1,2:[Katze]0 2, "
        "optScope1 -> 1,2:[Katze]0 2, btnFind -> 1,2:[Katze]0 3, cat -> 1,2:[Katze]0 3, chkWord -> 1,2:[Katze]0 3, "
        "Shift+F3 -> 2,1:[cat]4 3, btnFind -> 2,1:[cat]4 4, chkWord -> 2,1:[cat]4 4, Return -> 1,1:[cat]0 4",
        [this] { return match() + ' ' + QString::number(alert.shown.size()); },
        {{"KATZE", [this] { type("txtFind", "KATZE"); }}, {"cat", [this] { type("txtFind", "cat"); }}}, dialog.get());
    EXPECT_EQ(alert.shown[0].prompt, "The specified region has been searched.");
    EXPECT_EQ(alert.shown[1].prompt, "The search string was not found.");

    dialog->close();
    EXPECT_TRUE(!flags.searching() && !grid.EditMode() && undo.kind() == UndoKind::None && !document.Dirty());
    play("on -> 2 4, on -> 3 4, back -> 2 4, on -> 3 4, on -> 1 5, back -> 3 6",
         [this] { return QString("%1 %2").arg(document.selection().bottom()).arg(alert.shown.size()); },
         {{"on", [this] { FindOn::run(document, last, false, alert, &window); }},
          {"back", [this] { FindOn::run(document, last, true, alert, &window); }}});
    last.FindWhat = "dog";
    FindOn::run(document, last, false, alert, &window);
    EXPECT_EQ(document.selection(), (GridSelection{3, 1, 3, 1}));
    EXPECT_TRUE(alert.shown[4].prompt.endsWith("been searched.") && alert.shown.back().prompt.endsWith("not found."));
}

TEST_F(FindReplace, ReplacesTheSelectedMatchOnly)
{
    open(false, "CAT", "dog"), dialog->showAgain(true);
    play(
        "btnReplace -> 1,1:[cat]0 cat, btnReplace -> 2,1:[cat]4 dog, btnFind -> 3,1:[cat]0 dog, part -> 3,1:[ca]0 "
        "dog, btnReplace -> 3,1:[ca]0 dog, btnFind -> 2,1:[cat]4 dog, btnReplace -> 3,1:[cat]0 dog, long -> "
        "3,1:[cat]0 dog, btnFind -> 3,1:[cat]0 dog, btnFind -> 3,1:[cat]0 dog, btnReplace -> 3,1:[]200 dog",
        [this] { return match() + ' ' + grid.TextMatrix(1, 1); },
        {{"part", [this] { grid.SelectEditText(0, 2); }}, {"long", [this] { type("txtReplace", QString(200, u'x')); }}},
        dialog.get());
    EXPECT_EQ(words(),
              (Words{{"dog", "Katze"}, {"the dog sat", "die Katze saß"}, {QString(200, u'x') + 's', "a"}, {}}));
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_GT(grid.RowHeight(3), 285); // also of the last match
    EXPECT_TRUE(!dialog->isVisible() && document.Dirty() && undo.kind() == UndoKind::Replace);
}

TEST_F(FindReplace, ReplaceAllIsOneUndoStepOfItsDocument)
{
    const Words before = words();
    const QString longWord(200, u'x');
    for (const bool anotherFollows : {false, true}) {
        open(true, "cat", longWord);
        click("btnFind"); // the match shown first counts as well
        click("btnReplaceAll");
        EXPECT_EQ(alert.onlyPrompt(), "The specified region has been searched. 3 replacements were made.");
        EXPECT_THAT(words(), ::testing::ElementsAre(Words::value_type{longWord, "Katze"},
                                                    Words::value_type{"the " + longWord + " sat", "die Katze saß"},
                                                    Words::value_type{longWord + "s", "a"}, Words::value_type{}));
        EXPECT_GT(grid.RowHeight(1), 285);
        EXPECT_EQ(match(), "3,1:[]200"); // the last match
        document.setDirty(false);        // as saving does
        if (anotherFollows) {
            QTest::keyClicks(grid.hwndText(), "u");
            undo.clear();
            dialog->leaveDocument();
            click("btnFind");
            click("btnReplaceAll");
            EXPECT_TRUE(!grid.EditMode() && alert.shown.size() == 1);
            grid.setTextMatrix(0, 1, "English");
            dialog->workOn(document); // as if it were another
            click("btnFind");
            EXPECT_TRUE(control<QRadioButton>("optScope1")->text() == "&1 English" && alert.shown.size() == 2);
        }
        dialog->close();
        EXPECT_TRUE(!flags.searching() && document.Dirty());
        EXPECT_EQ(undo.kind(), anotherFollows ? UndoKind::None : UndoKind::Replace);
        commands.Undo(document);
        EXPECT_EQ(words() == before, !anotherFollows);
        alert.shown.clear();
    }
}

TEST_F(FindReplace, WhatIsTypedIntoTheMatchCanBeUndone)
{
    for (const QString text : {"aXa", "aX"}) { // which matches again, or not
        setWords({{text, ""}});
        undo.clear();
        open(false, "a");
        click("btnFind");
        QTest::keyClicks(grid.hwndText(), "u");
        click("btnFind");
        dialog->close();
        EXPECT_EQ(grid.TextMatrix(1, 1), 'u' + text.mid(1));
        EXPECT_TRUE(undo.kind() == UndoKind::Entry && document.Dirty());
        commands.Undo(document);
        EXPECT_EQ(grid.TextMatrix(1, 1), text);
    }
}
