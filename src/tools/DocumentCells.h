#pragma once

#include "tools/GridCells.h"

class frmDoc;

/// The words of a document for Replace All: a word that is written grows its row and keeps the last row empty as a
/// committed edit does, without opening the edit box. An edit that is going on ends when the first word is written.
class DocumentCells : public CellStore
{
public:
    explicit DocumentCells(frmDoc &document);
    int Rows() const override { return m_cells.Rows(); }
    QString TextMatrix(int row, int col) const override { return m_cells.TextMatrix(row, col); }
    void setTextMatrix(int row, int col, const QString &text) override;

private:
    frmDoc &m_document;
    GridCells m_cells;
};
