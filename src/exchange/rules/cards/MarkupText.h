#pragma once

#include <QString>

/// Words of card programs are written with the markup of web pages.
namespace MarkupText {

/// What a reader would see: tags and comments gone, breaks and blocks turned into blanks, letters written by name or
/// number ("&eacute;", "&#233;") as they are; sounds left out, gaps ("{{c1::Haus::what}}") filled.
QString plain(QStringView markup);

/// Whether a text has tags or letters by name of the usual kind.
bool isLikely(QStringView text);

} // namespace MarkupText
