#pragma once

#include <QString>

/// What cells never hold: tabs, CR, LF and the separators of lines and paragraphs, U+2028 and U+2029. This is the one
/// place that says so.
namespace CellText {

/// The text with every tab and every line break, CR LF as one, turned into a blank.
QString cleaned(const QString &text);

} // namespace CellText
