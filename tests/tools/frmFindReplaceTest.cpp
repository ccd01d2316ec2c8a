#include "tools/frmFindReplace.h"

#include "document/EditCommands.h"
#include "document/ctlGridEdit.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"
#include "tools/FindOn.h"

using Words = OpenDocument::Words;

struct FindReplace : ::testing::Test, OpenDocument
{
    FindReplace()
        : OpenDocument(Words{{"cat", "Katze"}, {"the cat sat", "die Katze saß"}, {"cats", "a"}})
    {
    }

    void open(bool replace)
    {
        (replace ? flags.ReplaceMode : flags.FindMode) = true;
        dialog = std::make_unique<frmFindReplace>(document, frmFindReplace::Needs{flags, undo, alert, last}, &window);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    template <typename T> T *control(const char *name) { return dialog->findChild<T *>(QString::fromLatin1(name)); }
    void click(const char *name) { QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton); }
    void type(const char *box, const QString &text)
    {
        control<QLineEdit>(box)->selectAll();
        QTest::keyClick(control<QLineEdit>(box), Qt::Key_Delete);
        QTest::keyClicks(control<QLineEdit>(box), text);
    }
    /// What the cell editor shows, as "row,col:[selected text]start".
    QString shown() const
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
    open(false);
    EXPECT_EQ(control<QLineEdit>("txtFind")->selectedText(), "cat");
    EXPECT_EQ(control<QRadioButton>("optScope1")->text(), "&1 Language 1");
    const int height = dialog->height();
    click("btnReplace");
    EXPECT_EQ(dialog->windowTitle(), "Replace");
    EXPECT_GE(dialog->height() - height, 46); // 700 twips
    EXPECT_TRUE(flags.ReplaceMode && !flags.FindMode);
    EXPECT_EQ(shown(), "nothing");
    type("txtFind", "");
    for (const char *name : {"btnFind", "btnReplace", "btnReplaceAll"})
        EXPECT_FALSE(control<QPushButton>(name)->isEnabled()) << name;
}

TEST_F(FindReplace, ShowsMatchAfterMatchAndReportsTheEnd)
{
    open(false);
    for (const char *expected : {"1,1:[cat]0", "2,1:[cat]4", "3,1:[cat]0"}) {
        QTest::keyClick(control<QLineEdit>("txtFind"), Qt::Key_Return);
        EXPECT_EQ(shown(), expected);
    }
    EXPECT_TRUE(alert.shown.empty());
    click("btnFind");
    EXPECT_EQ(alert.onlyPrompt(), "The specified region has been searched.");
    click("btnFind");
    EXPECT_EQ(shown(), "1,1:[cat]0");

    type("txtFind", "KATZE");
    click("chkCase");
    click("btnFind");
    EXPECT_EQ(alert.shown.back().prompt, "The search string was not found.");
    click("chkCase");
    click("btnFind");
    EXPECT_EQ(shown(), "1,2:[Katze]0");
    click("optScope1");
    click("btnFind");
    EXPECT_EQ(alert.shown.size(), 3U);
    type("txtFind", "cat");
    for (const auto &[modifiers, expected] :
         {std::pair(Qt::NoModifier, "1,1:[cat]0"), {Qt::NoModifier, "2,1:[cat]4"}, {Qt::ShiftModifier, "1,1:[cat]0"}}) {
        QTest::keyClick(dialog.get(), Qt::Key_F3, modifiers);
        EXPECT_EQ(shown(), expected);
    }

    dialog->close();
    EXPECT_TRUE(!flags.searching() && !grid.EditMode());
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_FALSE(document.Dirty());

    alert.shown.clear();
    const std::tuple<bool, int, size_t> rest[] = {
        {false, 2, 0}, {false, 3, 0}, {true, 2, 0}, {false, 3, 0}, {false, 1, 1}};
    for (const auto &[backwards, row, told] : rest) {
        FindOn::run(document, last, backwards, alert, &window);
        EXPECT_EQ(document.selection(), (GridSelection{row, 1, row, 1}));
        EXPECT_EQ(alert.shown.size(), told);
    }
}

TEST_F(FindReplace, ReplacesTheSelectedMatchOnly)
{
    open(true);
    type("txtFind", "cat");
    type("txtReplace", "dog");
    click("btnReplace");
    EXPECT_EQ(grid.TextMatrix(1, 1), "cat"); // there was no match yet
    EXPECT_EQ(shown(), "1,1:[cat]0");
    click("btnReplace");
    EXPECT_EQ(grid.TextMatrix(1, 1), "dog");
    EXPECT_EQ(shown(), "2,1:[cat]4");
    click("btnFind");
    EXPECT_EQ(grid.TextMatrix(2, 1), "the cat sat");
    grid.SelectEditText(0, 2);
    click("btnReplace");
    EXPECT_EQ(grid.TextMatrix(3, 1), "cats");
    control<QLineEdit>("txtReplace")->setText(QString(200, u'x'));
    for (const char *name : {"btnFind", "btnFind", "btnReplace"})
        click(name);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_GT(grid.RowHeight(3), 285); // also of the last match
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Replace);
}

TEST_F(FindReplace, ReplaceAllIsOneUndoStep)
{
    const Words before = words();
    const QString longWord(200, u'x');
    open(true);
    type("txtFind", "cat");
    click("btnFind"); // the match shown first counts as well
    type("txtReplace", longWord);
    click("btnReplaceAll");
    EXPECT_EQ(alert.onlyPrompt(), "The specified region has been searched. 3 replacements were made.");
    EXPECT_EQ(words(),
              (Words{{longWord, "Katze"}, {"the " + longWord + " sat", "die Katze saß"}, {longWord + "s", "a"}, {}}));
    EXPECT_GT(grid.RowHeight(1), 285);
    EXPECT_EQ(shown(), "3,1:[]200"); // the last match
    click("btnReplaceAll");
    EXPECT_EQ(shown(), "3,1:[]200");
    document.setDirty(false); // as saving does
    dialog->close();
    EXPECT_TRUE(document.Dirty());
    EditCommands(undo, *QGuiApplication::clipboard()).Undo(document);
    EXPECT_EQ(words(), before);
}

TEST_F(FindReplace, WhatIsTypedIntoTheMatchCanBeUndone)
{
    for (const bool matchesAgain : {true, false}) {
        setWords({{matchesAgain ? "aXa" : "aX", ""}});
        undo.clear();
        open(false);
        type("txtFind", "a");
        click("btnFind");
        QTest::keyClicks(grid.hwndText(), "u");
        click("btnFind");
        dialog->close();
        EXPECT_EQ(grid.TextMatrix(1, 1), matchesAgain ? "uXa" : "uX");
        EXPECT_EQ(undo.kind(), UndoKind::Entry);
        EXPECT_TRUE(document.Dirty());
        EditCommands(undo, *QGuiApplication::clipboard()).Undo(document);
        EXPECT_EQ(grid.TextMatrix(1, 1), matchesAgain ? "aXa" : "aX");
    }
}

TEST_F(FindReplace, LeavesNoUndoStepToAnotherDocument)
{
    open(true);
    type("txtFind", "cat");
    click("btnReplaceAll");
    type("txtFind", "Katze");
    click("btnFind");
    QTest::keyClicks(grid.hwndText(), "u");
    undo.clear();
    dialog->leaveDocument();
    click("btnFind");
    click("btnReplaceAll");
    EXPECT_FALSE(grid.EditMode());
    dialog->close();
    EXPECT_FALSE(flags.searching());
    EXPECT_EQ(undo.kind(), UndoKind::None);
}
