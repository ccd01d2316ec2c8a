#pragma once

#include <QLocale>

#include <functional>
#include <vector>

/// The order of sorted rows: numbers by their value, then texts by the collation of a locale, where case decides only
/// between texts that are otherwise equal. Descending is the reverse. Empty cells come last in both directions, and
/// rows with equal keys keep their order.
namespace SortOrder {

enum class Rule {
    Generic,      ///< as above
    Numeric,      ///< every text that is no number counts as 0
    StringNoCase, ///< numbers are texts like others, and case decides nothing
    String        ///< numbers are texts like others
};

using CellText = std::function<QString(int row, int col)>;

struct Request
{
    int top;                  ///< first row to sort
    int bottom;               ///< last row to sort
    std::vector<int> columns; ///< keys, the most important first
    bool descending;
    QLocale locale;
    Rule rule = Rule::Generic;
};

/// Element i is the row that comes to row top + i.
std::vector<int> sortedRows(const CellText &text, const Request &request);

/// Whether a cell counts as a number: an optional sign, digits, an optional decimal point with digits. The point is "."
/// or the locale's own.
bool isNumber(QStringView text, QChar decimalPoint);

} // namespace SortOrder
