#pragma once

#include "services/rules/GridSelection.h"
#include "widgets/grid/FlexGridCells.h"
#include "widgets/grid/FlexGridLook.h"
#include "widgets/grid/FlexGridZoom.h"

/// Everything a flex grid knows; its view draws from it. FlexGrid owns it and is the only one that changes it.
struct FlexGridState
{
    FlexGridCells cells;
    FlexGridLook look;
    GridSelection selection;
    int fixedRows = 1;
    int fixedCols = 1;
    bool rightToLeft = false;
    FlexGridZoom zoom;

    bool isFixed(int row, int col) const { return row < fixedRows || col < fixedCols; }
    /// Whether there is a cell below and beside the fixed ones.
    bool hasData() const { return cells.rows() > fixedRows && cells.cols() > fixedCols; }
};
