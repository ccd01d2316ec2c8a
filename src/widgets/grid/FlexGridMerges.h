#pragma once

#include "widgets/grid/FlexGridBand.h"
#include "widgets/grid/FlexGridState.h"

#include <vector>

/// Tells which neighbouring cells with the same text are shown as one cell.
class FlexGridMerges
{
public:
    /// The cells shown as one, counted from the first.
    struct Span
    {
        bool begins = true; ///< false: the cell is covered by one before it
        size_t rows = 1;
        size_t cols = 1;
    };

    explicit FlexGridMerges(const FlexGridState &state)
        : m_state(state)
    {
    }

    /// The span of the cell at rows[i], cols[j] among the rows and columns that are shown.
    Span spanAt(const std::vector<FlexGridBand> &rows, const std::vector<FlexGridBand> &cols, size_t i, size_t j) const;

private:
    bool sameAcross(int row, int col) const;
    bool sameDown(int row, int col) const;
    bool mergesAcross(int row, int col) const;
    bool mergesDown(int row, int col) const;

    const FlexGridState &m_state;
};
