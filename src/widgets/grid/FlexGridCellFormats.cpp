#include "widgets/grid/FlexGrid.h"

#include "widgets/grid/FlexGridView.h"

#include <algorithm>

namespace {

constexpr int LargestAlignment = 9;
constexpr int LargestStyle = 4;

} // namespace

void FlexGrid::changeColumns(int col, const std::function<void(FlexGridCells::Column &)> &change)
{
    for (int i = 0; i < Cols(); ++i) {
        if (col < 0 || i == col)
            change(m_state.cells.column(i));
    }
    draw();
}

int FlexGrid::ColAlignment(int col) const
{
    return col >= 0 && col < Cols() ? m_state.cells.column(col).alignment : FlexGridCells::GeneralAlignment;
}

void FlexGrid::setColAlignment(int col, int alignment)
{
    changeColumns(col, [alignment](auto &column) { column.alignment = std::clamp(alignment, 0, LargestAlignment); });
}

int FlexGrid::FixedAlignment(int col) const
{
    const bool own = col >= 0 && col < Cols() && m_state.cells.column(col).fixedAlignment >= 0;
    return own ? m_state.cells.column(col).fixedAlignment : ColAlignment(col);
}

void FlexGrid::setFixedAlignment(int col, int alignment)
{
    changeColumns(col,
                  [alignment](auto &column) { column.fixedAlignment = std::clamp(alignment, -1, LargestAlignment); });
}

int FlexGrid::ColData(int col) const
{
    return col >= 0 && col < Cols() ? m_state.cells.column(col).data : 0;
}

void FlexGrid::setColData(int col, int value)
{
    changeColumns(col, [value](auto &column) { column.data = value; });
}

bool FlexGrid::MergeCol(int col) const
{
    return col >= 0 && col < Cols() && m_state.cells.column(col).merge;
}

void FlexGrid::setMergeCol(int col, bool merge)
{
    changeColumns(col, [merge](auto &column) { column.merge = merge; });
}

void FlexGrid::setMergeRow(int row, bool merge)
{
    if (row < Rows() && row >= 0)
        m_state.cells.formats.setMergeRow(row, merge);
    draw();
}

FlexGridCellFormat FlexGrid::currentFormat() const
{
    const FlexGridCellFormat *format = m_state.cells.formats.find(Row(), Col());
    return format ? *format : FlexGridCellFormat();
}

void FlexGrid::changeFormat(const std::function<void(FlexGridCellFormat &)> &change)
{
    GridSelection cells = m_state.selection;
    if (!m_state.cells.hasCell(cells.Row, cells.Col))
        return;
    if (FillStyle() == 0)
        cells = {cells.Row, cells.Col, cells.Row, cells.Col};
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int col = cells.left(); col <= cells.right(); ++col)
            change(m_state.cells.formats.at(row, col));
    }
    draw();
}

int FlexGrid::CellAlignment() const
{
    const int own = currentFormat().alignment;
    if (own >= 0)
        return own;
    return m_state.isFixed(Row(), Col()) ? FixedAlignment(Col()) : ColAlignment(Col());
}

void FlexGrid::setCellAlignment(int alignment)
{
    changeFormat([alignment](auto &format) { format.alignment = std::clamp(alignment, -1, LargestAlignment); });
}

int FlexGrid::CellBackColor() const
{
    return currentFormat().backColor;
}

void FlexGrid::setCellBackColor(int colour)
{
    changeFormat([colour](auto &format) { format.backColor = colour; });
}

int FlexGrid::CellForeColor() const
{
    return currentFormat().foreColor;
}

void FlexGrid::setCellForeColor(int colour)
{
    changeFormat([colour](auto &format) { format.foreColor = colour; });
}

QPixmap FlexGrid::CellPicture() const
{
    return currentFormat().picture;
}

void FlexGrid::setCellPicture(const QPixmap &picture)
{
    changeFormat([&picture](auto &format) { format.picture = picture; });
}

int FlexGrid::CellPictureAlignment() const
{
    return currentFormat().pictureAlignment;
}

void FlexGrid::setCellPictureAlignment(int alignment)
{
    changeFormat([alignment](auto &format) { format.pictureAlignment = std::clamp(alignment, 0, LargestAlignment); });
}

int FlexGrid::CellTextStyle() const
{
    const int own = currentFormat().textStyle;
    if (own >= 0)
        return own;
    return m_state.isFixed(Row(), Col()) ? TextStyleFixed() : TextStyle();
}

void FlexGrid::setCellTextStyle(int style)
{
    changeFormat([style](auto &format) { format.textStyle = std::clamp(style, -1, LargestStyle); });
}
