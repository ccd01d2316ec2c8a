#pragma once

#include "exchange/rules/TextTable.h"

/// Lines of words with something between them: tabs, commas, semicolons, a dash between blanks, an equals sign, or
/// what the user says.
namespace DelimitedText {

/// " - " stands for the longer dashes too. It and "=" part a line in two, where they come first, and the blanks around
/// the words go; other separators part it as often as they come, and what stands between two quotes is one cell with
/// whatever is in it, as RFC 4180 has it. A quote that never closes is a letter like any other.
extern const QString Dash;
extern const QString Equals;

/// What is between the words of most lines; a tab when nothing is.
QString separatorOf(QStringView text);

/// CR, LF and CR LF all end lines; the last line needs no end. An empty separator leaves lines as they are.
TextTable split(QStringView text, const QString &separator);

} // namespace DelimitedText
