#include "document/EditCommands.h"

#include "document/ctlGridEdit.h"
#include "document/rules/Vocabulary.h"
#include "resources/StringTable.h"
#include "support/OpenDocument.h"
#include "widgets/grid/FlexGridView.h"

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
        EXPECT_TRUE(undo.snapshot.empty() && undo.overwritten.words.empty()) << "they take memory";
    }

    QClipboard &clipboard = *QGuiApplication::clipboard();
    const Words before = words();
};

TEST_F(Editing, CommandsChangeAnySelectionAndAreUndone)
{
    using enum UndoKind;
    std::mt19937 engine{5};
    for (int round = 0; round < 200; ++round) {
        const Words all = setRandomWords(engine);
        const GridSelection cells = document.selection();
        Words emptied = all, more = all, fewer = all;
        Words selected = all; // of what was deleted nothing else comes back
        for (size_t row = size_t(cells.top()) - 1; row < size_t(cells.bottom()); ++row) {
            for (int col = 1; col <= 2; ++col)
                (col >= cells.left() && col <= cells.right() ? emptied : selected)[row][size_t(col) - 1].clear();
        }
        more.insert(more.begin() + cells.top() - 1, size_t(cells.rowCount()), {});
        fewer.erase(fewer.begin() + cells.top() - 1, fewer.begin() + cells.bottom());
        if (fewer.empty() || fewer.back() != all.back())
            fewer.emplace_back();
        Words imported = all;
        Vocabulary list;
        list.append("English", "German");
        commands.Import(document, list, "none"); // does nothing
        for (size_t row = 0; row < 3; ++row) {
            list.append("x", QString(row, u'y'));
            imported.insert(imported.begin() + cells.top() - 1 + int(row), {"x", QString(row, u'y')});
        }
        const std::tuple<std::function<void()>, UndoKind, bool, Words, Words> steps[] = {
            {[&] { commands.Clear(document); }, Clear, false, emptied, all},
            {[&] { commands.Cut(document); }, Cut, true, emptied, all},
            {[&] { commands.Clear(document); }, Clear, false, emptied, {}},
            {[&] { commands.Paste(document); }, Paste, true, all, {}},
            {[&] { commands.Insert(document); }, Insert, false, more, all},
            {[&] { commands.Import(document, list, "3 words"); }, Import, true, imported, all},
            {[&] { commands.Delete(document); }, Delete, true, fewer, selected}};
        for (const auto &[command, kind, dirty, result, undone] : steps) {
            document.setDirty(false);
            document.select(cells);
            command();
            ASSERT_EQ(words(), result) << int(kind);
            EXPECT_TRUE(undo.kind() == kind && document.Dirty() == dirty) << int(kind);
            if (undone.empty())
                continue;
            select(1, 1, 1, 1);
            expectUndone(undone);
            EXPECT_EQ(document.selection(), cells);
        }
    }
    const QString longWord = QStringLiteral("long words ").repeated(20);
    for (const auto &[first, second] : {std::pair(QString("x"), longWord), {longWord, "x"}}) {
        Vocabulary list;
        list.append({}, {});
        list.append(first, second);
        commands.Import(document, list, "1 word");
        EXPECT_TRUE(grid.RowHeight(document.selection().top()) > 2 * 285 && undo.note() == "1 word");
    }
    setWords(before);
    grid.setRows(4); // a list that ends in words
    select(3, 1, 1, 2);
    commands.Copy(document);
    EXPECT_EQ(clipboard.text(), "a\tb\rc\td\re\tf");
    commands.Delete(document);
    EXPECT_EQ(words(), Words(1));
    expectUndone(Words(before.begin(), before.end() - 1));
}

TEST_F(Editing, PasteReachesAsFarAsTheTextOrTheSelection)
{
    const std::tuple<GridSelection, QString, Words> cases[] = {
        {{2, 1, 2, 1}, "x\ty\tw\r\r1\t2\r3", {{"a", "b"}, {"x", "y"}, {"", "f"}, {"1", "2"}, {"3", ""}, {}}},
        {{4, 2, 4, 2}, "x", {{"a", "b"}, {"c", "d"}, {"e", "f"}, {"", "x"}, {}}},
        {{1, 1, 1, 1}, "\"x\ny\"\tz", {{"x y", "z"}, {"c", "d"}, {"e", "f"}, {}}},
        {{1, 1, 1, 1}, "", {{"", "b"}, {"c", "d"}, {"e", "f"}, {}}},
        // into a larger selection
        {{2, 1, 4, 2}, "x\n\t\nz", {{"a", "b"}, {"x", "d"}, {"", ""}, {"z", ""}, {}}},
        {{4, 2, 3, 1}, "x\ny\nz\tw", {{"a", "b"}, {"c", "d"}, {"x", "f"}, {"y", ""}, {"z", "w"}, {}}},
    };
    for (const auto &[selection, text, result] : cases) {
        setWords({{"a", "b"}, {"c", "d"}, {"e", "f"}});
        document.select(selection);
        clipboard.setText(text);
        commands.Paste(document);
        EXPECT_EQ(words(), result) << text.toStdString();
        expectUndone(before);
        EXPECT_EQ(document.selection(), selection);
    }
    select(2, 2, 3, 2);
    clipboard.setText(QStringLiteral("long words ").repeated(20) + "\nx\ny\n");
    commands.Paste(document);
    EXPECT_EQ(undo.note(), "2 of 3 rows pasted");
    EXPECT_GT(grid.RowHeight(2), 2 * 285);
    clipboard.clear();
    commands.Paste(document);
    EXPECT_EQ(grid.TextMatrix(3, 2), "x");
}

TEST_F(Editing, WhileACellIsEditedTheCommandsActOnTheEditBox)
{
    const Actions actions = {{"edit", [&] { grid.setEditMode(true); }},
                             {"select", [&] { grid.SelectEditText(0, 2); }},
                             {"copy", [&] { commands.Copy(document); }},
                             {"cut", [&] { commands.Cut(document); }},
                             {"clear", [&] { commands.Clear(document); }},
                             {"paste", [&] { commands.Paste(document); }},
                             {"undo", [&] { commands.Undo(document); }},
                             {"cells", [&] { clipboard.setText("x\ty\nz\n"); }},
                             {"line", [&] { clipboard.setText("one\n"); }},
                             {"search", [&] { flags.FindMode = true; }},
                             {"focus", [&] { grid.setFocus(); }}};
    const auto state = [&]() -> QString {
        const QString kind = undo.kind() == UndoKind::None ? "None" : resText(int(undo.kind())).section(u' ', 1);
        return (grid.EditMode() ? '[' + grid.EditText() + ']' : grid.TextMatrix(1, 1)) + ' ' + kind;
    };
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    // a change of the box is undone also back and forth; a line of another program is one cell; several cells are
    // pasted as cells if nothing was typed; undo leaves nothing to the box of a search
    playFile(SOURCE_FOLDER "/tests/document/data/edit_box.txt", state, actions);
    document.endEdit();
    EXPECT_EQ(words(), before);
}
