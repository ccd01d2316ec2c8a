#include "print/GridSource.h"

#include "document/ctlGrid.h"

#include <QFontInfo>

GridSource::GridSource(const ctlGrid &grid, const QString &caption)
    : m_grid(grid)
    , m_caption(caption)
{
}

int GridSource::Rows() const
{
    return m_grid.Rows();
}

QString GridSource::TextMatrix(int row, int col) const
{
    return m_grid.TextMatrix(row, col);
}

PrintFont GridSource::Font() const
{
    const QFont font = m_grid.Font();
    return {font.family(), qRound(QFontInfo(font).pointSizeF()), font.bold(), font.italic()};
}

int GridSource::ForeColor() const
{
    return m_grid.ForeColor();
}
