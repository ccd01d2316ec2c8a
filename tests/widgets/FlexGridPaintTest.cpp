#include "widgets/grid/FlexGrid.h"

#include "services/desktop/Contrast.h"
#include "support/Pixels.h"
#include "widgets/grid/FlexGridColours.h"
#include "widgets/grid/FlexGridView.h"

/// A grid of large cells that is looked at pixel by pixel.
struct PaintedGrid : ::testing::Test
{
    PaintedGrid()
    {
        grid.setRows(4);
        grid.setCols(3);
        grid.setRowHeight(-1, 600);
        grid.setColWidth(-1, 1500);
        grid.setBorderStyle(0);
        grid.setFocusRect(0);
        grid.setHighLight(0);
        QPalette palette = grid.palette();
        palette.setColor(QPalette::Light, Qt::red);
        grid.setPalette(palette);
        grid.resize(320, 200);
        grid.show();
    }

    QImage image(int row, int col) { return grid.grab(grid.hwndGrid()->cellRect(row, col)).toImage(); }
    /// The part of a cell's picture in which something other than its ground is drawn.
    QRect inkOf(int row, int col)
    {
        const QImage cell = image(row, col);
        return ::inkOf(cell.copy(1, 1, cell.width() - 3, cell.height() - 3), cell.pixelColor(1, 1)).translated(1, 1);
    }

    FlexGrid grid;
};

TEST_F(PaintedGrid, TextsStandWhereTheirReadersLook)
{
    const std::tuple<const char *, int, bool, int> cases[] = {{"ab", 1, true, 1},
                                                              {"ab", 7, false, 1},
                                                              {"ab", 9, true, 1},
                                                              {"12", 9, false, 1},
                                                              {"\u05d0\u05d1", 1, false, 1},
                                                              {"\u0628\u064a\u062a", 9, false, 1},
                                                              {"ab", 0, true, 0},
                                                              {"ab", 8, false, 2}};
    for (const auto &[text, alignment, left, third] : cases) {
        grid.setTextMatrix(1, 1, text);
        grid.setColAlignment(1, alignment);
        const QRect ink = inkOf(1, 1);
        EXPECT_TRUE((ink.left() < 8) == left && (ink.right() > 90) == !left && ink.center().y() * 3 / 40 == third)
            << text;
        for (const int style : {1, 2, 3, 4, 0}) { // raised and inset, which throw light to one side
            grid.setTextStyle(style);
            const int step = style == 0 ? 0 : style % 2 ? -1 : 1;
            EXPECT_EQ(inkOf(1, 1), (ink | ink.translated(step, step)) & QRect(1, 1, 97, 37)) << style;
        }
    }
}

TEST_F(PaintedGrid, FirstLinesAreShownWhenNotAllFit)
{
    const double line = QFontMetricsF(grid.Font()).height();
    grid.setWordWrap(true);
    grid.setTextMatrix(1, 1, "one two three four five six seven eight");
    EXPECT_NEAR(grid.fittingRowHeight(1) / 15, 3 * line + 2, 2);
    grid.setRowHeight(1, int(line * 1.6 * 15));
    EXPECT_LT(inkOf(1, 1).height(), line) << "no half line below the first";
}

TEST_F(PaintedGrid, TextsAreCutAtEverySizeWhereTheyAreAtTheNormalOneAndShowAllOfThemselvesAsToolTip)
{
    const QFontMetricsF metrics(grid.Font());
    grid.resize(500, 300);
    grid.setRows(9);
    grid.setRowHeight(-1, 300);
    grid.setWordWrap(true);
    QString word;
    for (int row = 1; row < 9; ++row, word += "il") // what just fits
        grid.setTextMatrix(
            row, 1, word + QString(int((93 - metrics.horizontalAdvance(word)) / metrics.horizontalAdvance("m")), 'm'));
    const QString cut = "<b> & two three four five six seven";
    grid.setTextMatrix(2, 1, cut);
    grid.setTextMatrix(4, 1, "one two three four");
    grid.setRowHeight(4, grid.fittingRowHeight(4));
    const int fitting = grid.fittingRowHeight(2);
    const auto toolTip = [this](int row) {
        grid.setTopRow(row);
        const QPoint at = grid.hwndGrid()->cellRect(row, 1).topLeft() + QPoint(2, 2);
        QHelpEvent asked(QEvent::ToolTip, at, grid.hwndGrid()->viewport()->mapToGlobal(at));
        QEvent newWindow(QEvent::WindowActivate); // before which a tool tip goes at once
        QCoreApplication::sendEvent(&grid, &newWindow);
        QCoreApplication::sendEvent(grid.hwndGrid()->viewport(), &asked);
        return QToolTip::isVisible() ? QToolTip::text() : "";
    };
    for (const int percent : {50, 60, 70, 80, 90, 110, 125, 175, 200, 250, 300, 400, 100}) {
        grid.setZoom(percent);
        EXPECT_EQ(grid.fittingRowHeight(2), fitting) << percent;
        const double points = QFontInfo(QToolTip::font()).pointSizeF() * percent / 100;
        const QString style = percent == 100 ? "" : QString(" style='font-size:%1pt'").arg(points);
        for (int row = 1; row < 9; ++row)
            EXPECT_EQ(toolTip(row), row == 2 ? "<p dir='ltr'" + style + ">" + cut.toHtmlEscaped() + "</p>" : "") << row;
    }
    grid.setWordWrap(false);
    EXPECT_EQ(toolTip(4), "<p dir='ltr'>one two three four</p>");
}

/// Grids of two by two small cells without letters, drawn with a sign for each colour: w b cells, f fixed ones, s
/// selected, o focus, + x lines, L D light and dark edges, r a picture and . what lies beyond.
TEST(DrawnGrid, LinesSelectionFocusMergesAndPicturesStandInTheirPlaces)
{
    QPalette palette(Qt::gray);
    palette.setColor(QPalette::Light, QColor(1, 1, 1));
    palette.setColor(QPalette::Dark, QColor(2, 2, 2));
    palette.setColor(QPalette::Text, Qt::black);
    const QHash<QRgb, char> signs{{0xFFFFFFFF, 'w'}, {0xFF0000FF, 'b'}, {0xFF808000, 'f'}, {0xFF00FF00, 's'},
                                  {0xFF00FFFF, '+'}, {0xFFFF00FF, 'x'}, {0xFF010101, 'L'}, {0xFF020202, 'D'},
                                  {0xFFFF0000, 'r'}, {0xFFFFFF00, '.'}};
    QPixmap dot(2, 2);
    dot.fill(Qt::red);
    const std::pair<QString, std::function<void(FlexGrid &)>> looks[] = {
        {"", [](FlexGrid &) {}},
        {"RightToLeft=1 GridLines=2 GridLinesFixed=99 HighLight=0", [](FlexGrid &) {}},
        {"GridLineWidth=2 FocusRect=0 HighLight=2",
         [&dot](FlexGrid &grid) {
             grid.setRowHeight(2, 0);
             grid.setCellBackColor(0xFF0000);
             grid.setCellPicture(dot);
             grid.setCellPictureAlignment(8);
         }},
        {"FocusRect=2",
         [](FlexGrid &grid) {
             grid.setMergeCells(1);
             grid.setMergeRow(2, true);
             grid.setClip(" \r ");
             grid.setTextMatrix(2, 2, " ");
         }},
        {"GridLines=3 GridLinesFixed=0 HighLight=2", [](FlexGrid &grid) { grid.setCellForeColor(0); }},
        {"FocusRect=0",
         [](FlexGrid &grid) {
             grid.setMergeCells(3);
             grid.setMergeCol(1, true);
             grid.setMergeCol(2, true);
             grid.setClip(" \r ");
             grid.Select(1, 2, 2, 2);
             grid.setClip(" \r  ");
         }},
        {"FillStyle=1",
         [&dot](FlexGrid &grid) {
             grid.setCellPicture(dot);
             grid.setCellPictureAlignment(3);
             grid.Select(1, 2, 2, 2);
             grid.setCellBackColor(0xFF0000);
             grid.setCellPicture(dot);
             grid.setCellPictureAlignment(4);
             grid.Select(0, 0, 0, 0);
         }},
        {"RightToLeft=1",
         [&dot](FlexGrid &grid) {
             grid.setMergeCells(2);
             grid.setMergeRow(1, true);
             grid.setMergeRow(2, true);
             grid.Select(1, 1, 2, 2);
             grid.setClip(" \t  \r \t ");
             grid.Select(2, 1, 2, 1);
             grid.setCellPicture(dot);
             grid.setCellPictureAlignment(6);
         }},
    };
    const QString all = "Rows=3 Cols=3 BorderStyle=0 BackColor=0xFFFFFF BackColorFixed=0x008080 BackColorSel=0x00FF00 "
                        "GridColor=0xFFFF00 GridColorFixed=0xFF00FF BackColorBkg=0x00FFFF ";
    QStringList drawn;
    for (int i = 0; i < 8; ++i) {
        const auto &[properties, change] = looks[i];
        FlexGrid grid;
        grid.setPalette(palette);
        for (const QString &each : (all + properties).split(' ', Qt::SkipEmptyParts))
            grid.setProperty(each.section('=', 0, 0).toLatin1().constData(), each.section('=', 1).toInt(nullptr, 0));
        grid.setRowHeight(-1, 75);
        grid.setColWidth(-1, 105);
        grid.Select(1, 1, 2, 1);
        change(grid);
        grid.resize(23, 16);
        const QImage image = grid.grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            QString line;
            for (int x = 0; x < image.width(); ++x)
                line += signs.value(image.pixel(x, y), 'o');
            const int at = y + i / 4 * image.height();
            if (at == drawn.size())
                drawn.append(line);
            else
                drawn[at] += ' ' + line;
        }
    }
    const char *expected =
        "ffffffxffffffxffffffx.. ..DLLLLLLDLLLLLLDLLLLLL fffffxxfffffxxfffffxx.. ffffffxffffffxffffffx..\n"
        "ffffffxffffffxffffffx.. ..DfffffLDfffffLDfffffL fffffxxfffffxxfffffxx.. ffffffxffffffxffffffx..\n"
        "ffffffxffffffxffffffx.. ..DfffffLDfffffLDfffffL fffffxxfffffxxfffffxx.. ffffffxffffffxffffffx..\n"
        "ffffffxffffffxffffffx.. ..DfffffLDfffffLDfffffL xxxxxxxxxxxxxxxxxxxxx.. ffffffxffffffxffffffx..\n"
        "xxxxxxxxxxxxxxxxxxxxx.. ..DDDDDDDDDDDDDDDDDDDDD xxxxxxxxxxxxxxxxxxxxx.. xxxxxxxxxxxxxxxxxxxxx..\n"
        "ffffffxoooooo+wwwwww+.. ..LDDDDDDLLLLLLLDLLLLLL fffffxxbbbbb++wwwww++.. ffffffxoooooo+wwwwww+..\n"
        "ffffffxowwwwo+wwwwww+.. ..LwwwwwDLowwwwLDfffffL fffffxxbbbrr++wwwww++.. ffffffxoooooo+wwwwww+..\n"
        "ffffffxowwwwo+wwwwww+.. ..LwwwwwDLowwwwLDfffffL fffffxxbbbrr++wwwww++.. ffffffxoooooo+wwwwww+..\n"
        "ffffffxoooooo+wwwwww+.. ..LwwwwwDLoooooLDfffffL xxxxxxx++++++++++++++.. ffffffxoooooo+wwwwww+..\n"
        "xxxxxxx++++++++++++++.. ..LLLLLLLLLLLLLLDDDDDDD xxxxxxx++++++++++++++.. xxxxxxx++++++++++++++..\n"
        "ffffffxssssss+wwwwww+.. ..LDDDDDDLDDDDDDDLLLLLL ....................... ffffffxsssssssssssss+..\n"
        "ffffffxssssss+wwwwww+.. ..LwwwwwDLwwwwwDDfffffL ....................... ffffffxsssssssssssss+..\n"
        "ffffffxssssss+wwwwww+.. ..LwwwwwDLwwwwwDDfffffL ....................... ffffffxsssssssssssss+..\n"
        "ffffffxssssss+wwwwww+.. ..LwwwwwDLwwwwwDDfffffL ....................... ffffffxsssssssssssss+..\n"
        "xxxxxxx++++++++++++++.. ..LLLLLLLLLLLLLLDDDDDDD ....................... xxxxxxx++++++++++++++..\n"
        "....................... ....................... ....................... .......................\n"
        "fffffffffffffffffffff.. ffffffxffffffxffffffx.. ooooooxffffffxffffffx.. ..xffffffxffffffxffffff\n"
        "fffffffffffffffffffff.. ffffffxffffffxffffffx.. offffoxffffffxffffffx.. ..xffffffxffffffxffffff\n"
        "fffffffffffffffffffff.. ffffffxffffffxffffffx.. offffoxffffffxffffffx.. ..xffffffxffffffxffffff\n"
        "fffffffffffffffffffff.. ffffffxffffffxffffffx.. ooooooxffffffxffffffx.. ..xffffffxffffffxffffff\n"
        "fffffffffffffffffffff.. xxxxxxxxxxxxxxxxxxxxx.. xxxxxxxxxxxxxxxxxxxxx.. ..xxxxxxxxxxxxxxxxxxxxx\n"
        "fffffffooooooDLLLLLLD.. ffffffxwwwwww+ssssss+.. ffffffxwwrrww+bbbbbb+.. ..+wwwwww+wwwwwwxffffff\n"
        "fffffffowwwwoDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwrrww+bbrrbb+.. ..+wwwwww+wwwwwwxffffff\n"
        "fffffffowwwwoDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwwwww+bbrrbb+.. ..+wwwwww+wwwwwwxffffff\n"
        "fffffffooooooDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwwwww+bbbbbb+.. ..+wwwwww+wwwwwwxffffff\n"
        "fffffffDDDDDDDDDDDDDD.. xxxxxxxwwwwww++++++++.. xxxxxxx++++++++++++++.. ..++++++++++++++xxxxxxx\n"
        "fffffffLLLLLLDLLLLLLD.. ffffffxwwwwww+ssssss+.. ffffffxwwrrww+bbbbbb+.. ..+wwwwww+ooooooxffffff\n"
        "fffffffLwwwwwDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwrrww+bbrrbb+.. ..+wwwwww+owwwroxffffff\n"
        "fffffffLwwwwwDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwwwww+bbrrbb+.. ..+wwwwww+owwwwoxffffff\n"
        "fffffffLwwwwwDLwwwwwD.. ffffffxwwwwww+ssssss+.. ffffffxwwwwww+bbbbbb+.. ..+wwwwww+ooooooxffffff\n"
        "fffffffDDDDDDDDDDDDDD.. xxxxxxx++++++++++++++.. xxxxxxx++++++++++++++.. ..++++++++++++++xxxxxxx\n"
        "....................... ....................... ....................... .......................";
    EXPECT_EQ(drawn.join('\n').toStdString(), expected);
}

TEST(FlexGridColoursTest, TextsStayReadableOnEveryPalette)
{
    const QPalette dark(QColor(230, 230, 230), Qt::gray, {}, {}, {}, QColor(230, 230, 230), QColor(30, 30, 30));
    const QPalette light(QColor(10, 10, 10), Qt::white, {}, {}, {}, QColor(10, 10, 10), Qt::white);
    const auto text = [](unsigned colour, const QPalette &palette) {
        return FlexGridColours::text(int(colour), palette, palette.base().color());
    };
    for (const QPalette &palette : {dark, light}) {
        for (const unsigned value : {0x80000005U, 0x80000008U, 0x8000000FU, 0x800000FFU})
            EXPECT_EQ(text(value, palette), palette.text().color()) << value;
    }
    EXPECT_EQ(text(0, dark), dark.text().color());
    EXPECT_EQ(text(0, light), QColor(Qt::black));
    EXPECT_EQ(text(0x0000FF, light), QColor(Qt::red));
    for (const unsigned value : {0x800000U, 0x0000FFU, 0x808080U, 0x101010U})
        EXPECT_GE(Contrast::between(text(value, dark), dark.base().color()), 4.5) << value;
    EXPECT_EQ(FlexGridColours::ground(0x8000000D, light), light.highlight().color());
}
