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
    QPixmap dot(1, 1);
    dot.fill(Qt::red);
    const auto dotted = [&dot](FlexGrid &g, int alignment) {
        g.setCellPicture(dot);
        g.setCellPictureAlignment(alignment);
    };
    const std::pair<QString, std::function<void(FlexGrid &)>> looks[] = {
        {"", [](FlexGrid &) {}},
        {"RightToLeft=1 GridLines=2 GridLinesFixed=99 HighLight=0", [](FlexGrid &) {}},
        {"GridLineWidth=2 FocusRect=0 HighLight=2",
         [&](FlexGrid &g) { g.setRowHeight(2, 0), g.setCellBackColor(0xFF0000), dotted(g, 8); }},
        {"FocusRect=2",
         [](FlexGrid &g) {
             g.setMergeCells(1), g.setMergeRow(2, true);
             g.setClip(" \r "), g.setTextMatrix(2, 2, " ");
         }},
        {"GridLines=3 GridLinesFixed=0 HighLight=2", [](FlexGrid &g) { g.setCellForeColor(0); }},
        {"FocusRect=0",
         [](FlexGrid &g) {
             g.setMergeCells(3), g.setMergeCol(1, true), g.setMergeCol(2, true);
             g.setClip(" \r "), g.Select(1, 2, 2, 2), g.setClip(" \r  ");
         }},
        {"FillStyle=1",
         [&](FlexGrid &g) {
             dotted(g, 3), g.Select(1, 2, 2, 2), dotted(g, 4);
             g.setCellBackColor(0xFF0000), g.Select(0, 0, 0, 0);
         }},
        {"RightToLeft=1 HighLight=0 FocusRect=0",
         [&](FlexGrid &g) {
             g.setMergeCells(2), g.setMergeRow(1, true), g.setMergeRow(2, true);
             g.Select(1, 1, 2, 2), g.setClip(" \t  \r \t "), g.Select(2, 1, 2, 1), dotted(g, 6);
         }},
    };
    const QString all = "Rows=3 Cols=3 BorderStyle=0 BackColor=0xFFFFFF BackColorFixed=0x008080 BackColorSel=0x00FF00 "
                        "GridColor=0xFFFF00 GridColorFixed=0xFF00FF BackColorBkg=0x00FFFF ";
    QStringList drawn(16);
    for (const auto &[properties, change] : looks) {
        FlexGrid grid;
        grid.setPalette(palette);
        for (const QString &each : (all + properties).split(' ', Qt::SkipEmptyParts))
            grid.setProperty(each.section('=', 0, 0).toLatin1().constData(), each.section('=', 1).toInt(nullptr, 0));
        grid.setRowHeight(-1, 75);
        grid.setColWidth(-1, 60);
        grid.Select(1, 1, 2, 1);
        change(grid);
        grid.resize(14, 16);
        const QImage image = grid.grab().toImage();
        for (int y = 0; y < 16; ++y) {
            drawn[y] += ' ';
            for (int x = 0; x < 14; ++x)
                drawn[y] += signs.value(image.pixel(x, y), 'o');
        }
    }
    EXPECT_EQ((u'\n' + drawn.join('\n') + u'\n').toStdString(), R"(
 fffxfffxfffx.. ..DLLLDLLLDLLL ffxxffxxffxx.. fffxfffxfffx.. ffffffffffff.. fffxfffxfffx.. oooxfffxfffx.. ..xfffxfffxfff
 fffxfffxfffx.. ..DffLDffLDffL ffxxffxxffxx.. fffxfffxfffx.. ffffffffffff.. fffxfffxfffx.. ofoxfffxfffx.. ..xfffxfffxfff
 fffxfffxfffx.. ..DffLDffLDffL ffxxffxxffxx.. fffxfffxfffx.. ffffffffffff.. fffxfffxfffx.. ofoxfffxfffx.. ..xfffxfffxfff
 fffxfffxfffx.. ..DffLDffLDffL xxxxxxxxxxxx.. fffxfffxfffx.. ffffffffffff.. fffxfffxfffx.. oooxfffxfffx.. ..xfffxfffxfff
 xxxxxxxxxxxx.. ..DDDDDDDDDDDD xxxxxxxxxxxx.. xxxxxxxxxxxx.. ffffffffffff.. xxxxxxxxxxxx.. xxxxxxxxxxxx.. ..xxxxxxxxxxxx
 fffxooo+www+.. ..LDDDLLLLDLLL ffxxbb++ww++.. fffxooo+www+.. ffffoooDLLLD.. fffxwww+sss+.. fffxwrw+bbb+.. ..+www+wwwxfff
 fffxowo+www+.. ..LwwDLowLDffL ffxxbb++ww++.. fffxooo+www+.. ffffowoDLwwD.. fffxwww+sss+.. fffxwww+bbb+.. ..+www+wwwxfff
 fffxowo+www+.. ..LwwDLowLDffL ffxxbr++ww++.. fffxooo+www+.. ffffowoDLwwD.. fffxwww+sss+.. fffxwww+brb+.. ..+www+wwwxfff
 fffxooo+www+.. ..LwwDLooLDffL xxxx++++++++.. fffxooo+www+.. ffffoooDLwwD.. fffxwww+sss+.. fffxwww+bbb+.. ..+www+wwwxfff
 xxxx++++++++.. ..LLLLLLLLDDDD xxxx++++++++.. xxxx++++++++.. ffffDDDDDDDD.. xxxxwww+++++.. xxxx++++++++.. ..++++++++xxxx
 fffxsss+www+.. ..LDDDLDDDDLLL .............. fffxsssssss+.. ffffLLLDLLLD.. fffxwww+sss+.. fffxwrw+bbb+.. ..+www+wwrxfff
 fffxsss+www+.. ..LwwDLwwDDffL .............. fffxsssssss+.. ffffLwwDLwwD.. fffxwww+sss+.. fffxwww+bbb+.. ..+www+wwwxfff
 fffxsss+www+.. ..LwwDLwwDDffL .............. fffxsssssss+.. ffffLwwDLwwD.. fffxwww+sss+.. fffxwww+brb+.. ..+www+wwwxfff
 fffxsss+www+.. ..LwwDLwwDDffL .............. fffxsssssss+.. ffffLwwDLwwD.. fffxwww+sss+.. fffxwww+bbb+.. ..+www+wwwxfff
 xxxx++++++++.. ..LLLLLLLLDDDD .............. xxxx++++++++.. ffffDDDDDDDD.. xxxx++++++++.. xxxx++++++++.. ..++++++++xxxx
 .............. .............. .............. .............. .............. .............. .............. ..............
)");
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
