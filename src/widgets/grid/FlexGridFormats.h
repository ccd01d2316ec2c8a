#pragma once

#include <QPixmap>

#include <map>
#include <vector>

/// How one cell differs from its column and its grid. Colours 0 and alignments and styles -1 mean: no difference.
struct FlexGridCellFormat
{
    int alignment = -1;
    int backColor = 0;
    int foreColor = 0;
    int textStyle = -1;
    int pictureAlignment = 0;
    QPixmap picture;
};

/// The formats of single cells and the merge marks of rows, kept sparsely: a grid without any costs nothing.
class FlexGridFormats
{
public:
    /// The cell's format, null when it has none.
    const FlexGridCellFormat *find(int row, int col) const;
    FlexGridCellFormat &at(int row, int col) { return m_rows[row].cells[col]; }

    bool mergeRow(int row) const;
    void setMergeRow(int row, bool merge);

    void clear() { m_rows.clear(); }
    void cutToRows(int rows);
    void cutToCols(int cols);
    void insertRows(int at, int count);
    void removeRows(int at, int count);
    /// Row first + i takes what row order[i] had.
    void reorderRows(int first, const std::vector<int> &order);
    /// Column i takes what column order[i] had.
    void reorderCols(const std::vector<int> &order);

private:
    struct Row
    {
        bool merge = false;
        std::map<int, FlexGridCellFormat> cells;
    };
    std::map<int, Row> m_rows;
};
