#include "document/rules/GridRules.h"
#include "document/rules/QuizModeText.h"

using namespace GridRules;

TEST(GridRules, EnterVisitsEveryCellAndShiftEnterGoesBack)
{
    constexpr int Rows = 4;
    Cell cell{1, 1};
    for (const Cell &next : {Cell{1, 2}, Cell{2, 1}, Cell{2, 2}, Cell{3, 1}, Cell{3, 2}, Cell{1, 1, true}}) {
        const Cell before = std::exchange(cell, afterEnter(cell.row, cell.col, Rows));
        EXPECT_EQ(cell, next);
        EXPECT_EQ(afterShiftEnter(next.row, next.col, Rows), (Cell{before.row, before.col, next.wrapped}));
    }
    for (const auto step : {afterEnter, afterShiftEnter})
        EXPECT_EQ(step(3, 0, Rows), (Cell{3, 0})) << "a number";
}

TEST(GridRules, RowsGrowForLongTextsAndNeverShrink)
{
    // the text's width and height, the column's width, the row's height before and after
    const int cases[][5] = {
        {4000, 240, 4000, 285, 285},                              // fits on a line
        {4001, 240, 4000, 285, 480},                              // rounded
        {6000, 240, 4000, 479, 720}, {6000, 240, 4000, 480, 480}, // the row already holds two lines
        {6000, 240, 0, 285, 285},                                 // nothing is shown
    };
    for (const auto &[width, height, column, before, after] : cases)
        EXPECT_EQ(grownRowHeight(width, height, column, before), after) << width;
    EXPECT_EQ((std::pair{defaultRowHeight(255), defaultRowHeight(256)}), (std::pair{285, 286}));
}

TEST(GridRules, ASelectionIsCalledByItsCorners)
{
    EXPECT_EQ(cellReference({3, 2, 3, 2}) + cellReference({2, 2, 2, 1}) + cellReference({12, 1, 3, 1}),
              " B3 A2:B2 A3:A12");
}

TEST(GridRules, PastedTextGrowsFromASingleCellAndAtTheEndOnly)
{
    // the selection, the rows and columns of the text, the cells that it takes, and what is told
    const std::tuple<GridSelection, int, int, GridSelection, const char *> cases[] = {
        {{2, 1, 2, 1}, 3, 2, {2, 1, 4, 2}, ""},
        {{2, 2, 2, 2}, 300, 2, {2, 2, 301, 2}, "1 of 2 columns pasted"},
        {{4, 2, 2, 1}, 300, 2, {2, 1, 4, 2}, "3 of 300 rows pasted"},
        {{4, 2, 2, 2}, 4, 3, {2, 2, 4, 2}, "3 of 4 rows pasted, 1 of 3 columns pasted"},
        {{2, 1, 9, 2}, 3, 1, {2, 1, 4, 1}, ""},
        {{10, 1, 1, 1}, 300, 2, {1, 1, 300, 2}, ""}, // the last row
        {{2, 1, 2, 1}, 6000000, 1, {2, 1, 4999999, 1}, "4999998 of 6000000 rows pasted"},
    };
    for (const auto &[selection, textRows, textColumns, pasted, told] : cases) {
        EXPECT_EQ(pastedCells(selection, textRows, textColumns, 11), pasted);
        EXPECT_EQ(pastedPart(pasted, textRows, textColumns), told);
    }
}

TEST(QuizModeText, TellsDirectionAndOrder)
{
    const char *const texts[] = {
        "", "A -> B In Order", "B -> A In Order", "A -> B Randomly", "B -> A Randomly", "A <-> B Randomly", ""};
    for (int mode = 0; mode < 7; ++mode)
        EXPECT_EQ(quizModeText(mode, "A", "B"), texts[mode]);
}
