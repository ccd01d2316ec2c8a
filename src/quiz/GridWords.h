#pragma once

#include "document/ctlGrid.h"
#include "quiz/rules/WordSource.h"

/// The words of a document's grid. Read while a quiz is set up, never held by it.
class GridWords : public WordSource
{
public:
    explicit GridWords(const ctlGrid &grid)
        : m_grid(grid)
    {
    }

    int Rows() const override { return m_grid.Rows(); }
    QString TextMatrix(int row, int col) const override { return m_grid.TextMatrix(row, col); }

private:
    const ctlGrid &m_grid;
};
