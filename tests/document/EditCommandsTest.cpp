#include "document/EditCommands.h"

#include "document/ctlGridEdit.h"
#include "support/OpenDocument.h"
#include "widgets/FlexGridView.h"

#include <QClipboard>

namespace {

using Words = OpenDocument::Words;

class Editing : public ::testing::Test, protected OpenDocument
{
protected:
    Editing()
        : OpenDocument(Words{{"a", "b"}, {"c", "d"}, {"e", "f"}})
    {
    }

    void paste(const QString &text)
    {
        clipboard.setText(text);
        commands.Paste(document);
    }
    void expectUndone(const Words &expected)
    {
        commands.Undo(document);
        EXPECT_EQ(words(), expected);
        EXPECT_EQ(undo.kind(), UndoKind::None);
    }

    QClipboard &clipboard = *QGuiApplication::clipboard();
    EditCommands commands{undo, flags, clipboard};
    const Words before = words();
};

TEST_F(Editing, CommandsActOnTheSelectionAndAreUndone)
{
    struct Case
    {
        void (EditCommands::*command)(frmDoc &);
        GridSelection selection;
        UndoKind kind;
        bool dirty;
        Words result, undone;
    };
    const Case cases[] = {
        {&EditCommands::Cut, {1, 2, 3, 2}, UndoKind::Cut, true, {{"a", ""}, {"c", ""}, {"e", ""}, {}}, before},
        {&EditCommands::Clear, {3, 2, 2, 1}, UndoKind::Clear, false, {{"a", "b"}, {}, {}, {}}, before},
        {&EditCommands::Insert,
         {3, 1, 2, 1},
         UndoKind::Insert,
         false,
         {{"a", "b"}, {}, {}, {"c", "d"}, {"e", "f"}, {}},
         before},
        {&EditCommands::Delete,
         {2, 1, 3, 1},
         UndoKind::Delete,
         true,
         {{"a", "b"}, {}},
         {{"a", "b"}, {"c", ""}, {"e", ""}, {}}},
        {&EditCommands::Delete, {4, 2, 1, 1}, UndoKind::Delete, true, {{}}, before},   // one row stays
        {&EditCommands::Delete, {4, 1, 4, 2}, UndoKind::Delete, true, before, before}, // so does an empty last one
    };
    for (const Case &test : cases) {
        setWords({{"a", "b"}, {"c", "d"}, {"e", "f"}});
        document.setDirty(false);
        document.select(test.selection);
        (commands.*test.command)(document);
        EXPECT_EQ(words(), test.result);
        EXPECT_EQ(undo.kind(), test.kind);
        EXPECT_EQ(document.Dirty(), test.dirty);
        select(1, 1, 1, 1);
        expectUndone(test.undone);
        EXPECT_EQ(document.selection(), test.selection);
    }
}

TEST_F(Editing, CopyAndCutPutTheCellsOnTheClipboard)
{
    select(2, 2, 1, 1);
    commands.Copy(document);
    EXPECT_EQ(clipboard.text(), "a\tb\rc\td");
    EXPECT_EQ(undo.kind(), UndoKind::None);
    select(1, 2, 3, 2);
    commands.Cut(document);
    EXPECT_EQ(clipboard.text(), "b\rd\rf");
}

TEST_F(Editing, RowsKeepTheirHeightsWhenOthersAreInserted)
{
    grid.setRowHeight(2, 900);
    select(2, 1, 3, 1);
    commands.Insert(document);
    EXPECT_EQ(grid.RowHeight(4), 900);
    EXPECT_EQ(grid.TextMatrix(4, 0), "4");
}

TEST_F(Editing, PasteIntoOneCellReachesAsFarAsTheText)
{
    struct Case
    {
        int row, col;
        QString text;
        Words result;
    };
    const Case cases[] = {
        {1, 1, "x", {{"x", "b"}, {"c", "d"}, {"e", "f"}, {}}},
        {2, 1, "x\ty\nz\n", {{"a", "b"}, {"x", "y"}, {"z", "f"}, {}}},
        {2, 2, "x\ty\r\nz\r\n", {{"a", "b"}, {"c", "x"}, {"e", "z"}, {}}},
        {3, 1, "x\ty\tw\r\r1\t2\r3", {{"a", "b"}, {"c", "d"}, {"x", "y"}, {"", "f"}, {"1", "2"}, {"3", ""}, {}}},
        {4, 2, "x", {{"a", "b"}, {"c", "d"}, {"e", "f"}, {"", "x"}, {}}},
        {1, 1, "\"x\ny\"\tz", {{"x y", "z"}, {"c", "d"}, {"e", "f"}, {}}},
        {1, 1, "\t", {{"", ""}, {"c", "d"}, {"e", "f"}, {}}},
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(test.text.toStdString());
        setWords({{"a", "b"}, {"c", "d"}, {"e", "f"}});
        if (test.row == 3)
            grid.setTextMatrix(4, 2, "f"); // a row without a field keeps what it has
        const Words present = words();
        select(test.row, test.col, test.row, test.col);
        paste(test.text);
        EXPECT_EQ(words(), test.result);
        EXPECT_EQ(undo.kind(), UndoKind::Paste);
        expectUndone(present);
        EXPECT_EQ(document.selection(), (GridSelection{test.row, test.col, test.row, test.col}));
    }
}

TEST_F(Editing, PasteFillsALargerSelectionOnly)
{
    select(1, 1, 2, 1);
    paste("x\ty\nz\nw");
    EXPECT_EQ(words(), (Words{{"x", "b"}, {"z", "d"}, {"e", "f"}, {}}));
    EXPECT_TRUE(document.Dirty());
    expectUndone(before);
    select(2, 1, 4, 2);
    paste("x\n\t\nz");
    EXPECT_EQ(words(), (Words{{"a", "b"}, {"x", "d"}, {"", ""}, {"z", ""}, {}}));
    expectUndone(before);
}

TEST_F(Editing, PasteOfNothingChangesNothing)
{
    clipboard.clear();
    commands.Paste(document);
    EXPECT_EQ(words(), before);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_FALSE(document.Dirty());
}

TEST_F(Editing, WhileACellIsEditedTheCommandsActOnTheEditBox)
{
    QTest::keyClicks(grid.hwndGrid(), "xyz");
    ASSERT_TRUE(grid.EditMode());
    grid.SelectEditText(0, 2);
    commands.Copy(document);
    EXPECT_EQ(clipboard.text(), "xy");
    commands.Cut(document);
    EXPECT_EQ(grid.EditText(), "z");
    EXPECT_EQ(undo.kind(), UndoKind::Cut);
    commands.Undo(document);
    EXPECT_EQ(grid.EditText(), "xyz");
    grid.SelectEditText(3, 0);
    commands.Paste(document);
    EXPECT_EQ(grid.EditText(), "xyzxy");
    EXPECT_EQ(words(), before);
    QTest::keyClick(grid.hwndText(), Qt::Key_Return);
    EXPECT_EQ(grid.TextMatrix(1, 1), "xyzxy");
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    expectUndone(before);
}

TEST_F(Editing, UndoOfTypingTogglesAndEndsWhenThereIsNoTyping)
{
    QTest::mouseDClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, {100, 30});
    ASSERT_TRUE(grid.EditMode());
    const QString text = grid.EditText();
    QTest::keyClicks(grid.hwndText(), "xy");
    EXPECT_EQ(undo.kind(), UndoKind::Typing);
    for (const QString &expected : {text, QString(text + "xy"), text}) {
        commands.Undo(document);
        EXPECT_EQ(grid.EditText(), expected);
        EXPECT_EQ(undo.kind(), UndoKind::Typing);
    }
    QTest::keyClick(grid.hwndText(), Qt::Key_Return);
    grid.setEditMode(true);
    commands.Undo(document);
    EXPECT_EQ(undo.kind(), UndoKind::None);
}

TEST_F(Editing, UndoLeavesNothingToTheEditBoxOfASearch)
{
    commands.Clear(document);
    flags.FindMode = true;
    grid.setEditMode(true);
    grid.setFocus();
    EXPECT_FALSE(flags.gridMode);
    expectUndone(before);
    document.endEdit();
    EXPECT_EQ(words(), before);
    grid.setEditMode(true);
    clipboard.clear();
    commands.Paste(document);
    document.endEdit();
    expectUndone(before);
}

TEST_F(Editing, UndoActsOnTheDocumentOfTheRecordOnly)
{
    commands.Clear(document);
    OpenDocument other(Words{{"1", "2"}});
    const Words otherWords = other.words();
    commands.Undo(other.document);
    EXPECT_EQ(other.words(), otherWords);
    EXPECT_EQ(undo.kind(), UndoKind::None);
}

} // namespace
