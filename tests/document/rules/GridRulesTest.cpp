#include "document/rules/GridRules.h"
#include "document/rules/QuizModeText.h"

using namespace GridRules;

TEST(GridRules, EnterVisitsEveryCellAndWrapsToTheTop)
{
    constexpr int Rows = 4;
    const std::vector<Cell> expected{{1, 2}, {2, 1}, {2, 2}, {3, 1}, {3, 2}, {1, 1, true}};
    Cell cell{1, 1};
    for (const Cell &next : expected) {
        cell = afterEnter(cell.row, cell.col, Rows);
        EXPECT_EQ(cell, next);
    }
    EXPECT_EQ(afterEnter(2, 0, Rows), (Cell{2, 0}));
}

TEST(GridRules, ShiftEnterUndoesEnterEverywhere)
{
    constexpr int Rows = 5;
    for (int row = 1; row < Rows; ++row) {
        for (int col = 1; col <= 2; ++col) {
            const Cell next = afterEnter(row, col, Rows);
            const Cell back = afterShiftEnter(next.row, next.col, Rows);
            EXPECT_EQ(std::pair(back.row, back.col), std::pair(row, col));
        }
    }
    EXPECT_EQ(afterShiftEnter(1, 1, Rows), (Cell{4, 2, true}));
}

TEST(GridRules, RowsGrowForLongTextsAndNeverShrink)
{
    struct Case
    {
        int textWidth, textHeight, colWidth, rowHeight, expected;
    };
    for (const Case &c : std::initializer_list<Case>{
             {3000, 240, 4000, 285, 285}, // fits on a line
             {4001, 240, 4000, 285, 480}, // rounded
             {6000, 240, 4000, 285, 720},
             {6000, 240, 4000, 480, 480}, // the row already holds two lines
             {6000, 240, 4000, 900, 900},
             {6000, 240, 0, 285, 285}, // a hidden column has no lines
         })
        EXPECT_EQ(grownRowHeight(c.textWidth, c.textHeight, c.colWidth, c.rowHeight), c.expected) << c.textWidth;
}

TEST(GridRules, NamesCellsAndFiles)
{
    EXPECT_EQ(cellReference({4, 2, 4, 2}), QStringLiteral(" B4"));
    EXPECT_EQ(cellReference({3, 2, 2, 1}), QStringLiteral(" A2:B3"));
    EXPECT_EQ(cellReference({5, 1, 7, 1}), QStringLiteral(" A5:A7"));
    EXPECT_EQ(fileTitle(QStringLiteral("/home/a.b/Verbs of motion.gla")), QStringLiteral("Verbs of motion"));
    EXPECT_EQ(fileTitle(QStringLiteral("/x/a")), QString());
}

TEST(QuizModeText, TellsDirectionAndOrder)
{
    const QString e = QStringLiteral("English"), g = QStringLiteral("German");
    EXPECT_EQ(quizModeText(1, e, g), QStringLiteral("English -> German In Order"));
    EXPECT_EQ(quizModeText(2, e, g), QStringLiteral("German -> English In Order"));
    EXPECT_EQ(quizModeText(3, e, g), QStringLiteral("English -> German Randomly"));
    EXPECT_EQ(quizModeText(4, e, g), QStringLiteral("German -> English Randomly"));
    EXPECT_EQ(quizModeText(5, e, g), QStringLiteral("English <-> German Randomly"));
    EXPECT_EQ(quizModeText(0, e, g), QString());
    EXPECT_EQ(quizModeText(6, e, g), QString());
}
