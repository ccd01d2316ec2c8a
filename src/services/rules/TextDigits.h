#pragma once

class QLocale;
class QString;

/// How numbers and dates stand in windows: as the user's locale has them, but in the digits 0 to 9. In these are the
/// program's texts, the names of keys and cells, and what is printed, whatever the language.
namespace TextDigits {

/// For numbers: the user's locale, or, if it has digits of its own, the English one.
QLocale numbers();

/// A date or a time as the user's locale has it.
QString inText(const QString &date);

} // namespace TextDigits
