#include "widgets/FlexGrid.h"

#include "widgets/FlexGridText.h"

#include <QSignalSpy>
#include <QStandardItemModel>

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

TEST(FlexGridTextTest, LineBreaksBecomeOneBlank)
{
    for (const QString &text : {QStringLiteral("a\r\nb"), QStringLiteral("a\rb"), QStringLiteral("a\nb"),
                                QStringLiteral("a\u2028b"), QStringLiteral("a\u2029b")}) {
        FlexGrid grid;
        fill(grid, {QString()});
        grid.setTextMatrix(1, 1, text);
        grid.AddItem(u'\t' + text);
        grid.Select(1, 2, 1, 2);
        grid.setText(text);
        EXPECT_EQ(everyCell(grid), QStringLiteral("a b,a b|a b,"));
    }
    EXPECT_EQ(FlexGridText::withoutLineBreaks(QStringLiteral("\r\r\n\n")), QStringLiteral("   "));
}

TEST(FlexGridClipTest, FillsTheSelectionAndNothingElse)
{
    struct Case
    {
        const char *clip;
        FlexGridSelection selection;
        const char *cells;
    };
    const Case cases[] = {
        {"A\tB\rC\tD", {1, 1, 2, 2}, "A,C,e|B,D,f"},
        {"A\tB\r\nC\tD\r\n", {1, 1, 2, 2}, "A,C,e|B,D,f"},
        {"A\tB\nC\tD\n", {2, 2, 1, 1}, "A,C,e|B,D,f"},
        {"A\tB\tX\rC\rY", {1, 1, 2, 2}, "A,C,e|B,d,f"},
        {"A\r", {1, 1, 2, 1}, "A,c,e|b,d,f"},
        {"A\r\rE", {1, 1, 3, 1}, "A,,E|b,d,f"},
        {"\t\r\t\r", {2, 1, 3, 2}, "a,,|b,,"},
        {"\r\r\r", {1, 2, 3, 2}, "a,c,e|,,"},
        {"", {1, 1, 1, 1}, ",c,e|b,d,f"},
        {"A", {1, 1, 3, 2}, "A,c,e|b,d,f"},
    };
    for (const Case &c : cases) {
        FlexGrid grid;
        fill(grid, {"\ta\tb", "\tc\td", "\te\tf"});
        grid.Select(c.selection.row, c.selection.col, c.selection.rowSel, c.selection.colSel);
        grid.setClip(QString::fromLatin1(c.clip));
        EXPECT_EQ(everyCell(grid), QString::fromLatin1(c.cells)) << c.clip;
    }
}

TEST(FlexGridRows, ComeAndGo)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb", "\tc"});
    grid.setRowHeight(2, 600);
    grid.AddItem(QStringLiteral("\tx\ty"), 2);
    grid.AddItem(QStringLiteral("\tlast"));
    EXPECT_EQ(column(grid, 1), QStringLiteral("a,x,b,c,last"));
    EXPECT_EQ(grid.TextMatrix(2, 2), QStringLiteral("y"));
    EXPECT_EQ(grid.RowHeight(2), 285);
    EXPECT_EQ(grid.RowHeight(3), 600);
    EXPECT_TRUE(grid.RemoveItem(2));
    EXPECT_EQ(grid.RowHeight(2), 600);
    EXPECT_TRUE(grid.insertRows(1, 2));
    EXPECT_TRUE(grid.removeRows(2, 3));
    EXPECT_EQ(column(grid, 1), QStringLiteral(",c,last"));
}

TEST(FlexGridRows, RefuseWhatTheGridCannotDo)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb"});
    EXPECT_FALSE(grid.RemoveItem(0));
    EXPECT_FALSE(grid.RemoveItem(3));
    EXPECT_FALSE(grid.removeRows(1, 2)) << "one row below the header stays";
    EXPECT_FALSE(grid.insertRows(0, 1));
    EXPECT_FALSE(grid.insertRows(9, 1));
    grid.setTextMatrix(7, 1, QStringLiteral("x"));
    grid.setTextMatrix(-1, 1, QStringLiteral("x"));
    EXPECT_EQ(grid.TextMatrix(7, 1) + grid.TextMatrix(1, 7) + grid.TextMatrix(-1, -1), QString());
    EXPECT_EQ(column(grid, 1), QStringLiteral("a,b"));
    grid.setRows(0);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), -1) << "no row, no current cell";
    grid.setRows(5);
    EXPECT_EQ(grid.Row(), 1);
}

TEST(FlexGridRows, NumberThemselves)
{
    FlexGrid grid;
    fill(grid, {"x\ta", "y\tb", "z\tc"});
    grid.setRowNumbers(true);
    grid.setTextMatrix(2, 0, QStringLiteral("ignored"));
    grid.setTextMatrix(0, 0, QStringLiteral("No"));
    grid.removeRows(1, 1);
    grid.AddItem(QStringLiteral("99\tnew"));
    EXPECT_EQ(column(grid, 0), QStringLiteral("1,2,3"));
    EXPECT_EQ(grid.TextMatrix(0, 0), QStringLiteral("No"));
    grid.Select(1, 0, 1, 1);
    EXPECT_EQ(grid.Clip(), QStringLiteral("1\tb"));
}

TEST(FlexGridRows, TakeWholeLists)
{
    FlexGrid grid;
    fill(grid, {"\told"});
    QSignalSpy selections(&grid, &FlexGrid::SelChange);
    grid.setWords({"L1", "a\nb", ""}, {"L2", "c"}, {285, 1234});
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(everyCell(grid), QStringLiteral("a b,|c,"));
    EXPECT_EQ(grid.word(0, 2), QStringLiteral("L2"));
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
    grid.setRowHeightMin(400);
    EXPECT_EQ(grid.RowHeight(1), 400);
}

TEST(FlexGridSortTest, OrdersByEveryKind)
{
    const QStringList words{"\tb", "\t10", "\t", "\tA", "\t9", "\tB", "\ta", "\t-1.5", "\tä"};
    const std::pair<int, const char *> cases[] = {
        {FlexGrid::SortGenericAscending, "-1.5,9,10,a,A,ä,b,B,"},
        {FlexGrid::SortGenericDescending, "B,b,ä,A,a,10,9,-1.5,"},
        {FlexGrid::SortNumericAscending, "-1.5,b,A,B,a,ä,9,10,"},
        {FlexGrid::SortNumericDescending, "10,9,b,A,B,a,ä,-1.5,"},
        {FlexGrid::SortStringNoCaseAscending, "-1.5,10,9,A,a,ä,b,B,"},
        {FlexGrid::SortStringAscending, "-1.5,10,9,a,A,ä,b,B,"},
        {FlexGrid::SortStringDescending, "B,b,ä,A,a,9,10,-1.5,"},
        {FlexGrid::SortNone, "b,10,,A,9,B,a,-1.5,ä"},
    };
    for (const auto &[kind, sorted] : cases) {
        FlexGrid grid;
        grid.setLocale(QLocale(QLocale::English));
        fill(grid, words);
        grid.Select(1, 1, 1, 1);
        grid.setSort(kind);
        EXPECT_EQ(column(grid, 1), QString::fromUtf8(sorted)) << kind;
    }
}

TEST(FlexGridSortTest, MovesWholeRowsOfTheSelectionByAllItsColumns)
{
    FlexGrid grid;
    fill(grid, {"1\tz\t0", "2\tb\t2", "3\tb\t1", "4\ta\t3", "5\ta\t0"});
    grid.setRowHeight(4, 500);
    grid.Select(4, 1, 2, 2);
    grid.setSort(FlexGrid::SortGenericAscending);
    EXPECT_EQ(column(grid, 0), QStringLiteral("1,4,3,2,5"));
    EXPECT_EQ(grid.RowHeight(2), 500);
}

TEST(FlexGridSortTest, AsksTheContainerForTheCustomOrder)
{
    FlexGrid grid;
    fill(grid, {"\taaa", "\tb", "\tcc", "\td"});
    QObject::connect(&grid, &FlexGrid::Compare, &grid, [&](int row1, int row2, int &cmp) {
        cmp = int(grid.word(row1, 1).size() - grid.word(row2, 1).size());
    });
    grid.setSort(FlexGrid::SortCustom);
    EXPECT_EQ(column(grid, 1), QStringLiteral("b,d,cc,aaa"));
}

TEST(FlexGridPositions, RowsAndColumnsMoveWithAllTheyHave)
{
    FlexGrid grid;
    fill(grid, {"\ta\tx", "\tb\ty", "\tc\tz"});
    grid.setColWidth(1, 1111);
    grid.setColAlignment(1, 7);
    grid.setColData(1, 42);
    grid.Select(2, 1, 2, 1);
    grid.setCellBackColor(0xFF);
    grid.setColPosition(1, 2);
    EXPECT_EQ(everyCell(grid), QStringLiteral("x,y,z|a,b,c"));
    EXPECT_EQ(grid.ColWidth(2), 1111);
    EXPECT_EQ(grid.ColAlignment(2), 7);
    EXPECT_EQ(grid.ColData(2), 42);
    grid.setRowPosition(2, 1);
    EXPECT_EQ(everyCell(grid), QStringLiteral("y,x,z|b,a,c"));
    grid.Select(1, 2, 1, 2);
    EXPECT_EQ(grid.CellBackColor(), 0xFF);
}

TEST(FlexGridCellsTest, FormatsOfTheSelectionFollowTheirCells)
{
    FlexGrid grid;
    fill(grid, {"\ta", "\tb", "\tc"});
    grid.Select(1, 1, 2, 1);
    grid.setCellAlignment(4);
    grid.setFillStyle(1);
    grid.setCellForeColor(0x00FF00);
    grid.setCellTextStyle(2);
    const auto formatAt = [&](int row) {
        grid.Select(row, 1, row, 1);
        return std::tuple(grid.CellAlignment(), grid.CellForeColor(), grid.CellTextStyle());
    };
    EXPECT_EQ(formatAt(1), std::tuple(4, 0x00FF00, 2));
    EXPECT_EQ(formatAt(2), std::tuple(9, 0x00FF00, 2));
    EXPECT_EQ(formatAt(3), std::tuple(9, 0, 0));
    grid.insertRows(2, 1);
    EXPECT_EQ(formatAt(2), std::tuple(9, 0, 0));
    EXPECT_EQ(formatAt(3), std::tuple(9, 0x00FF00, 2));
    grid.removeRows(1, 2);
    EXPECT_EQ(formatAt(1), std::tuple(9, 0x00FF00, 2));
}

TEST(FlexGridSourcesTest, AFormatStringSetsHeaders)
{
    FlexGrid grid;
    grid.setFormatString(QStringLiteral("<No|^Word            |>Amount;|first|second"));
    EXPECT_EQ(grid.Cols(), 3);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(0, 1), QStringLiteral("Word"));
    EXPECT_EQ(grid.ColAlignment(0) * 100 + grid.ColAlignment(1) * 10 + grid.ColAlignment(2), 147);
    EXPECT_GT(grid.ColWidth(1), grid.ColWidth(0));
    EXPECT_EQ(column(grid, 0), QStringLiteral("first,second"));
    EXPECT_EQ(grid.TextArray(6), QStringLiteral("second"));
}

TEST(FlexGridSourcesTest, AModelFillsTheGridAndKeepsItFilled)
{
    QStandardItemModel model(2, 2);
    model.setHorizontalHeaderLabels({"L1", "L2"});
    model.setItem(1, 0, new QStandardItem("tree"));
    FlexGrid grid;
    grid.setDataSource(&model);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.TextMatrix(0, 2), QStringLiteral("L2"));
    model.item(1, 0)->setText("bush");
    model.appendRow(new QStandardItem("leaf"));
    EXPECT_EQ(column(grid, 1), QStringLiteral(",bush,leaf"));
    grid.setDataSource(nullptr);
    model.clear();
    EXPECT_EQ(column(grid, 1), QStringLiteral(",bush,leaf"));
}

TEST(FlexGridProperties, AreStoredByNameAndReadBack)
{
    FlexGrid grid;
    QSignalSpy changes(&grid, &FlexGrid::PropertyChanged);
    grid.setRows(40);
    grid.setCols(5);
    grid.setFixedRows(2);
    grid.setBackColorSel(0x123456);
    grid.setScrollBars(2);
    grid.setWordWrap(true);
    grid.setEnabled(false);
    grid.setGridFont(QFont(QStringLiteral("Arial"), 14));
    EXPECT_THAT(changes.takeLast().at(0).toString(), QStringLiteral("Font"));
    QVariantMap stored = grid.saveProperties();
    EXPECT_EQ(stored.size(), 37);
    const QVariant icon = stored.take(QStringLiteral("MouseIcon")); // pictures are never equal
    EXPECT_EQ(icon.metaType(), QMetaType::fromType<QPixmap>());

    FlexGrid other;
    other.loadProperties(stored);
    QVariantMap read = other.saveProperties();
    read.remove(QStringLiteral("MouseIcon"));
    EXPECT_EQ(read, stored);
    other.loadProperties({{"Cols", 3}});
    EXPECT_EQ(other.FixedRows() * 10 + other.FixedCols(), 11);
    EXPECT_EQ(other.Cols(), 3);
    EXPECT_EQ(other.BackColorSel(), FlexGrid().BackColorSel());
    EXPECT_TRUE(other.Enabled());
}
