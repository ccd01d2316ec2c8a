#pragma once

#include <QStringList>

/// What the layout must know of scripts other than the Latin one.
namespace WordBreaks {

/// Whether a text holds letters that are written from right to left.
bool hasRightToLeft(const QString &text);

/// The pieces between which a line may break within a word: those of Chinese and Japanese, which are written without
/// blanks (ideographs beyond the basic plane keep together). Any other word is one piece.
QStringList pieces(const QString &word);

} // namespace WordBreaks
