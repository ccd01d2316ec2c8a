#pragma once

#include <QString>

#include <vector>

/// The rules for texts that enter and leave cells.
namespace FlexGridText {

/// The text with every line break (CR LF, CR, LF, U+2028, U+2029) turned into one blank. This is the one place that
/// keeps line breaks out of cells.
QString withoutLineBreaks(const QString &text);

/// A text of cells taken apart: tabs separate the cells of a row; CR, LF and CR LF all separate rows.
/// lastRowMayBeEmpty: a separator at the very end is followed by an empty row (so read what Clip returned); otherwise
/// it only ends the last row. The empty text is one row with one empty cell.
std::vector<std::vector<QString>> rowsOf(const QString &clip, bool lastRowMayBeEmpty);

} // namespace FlexGridText
