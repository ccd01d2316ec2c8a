#pragma once

#include <QString>

/// What cells never hold: CR, LF and the separators of lines and paragraphs, U+2028 and U+2029. This is the one place
/// that says so.
namespace LineBreaks {

/// The text with every line break, CR LF as one, turned into a blank.
QString removed(const QString &text);

} // namespace LineBreaks
