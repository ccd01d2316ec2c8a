#include "widgets/FlexGrid.h"

TEST(FlexGridClip, ReadsAndFillsTheSelection)
{
    FlexGrid grid;
    grid.setCols(3);
    grid.setRows(4);
    grid.Select(1, 1, 2, 2);
    grid.setClip(QStringLiteral("a\tb\r\nc\td\r\n"));
    EXPECT_EQ(grid.Clip(), QStringLiteral("a\tb\rc\td"));
}
