#include "widgets/grid/FlexGrid.h"

#include "services/rules/CellText.h"

namespace {

/// Three columns whose rows are given as their cells, separated by tabs and beginning with column 0.
void fill(FlexGrid &grid, const QStringList &rows)
{
    grid.setCols(3);
    grid.setRows(1 + int(rows.size()));
    for (int row = 0; row < rows.size(); ++row) {
        const QStringList cells = rows.at(row).split(u'\t');
        for (int col = 0; col < cells.size(); ++col)
            grid.setTextMatrix(row + 1, col, cells.at(col));
    }
}

QString column(const FlexGrid &grid, int col)
{
    QStringList texts;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
        texts << grid.TextMatrix(row, col);
    return texts.join(u',');
}

QString everyCell(const FlexGrid &grid)
{
    return column(grid, 1) + u'|' + column(grid, 2);
}

} // namespace

TEST(FlexGridTextTest, TabsAndLineBreaksBecomeOneBlank)
{
    for (const QString text : {"a\r\nb", "a\rb", "a\nb", "a\u2028b", "a\u2029b", "a\tb"}) {
        FlexGrid grid;
        fill(grid, {QString()});
        grid.setTextMatrix(1, 1, text);
        grid.Select(1, 2, 1, 2);
        grid.setText(text);
        EXPECT_EQ(everyCell(grid), "a b|a b");
    }
    EXPECT_EQ(CellText::cleaned("\r\r\n\n"), "   ");
}

TEST(FlexGridClipTest, FillsTheSelectionAndNothingElse)
{
    const std::tuple<const char *, GridSelection, const char *> cases[] = {
        {"A\tB\r\nC\tD\r\n", {1, 1, 2, 2}, "A,C,e|B,D,f"},
        {"A\tB\nC\tD\n", {2, 2, 1, 1}, "A,C,e|B,D,f"},
        {"A\tB\tX\rC\rY", {1, 1, 2, 2}, "A,C,e|B,d,f"},
        {"A\r\rE", {1, 1, 3, 1}, "A,,E|b,d,f"},
        {"\t\r\t\r", {2, 1, 3, 2}, "a,,|b,,"},
        {"", {1, 1, 1, 1}, ",c,e|b,d,f"},
        {"A", {1, 1, 3, 2}, "A,c,e|b,d,f"},
    };
    for (const auto &[clip, selection, cells] : cases) {
        FlexGrid grid;
        fill(grid, {"\ta\tb", "\tc\td", "\te\tf"});
        grid.Select(selection.Row, selection.Col, selection.RowSel, selection.ColSel);
        grid.setClip(clip);
        EXPECT_EQ(everyCell(grid), cells) << clip;
    }
}

TEST(FlexGridRows, ComeAndGoWithTheirHeightsAndAreNumbered)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb", "\tc"});
    grid.setRowNumbers(true);
    grid.setTextMatrix(2, 0, "ignored");
    grid.setRowHeight(2, 600);
    grid.AddItem("99\tx\ty", 2);
    grid.AddItem("\tlast");
    EXPECT_EQ(column(grid, 0), "1,2,3,4,5");
    EXPECT_EQ(everyCell(grid), "a,x,b,c,last|,y,,,");
    EXPECT_EQ(grid.RowHeight(2) + grid.RowHeight(3), 285 + 600);
    EXPECT_TRUE(grid.RemoveItem(2) && grid.insertRows(1, 2) && grid.removeRows(2, 2));
    EXPECT_EQ(column(grid, 1), ",b,c,last");
    EXPECT_EQ(grid.RowHeight(2), 600);
    grid.Select(1, 0, 2, 1);
    EXPECT_EQ(grid.Clip(), "1\t\r2\tb");
}

TEST(FlexGridRows, RefuseWhatTheGridCannotDo)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb"});
    EXPECT_FALSE(grid.RemoveItem(0) || grid.RemoveItem(3));
    EXPECT_FALSE(grid.removeRows(1, 2)) << "one row below the header stays";
    EXPECT_FALSE(grid.insertRows(0, 1) || grid.insertRows(9, 1));
    grid.setTextMatrix(7, 1, "x");
    grid.setTextMatrix(-1, 1, "x");
    EXPECT_EQ(grid.TextMatrix(7, 1) + grid.TextMatrix(1, 7) + grid.TextMatrix(-1, -1), QString());
    EXPECT_EQ(column(grid, 1), "a,b");
    grid.setRows(0);
    EXPECT_EQ(grid.Row(), -1) << "no row, no current cell";
    grid.setRows(5);
    EXPECT_EQ(grid.Row(), 1);
}

TEST(FlexGridRows, TakeWholeLists)
{
    FlexGrid grid;
    fill(grid, {"\told"});
    QSignalSpy selections(&grid, &FlexGrid::SelChange);
    grid.setWords({"L1", "a\nb", ""}, {"L2", "c"}, {285, 1234});
    EXPECT_EQ(everyCell(grid), "a b,|c,");
    EXPECT_EQ(grid.word(0, 2), "L2");
    EXPECT_EQ(grid.RowHeight(1), 1234);
    EXPECT_EQ(grid.RowHeight(2), 285);
    EXPECT_EQ(selections.count(), 0);
}

TEST(FlexGridSizesTest, AreKeptToTheTwip)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb"});
    grid.setRowHeight(1, 287);
    grid.setColWidth(1, 4001);
    EXPECT_EQ(grid.RowHeight(1), 287);
    EXPECT_EQ(grid.ColWidth(1), 4001);
    grid.setRowHeight(-1, 301);
    EXPECT_EQ(grid.RowHeight(0) + grid.RowHeight(2), 602);
    grid.setRowHeight(1, -1);
    EXPECT_EQ(grid.RowHeight(1), 285);
}

TEST(FlexGridSortTest, OrdersTheSelectedRowsByEveryKind)
{
    const std::pair<int, const char *> cases[] = {
        {FlexGrid::SortGenericAscending, "x,-1.5,9,10,a,A,ä,b,B,"},
        {FlexGrid::SortGenericDescending, "x,B,b,ä,A,a,10,9,-1.5,"},
        {FlexGrid::SortNumericAscending, "x,-1.5,b,A,B,a,ä,9,10,"},
        {FlexGrid::SortStringNoCaseAscending, "x,-1.5,10,9,A,a,ä,b,B,"},
        {FlexGrid::SortStringDescending, "x,B,b,ä,A,a,9,10,-1.5,"},
        {FlexGrid::SortCustom, "x,,b,A,9,B,a,ä,10,-1.5"}, // by length, as the container says
    };
    for (const auto &[kind, sorted] : cases) {
        FlexGrid grid;
        grid.setLocale(QLocale(QLocale::English));
        fill(grid, {"\tx", "\tb", "\t10", "\t", "\tA", "\t9", "\tB", "\ta", "\t-1.5", "\tä"});
        QObject::connect(&grid, &FlexGrid::Compare, &grid, [&](int row1, int row2, int &cmp) {
            cmp = int(grid.word(row1, 1).size() - grid.word(row2, 1).size());
        });
        grid.Select(10, 1, 2, 1);
        grid.setSort(kind);
        EXPECT_EQ(column(grid, 1), sorted) << kind;
    }
}

TEST(FlexGridCellsTest, FormatsFollowTheirCells)
{
    FlexGrid grid;
    grid.setFormatString("|^Word|Meaning;|first|second|third");
    EXPECT_EQ(column(grid, 0), "first,second,third");
    EXPECT_EQ(grid.ColAlignment(1), 4);
    grid.Select(1, 1, 2, 1);
    grid.setFillStyle(1);
    grid.setCellForeColor(0x00FF00);
    grid.insertRows(2, 1);
    grid.setColPosition(1, 2);
    grid.setRowPosition(3, 1);
    grid.removeRows(4, 1);
    EXPECT_EQ(column(grid, 0), "second,first,");
    EXPECT_EQ(grid.TextMatrix(0, 2), "Word");
    for (int row = 1; row <= 3; ++row) {
        grid.Select(row, 2, row, 2);
        EXPECT_EQ(grid.CellForeColor(), row < 3 ? 0x00FF00 : 0);
    }
}

TEST(FlexGridProperties, AreToldStoredByNameAndReadBack)
{
    FlexGrid grid;
    QSignalSpy changes(&grid, &FlexGrid::PropertyChanged);
    const QMetaObject &type = FlexGrid::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        const QVariant before = property.read(&grid);
        changes.clear();
        for (const QVariant &value : {QVariant(2), QVariant(0), QVariant(QFont("Courier")), QVariant(QPixmap(2, 2))}) {
            if (changes.isEmpty() || property.read(&grid) == before)
                property.write(&grid, value);
        }
        EXPECT_NE(property.read(&grid), before) << property.name();
        EXPECT_EQ(changes.value(0).value(0).toString(), property.name());
    }
    QVariantMap stored = grid.saveProperties();
    stored.remove("MouseIcon"); // pictures are never equal
    FlexGrid other;
    other.loadProperties(stored);
    QVariantMap read = other.saveProperties();
    read.remove("MouseIcon");
    EXPECT_EQ(read, stored);
    other.loadProperties({{"Cols", 3}});
    EXPECT_EQ(other.FixedRows() * 10 + other.Cols(), 13) << "what is not stored is as in a new grid";
}

TEST(FlexGridOperations, DoWhatTheySayAlsoWhereNobodyUsesThem)
{
    FlexGrid grid;
    fill(grid, {"\ta\tb", "\tc\td", "\te\tf"});
    grid.setTextArray(4, "A");
    grid.setRowSel(2);
    grid.setColSel(2);
    EXPECT_EQ(grid.Clip() + grid.TextArray(11), "A\tb\rc\tdf");
    grid.setColData(1, 7);
    grid.setColAlignment(1, 1);
    EXPECT_EQ(grid.FixedAlignment(1), 1) << "as the column";
    grid.setFixedAlignment(1, 4);
    grid.setMergeCol(1, true);
    grid.setMergeRow(2, true);
    EXPECT_EQ(grid.ColData(1) * 10 + grid.FixedAlignment(1), 74);
    EXPECT_TRUE(grid.MergeCol(1) && !grid.MergeCol(2) && grid.MergeRow(2) && !grid.MergeRow(1));
    grid.setRowHeightMin(450);
    EXPECT_EQ(grid.RowHeight(1), 450);
    grid.setFillStyle(1);
    grid.setCellAlignment(7);
    grid.setCellBackColor(0xFF);
    grid.setCellTextStyle(2);
    grid.setCellPicture(QPixmap(3, 3));
    grid.setCellPictureAlignment(5);
    for (const int row : {2, 3}) {
        const bool formatted = row == 2;
        grid.Select(row, 1, row, 1);
        EXPECT_EQ(grid.CellAlignment(), formatted ? 7 : 1);
        EXPECT_EQ(grid.CellBackColor(), formatted ? 0xFF : 0);
        EXPECT_EQ(grid.CellTextStyle() * 10 + grid.CellPictureAlignment(), formatted ? 25 : 0);
        EXPECT_EQ(grid.CellPicture().isNull(), !formatted);
    }
    QStandardItemModel model(0, 2);
    grid.setDataSource(&model);
    model.setHorizontalHeaderLabels({"L1", "L2"});
    model.appendRow({new QStandardItem("x"), new QStandardItem("y")});
    EXPECT_EQ(grid.TextMatrix(0, 2) + everyCell(grid), "L2x|y");
}
