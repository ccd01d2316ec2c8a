#include "document/EditCommands.h"

#include "document/ctlGridEdit.h"
#include "support/OpenDocument.h"
#include "widgets/grid/FlexGridView.h"

#include <QClipboard>

using Words = OpenDocument::Words;

struct Editing : ::testing::Test, OpenDocument
{
    Editing()
        : OpenDocument(Words{{"a", "b"}, {"c", "d"}, {"e", "f"}})
    {
    }

    void expectUndone(const Words &expected)
    {
        commands.Undo(document);
        EXPECT_EQ(words(), expected);
        EXPECT_EQ(undo.kind(), UndoKind::None);
    }

    QClipboard &clipboard = *QGuiApplication::clipboard();
    EditCommands commands{undo, clipboard};
    const Words before = words();
};

TEST_F(Editing, CommandsActOnTheSelection)
{
    const std::tuple<void (EditCommands::*)(frmDoc &), GridSelection, UndoKind, bool, Words> cases[] = {
        {&EditCommands::Cut, {1, 2, 3, 2}, UndoKind::Cut, true, {{"a", ""}, {"c", ""}, {"e", ""}, {}}},
        {&EditCommands::Clear, {3, 2, 2, 1}, UndoKind::Clear, false, {{"a", "b"}, {}, {}, {}}},
        {&EditCommands::Insert,
         {3, 1, 2, 1},
         UndoKind::Insert,
         false,
         {{"a", "b"}, {}, {}, {"c", "d"}, {"e", "f"}, {}}},
        {&EditCommands::Delete, {2, 1, 3, 1}, UndoKind::Delete, true, {{"a", "b"}, {}}},
        {&EditCommands::Delete, {4, 2, 1, 1}, UndoKind::Delete, true, {{}}},   // one row stays
        {&EditCommands::Delete, {4, 1, 4, 2}, UndoKind::Delete, true, before}, // so does an empty last one
    };
    for (const auto &[command, selection, kind, dirty, result] : cases) {
        setWords({{"a", "b"}, {"c", "d"}, {"e", "f"}});
        document.setDirty(false);
        document.select(selection);
        (commands.*command)(document);
        EXPECT_EQ(words(), result);
        EXPECT_EQ(undo.kind(), kind);
        EXPECT_EQ(document.Dirty(), dirty);
        select(1, 1, 1, 1);
        commands.Undo(document);
        EXPECT_EQ(undo.kind(), UndoKind::None);
        EXPECT_EQ(document.selection(), selection);
    }
}

TEST_F(Editing, CopyAndCutPutTheCellsOnTheClipboard)
{
    select(2, 2, 1, 1);
    commands.Copy(document);
    EXPECT_EQ(clipboard.text(), "a\tb\rc\td");
    select(1, 2, 3, 2);
    commands.Cut(document);
    EXPECT_EQ(clipboard.text(), "b\rd\rf");
}

TEST_F(Editing, PasteReachesAsFarAsTheTextOrTheSelection)
{
    const std::tuple<GridSelection, QString, Words> cases[] = {
        {{1, 1, 1, 1}, "x", {{"x", "b"}, {"c", "d"}, {"e", "f"}, {}}},
        {{2, 1, 2, 1}, "x\ty\nz\n", {{"a", "b"}, {"x", "y"}, {"z", "f"}, {}}},
        {{2, 2, 2, 2}, "x\ty\r\nz\r\n", {{"a", "b"}, {"c", "x"}, {"e", "z"}, {}}},
        {{2, 1, 2, 1}, "x\ty\tw\r\r1\t2\r3", {{"a", "b"}, {"x", "y"}, {"", "f"}, {"1", "2"}, {"3", ""}, {}}},
        {{4, 2, 4, 2}, "x", {{"a", "b"}, {"c", "d"}, {"e", "f"}, {"", "x"}, {}}},
        {{1, 1, 1, 1}, "\"x\ny\"\tz", {{"x y", "z"}, {"c", "d"}, {"e", "f"}, {}}},
        {{1, 1, 1, 1}, "\t", {{"", ""}, {"c", "d"}, {"e", "f"}, {}}},
        {{1, 1, 1, 1}, "", before},
        // into a larger selection
        {{1, 1, 2, 1}, "x\ty\nz\nw", {{"x", "b"}, {"z", "d"}, {"e", "f"}, {}}},
        {{2, 1, 4, 2}, "x\n\t\nz", {{"a", "b"}, {"x", "d"}, {"", ""}, {"z", ""}, {}}},
    };
    for (const auto &[selection, text, result] : cases) {
        SCOPED_TRACE(text.toStdString());
        setWords({{"a", "b"}, {"c", "d"}, {"e", "f"}});
        document.setDirty(false);
        document.select(selection);
        clipboard.setText(text);
        commands.Paste(document);
        EXPECT_EQ(words(), result);
        EXPECT_EQ(undo.kind(), text.isEmpty() ? UndoKind::None : UndoKind::Paste);
        EXPECT_EQ(document.Dirty(), !text.isEmpty());
        expectUndone(before);
        EXPECT_EQ(document.selection(), selection);
    }
}

TEST_F(Editing, WhileACellIsEditedTheCommandsActOnTheEditBox)
{
    QTest::keyClicks(grid.hwndGrid(), "xyz");
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
    EXPECT_EQ(words(), before);
    QTest::keyClick(grid.hwndText(), Qt::Key_Return);
    EXPECT_EQ(grid.TextMatrix(1, 1), "xyzxy");
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    expectUndone(before);
}

TEST_F(Editing, UndoOfTypingTogglesAndEndsWhenThereIsNoTyping)
{
    grid.setEditMode(true);
    QTest::keyClicks(grid.hwndText(), "xy");
    for (const char *expected : {"a", "axy", "a"}) {
        commands.Undo(document);
        EXPECT_EQ(grid.EditText(), expected);
        EXPECT_EQ(undo.kind(), UndoKind::Typing);
    }
    QTest::keyClick(grid.hwndText(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(grid.EditText(), "axy");
    QTest::keyClick(grid.hwndText(), Qt::Key_Return);
    grid.setEditMode(true);
    commands.Undo(document);
    EXPECT_EQ(undo.kind(), UndoKind::None);
}

TEST_F(Editing, UndoLeavesNothingToTheEditBoxOfASearch)
{
    flags.FindMode = true;
    clipboard.clear();
    for (const auto command : {&EditCommands::Clear, &EditCommands::Paste}) {
        grid.setEditMode(command == &EditCommands::Paste);
        (commands.*command)(document);
        grid.setEditMode(true);
        grid.setFocus();
        expectUndone(before);
        document.endEdit();
        EXPECT_EQ(words(), before);
    }
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
