#include "widgets/grid/FlexGrid.h"

#include "services/desktop/Contrast.h"
#include "support/Pixels.h"
#include "widgets/grid/FlexGridCellText.h"
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
        grid.resize(320, 200);
        grid.show();
    }

    QImage image(int row, int col) { return grid.grab(grid.hwndGrid()->cellRect(row, col)).toImage(); }
    /// The first and last column of a cell's picture in which something other than its ground is drawn.
    std::pair<int, int> inkOf(int row, int col)
    {
        const QImage cell = image(row, col);
        const QRect ink = ::inkOf(cell.copy(cell.rect().adjusted(1, 1, -2, -2)), cell.pixelColor(1, 1));
        return {ink.isEmpty() ? cell.width() : ink.left() + 1, ink.isEmpty() ? -1 : ink.right() + 1};
    }

    FlexGrid grid;
};

TEST_F(PaintedGrid, TextsStandWhereTheirReadersLook)
{
    const std::tuple<const char *, int, bool> cases[] = {
        {"ab", 1, true},  {"ab", 7, false},           {"ab", 9, true},
        {"12", 9, false}, {"\u05d0\u05d1", 1, false}, {"\u0628\u064a\u062a", 9, false}};
    for (const auto &[text, alignment, left] : cases) {
        grid.setTextMatrix(1, 1, text);
        grid.setColAlignment(1, alignment);
        const auto [first, last] = inkOf(1, 1);
        EXPECT_EQ(first < 8, left) << text;
        EXPECT_EQ(last > 90, !left) << text;
    }
}

TEST_F(PaintedGrid, RaisedAndInsetTextsThrowLight)
{
    QPalette palette = grid.palette();
    palette.setColor(QPalette::Light, Qt::red);
    grid.setPalette(palette);
    grid.setTextMatrix(1, 1, "HE");
    const QImage flat = image(1, 1);
    const QRect letters =
        ::inkOf(flat.copy(1, 1, flat.width() - 3, flat.height() - 3), flat.pixelColor(1, 1)).translated(1, 1);
    QList<int> light;
    for (const int style : {1, 2, 3, 4}) {
        grid.setTextStyle(style);
        const QImage styled = image(1, 1);
        const int step = style % 2 ? -1 : 1;
        EXPECT_EQ(difference(styled, flat) | letters, letters | letters.translated(step, step)) << style;
        light.append(0);
        for (int i = 0; i < styled.width() * styled.height(); ++i)
            light.last() += 255 - styled.pixelColor(i % styled.width(), i / styled.width()).green();
    }
    EXPECT_TRUE(light[2] < light[0] && light[3] < light[1]) << "less of it";
}

TEST_F(PaintedGrid, RowNumbersAreShownWhole)
{
    grid.setRows(12346);
    grid.setRowNumbers(true);
    grid.setColWidth(0, 340);
    QFont font = grid.Font();
    for (const double size : {8.0, 16.0}) {
        font.setPointSizeF(size);
        grid.setGridFont(font);
        const double number = QFontMetricsF(font).horizontalAdvance("12345");
        EXPECT_NEAR(grid.hwndGrid()->cellRect(1, 0).width(), number + 4, 4);
    }
    EXPECT_EQ(grid.ColWidth(0), 340) << "what is stored stays";
    grid.setColWidth(0, 0);
    EXPECT_EQ(grid.hwndGrid()->cellRect(1, 0).width(), 0) << "hidden";
}

TEST_F(PaintedGrid, FirstLinesAreShownWhenNotAllFit)
{
    const QFontMetricsF metrics(grid.Font());
    const FlexGridCellText::Setting setting{"one two three four five six", grid.Font(),
                                            Qt::AlignLeft | Qt::AlignVCenter, true};
    const double width = metrics.horizontalAdvance("three four");
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

TEST_F(PaintedGrid, OnlyTextsThatAreCutShowAllOfThemselvesAsToolTip)
{
    const QString longText = QStringLiteral("<b> & more ").repeated(9);
    grid.setWordWrap(true);
    grid.setTextMatrix(1, 1, longText);
    grid.setTextMatrix(1, 2, "short");
    grid.setTextMatrix(2, 1, "three four five six seven");
    const auto toolTip = [this](int row, int col) {
        const QPoint at = grid.hwndGrid()->cellRect(row, col).center();
        QHelpEvent ask(QEvent::ToolTip, at, grid.hwndGrid()->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(grid.hwndGrid()->viewport(), &ask);
        return QToolTip::text();
    };
    EXPECT_EQ(toolTip(1, 2), "");
    EXPECT_EQ(toolTip(2, 1), "") << "on two lines";
    EXPECT_EQ(toolTip(1, 1), "<p dir='ltr'>" + longText.toHtmlEscaped() + "</p>");
    grid.setWordWrap(false);
    EXPECT_EQ(toolTip(2, 1), "<p dir='ltr'>three four five six seven</p>");
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
    const std::function<void(FlexGrid &)> looks[] = {
        [](FlexGrid &) {},
        [](FlexGrid &grid) {
            grid.setRightToLeft(true);
            grid.setGridLines(FlexGridLook::InsetLines);
            grid.setGridLinesFixed(99); // the last kind
            grid.setHighLight(0);
        },
        [&dot](FlexGrid &grid) {
            grid.setGridLineWidth(2);
            grid.setFocusRect(0);
            grid.setHighLight(2);
            grid.setRowHeight(2, 0);
            grid.setCellBackColor(0xFF0000);
            grid.setCellPicture(dot);
            grid.setCellPictureAlignment(8);
        },
        [](FlexGrid &grid) {
            grid.setFocusRect(2);
            grid.setMergeCells(1);
            grid.setMergeRow(2, true);
            grid.setTextMatrix(2, 1, " ");
            grid.setTextMatrix(2, 2, " ");
        },
        [](FlexGrid &grid) {
            grid.setGridLines(FlexGridLook::RaisedLines);
            grid.setGridLinesFixed(FlexGridLook::NoLines);
            grid.setHighLight(2); // and nothing has the focus
            grid.setCellForeColor(0);
        },
        [](FlexGrid &grid) {
            grid.setFocusRect(0);
            grid.setMergeCells(3);
            for (const int col : {1, 2}) {
                grid.setMergeCol(col, true);
                grid.setTextMatrix(1, col, " ");
                grid.setTextMatrix(2, col, col == 1 ? " " : "  ");
            }
            grid.Select(1, 2, 2, 2);
        },
        [&dot](FlexGrid &grid) {
            grid.setFillStyle(1);
            grid.setCellPicture(dot);
            grid.setCellPictureAlignment(3);
            grid.Select(1, 2, 2, 2);
            grid.setCellBackColor(0xFF0000);
            grid.setCellPicture(dot);
            grid.setCellPictureAlignment(4);
            grid.Select(0, 0, 0, 0);
        },
        [&dot](FlexGrid &grid) {
            grid.setMergeCells(2);
            grid.setMergeRow(1, true);
            grid.setMergeRow(2, true);
            for (const int col : {1, 2}) {
                grid.setTextMatrix(1, col, QString(col, ' '));
                grid.setTextMatrix(2, col, " ");
            }
            grid.Select(2, 1, 2, 1);
            grid.setCellPicture(dot);
            grid.setCellPictureAlignment(6);
            grid.setRightToLeft(true);
        },
    };
    QStringList drawn;
    for (const auto &look : looks) {
        FlexGrid grid;
        grid.setPalette(palette);
        grid.setRows(3);
        grid.setCols(3);
        grid.setRowHeight(-1, 75);
        grid.setColWidth(-1, 105);
        grid.setBorderStyle(0);
        for (const auto &[name, colour] : {std::pair("BackColor", 0xFFFFFF),
                                           {"BackColorFixed", 0x008080},
                                           {"BackColorSel", 0x00FF00},
                                           {"GridColor", 0xFFFF00},
                                           {"GridColorFixed", 0xFF00FF},
                                           {"BackColorBkg", 0x00FFFF}})
            grid.setProperty(name, colour);
        grid.Select(1, 1, 2, 1);
        look(grid);
        grid.resize(23, 16);
        const QImage image = grid.grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            QString line;
            for (int x = 0; x < image.width(); ++x)
                line += signs.value(image.pixel(x, y), 'o');
            const int at = y + int(&look - looks) / 4 * image.height();
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
