#include "tools/DocumentCells.h"

#include "document/frmDoc.h"

DocumentCells::DocumentCells(frmDoc &document)
    : m_document(document)
    , m_cells(*document.Rutor())
{
}

void DocumentCells::setTextMatrix(int row, int col, const QString &text)
{
    m_document.endEdit();
    m_document.Rutor()->setTextMatrix(row, col, text);
    m_document.makeRoomFor(row, col);
}
