#pragma once

#include <QString>

class QDate;
class QDateTime;
class QLocale;

/// How numbers and dates stand in windows: as the user's locale has them, but in the digits 0 to 9. In these are the
/// program's texts, the names of keys and cells, and what is printed, whatever the language.
namespace TextDigits {

/// For numbers: the user's locale, or, if it has digits of its own, the English one.
QLocale numbers();

/// As the user's locale has it in short, or in the form given, such as "d MMM".
QString date(QDate date, const QString &form = {});
/// Date and time in short.
QString time(const QDateTime &time);

} // namespace TextDigits
