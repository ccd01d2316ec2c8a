#include "print/GridSource.h"

#include "document/ctlGrid.h"
#include "print/rules/PrintSource.h"

#include <QFontInfo>

PrintSource GridSource::read(const ctlGrid &grid, const QString &caption)
{
    const QFont font = grid.Font();
    PrintSource source;
    source.Caption = caption;
    source.Font = {font.family(), qRound(QFontInfo(font).pointSizeF()), font.bold(), font.italic()};
    source.ForeColor = grid.ForeColor();
    for (int row = 0; row < grid.Rows(); ++row) {
        source.first.push_back(grid.word(row, 1));
        source.second.push_back(grid.word(row, 2));
    }
    return source;
}
