#include "widgets/grid/FlexGrid.h"

#include "services/desktop/Contrast.h"
#include "widgets/grid/FlexGridColours.h"
#include "widgets/grid/FlexGridView.h"

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
