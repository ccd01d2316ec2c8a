#include "GridOperations.h"

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
QString described(const FlexGrid &grid)
{
    QString text = rowsOf(grid);
    for (int col = 0; col <= grid.Cols(); ++col) {
        const QString told =
            QString::asprintf("%d,%d,%d ", grid.ColWidth(col), grid.ColAlignment(col), grid.ColData(col));
        text += told == "960,9,0 " ? "" : QString("%1:").arg(col) + told;
    }
    const auto &[row, col, rowSel, colSel] = grid.selection();
    return text + QString::asprintf("%d,%d,%d,%d", row, col, rowSel, colSel);
}

/// In changes.txt a line says what is done with a grid of four rows and three columns, and what comes of it: how often
/// the current cell was left, ~ where a text may have changed, and the grid.
TEST(FlexGridChanges, TakeAllThatBelongsToRowsAndColumnsAlong)
{
    const QString lines = readFile(SOURCE_FOLDER "/tests/widgets/changes.txt");
    QString played;
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        ToldGrid grid;
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
            EXPECT_LT(std::max(row, other), grid.Rows());
            result = grid.word(other, 1).compare(grid.word(row, 1));
        });
        grid.left = 0;
        const quint64 revision = grid.revision();
        perform(grid, line.section(" -> ", 0, 0));
        played += line.section(" -> ", 0, 0) + " -> " + QString::number(grid.left) +
                  (grid.revision() != revision ? "~ " : " ") + described(grid) + u'\n';
    }
    EXPECT_EQ(lines.toStdString(), played.toStdString());
}

/// In drawn.txt are small grids without letters, each below what is done with it, with a sign for each colour: w b
/// cells, f fixed ones, s selected, o focus, + x lines, L D light and dark edges, r a picture and . what lies beyond.
TEST(DrawnGrid, LinesSelectionFocusMergesAndPicturesStandInTheirPlaces)
{
    QPalette palette(Qt::gray);
    palette.setColor(QPalette::Light, QColor(1, 1, 1));
    palette.setColor(QPalette::Dark, QColor(2, 2, 2));
    palette.setColor(QPalette::Text, Qt::black);
    const QHash<QRgb, char> signs{{0xFFFFFFFF, 'w'}, {0xFF0000FF, 'b'}, {0xFF808000, 'f'}, {0xFF00FF00, 's'},
                                  {0xFF00FFFF, '+'}, {0xFFFF00FF, 'x'}, {0xFF010101, 'L'}, {0xFF020202, 'D'},
                                  {0xFFFF0000, 'r'}, {0xFFFFFF00, '.'}};
    const QString pictures = readFile(SOURCE_FOLDER "/tests/widgets/drawn.txt");
    QString drawn;
    for (const QString &look : pictures.split(u'\n').filter("> ")) {
        FlexGrid grid;
        grid.setPalette(palette);
        perform(grid,
                "Rows 2; Cols 2; BorderStyle 0; BackColor 0xFFFFFF; BackColorFixed 0x008080; BackColorSel 0x00FF00; "
                "GridColor 0xFFFF00; GridColorFixed 0xFF00FF; BackColorBkg 0x00FFFF; RowHeight -1 75; ColWidth -1 60; "
                "Select 1 1 2 1; " +
                    look.mid(2));
        grid.resize(grid.Cols() > 3 ? 26 : 14, grid.Rows() > 3 ? 26 : 16);
        const QImage image = grid.grab().toImage();
        drawn += look + u'\n';
        for (int y = 0; y < image.height(); ++y, drawn += u'\n') {
            for (int x = 0; x < image.width(); ++x)
                drawn += signs.value(image.pixel(x, y), 'o');
        }
    }
    EXPECT_EQ(pictures.toStdString(), drawn.toStdString());
}

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
        const bool seen = row == 0 || row == top || (row > top && y + high(row) <= std::max(room.height(), high(0)));
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
    EXPECT_EQ(view.horizontalScrollBar()->pageStep(), std::max(24, room.width() - wide(0) - 24));
    EXPECT_EQ(view.verticalScrollBar()->pageStep(), std::max(1, grid.Rows() - last));
    EXPECT_EQ(view.isRightToLeft(), grid.RightToLeft());
}

TEST(FlexGridWalk, WhateverIsDoneWithAGridItIsLaidOutAndTellsOfIt)
{
    ToldGrid grid;
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
    const auto draw = [&](char kind) {
        return kind == 'r'   ? below(12) - 1
               : kind == 'c' ? below(6) - 1
               : kind == 's' ? sizes[below(7)]
                             : below(kind == 'b' ? 2 : 5);
    };
    for (int i = 0; i < 4000 && !::testing::Test::HasFailure(); ++i) {
        const int row = draw('r'), col = draw('c');
        const bool has = view.state().cells.hasCell(row, col);
        const bool rowSeen = grid.RowIsVisible(row), currentSeen = currentIsSeen();
        const auto placeBefore = place();
        const GridSelection selection = grid.selection();
        const QRect cell = view.cellRect(row, col);
        grid.places = 0;
        const QString rows = rowsOf(grid);
        const int cols = grid.Cols();
        const quint64 revision = grid.revision();
        told.clear();
        scrolled.clear();
        const size_t kind = random() % (Operations.size() + 3);
        SCOPED_TRACE(QString("step %1: operation %2").arg(i).arg(kind).toStdString());
        if (kind < Operations.size()) {
            const Operation &operation = std::next(Operations.begin(), qptrdiff(kind))->second;
            QList<int> numbers;
            for (const char *each = operation.arguments; each && *each; ++each)
                numbers += draw(*each);
            if (operation.arguments)
                operation.run(grid, numbers);
        } else if (kind == Operations.size()) {
            grid.showCell(row, col);
            EXPECT_TRUE(!has || grid.RowIsVisible(row));
            EXPECT_TRUE(!has || grid.ColIsVisible(col) || view.cellRect(row, col).width() > view.cellArea().width());
            EXPECT_TRUE(!rowSeen || grid.TopRow() == placeBefore.first);
        } else if (kind == Operations.size() + 1) {
            grid.setTopRow(row);
            grid.setLeftCol(col);
            EXPECT_TRUE(across.value() == across.maximum() || view.leftCol() >= col);
        } else {
            grid.setZoom(50 + 50 * draw('n'));
            EXPECT_TRUE(!currentSeen || currentIsSeen());
        }
        QCoreApplication::processEvents();
        EXPECT_TRUE(grid.Cols() != cols || grid.revision() != revision || rowsOf(grid).startsWith(rows));
        const bool moved = !grid.selection().isCurrent(selection.Row, selection.Col);
        const bool selected = grid.selection() != selection;
        EXPECT_EQ(told.join(' '), moved ? "enter cell selection" : selected ? "selection" : "");
        EXPECT_EQ(scrolled.isEmpty(), place() == placeBefore);
        EXPECT_TRUE(grid.places > 0 || view.cellRect(row, col) == cell);
        expectInView(grid);
        if (i == 2000)
            grid.setRowNumbers(true);
    }
}

} // namespace
