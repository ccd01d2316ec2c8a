#pragma once

#include "services/rules/GridSelection.h"

#include <QString>

/// What a document window decides about its grid without drawing it.
namespace GridRules {

struct Cell
{
    int row;
    int col;
    bool wrapped = false; ///< the walk went round the end: the row is to be scrolled to the top
    bool operator==(const Cell &) const = default;
};

/// Where Enter leads from a cell: through both languages of a row, then to the next row, from the last row round to the
/// first one. rows counts the header row. In any other column nothing moves.
Cell afterEnter(int row, int col, int rows);
/// The same walk backwards, for Shift+Enter.
Cell afterShiftEnter(int row, int col, int rows);

/// The height in twips that a row takes for a text of the given size (twips) in a column of the given width: taller
/// when the text needs more than the row gives, never smaller than it is.
int grownRowHeight(int textWidth, int textHeight, int colWidth, int rowHeight);

/// The height in twips of rows that nobody has set one for, for a font of the given height (twips).
int defaultRowHeight(int textHeight);

/// The cells that a clipboard text of so many rows and columns takes when it is pasted into a selection. Into a single
/// cell, and into a selection that reaches the last row, it goes as far as it reaches, to the right up to the second
/// language, but not beyond the rows that a file may hold; any other selection is not left. rows counts the header row.
GridSelection pastedCells(const GridSelection &selection, int textRows, int textColumns, int rows);

/// What the status bar tells when only these cells of the text were pasted: "100 of 300 rows pasted". Empty when the
/// whole text was.
QString pastedPart(const GridSelection &pasted, int textRows, int textColumns);

/// The cell reference of a selection, with a leading blank: " A5" or " A5:B7".
QString cellReference(const GridSelection &selection);

} // namespace GridRules
