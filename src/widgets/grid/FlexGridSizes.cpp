#include "widgets/grid/FlexGrid.h"

#include "platform/Twips.h"
#include "widgets/grid/FlexGridView.h"

void FlexGrid::setRowHeight(int row, int height)
{
    if (row < 0)
        m_state.cells.setEveryRowHeight(height);
    else
        m_state.cells.setRowHeight(row, height);
    layOutAgain();
}

void FlexGrid::setDefaultRowHeight(int height)
{
    m_state.cells.setDefaultRowHeight(height);
    layOutAgain();
}

int FlexGrid::fittingRowHeight(int row) const
{
    return Twips::fromPixelsY(m_view->fittingRowPixels(row));
}

void FlexGrid::setRowHeightMin(int height)
{
    m_state.cells.setRowHeightMin(height);
    layOutAgain();
}

int FlexGrid::ColWidth(int col) const
{
    return col >= 0 && col < Cols() ? m_state.cells.column(col).width : FlexGridCells::DefaultColWidth;
}

void FlexGrid::setColWidth(int col, int width)
{
    for (int i = 0; i < Cols(); ++i) {
        if (col < 0 || i == col)
            m_state.cells.setColWidth(i, width);
    }
    layOutAgain();
}

int FlexGrid::RowPos(int row) const
{
    return Twips::fromPixelsY(m_view->cellRect(row, 0).top() + m_view->viewport()->y());
}

int FlexGrid::ColPos(int col) const
{
    return Twips::fromPixelsX(m_view->cellRect(0, col).left() + m_view->viewport()->x());
}

int FlexGrid::TopRow() const
{
    return m_view->topRow();
}

void FlexGrid::setTopRow(int row)
{
    m_view->setTopRow(row);
}

int FlexGrid::LeftCol() const
{
    return m_view->leftCol();
}

void FlexGrid::setLeftCol(int col)
{
    m_view->setLeftCol(col);
}

bool FlexGrid::RowIsVisible(int row) const
{
    return m_view->rowIsVisible(row);
}

bool FlexGrid::ColIsVisible(int col) const
{
    return m_view->colIsVisible(col);
}

int FlexGrid::MouseRow() const
{
    return m_view->mouseRow();
}

int FlexGrid::MouseCol() const
{
    return m_view->mouseCol();
}

void FlexGrid::showCell(int row, int col)
{
    if (m_state.cells.hasCell(row, col))
        m_view->scrollToCell(row, col);
}

void FlexGrid::Autosize()
{
    resize(m_view->wholeSize());
}

void FlexGrid::setZoom(int percent)
{
    const bool inView = RowIsVisible(Row()) && ColIsVisible(Col());
    m_state.zoom.setPercent(percent);
    layOutAgain();
    if (inView)
        showCell(Row(), Col());
}

QRect FlexGrid::currentRect() const
{
    return m_view->cellRect(Row(), Col()).translated(m_view->viewport()->pos());
}

int FlexGrid::CellLeft() const
{
    return Twips::fromPixelsX(currentRect().left());
}

int FlexGrid::CellTop() const
{
    return Twips::fromPixelsY(currentRect().top());
}

int FlexGrid::CellWidth() const
{
    return Twips::fromPixelsX(currentRect().width());
}

int FlexGrid::CellHeight() const
{
    return Twips::fromPixelsY(currentRect().height());
}
