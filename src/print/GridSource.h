#pragma once

#include "print/rules/PrintSource.h"

class ctlGrid;

/// The vocabulary in a document's grid, for printing. The grid must outlive it.
class GridSource : public PrintSource
{
public:
    GridSource(const ctlGrid &grid, const QString &caption);

    QString Caption() const override { return m_caption; }
    int Rows() const override;
    QString TextMatrix(int row, int col) const override;
    PrintFont Font() const override;
    int ForeColor() const override;

private:
    const ctlGrid &m_grid;
    QString m_caption;
};
