#include "document/rules/GridRules.h"

#include "document/rules/Vocabulary.h"
#include "resources/StringTable.h"

#include <QChar>

#include <cmath>

namespace {

constexpr int Columns = 2;
constexpr int RowsPasted = 14040;
constexpr int ColumnsPasted = 14041;
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

GridSelection pastedCells(const GridSelection &selection, int textRows, int textColumns, int rows)
{
    const bool single = selection.rowCount() == 1 && selection.colCount() == 1;
    const bool grows = single || selection.bottom() >= rows - 1;
    const int bottom = std::max(selection.top(), std::min(selection.top() + textRows, Vocabulary::MostRows) - 1);
    const int right = selection.left() + textColumns - 1;
    return {selection.top(), selection.left(), grows ? bottom : std::min(bottom, selection.bottom()),
            std::min(right, grows ? Columns : selection.right())};
}

QString pastedPart(const GridSelection &pasted, int textRows, int textColumns)
{
    const bool allRows = pasted.rowCount() == textRows;
    const bool allColumns = pasted.colCount() == textColumns;
    if (allRows && allColumns)
        return {};
    QString rows = resText(RowsPasted).arg(pasted.rowCount()).arg(textRows);
    const QString columns = resText(ColumnsPasted).arg(pasted.colCount()).arg(textColumns);
    if (allColumns)
        return rows;
    return allRows ? columns : rows + QStringLiteral(", ") + columns;
}

QString cellReference(const GridSelection &selection)
{
    QString text = QStringLiteral(" ") + cellName(selection.left(), selection.top());
    if (selection.rowCount() > 1 || selection.colCount() > 1)
        text += QStringLiteral(":") + cellName(selection.right(), selection.bottom());
    return text;
}

} // namespace GridRules
