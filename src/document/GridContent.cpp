#include "document/GridContent.h"

#include "document/ctlGrid.h"
#include "document/rules/Vocabulary.h"

namespace GridContent {

VocabularyFont font(const ctlGrid &grid)
{
    const QFont used = grid.Font();
    return {used.family(), used.pointSizeF(), used.bold(), used.italic(), grid.ForeColor()};
}

Vocabulary read(const ctlGrid &grid)
{
    Vocabulary vocabulary;
    vocabulary.font = font(grid);
    vocabulary.columnWidths = {grid.ColWidth(0), grid.ColWidth(1), grid.ColWidth(2)};
    const int rows = grid.Rows();
    vocabulary.reserve(rows);
    for (int row = 0; row < rows; ++row)
        vocabulary.append(grid.word(row, 1), grid.word(row, 2), grid.RowHeight(row));
    return vocabulary;
}

void applyFont(ctlGrid &grid, const VocabularyFont &wanted)
{
    grid.setGridFont(wanted.toFont());
    grid.setForeColor(wanted.color);
}

void fill(ctlGrid &grid, Vocabulary &&vocabulary)
{
    // Without the pair of language names the grid would have no row to write in.
    if (vocabulary.rows() == 0)
        vocabulary.append(grid.TextMatrix(0, 1), grid.TextMatrix(0, 2));
    vocabulary.append({}, {});
    fillAll(grid, std::move(vocabulary));
    grid.setRowHeight(grid.Rows() - 1, -1); // as the font wants it
}

void fillAll(ctlGrid &grid, Vocabulary &&vocabulary)
{
    grid.setRedraw(false);
    if (vocabulary.font)
        applyFont(grid, *vocabulary.font);
    if (vocabulary.columnWidths) {
        for (int col = 0; col < 3; ++col)
            grid.setColWidth(col, (*vocabulary.columnWidths)[size_t(col)]);
    }
    grid.setWords(std::move(vocabulary.first), std::move(vocabulary.second), std::move(vocabulary.heights));
    grid.setRedraw(true);
}

} // namespace GridContent
