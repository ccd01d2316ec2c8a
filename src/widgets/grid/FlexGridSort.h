#pragma once

#include <QLocale>

#include <functional>
#include <utility>
#include <vector>

class FlexGridCells;

/// Finds the order in which a sort puts rows; it moves none. Equal rows keep their order. In every order but the
/// custom one empty cells come last, ascending and descending.
class FlexGridSort
{
public:
    /// Below 0: the first row comes first; 0: they are equal.
    using Compare = std::function<int(int row1, int row2)>;

    FlexGridSort(const FlexGridCells &cells, const QLocale &locale);

    std::pair<int, int> rows; ///< first and last row that take part
    std::pair<int, int> keys; ///< first and last column compared, from left to right

    /// The rows in their new order. kind is a FlexGrid::SortKind; compare serves the custom one.
    std::vector<int> order(int kind, const Compare &compare) const;

private:
    const FlexGridCells &m_cells;
    QLocale m_locale;
};
