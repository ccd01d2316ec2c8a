#pragma once

/// The selected rectangle of a flex grid: the current cell and the corner opposite to it. -1: there is no such cell.
struct FlexGridSelection
{
    int row = 1;
    int col = 1;
    int rowSel = 1;
    int colSel = 1;

    int top() const { return row < rowSel ? row : rowSel; }
    int bottom() const { return row < rowSel ? rowSel : row; }
    int left() const { return col < colSel ? col : colSel; }
    int right() const { return col < colSel ? colSel : col; }
    bool contains(int r, int c) const { return r >= top() && r <= bottom() && c >= left() && c <= right(); }
    bool isCurrent(int r, int c) const { return r == row && c == col; }
    bool operator==(const FlexGridSelection &) const = default;
};
