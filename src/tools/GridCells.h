#pragma once

#include "document/ctlGrid.h"
#include "tools/rules/Cells.h"

/// The words of a document's grid, as search and sort read them.
class GridCells : public CellSource
{
public:
    explicit GridCells(const ctlGrid &grid)
        : m_grid(grid)
    {
    }
    int Rows() const override { return m_grid.Rows(); }
    QString TextMatrix(int row, int col) const override { return m_grid.TextMatrix(row, col); }

private:
    const ctlGrid &m_grid;
};
