#pragma once

#include <QString>

class QLocale;

/// How a spreadsheet shows a number.
namespace CellFormat {

/// By a format code such as "0.00", "dd.mm.yyyy" or "#,##0 €"; an empty code, "General", and what is not understood
/// show the number as it is. Dates are days from a first one: 30 December 1899, or 1 January 1904.
QString shown(double value, QStringView code, bool from1904, const QLocale &locale);

/// The code that a number stands for in workbooks that do not say it; empty: General.
QString builtIn(int number, const QLocale &locale);

} // namespace CellFormat
