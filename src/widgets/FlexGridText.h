#pragma once

#include <QString>

#include <functional>

/// The rules for texts that enter and leave cells.
namespace FlexGridText {

/// The text with every line break (CR LF, CR, LF, U+2028, U+2029) turned into one blank. This is the one place that
/// keeps line breaks out of cells.
QString withoutLineBreaks(const QString &text);

/// How many rows a text of cells has and how many cells its longest row.
struct Extent
{
    int rows = 0;
    int cols = 0;
    bool operator==(const Extent &) const = default;
};

/// Takes a text of cells apart and hands over each cell with its row and column, counted from 0: tabs separate the
/// cells of a row; CR, LF and CR LF all separate rows. lastRowMayBeEmpty: a separator at the very end is followed by an
/// empty row (so read what Clip returned); otherwise it only ends the last row. The empty text is one empty cell.
Extent readCells(const QString &clip, bool lastRowMayBeEmpty,
                 const std::function<void(int row, int col, const QString &text)> &take);

} // namespace FlexGridText
