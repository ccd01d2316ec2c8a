#include "widgets/grid/FlexGrid.h"

/// The cells below the header.
static QString column(const FlexGrid &grid, int col)
{
    QStringList texts;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        texts << grid.TextMatrix(row, col);
    return texts.join(u',');
}

TEST(FlexGridRows, TakeWholeListsWithOneBlankForEachTabAndLineBreak)
{
    FlexGrid grid;
    grid.setTextMatrix(1, 1, "old");
    QSignalSpy selections(&grid, &FlexGrid::SelChange);
    grid.setWords({"L1", "a\r\nb\rc\nd\u2028e\u2029f\tg\r\r\n\n", ""}, {"L2", "c"}, {285, 1234, -1});
    EXPECT_EQ(column(grid, 1) + '|' + column(grid, 2) + grid.word(0, 2), "a b c d e f g   ,|c,L2");
    EXPECT_EQ(QPair(grid.RowHeight(1), grid.RowHeight(2)), QPair(1234, 285));
    EXPECT_TRUE(selections.isEmpty());
}

TEST(FlexGridSortTest, OrdersTheSelectedRowsByEveryKind)
{
    const std::pair<int, const char *> cases[] = {{FlexGrid::SortGenericAscending, "x,-1.5,9,10,a,A,ä,b,B,"},
                                                  {FlexGrid::SortGenericDescending, "x,B,b,ä,A,a,10,9,-1.5,"},
                                                  {FlexGrid::SortNumericAscending, "x,-1.5,b,A,B,a,ä,9,10,"},
                                                  {FlexGrid::SortStringNoCaseAscending, "x,-1.5,10,9,A,a,ä,b,B,"},
                                                  {FlexGrid::SortStringDescending, "x,B,b,ä,A,a,9,10,-1.5,"}};
    for (const auto &[kind, sorted] : cases) {
        FlexGrid grid;
        grid.setLocale(QLocale(QLocale::English));
        grid.setWords({"", "x", "b", "10", "", "A", "9", "B", "a", "-1.5", "ä"}, {}, {});
        grid.Select(10, 1, 2, 1);
        grid.setSort(kind);
        EXPECT_EQ(column(grid, 1), sorted) << kind;
    }
}

TEST(FlexGridOperations, DoWhatTheySayAlsoWhereNobodyUsesThem)
{
    FlexGrid grid;
    grid.setFormatString("<|^Word|>Meaning;|first|second|third");
    EXPECT_EQ(column(grid, 0) + grid.TextMatrix(0, 1) + grid.TextMatrix(0, 2), "first,second,thirdWordMeaning");
    EXPECT_NEAR(grid.ColWidth(1) / 15, QFontMetricsF(grid.Font()).horizontalAdvance("Word") + 7, 1);
    EXPECT_EQ(grid.ColAlignment(0) * 100 + grid.ColAlignment(1) * 10 + grid.FixedAlignment(2), 147) << "as the column";
    grid.setFixedAlignment(1, 1);
    grid.setMergeCol(1, true);
    EXPECT_TRUE(grid.FixedAlignment(1) == 1 && grid.FixedAlignment(3) == 9 && grid.MergeCol(1) && !grid.MergeCol(2));
    grid.setRowHeight(1, 287);
    grid.setColWidth(1, 4001);
    EXPECT_EQ(std::pair(grid.RowHeight(1), grid.ColWidth(1)), std::pair(287, 4001)) << "to the twip";
    grid.setRowHeightMin(450);
    EXPECT_EQ(grid.RowHeight(1), 450);
    grid.Select(1, 1, 2, 1);
    grid.setFillStyle(1);
    grid.setCellAlignment(7);
    grid.setCellBackColor(0xFF);
    grid.setCellTextStyle(2);
    grid.setCellPicture(QPixmap(3, 3));
    grid.setCellPictureAlignment(5);
    QStringList formats, limits;
    for (const int row : {2, 3, 0}) {
        grid.Select(row, 1, row, 1);
        for (const int value : {grid.CellAlignment(), grid.CellBackColor(), grid.CellTextStyle(),
                                grid.CellPictureAlignment(), grid.CellPicture().width()})
            formats += QString::number(value);
    }
    EXPECT_EQ(formats.join(' '), "7 255 2 5 3 4 0 0 0 0 1 0 0 0 0") << "a formatted cell, another and a fixed one";
    for (const char *name :
         {"Appearance", "AllowUserResizing", "BorderStyle", "FillStyle", "FocusRect", "GridLines", "GridLinesFixed",
          "GridLineWidth", "HighLight", "PictureType", "ScrollBars", "SelectionMode", "TextStyle", "TextStyleFixed"}) {
        for (const int value : {-9, 99}) {
            grid.setProperty(name, value);
            limits += grid.property(name).toString();
        }
    }
    EXPECT_EQ(limits.join(' ').toStdString(), "0 1 0 3 0 1 0 1 0 2 0 3 0 3 1 10 0 2 0 1 0 3 0 2 0 4 0 4");
    grid.loadProperties({{"Cols", 3}});
    EXPECT_EQ(QPair(grid.FixedRows(), grid.Cols()), QPair(1, 3)) << "what is not stored is as in a new grid";
    QStandardItemModel model(0, 2);
    grid.setDataSource(&model);
    model.setHorizontalHeaderLabels({"L1", "L2"});
    model.appendRow({new QStandardItem("x"), new QStandardItem("y")});
    model.appendRow(new QStandardItem("z"));
    grid.AddItem("3\tu\tv\tbeyond", 2);
    grid.AddItem("4");
    grid.setTextArray(7, grid.TextArray(5) + 'Y' + grid.TextArray(-1));
    EXPECT_EQ(column(grid, 0) + grid.TextMatrix(0, 2) + column(grid, 1) + column(grid, 2), ",3,,4L2x,yY,z,y,v,,");
}

TEST(FlexGridZoom, LeadsThroughTheUsualSizesAndChangesNothingThatIsKept)
{
    const std::tuple<int, int, int> cases[] = {
        {100, 1, 110}, {100, -1, 90}, {110, -1, 100}, {123, 1, 125}, {123, -1, 110}, {100, 3, 150},  {350, 9, 400},
        {400, 1, 400}, {60, -1, 50},  {50, -1, 50},   {30, -1, 50},  {900, 1, 400},  {900, -1, 400}, {77, 0, 77}};
    for (const auto &[from, steps, to] : cases)
        EXPECT_EQ(FlexGridZoom::stepped(from, steps), to) << from << " by " << steps;
    FlexGrid grid;
    QSignalSpy written(&grid, &FlexGrid::PropertyChanged);
    for (const auto &[wanted, percent] : {std::pair(9, 50), {100, 100}, {150, 150}, {999, 400}}) {
        grid.setZoom(wanted);
        EXPECT_EQ(grid.Zoom(), percent);
        EXPECT_NEAR(grid.shownFont().pointSizeF(), grid.Font().pointSizeF() * percent / 100, 0.01);
        EXPECT_TRUE(grid.RowHeight(1) == 285 && grid.ColWidth(1) == 960 && written.isEmpty());
    }
}
