#pragma once

#include "tools/rules/Cells.h"

#include <QLocale>

#include <vector>

/// What the user chose in the sort dialog; 0 when the dialog was cancelled, else one of each pair.
namespace SortFlag {
enum : int { Language1 = 1, Language2 = 2, Ascending = 4, Descending = 8, Selection = 16, Vocabulary = 32 };
}

/// The order of a sorted vocabulary: numbers by their value, then texts by the collation of a locale, where case
/// decides only between texts that are otherwise equal. Descending is the reverse. Empty cells come last in both
/// directions, and rows with equal keys keep their order.
namespace SortOrder {

struct Request
{
    int top;                  ///< first row to sort
    int bottom;               ///< last row to sort
    std::vector<int> columns; ///< keys, the most important first
    bool descending;
    QLocale locale;
};

/// Element i is the row that comes to row top + i.
std::vector<int> sortedRows(const CellSource &cells, const Request &request);

/// Whether a cell counts as a number: an optional sign, digits, an optional decimal point with digits. The point is "."
/// or the locale's own.
bool isNumber(QStringView text, QChar decimalPoint);

} // namespace SortOrder
