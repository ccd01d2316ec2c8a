#include "widgets/FlexGrid.h"
#include "widgets/FlexGridCellText.h"
#include "widgets/FlexGridColours.h"
#include "widgets/FlexGridView.h"

#include <cmath>

namespace {

double lightness(const QColor &colour)
{
    return colour.lightnessF();
}

/// A grid of large cells that is looked at pixel by pixel.
class PaintedGrid : public ::testing::Test
{
protected:
    PaintedGrid()
    {
        grid.setRows(4);
        grid.setCols(3);
        grid.setRowHeight(-1, 600);
        grid.setColWidth(-1, 1500);
        grid.setBorderStyle(0);
        grid.setFocusRect(0);
        grid.setHighLight(0);
        grid.resize(320, 200);
        grid.show();
    }

    QImage image(int row, int col) { return grid.grab(grid.hwndGrid()->cellRect(row, col)).toImage(); }
    /// The first and last column of a cell's picture in which something other than its ground is drawn.
    std::pair<int, int> inkOf(int row, int col)
    {
        const QImage cell = image(row, col);
        const QRgb ground = cell.pixel(1, 1);
        std::pair<int, int> ink{cell.width(), -1};
        for (int x = 1; x < cell.width() - 2; ++x) {
            for (int y = 1; y < cell.height() - 2; ++y) {
                if (cell.pixel(x, y) != ground) {
                    ink.first = std::min(ink.first, x);
                    ink.second = std::max(ink.second, x);
                }
            }
        }
        return ink;
    }
    QColor groundAt(int row, int col) { return image(row, col).pixelColor(2, 2); }

    FlexGrid grid;
};

} // namespace

TEST_F(PaintedGrid, TextsStandWhereTheirReadersLook)
{
    struct Case
    {
        const char *text;
        int alignment;
        bool left;
    };
    for (const Case &c : {Case{"ab", 1, true}, Case{"ab", 7, false}, Case{"ab", 9, true}, Case{"12", 9, false},
                          Case{"\u05d0\u05d1", 1, false}, Case{"\u0628\u064a\u062a", 9, false}}) {
        grid.setTextMatrix(1, 1, QString::fromUtf8(c.text));
        grid.setColAlignment(1, c.alignment);
        const auto [first, last] = inkOf(1, 1);
        EXPECT_EQ(first < 8, c.left) << c.text;
        EXPECT_EQ(last > 90, !c.left) << c.text;
    }
}

TEST_F(PaintedGrid, RowNumbersAreShownWhole)
{
    grid.setRows(12346);
    grid.setRowNumbers(true);
    grid.setColWidth(0, 340);
    const auto width = [this] { return grid.hwndGrid()->cellRect(1, 0).width(); };
    const double number = QFontMetricsF(grid.Font()).horizontalAdvance(QStringLiteral("12345"));
    EXPECT_GT(width(), number);
    EXPECT_LT(width(), number + 8);
    EXPECT_EQ(grid.ColWidth(0), 340) << "what is stored stays";
    const int before = width();
    QFont larger = grid.Font();
    larger.setPointSizeF(2 * larger.pointSizeF());
    grid.setGridFont(larger);
    EXPECT_GT(width(), before);
    grid.setColWidth(0, 0);
    EXPECT_EQ(width(), 0) << "hidden";
}

TEST_F(PaintedGrid, FirstLinesAreShownWhenNotAllFit)
{
    const QFontMetricsF metrics(grid.Font());
    const FlexGridCellText::Setting setting{QStringLiteral("one two three four five six"), grid.Font(),
                                            Qt::AlignLeft | Qt::AlignVCenter, true};
    const double width = metrics.horizontalAdvance(QStringLiteral("three four"));
    EXPECT_NEAR(FlexGridCellText::heightFor(width, setting) / metrics.height(), 3, 0.5);
    QImage lines(200, int(std::ceil(metrics.height() * 1.6)), QImage::Format_RGB32);
    lines.fill(Qt::white);
    QPainter painter(&lines);
    FlexGridCellText::draw(painter, QRectF(0, 0, width, lines.height()), setting);
    painter.end();
    const int half = lines.height() - int(metrics.height() / 4);
    for (int x = 0; x < lines.width(); ++x)
        EXPECT_EQ(lines.pixelColor(x, half), QColor(Qt::white)) << "no half line below the first";
}

TEST_F(PaintedGrid, SelectionUsesItsColoursAsHighLightSays)
{
    grid.setBackColorSel(0x0000FF);
    grid.Select(1, 1, 2, 1);
    EXPECT_EQ(groundAt(2, 1), grid.palette().base().color());
    grid.setHighLight(1);
    EXPECT_EQ(groundAt(2, 1), QColor(Qt::red));
    EXPECT_EQ(groundAt(1, 1), QColor(Qt::red));
    EXPECT_NE(groundAt(2, 2), QColor(Qt::red));
    grid.setFocusRect(2);
    EXPECT_NE(groundAt(1, 1), QColor(Qt::red)) << "the focus rectangle marks the current cell";
}

TEST_F(PaintedGrid, CellColoursAndPicturesAreDrawn)
{
    grid.Select(1, 1, 1, 1);
    grid.setCellBackColor(0x00FF00);
    EXPECT_EQ(groundAt(1, 1), QColor(Qt::green));
    QPixmap dot(10, 10);
    dot.fill(Qt::blue);
    grid.setCellPicture(dot);
    grid.setCellPictureAlignment(8);
    EXPECT_EQ(image(1, 1).pixelColor(94, 34), QColor(Qt::blue));
    EXPECT_EQ(groundAt(1, 1), QColor(Qt::green));
}

TEST_F(PaintedGrid, EqualNeighboursMergeAsMarked)
{
    for (int row = 1; row < 4; ++row) {
        grid.setTextMatrix(row, 1, QStringLiteral("same"));
        grid.setTextMatrix(row, 2, row < 3 ? QStringLiteral("x") : QStringLiteral("y"));
    }
    // a line stands below a cell that ends there
    const auto endsHere = [&](int row, int col) {
        const QImage cell = image(row, col);
        return cell.pixel(cell.width() / 2, cell.height() - 1) != cell.pixel(2, 2);
    };
    grid.setMergeCol(1, true);
    EXPECT_TRUE(endsHere(1, 1));
    grid.setMergeCells(FlexGridLook::FreeMerging);
    EXPECT_FALSE(endsHere(1, 1));
    EXPECT_FALSE(endsHere(2, 1));
    EXPECT_TRUE(endsHere(3, 1));
    EXPECT_TRUE(endsHere(1, 2)) << "not marked";
    grid.setMergeCol(2, true);
    EXPECT_FALSE(endsHere(1, 2));
    grid.setTextMatrix(2, 1, QStringLiteral("other"));
    EXPECT_FALSE(endsHere(1, 2));
    grid.setMergeCells(FlexGridLook::RestrictCols);
    EXPECT_TRUE(endsHere(1, 2)) << "the cells to the left differ";
    grid.setMergeCells(FlexGridLook::FreeMerging);
    grid.setTextMatrix(1, 2, grid.TextMatrix(1, 1));
    grid.setMergeRow(1, true);
    const QImage cell = image(1, 1);
    EXPECT_EQ(cell.pixel(cell.width() - 1, 5), cell.pixel(2, 5)) << "merged to the side";
}

TEST_F(PaintedGrid, PicturesOfTheGridFollowPictureType)
{
    EXPECT_GT(grid.Picture().depth(), 1);
    grid.setPictureType(1);
    EXPECT_EQ(grid.Picture().depth(), 1);
}

TEST(FlexGridColoursTest, TextsStayReadableOnEveryPalette)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Text, QColor(10, 10, 10));
    const int systemColours[] = {int(0x80000005U), int(0x80000008U), int(0x8000000FU), int(0x800000FFU)};
    for (const QPalette &palette : {dark, light}) {
        const QColor base = palette.base().color();
        for (const int value : systemColours)
            EXPECT_EQ(FlexGridColours::text(value, palette, base), palette.text().color()) << value;
    }
    EXPECT_EQ(FlexGridColours::text(0, dark, dark.base().color()), dark.text().color());
    EXPECT_EQ(FlexGridColours::text(0, light, Qt::white), QColor(Qt::black));
    EXPECT_EQ(FlexGridColours::text(0x0000FF, light, Qt::white), QColor(Qt::red));
    EXPECT_GT(lightness(FlexGridColours::text(0x800000, dark, dark.base().color())), 0.4) << "navy is lightened";
    EXPECT_EQ(FlexGridColours::ground(0x8000000D, light), light.highlight().color());
}
