#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

namespace {

/// The rows of a grid: - where there is no text, * a coloured cell, ^ a height of the row's own, + a row that merges.
QString rowsOf(const FlexGrid &grid)
{
    QString text;
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int col = 0; col < grid.Cols(); ++col) {
            const FlexGridCellFormat *format = grid.hwndGrid()->state().cells.formats.find(row, col);
            text += grid.TextMatrix(row, col).isEmpty() ? "-" : grid.TextMatrix(row, col);
            text += format && format->foreColor ? "*" : "";
        }
        text += grid.RowHeight(row) == 285 ? "" : QString("^%1").arg(grid.RowHeight(row));
        text += grid.MergeRow(row) ? "+ " : " ";
    }
    return text;
}

/// The rows, the columns that are not as in a new grid with width, alignment and data, and the selection.
std::string described(const FlexGrid &grid)
{
    QString text = rowsOf(grid);
    for (int col = 0; col <= grid.Cols(); ++col) {
        const QString told =
            QString::asprintf("%d,%d,%d ", grid.ColWidth(col), grid.ColAlignment(col), grid.ColData(col));
        text += told == "960,9,0 " ? "" : QString("%1:").arg(col) + told;
    }
    const auto &[row, col, rowSel, colSel] = grid.selection();
    return (text + QString::asprintf("%d,%d,%d,%d", row, col, rowSel, colSel)).toStdString();
}

TEST(FlexGridChanges, TakeAllThatBelongsToRowsAndColumnsAlong)
{
    // what is done with the first of these grids, and what comes of it
    const std::pair<std::function<void(FlexGrid &)>, const char *> cases[] = {
        {[](FlexGrid &) {}, "abc def gh*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.insertRows(1, 2); }, "abc --- --- def gh*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.insertRows(3, 1); }, "abc def gh*i^300+ --- jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.insertRows(0, 1), g.insertRows(5, 1), g.insertRows(1, 0), g.insertRows(4, 1); },
         "abc def gh*i^300+ jkl --- 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.RemoveItem(1); }, "abc gh*i^300+ jkl 2:90,4,7 2,1,2,2"},
        {[](FlexGrid &g) { g.removeRows(2, 2), g.removeRows(1, 1); }, "abc def 2:90,4,7 1,1,1,2"},
        {[](FlexGrid &g) { g.removeRows(0, 1), g.removeRows(1, 3), g.removeRows(4, 1), g.removeRows(2, 0); },
         "abc def gh*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setRowPosition(2, 0), g.setRowPosition(1, 3); }, "gh*i^300+ def jkl abc 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) {
             g.setRowPosition(-1, 1), g.setRowPosition(1, -1), g.setRowPosition(4, 1), g.setRowPosition(1, 4);
         },
         "abc def gh*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setColPosition(2, 0); }, "cab fde igh*^300+ ljk 0:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setColPosition(0, 2), g.setColPosition(-1, 1), g.setColPosition(1, 3); },
         "bca efd h*ig^300+ klj 1:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setSort(FlexGrid::SortCustom); }, "abc def jkl gh*i^300+ 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.Select(1, 1, 1, 1), g.setSort(FlexGrid::SortCustom), g.setSort(10); },
         "abc jkl gh*i^300+ def 2:90,4,7 1,1,1,1"},
        {[](FlexGrid &g) { g.setRows(2), g.setRows(4), g.setCols(2), g.setCols(3); }, "ab- de- --- --- 1,1,1,1"},
        {[](FlexGrid &g) { g.setRows(0), g.Select(0, 0, 0, 0), g.setClip("x"), g.setCellForeColor(1); },
         "abc 2:90,4,7 -1,-1,-1,-1"},
        {[](FlexGrid &g) { g.setCols(0), g.setRows(3), g.setCols(2); }, "a- d- g-^300+ 1,1,1,1"},
        {[](FlexGrid &g) { g.Clear(); }, "--- --- ---^300 --- 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setText("x\ny"), g.setTextMatrix(9, 1, "z"), g.setTextMatrix(1, -1, "z"); },
         "abc def gx y*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setTextMatrix(1, 1, g.Clip()); }, "abc dh i k lf gh*i^300+ jkl 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setClip("x\ty\tz\ru\rv"); }, "abc def gx*y^300+ jul 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) {
             g.setClip(""), g.setCellForeColor(0), g.setMergeRow(2, false), g.setMergeRow(4, true), g.setRows(5);
         },
         "abc def g-i^300 jkl --- 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setFillStyle(1), g.setCellForeColor(1), g.setColData(2, g.CellForeColor()); },
         "abc def gh*i*^300+ jk*l* 2:90,4,1 2,1,3,2"},
        {[](FlexGrid &g) { g.setDefaultRowHeight(45), g.setRowHeight(1, 0), g.setRowHeight(2, -1); },
         "abc def^0 gh*i^45+ jkl^45 2:90,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setRowHeight(-1, 15), g.setColWidth(-1, 15), g.setColWidth(2, -1), g.setColWidth(3, 9); },
         "abc^15 def^15 gh*i^15+ jkl^15 0:15,9,0 1:15,9,0 2:960,4,7 2,1,3,2"},
        {[](FlexGrid &g) { g.setColAlignment(1, 12), g.setColAlignment(2, -1), g.setColData(-1, 3); },
         "abc def gh*i^300+ jkl 0:960,9,3 1:960,9,3 2:90,0,3 2,1,3,2"},
        {[](FlexGrid &g) { g.setRow(3), g.setRow(4), g.setCol(2), g.setCol(3), g.setRow(-1); },
         "abc def gh*i^300+ jkl 2:90,4,7 3,2,3,2"},
        {[](FlexGrid &g) { g.setRow(0), g.setCol(0), g.setMergeRow(0, true); },
         "abc+ def gh*i^300+ jkl 2:90,4,7 0,0,0,0"},
        {[](FlexGrid &g) {
             g.setFixedCols(0), g.setCols(0), g.setTextArray(0, g.TextArray(0)), g.setFixedRows(0), g.setRows(1);
         },
         " -1,-1,-1,-1"},
        {[](FlexGrid &g) { g.setRowSel(0), g.setRowSel(4), g.setColSel(0), g.setColSel(-1); },
         "abc def gh*i^300+ jkl 2:90,4,7 2,1,0,0"},
        {[](FlexGrid &g) { g.Select(1, 1, 4, 1), g.Select(1, 3, 1, 1), g.Select(0, 0, 3, 2); },
         "abc def gh*i^300+ jkl 2:90,4,7 0,0,3,2"},
        {[](FlexGrid &g) {
             g.setRowNumbers(true), g.setTextMatrix(1, 0, "x"), g.setRows(5), g.Select(0, 0, 1, 1),
                 g.setText(g.Clip() + g.TextMatrix(5, 0));
         },
         "a b 1 ebc 1ef 2h*i^300+ 3kl 4-- 2:90,4,7 0,0,1,1"},
        {[](FlexGrid &g) { g.setRowNumbers(true), g.setRowNumbers(false); }, "abc -ef -h*i^300+ -kl 2:90,4,7 2,1,3,2"},
    };
    for (const auto &[change, expected] : cases) {
        FlexGrid grid;
        grid.setRows(4);
        grid.setCols(3);
        for (int i = 0; i < 12; ++i)
            grid.setTextArray(i, QChar('a' + i));
        grid.Select(2, 1, 3, 2);
        grid.setCellForeColor(0xFF);
        grid.setRowHeight(2, 300);
        grid.setMergeRow(2, true);
        grid.setColWidth(2, 90);
        grid.setColAlignment(2, 4);
        grid.setColData(2, 7);
        QObject::connect(&grid, &FlexGrid::Compare, &grid, [&grid](int row, int other, int &result) {
            result = grid.word(other, 1).compare(grid.word(row, 1));
        });
        change(grid);
        EXPECT_EQ(described(grid), expected);
    }
}

/// Rows and columns, some of which do not exist, and a size.
struct Step
{
    int row, col, to, toCol, size;
};

const std::function<void(FlexGrid &, const Step &)> Steps[] = {
    [](FlexGrid &grid, const Step &s) { grid.insertRows(s.row, s.toCol); },
    [](FlexGrid &grid, const Step &s) { grid.removeRows(s.row, s.toCol); },
    [](FlexGrid &grid, const Step &s) { grid.setRowPosition(s.row, s.to); },
    [](FlexGrid &grid, const Step &s) { grid.setColPosition(s.col, s.toCol); },
    [](FlexGrid &grid, const Step &s) { grid.setRows(s.row + 2); },
    [](FlexGrid &grid, const Step &s) { grid.setCols(s.col + 1); },
    [](FlexGrid &grid, const Step &s) { grid.setTextMatrix(s.row, s.col, QString::number(s.size)); },
    [](FlexGrid &grid, const Step &s) { grid.setClip(QString("x\ty\r%1").arg(s.size)); },
    [](FlexGrid &grid, const Step &s) { grid.setRightToLeft(s.to % 2); },
    [](FlexGrid &grid, const Step &s) { grid.setRowHeight(s.row, s.size); },
    [](FlexGrid &grid, const Step &s) { grid.setColWidth(s.col, std::min(s.size, 2250)); },
    [](FlexGrid &grid, const Step &s) { grid.resize(150 + 10 * s.row, 100 + 10 * s.to); },
    [](FlexGrid &grid, const Step &s) { grid.setRow(s.row); },
    [](FlexGrid &grid, const Step &s) { grid.setColSel(s.col); },
    [](FlexGrid &grid, const Step &s) { grid.Select(s.row, s.col, s.to, s.toCol); },
};

/// Rows stand below each other from the top row on, below the header; columns from the left, as far as they are not
/// scrolled away.
void expectInView(const FlexGrid &grid)
{
    const FlexGridView &view = *grid.hwndGrid();
    const FlexGridCells &cells = view.state().cells;
    const QSize room = view.viewport()->size();
    const auto pixels = [&](int twips) { return int(std::lround(twips / 15.0 * grid.Zoom() / 100)); };
    const auto high = [&](int row) { return cells.hasCell(row, 0) ? pixels(grid.RowHeight(row)) : 0; };
    const double number = QFontMetricsF(grid.Font()).horizontalAdvance(QString::number(grid.Rows() - 1).fill('0'));
    const auto wide = [&](int col) {
        const int width = cells.hasCell(0, col) ? pixels(grid.ColWidth(col)) : 0;
        const bool numbers = cells.numbersRows() && col == 0 && width > 0;
        return numbers ? std::max(width, int(std::ceil((std::ceil(number) + 5) * grid.Zoom() / 100))) : width;
    };
    const auto side = [&](int x, int width) { return grid.RightToLeft() ? room.width() - x - width : x; };
    const int top = grid.TopRow();
    int last = std::max(1, grid.Rows() - 1);
    for (int needed = high(last); last > 1 && needed + high(last - 1) <= room.height() - high(0);)
        needed += high(--last);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), last);
    EXPECT_TRUE(top >= 1 && top <= last);
    int above = 0;
    for (int row = 1; row < top; ++row)
        above += high(row);
    for (int row = -1, y = 0; row <= grid.Rows(); y = row++ == 0 ? high(0) - above : y + high(row - 1)) {
        const bool seen = row == 0 || row == top || (row > top && y + high(row) <= room.height());
        EXPECT_EQ(grid.RowIsVisible(row), seen && cells.hasCell(row, 0)) << row;
        const QRect cell = view.cellRect(row, 0);
        EXPECT_EQ(cell, cells.hasCell(row, 0) ? QRect(side(0, wide(0)), y, wide(0), high(row)) : QRect());
        for (int at = y; seen && at < std::min(y + high(row), room.height()); at += 7)
            EXPECT_EQ(view.rowAt(at), row);
    }
    const int shift = view.horizontalScrollBar()->value();
    int x = 0, first = 1;
    for (int col = 0; col <= grid.Cols(); ++col) {
        first = x + wide(col) <= wide(0) && col == first && col + 1 < grid.Cols() ? col + 1 : first;
        const bool seen = col == 0 || x == wide(0) || (x > wide(0) && x + wide(col) <= room.width());
        EXPECT_EQ(grid.ColIsVisible(col), seen && cells.hasCell(0, col)) << col;
        EXPECT_EQ(view.cellRect(0, col),
                  cells.hasCell(0, col) ? QRect(side(x, wide(col)), 0, wide(col), high(0)) : QRect());
        for (int at = std::max(x, col ? wide(0) : 0); at < std::min(x + wide(col), room.width()); at += 7)
            EXPECT_EQ(view.colAt(side(at, 1)), col);
        x += wide(col) - (col == 0 ? shift : 0);
    }
    EXPECT_TRUE(grid.LeftCol() == first && (x >= room.width() || view.colAt(side(x, 1)) == -1));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), std::max(0, x + shift - std::max(room.width(), wide(0))));
}

TEST(FlexGridWalk, WhateverIsDoneWithAGridItIsLaidOutAndTellsOfIt)
{
    FlexGrid grid;
    QStringList told;
    grid.setBorderStyle(0);
    grid.resize(200, 120);
    grid.show();
    QObject::connect(&grid, &FlexGrid::EnterCell, &grid, [&told] { told += "enter"; });
    QObject::connect(&grid, &FlexGrid::RowColChange, &grid, [&told] { told += "cell"; });
    QObject::connect(&grid, &FlexGrid::SelChange, &grid, [&told] { told += "selection"; });
    QSignalSpy scrolled(&grid, &FlexGrid::Scroll);
    const FlexGridView &view = *grid.hwndGrid();
    const QScrollBar &across = *view.horizontalScrollBar();
    const auto place = [&] { return std::pair(grid.TopRow(), across.value()); };
    const auto currentIsSeen = [&] { return grid.RowIsVisible(grid.Row()) && grid.ColIsVisible(grid.Col()); };
    std::mt19937 random(3);
    const auto below = [&random](size_t limit) { return int(random() % unsigned(limit)); };
    const int sizes[] = {-1, 0, 120, 450, 600, 960, 3000};
    for (int i = 0; i < 4000 && !::testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Step step{below(12) - 1, below(6) - 1, below(12) - 1, below(5), sizes[below(7)]};
        const bool has = view.state().cells.hasCell(step.row, step.col);
        const bool rowSeen = grid.RowIsVisible(step.row), currentSeen = currentIsSeen();
        const auto placeBefore = place();
        const GridSelection selection = grid.selection();
        const QString rows = rowsOf(grid);
        const int cols = grid.Cols();
        const quint64 revision = grid.revision();
        told.clear();
        scrolled.clear();
        const size_t kind = random() % (std::size(Steps) + 3);
        if (kind < std::size(Steps)) {
            Steps[kind](grid, step);
        } else if (kind == std::size(Steps)) {
            grid.showCell(step.row, step.col);
            EXPECT_TRUE(!has || grid.RowIsVisible(step.row));
            EXPECT_TRUE(!has || grid.ColIsVisible(step.col) ||
                        view.cellRect(step.row, step.col).width() > view.cellArea().width());
            EXPECT_TRUE(!rowSeen || grid.TopRow() == placeBefore.first);
        } else if (kind == std::size(Steps) + 1) {
            grid.setTopRow(step.row);
            grid.setLeftCol(step.col);
            EXPECT_TRUE(across.value() == across.maximum() || view.leftCol() >= step.col);
        } else {
            grid.setZoom(50 + 50 * step.toCol);
            EXPECT_TRUE(!currentSeen || currentIsSeen());
        }
        QCoreApplication::processEvents();
        EXPECT_TRUE(grid.Cols() != cols || grid.revision() != revision || rowsOf(grid).startsWith(rows));
        const bool moved = !grid.selection().isCurrent(selection.Row, selection.Col);
        const bool selected = grid.selection() != selection;
        EXPECT_EQ(told.join(' '), moved ? "enter cell selection" : selected ? "selection" : "");
        EXPECT_EQ(scrolled.isEmpty(), place() == placeBefore);
        expectInView(grid);
        if (i == 2000)
            grid.setRowNumbers(true);
    }
}

} // namespace
