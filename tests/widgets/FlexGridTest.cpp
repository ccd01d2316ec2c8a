#include "widgets/grid/FlexGrid.h"

#include "services/desktop/Contrast.h"
#include "widgets/grid/FlexGridColours.h"
#include "widgets/grid/FlexGridView.h"

/// The cells below the header.
static QString column(const FlexGrid &grid, int col)
{
    QStringList texts;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        texts << grid.TextMatrix(row, col);
    return texts.join(u',');
}

TEST(FlexGridOperations, DoWhatTheySayAlsoWhereNobodyUsesThem)
{
    FlexGrid grid;
    grid.setFormatString("<|^Word|>Meaning|Plain;|first|second|third");
    EXPECT_EQ(column(grid, 0) + grid.TextMatrix(0, 1) + grid.TextMatrix(0, 2) + grid.TextMatrix(0, 3),
              "first,second,thirdWordMeaningPlain");
    EXPECT_NEAR(grid.ColWidth(1) / 15, QFontMetricsF(grid.Font()).horizontalAdvance("Word") + 7, 1);
    EXPECT_EQ(QList({grid.ColAlignment(0), grid.ColAlignment(1), grid.FixedAlignment(2), grid.ColAlignment(3)}),
              QList({1, 4, 7, 9}))
        << "as the column";
    grid.setFixedAlignment(1, 1);
    grid.setMergeCol(1, true);
    EXPECT_TRUE(grid.FixedAlignment(1) == 1 && grid.FixedAlignment(3) == 9 && grid.MergeCol(1) && !grid.MergeCol(2));
    grid.setRowHeight(1, 287);
    grid.setColWidth(1, 4001);
    EXPECT_EQ(std::pair(grid.RowHeight(1), grid.ColWidth(1)), std::pair(287, 4001)) << "to the twip";
    for (const int least : {450, -5}) {
        grid.setRowHeightMin(least);
        EXPECT_EQ(QPair(grid.RowHeight(1), grid.RowHeightMin()), least > 0 ? QPair(450, 450) : QPair(287, 0));
    }
    EXPECT_EQ(QList({grid.insertRows(1, 0), grid.insertRows(0, 1), grid.insertRows(5, 1), grid.removeRows(1, 0),
                     grid.removeRows(0, 1), grid.insertRows(4, 1), grid.RemoveItem(4), grid.RemoveItem(4)}),
              QList({false, false, false, false, false, true, true, false}));
    grid.Select(1, 1, 2, 1);
    grid.setFillStyle(1);
    grid.setTextStyleFixed(1);
    grid.setCellAlignment(0);
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
    EXPECT_EQ(formats.join(' '), "0 255 2 5 3 4 0 0 0 0 1 0 1 0 0") << "a formatted cell, another and a fixed one";
    for (const char *name :
         {"Appearance", "AllowUserResizing", "BorderStyle", "FillStyle", "FocusRect", "GridLines", "GridLinesFixed",
          "GridLineWidth", "HighLight", "PictureType", "ScrollBars", "SelectionMode", "TextStyle", "TextStyleFixed"}) {
        for (const int value : {-9, 99}) {
            grid.setProperty(name, value);
            limits += grid.property(name).toString();
        }
    }
    EXPECT_EQ(limits.join(' ').toStdString(), "0 1 0 3 0 1 0 1 0 2 0 3 0 3 1 10 0 2 0 1 0 3 0 2 0 4 0 4");
    for (const int style : {0, 1, 2, 3}) {
        grid.setBorderStyle(style / 2), grid.setAppearance(0), grid.setAppearance(style % 2);
        EXPECT_EQ(grid.hwndGrid()->frameStyle(),
                  QList({0, 0, QFrame::Box | QFrame::Plain, QFrame::StyledPanel | QFrame::Sunken})[style]);
    }
    grid.loadProperties({{"Cols", 0}, {"FixedCols", 0}, {"Rows", 0}, {"FixedRows", 0}});
    EXPECT_EQ(grid.Cols() + grid.Rows() + grid.FixedCols() + grid.FixedRows(), 0);
    grid.loadProperties({{"Cols", 3}});
    EXPECT_EQ(QPair(grid.FixedRows(), grid.Cols()), QPair(1, 3)) << "what is not stored is as in a new grid";
    QStandardItemModel model(0, 2);
    model.appendRow({new QStandardItem("x"), new QStandardItem("y")});
    grid.setDataSource(&model);
    EXPECT_EQ(column(grid, 1), "x");
    model.setHorizontalHeaderLabels({"L1", "L2"});
    model.appendRow(new QStandardItem("z"));
    grid.AddItem("3\tu\tv\tbeyond", 2);
    grid.AddItem("4");
    grid.setTextArray(7, grid.TextArray(5) + 'Y' + grid.TextArray(-1));
    EXPECT_EQ(column(grid, 0) + grid.TextMatrix(0, 2) + column(grid, 1) + column(grid, 2), ",3,,4L2x,yY,z,y,v,,");
}

TEST(FlexGridZoom, LeadsThroughTheUsualSizes)
{
    const std::tuple<int, int, int> cases[] = {
        {100, 1, 110}, {100, -1, 90}, {110, -1, 100}, {123, 1, 125}, {123, -1, 110}, {100, 3, 150},  {350, 9, 400},
        {400, 1, 400}, {60, -1, 50},  {50, -1, 50},   {30, -1, 50},  {900, 1, 400},  {900, -1, 400}, {77, 0, 77}};
    for (const auto &[from, steps, to] : cases)
        EXPECT_EQ(FlexGridZoom::stepped(from, steps), to) << from << " by " << steps;
}

TEST(FlexGridColoursTest, TextsStayReadableOnEveryPalette)
{
    for (const auto &[text, base] :
         {std::pair(QColor(230, 230, 230), QColor(30, 30, 30)), {QColor(10, 10, 10), QColor(Qt::white)}}) {
        const QPalette palette(text, Qt::gray, {}, {}, {}, text, base);
        for (const unsigned value : {0x80000005U, 0x80000008U, 0x8000000FU, 0x800000FFU})
            EXPECT_EQ(FlexGridColours::text(int(value), palette, base), text) << value;
        for (const int value : {0, 0x800000, 0x808080, 0x101010, 0x0000FF}) {
            const QColor shown = FlexGridColours::text(value, palette, base);
            EXPECT_TRUE(base == Qt::white ? shown == QColor(value & 0xFF, value >> 8 & 0xFF, value >> 16)
                                          : Contrast::between(shown, base) >= 4.5)
                << value;
        }
        EXPECT_EQ(FlexGridColours::ground(int(0x8000000D), palette), palette.highlight().color());
    }
}
