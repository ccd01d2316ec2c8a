#include "document/EditCommands.h"
#include "support/OpenDocument.h"
#include "tools/modSorting.h"
#include "tools/rules/SortFlag.h"

namespace {

using Words = OpenDocument::Words;

/// Random vocabularies, selections and changes; words that separators and quotes could break are among them.
class RandomChanges : public ::testing::Test, protected OpenDocument
{
protected:
    int number(int limit) { return int(engine() % unsigned(limit)); }
    QString text() { return texts[number(int(texts.size()))]; }

    /// The words of a new vocabulary with a random selection.
    Words fresh()
    {
        Words random{size_t(number(8))};
        for (auto &row : random)
            row = {text(), text()};
        setWords(random);
        const int rows = grid.Rows() - 1;
        select(1 + number(rows), 1 + number(2), 1 + number(rows), 1 + number(2));
        return words();
    }
    void expectUndone(const Words &expected, const GridSelection &selection)
    {
        commands.Undo(document);
        ASSERT_EQ(words(), expected);
        ASSERT_EQ(document.selection(), selection);
    }

    std::mt19937 engine{5};
    const QStringList texts{"", "w", "\"x", "y\"", "p\tq", "long word", "W", "10", "9"};
    EditCommands commands{undo, *QGuiApplication::clipboard()};
};

TEST_F(RandomChanges, OfTheEditMenuAreUndone)
{
    for (const auto command : {&EditCommands::Cut, &EditCommands::Paste, &EditCommands::Clear, &EditCommands::Insert}) {
        for (int round = 0; round < 150; ++round) {
            const Words before = fresh();
            const GridSelection selection = document.selection();
            QGuiApplication::clipboard()->setText(text() + (number(2) ? "\n" : "\t") + text() + "\r" + text());
            (commands.*command)(document);
            expectUndone(before, selection);
        }
    }
    for (int round = 0; round < 150; ++round) {
        Words expected = fresh();
        const GridSelection selection = document.selection();
        for (int row = selection.top(); row <= selection.bottom(); ++row) {
            for (int col = 1; col <= 2; ++col) {
                if (col < selection.left() || col > selection.right())
                    expected[size_t(row) - 1][size_t(col) - 1].clear();
            }
        }
        commands.Delete(document);
        expectUndone(expected, selection);
    }
}

TEST_F(RandomChanges, CopiedCellsComeBackOnASelectionOfTheirSize)
{
    for (int round = 0; round < 300; ++round) {
        const Words before = fresh();
        const GridSelection from = document.selection();
        commands.Copy(document);
        const int top = 1 + number(grid.Rows() - from.rowCount());
        const int left = from.colCount() == 2 ? 1 : 1 + number(2);
        const GridSelection to{top, left, top + from.rowCount() - 1, left + from.colCount() - 1};
        document.select(to);
        commands.Paste(document);
        Words expected = before;
        for (int row = 0; row < from.rowCount(); ++row) {
            for (int col = 0; col < from.colCount(); ++col)
                expected[size_t(top + row) - 1][size_t(left + col) - 1] =
                    before[size_t(from.top() + row) - 1][size_t(from.left() + col) - 1];
        }
        if (expected.back() != Words::value_type())
            expected.emplace_back();
        ASSERT_EQ(words(), expected);
        expectUndone(before, to);
    }
}

TEST_F(RandomChanges, BySortingMoveWholeRowsAndAreUndone)
{
    for (int round = 0; round < 200; ++round) {
        const Words before = fresh();
        const GridSelection selection = document.selection();
        for (int row = 1; row < grid.Rows(); ++row)
            grid.setRowHeight(row, 300 + 15 * int(grid.TextMatrix(row, 1).size()));
        modSorting::sortBy((1 << number(2)) | (4 << number(2)) | (16 << number(2)), document, undo, QLocale("en"));
        Words sorted = words(), rows = before;
        for (int row = 1; row < grid.Rows(); ++row)
            ASSERT_EQ(grid.RowHeight(row), 300 + 15 * int(sorted[size_t(row) - 1][0].size()));
        std::sort(sorted.begin(), sorted.end());
        std::sort(rows.begin(), rows.end());
        ASSERT_EQ(sorted, rows);
        expectUndone(before, selection);
    }
    setWords({{"short", ""}, {QStringLiteral("words ").repeated(40), ""}});
    grid.setRowHeight(2, 3000);
    modSorting::sortBy(SortFlag::Vocabulary | SortFlag::Descending, document, undo, QLocale("en"));
    EXPECT_EQ(grid.RowHeight(1), 3000);
    commands.Undo(document);
    EXPECT_GE(grid.RowHeight(2), grid.fittingRowHeight(2));
}

} // namespace
