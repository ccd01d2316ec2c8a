#pragma once

#include <QString>

#include <functional>

/// The rules for texts that enter and leave cells.
namespace FlexGridText {

/// Takes a text of cells apart and hands over each cell with its row and column, counted from 0: tabs separate the
/// cells of a row; CR, LF and CR LF all separate rows, and one at the end adds none. The empty text is one empty cell.
void readCells(const QString &clip, const std::function<void(int row, int col, const QString &text)> &take);

} // namespace FlexGridText
