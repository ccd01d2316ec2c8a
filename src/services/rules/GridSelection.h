#pragma once

/// The selected rectangle of cells: the current cell and the corner opposite to it. -1: there is no such cell.
struct GridSelection
{
    int Row = 1;
    int Col = 1;
    int RowSel = 1;
    int ColSel = 1;

    int top() const { return Row < RowSel ? Row : RowSel; }
    int bottom() const { return Row < RowSel ? RowSel : Row; }
    int left() const { return Col < ColSel ? Col : ColSel; }
    int right() const { return Col < ColSel ? ColSel : Col; }
    int rowCount() const { return bottom() - top() + 1; }
    int colCount() const { return right() - left() + 1; }
    bool contains(int row, int col) const { return row >= top() && row <= bottom() && col >= left() && col <= right(); }
    bool isCurrent(int row, int col) const { return row == Row && col == Col; }
    bool operator==(const GridSelection &) const = default;
};
