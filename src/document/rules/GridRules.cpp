#include "document/rules/GridRules.h"

#include "document/rules/Vocabulary.h"

#include <QChar>

#include <cmath>

namespace {

constexpr int LineMargin = 30; ///< twips above and below a line together

QString cellName(int col, int row)
{
    return QChar(64 + col) + QString::number(row);
}

} // namespace

namespace GridRules {

Cell afterEnter(int row, int col, int rows)
{
    if (col == 1)
        return {row, 2};
    if (col != 2)
        return {row, col};
    if (row >= rows - 1)
        return {1, 1, true};
    return {row + 1, 1};
}

Cell afterShiftEnter(int row, int col, int rows)
{
    if (col == 2)
        return {row, 1};
    if (col != 1)
        return {row, col};
    if (row <= 1)
        return {rows - 1, 2, true};
    return {row - 1, 2};
}

int grownRowHeight(int textWidth, int textHeight, int colWidth, int rowHeight)
{
    if (colWidth <= 0 || textWidth <= colWidth || 2 * textHeight <= rowHeight)
        return rowHeight;
    return int(std::lround(2.0 * textWidth / colWidth * textHeight));
}

int defaultRowHeight(int textHeight)
{
    return std::max(Vocabulary::DefaultRowHeight, textHeight + LineMargin);
}

QString cellReference(const GridSelection &selection)
{
    QString text = QStringLiteral(" ") + cellName(selection.left(), selection.top());
    if (selection.rowCount() > 1 || selection.colCount() > 1)
        text += QStringLiteral(":") + cellName(selection.right(), selection.bottom());
    return text;
}

QString fileTitle(const QString &path)
{
    QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    name.chop(4);
    return name;
}

} // namespace GridRules
