#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

namespace {

/// What a grid with one fixed row and column is to hold, as plain lists. Its operations are those of the grid.
struct PlainGrid
{
    struct Row
    {
        QStringList texts;
        QList<int> colours;
        int height = 285;
        bool merge = false;
        bool operator==(const Row &) const = default;
    };
    using Col = std::array<int, 3>; // width, alignment, data
    QList<Row> rows;
    QList<Col> cols;
    GridSelection selection{1, 1, 1, 1};
    int zoom = 100;
    bool numbers = false, fill = false, mirrored = false;

    bool operator==(const PlainGrid &) const = default;
    static PlainGrid of(const FlexGrid &grid, bool numbers)
    {
        PlainGrid plain{{}, {}, grid.selection(), grid.Zoom(), numbers, bool(grid.FillStyle()), grid.RightToLeft()};
        for (int col = 0; col < grid.Cols(); ++col)
            plain.cols.append({grid.ColWidth(col), grid.ColAlignment(col), grid.ColData(col)});
        EXPECT_TRUE(grid.ColAlignment(grid.Cols()) == 9 && grid.ColWidth(grid.Cols()) == 960 && grid.ColData(-1) == 0);
        for (int row = 0; row < grid.Rows(); ++row) {
            plain.rows.append({{}, {}, grid.RowHeight(row), grid.MergeRow(row)});
            for (int col = 0; col < grid.Cols(); ++col) {
                const FlexGridCellFormat *format = grid.hwndGrid()->state().cells.formats.find(row, col);
                EXPECT_EQ(grid.TextMatrix(row, col),
                          numbers && col == 0 && row ? QString::number(row) : grid.word(row, col));
                plain.rows.last().texts += grid.word(row, col);
                plain.rows.last().colours += format ? format->foreColor : 0;
            }
        }
        return plain;
    }

    int Rows() const { return int(rows.size()); }
    int Cols() const { return int(cols.size()); }
    bool has(int row, int col) const { return row >= 0 && row < Rows() && col >= 0 && col < Cols(); }
    QString TextMatrix(int row, int col) const
    {
        return !has(row, col) ? "" : numbers && col == 0 && row ? QString::number(row) : rows[row].texts[col];
    }
    void setTextMatrix(int row, int col, QString text)
    {
        if (has(row, col) && !(numbers && col == 0 && row))
            rows[row].texts[col] = text.replace('\n', ' ');
    }
    void setText(const QString &text) { setTextMatrix(selection.Row, selection.Col, text); }
    void setRows(int count)
    {
        while (Rows() < count)
            rows.append(emptyRow());
        rows.resize(std::max(1, count));
        stayInside();
    }
    void setCols(int count)
    {
        cols.resize(std::min(Cols(), std::max(1, count)));
        while (Cols() < count)
            cols.append({960, 9, 0});
        for (Row &row : rows) {
            row.texts.resize(Cols());
            row.colours.resize(Cols());
        }
        stayInside();
    }
    bool insertRows(int row, int count)
    {
        const bool can = row > 0 && row <= Rows() && count > 0;
        if (can)
            rows.insert(row, count, emptyRow());
        stayInside();
        return can;
    }
    bool removeRows(int row, int count)
    {
        const bool can = row > 0 && count > 0 && row + count <= Rows() && count < Rows() - 1; // one stays
        if (can)
            rows.remove(row, count);
        stayInside();
        return can;
    }
    void setRowPosition(int row, int to)
    {
        if (has(row, 0) && has(to, 0))
            rows.move(row, to);
    }
    void setColPosition(int col, int to)
    {
        if (!has(0, col) || !has(0, to))
            return;
        cols.move(col, to);
        for (Row &row : rows) {
            row.texts.move(col, to);
            row.colours.move(col, to);
        }
    }
    /// By the length of the words in column 1.
    void setSort(int)
    {
        const bool all = selection.Row == selection.RowSel;
        if (selection.Row >= 0)
            std::stable_sort(rows.begin() + (all ? 1 : std::max(1, selection.top())),
                             all ? rows.end() : rows.begin() + selection.bottom() + 1,
                             [](const Row &a, const Row &b) { return a.texts[1].size() < b.texts[1].size(); });
    }
    void Clear()
    {
        for (Row &row : rows)
            row = {emptyRow().texts, emptyRow().colours, row.height};
    }

    /// The selection ends with the grid; -1 where there is no cell that could be selected.
    void stayInside()
    {
        const bool data = Rows() > 1 && Cols() > 1;
        const auto inside = [data](int &at, int count) { at = data ? std::min(at < 0 ? 1 : at, count - 1) : -1; };
        inside(selection.Row, Rows());
        inside(selection.Col, Cols());
        inside(selection.RowSel, Rows());
        inside(selection.ColSel, Cols());
    }
    void Select(int row, int col, int rowSel, int colSel)
    {
        if (has(row, col) && has(rowSel, colSel))
            selection = {row, col, rowSel, colSel};
        stayInside();
    }
    void setRow(int row) { Select(row, selection.Col, row, selection.Col); }
    void setCol(int col) { Select(selection.Row, col, selection.Row, col); }
    void setRowSel(int row) { Select(selection.Row, selection.Col, row, selection.ColSel); }
    void setColSel(int col) { Select(selection.Row, selection.Col, selection.RowSel, col); }
    void forSelected(const std::function<void(int, int)> &run) const
    {
        for (int row = selection.top(); selection.Row >= 0 && row <= selection.bottom(); ++row) {
            for (int col = selection.left(); col <= selection.right(); ++col)
                run(row, col);
        }
    }
    QString Clip() const
    {
        QString clip;
        forSelected([&](int row, int col) {
            clip += col > selection.left() ? "\t" : row > selection.top() ? "\r" : "";
            clip += TextMatrix(row, col);
        });
        return clip;
    }
    void setClip(const QString &clip)
    {
        const QStringList lines = clip.split('\r');
        forSelected([&](int row, int col) {
            const QStringList fields = lines.value(row - selection.top()).split('\t');
            if (row - selection.top() < lines.size() && col - selection.left() < fields.size())
                setTextMatrix(row, col, fields[col - selection.left()]);
        });
    }
    void setCellForeColor(int colour)
    {
        forSelected([&](int row, int col) {
            if (fill || selection.isCurrent(row, col))
                rows[row].colours[col] = colour;
        });
    }
    void setFillStyle(int style) { fill = style; }
    void setRightToLeft(bool rightToLeft) { mirrored = rightToLeft; }
    void setRowHeight(int row, int height)
    {
        for (int i = 0; i < Rows(); ++i)
            rows[i].height = row >= 0 && i != row ? rows[i].height : height < 0 ? 285 : height;
    }
    void setMergeRow(int row, bool merge)
    {
        if (has(row, 0))
            rows[row].merge = merge;
    }
    void setOf(int col, size_t what, int value)
    {
        for (int i = 0; i < Cols(); ++i)
            cols[i][what] = col < 0 || i == col ? value : cols[i][what];
    }
    void setColWidth(int col, int width) { setOf(col, 0, width < 0 ? 960 : width); }
    void setColAlignment(int col, int to) { setOf(col, 1, std::clamp(to, 0, 9)); }
    void setColData(int col, int data) { setOf(col, 2, data); }

    Row emptyRow() const { return {QStringList(Cols()), QList<int>(Cols())}; }
};

/// Rows and columns, some of which do not exist, and what else a step needs.
struct Step
{
    int row, col, to, toCol, count, size;
    QString text, clip;
};

/// One operation a line; what they answer is kept.
template <typename Grid> std::vector<std::function<void(const Step &)>> stepsOf(Grid &grid, QStringList &answers)
{
    return {
        [&](const Step &s) { answers += QString::number(grid.insertRows(s.row, s.count)); },
        [&](const Step &s) { answers += QString::number(grid.removeRows(s.row, s.count)); },
        [&](const Step &s) { grid.setRowPosition(s.row, s.to); },
        [&](const Step &s) { grid.setColPosition(s.col, s.toCol); },
        [&](const Step &) { grid.setSort(FlexGrid::SortCustom); },
        [&](const Step &s) { grid.setRows(s.row + 2); },
        [&](const Step &s) { grid.setCols(s.col + 1); },
        [&](const Step &s) { s.count ? void() : grid.Clear(); },
        [&](const Step &s) { grid.setTextMatrix(s.row, s.col, s.text); },
        [&](const Step &s) { grid.setText(s.text); },
        [&](const Step &s) { grid.setClip(s.clip); },
        [&](const Step &) { answers += grid.Clip(); },
        [&](const Step &s) { grid.setFillStyle(s.count % 2); },
        [&](const Step &s) { grid.setCellForeColor(s.size); },
        [&](const Step &s) { grid.setRightToLeft(s.count % 2); },
        [&](const Step &s) { grid.setRowHeight(s.row, s.size); },
        [&](const Step &s) { grid.setMergeRow(s.row, s.count); },
        [&](const Step &s) { grid.setColWidth(s.col, std::min(s.size, 2250)); },
        [&](const Step &s) { grid.setColAlignment(s.col, s.row); },
        [&](const Step &s) { grid.setColData(s.col, s.size); },
        [&](const Step &s) { grid.setRow(s.row); },
        [&](const Step &s) { grid.setCol(s.col); },
        [&](const Step &s) { grid.setRowSel(s.row); },
        [&](const Step &s) { grid.setColSel(s.col); },
        [&](const Step &s) { grid.Select(s.row, s.col, s.to, s.toCol); },
    };
}

/// Rows stand below each other from the top row on, below the header; columns from the left, as far as they are not
/// scrolled away.
void expectInView(const FlexGrid &grid, const PlainGrid &plain)
{
    const FlexGridView &view = *grid.hwndGrid();
    const QSize room = view.viewport()->size();
    const auto pixels = [&](int twips) { return int(std::lround(twips / 15.0 * plain.zoom / 100)); };
    const auto high = [&](int row) { return plain.has(row, 0) ? pixels(plain.rows[row].height) : 0; };
    const double number = QFontMetricsF(grid.Font()).horizontalAdvance(QString::number(grid.Rows() - 1).fill('0'));
    const auto wide = [&](int col) {
        const int width = plain.has(0, col) ? pixels(plain.cols[col][0]) : 0;
        const bool numbers = plain.numbers && col == 0 && width > 0;
        return numbers ? std::max(width, int(std::ceil((std::ceil(number) + 5) * plain.zoom / 100))) : width;
    };
    const auto side = [&](int x, int width) { return plain.mirrored ? room.width() - x - width : x; };
    const int top = grid.TopRow();
    int last = std::max(1, plain.Rows() - 1);
    for (int needed = high(last); last > 1 && needed + high(last - 1) <= room.height() - high(0);)
        needed += high(--last);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), last);
    EXPECT_TRUE(top >= 1 && top <= last);
    int above = 0;
    for (int row = 1; row < top; ++row)
        above += high(row);
    for (int row = -1, y = 0; row <= plain.Rows(); y = row++ == 0 ? high(0) - above : y + high(row - 1)) {
        const bool seen = row == 0 || row == top || (row > top && y + high(row) <= room.height());
        EXPECT_EQ(grid.RowIsVisible(row), seen && plain.has(row, 0)) << row;
        const QRect cell = view.cellRect(row, 0);
        EXPECT_EQ(cell, plain.has(row, 0) ? QRect(side(0, wide(0)), y, wide(0), high(row)) : QRect());
        for (int at = y; seen && at < std::min(y + high(row), room.height()); at += 7)
            EXPECT_EQ(view.rowAt(at), row);
    }
    const int shift = view.horizontalScrollBar()->value();
    int x = 0, first = 1;
    for (int col = 0; col <= plain.Cols(); ++col) {
        first = x + wide(col) <= wide(0) && col == first && col + 1 < plain.Cols() ? col + 1 : first;
        const bool seen = col == 0 || x == wide(0) || (x > wide(0) && x + wide(col) <= room.width());
        EXPECT_EQ(grid.ColIsVisible(col), seen && plain.has(0, col)) << col;
        EXPECT_EQ(view.cellRect(0, col),
                  plain.has(0, col) ? QRect(side(x, wide(col)), 0, wide(col), high(0)) : QRect());
        for (int at = std::max(x, col ? wide(0) : 0); at < std::min(x + wide(col), room.width()); at += 7)
            EXPECT_EQ(view.colAt(side(at, 1)), col);
        x += wide(col) - (col == 0 ? shift : 0);
    }
    EXPECT_EQ(grid.LeftCol(), first);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), std::max(0, x + shift - std::max(room.width(), wide(0))));
}

TEST(FlexGridWalk, TheGridHoldsTellsAndShowsWhatPlainListsWould)
{
    FlexGrid grid;
    PlainGrid plain;
    QStringList answers, plainAnswers, told;
    const auto steps = stepsOf(grid, answers), plainSteps = stepsOf(plain, plainAnswers);
    grid.setBorderStyle(0);
    grid.resize(200, 120);
    grid.show();
    QObject::connect(&grid, &FlexGrid::EnterCell, &grid, [&told] { told += "enter"; });
    QObject::connect(&grid, &FlexGrid::RowColChange, &grid, [&told] { told += "cell"; });
    QObject::connect(&grid, &FlexGrid::SelChange, &grid, [&told] { told += "selection"; });
    QObject::connect(&grid, &FlexGrid::Compare, &grid, [&grid](int row, int other, int &result) {
        result = int(grid.word(row, 1).size() - grid.word(other, 1).size());
    });
    QSignalSpy scrolled(&grid, &FlexGrid::Scroll);
    const FlexGridView &view = *grid.hwndGrid();
    const QScrollBar &across = *view.horizontalScrollBar();
    const auto place = [&] { return std::pair(grid.TopRow(), across.value()); };
    const auto currentIsSeen = [&] { return grid.RowIsVisible(grid.Row()) && grid.ColIsVisible(grid.Col()); };
    plain.setCols(2);
    plain.setRows(2);
    std::mt19937 random(3);
    const auto oneOf = [&random](const auto &values) { return values[random() % std::size(values)]; };
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const char *const words[] = {"", "a", "Bb", "ccc", "d\ne"};
    const char *const clips[] = {"", "x", "x\ty", "x\ry", "\tx\r\rz", "x\ty\tz\ru\tv\tw"};
    const int sizes[] = {-1, 0, 120, 450, 600, 960, 3000};
    for (int i = 0; i < 4000 && !::testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Step step{below(12) - 1, below(6) - 1, below(12) - 1, below(5),
                        below(4),      oneOf(sizes), oneOf(words),  oneOf(clips)};
        const PlainGrid before = plain;
        const bool has = plain.has(step.row, step.col);
        const bool rowSeen = grid.RowIsVisible(step.row), currentSeen = currentIsSeen();
        const auto placeBefore = place();
        told.clear();
        scrolled.clear();
        const quint64 revision = grid.revision();
        const size_t kind = random() % (steps.size() + 3);
        if (kind < steps.size()) {
            steps[kind](step);
            plainSteps[kind](step);
        } else if (kind == steps.size()) {
            grid.showCell(step.row, step.col);
            EXPECT_TRUE(!has || grid.RowIsVisible(step.row));
            EXPECT_TRUE(!has || grid.ColIsVisible(step.col) ||
                        view.cellRect(step.row, step.col).width() > view.cellArea().width());
            EXPECT_TRUE(!rowSeen || grid.TopRow() == placeBefore.first);
        } else if (kind == steps.size() + 1) {
            grid.setTopRow(step.row);
            grid.setLeftCol(step.col);
            EXPECT_TRUE(across.value() == across.maximum() || view.leftCol() >= step.col);
        } else {
            grid.setZoom(plain.zoom = 50 + 50 * step.count);
            EXPECT_TRUE(!currentSeen || currentIsSeen());
        }
        QCoreApplication::processEvents();
        EXPECT_TRUE(PlainGrid::of(grid, plain.numbers) == plain);
        EXPECT_EQ(answers, plainAnswers);
        const auto same = [](const auto &a, const auto &b) { return a.texts == b.texts && a.height == b.height; };
        const bool sameWords = plain.Cols() != before.Cols() ||
                               (plain.Rows() >= before.Rows() &&
                                std::equal(before.rows.begin(), before.rows.end(), plain.rows.begin(), same));
        EXPECT_TRUE(sameWords || grid.revision() != revision);
        const bool moved = !plain.selection.isCurrent(before.selection.Row, before.selection.Col);
        const bool selected = plain.selection != before.selection;
        EXPECT_EQ(told.join(' '), moved ? "enter cell selection" : selected ? "selection" : "");
        EXPECT_EQ(scrolled.isEmpty(), place() == placeBefore);
        expectInView(grid, plain);
        if (i == 2000) {
            plain.numbers = true;
            grid.setRowNumbers(true);
            for (int row = 1; row < plain.Rows(); ++row)
                plain.rows[row].texts[0].clear();
        }
    }
}

} // namespace
