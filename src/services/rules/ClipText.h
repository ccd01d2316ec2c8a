#pragma once

#include <QString>

#include <vector>

/// The text of cells as it comes from the clipboard and goes there: tabs between the cells of a row, carriage returns
/// between rows.
namespace ClipText {

using Row = std::vector<QString>;

/// Rows and fields of a text from any program; the empty text is one empty cell. CR, LF and CR LF all separate rows. At
/// the end of the text LF and CR LF, which end the last line of other programs, add no row; a CR alone does, so that
/// copied cells come back with the empty ones among them. A field that a spreadsheet has put in double quotes because
/// its text holds a line feed is one field, with the quotes taken off and its line breaks kept.
std::vector<Row> parse(const QString &text);

/// The text that empties a selection when it is assigned to the grid's Clip.
QString emptyClip(int rows, int cols);

} // namespace ClipText
