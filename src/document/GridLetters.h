#pragma once

#include "widgets/LetterRow.h"

class ctlGrid;

/// The row of letters below a document's grid: those of the column of the current cell. It types into the cell that is
/// being edited, or begins to edit the current one.
class GridLetters : public LetterRow
{
    Q_OBJECT

public:
    GridLetters(ctlGrid &grid, QWidget *parent);

private:
    void refresh();
    void typeInto(const QString &letter);

    ctlGrid &m_grid;
    int m_column = 0;
    quint64 m_revision = 0; ///< of the grid when its letters were counted
};
