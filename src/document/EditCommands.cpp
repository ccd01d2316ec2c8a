#include "document/EditCommands.h"

#include "document/ctlGrid.h"
#include "document/ctlGridEdit.h"
#include "document/frmDoc.h"
#include "document/modUndo.h"
#include "document/rules/GridRules.h"
#include "document/rules/Vocabulary.h"

#include <QClipboard>
#include <QMimeData>

namespace {

constexpr int Columns = 2;

/// The edit box's own undo, which the next one takes back. False when there is nothing to undo.
bool undoInEditBox(frmDoc &document)
{
    document.Rutor()->finishComposing();
    ctlGridEdit &box = *document.Rutor()->hwndText();
    if (!document.Rutor()->EditMode() || !box.canUndoText())
        return false;
    box.undoText();
    return true;
}

void keepLastRowEmpty(ctlGrid &grid)
{
    const int last = grid.Rows() - 1;
    if (!grid.TextMatrix(last, 1).isEmpty() || !grid.TextMatrix(last, 2).isEmpty())
        grid.setRows(grid.Rows() + 1);
}

int columnsOf(const std::vector<ClipText::Row> &rows)
{
    size_t columns = 0;
    for (const ClipText::Row &row : rows)
        columns = std::max(columns, row.size());
    return int(columns);
}

bool areSeveralCells(const std::vector<ClipText::Row> &rows)
{
    return rows.size() > 1 || rows.front().size() > 1;
}

} // namespace

EditCommands::EditCommands(UndoRecord &record, QClipboard &clipboard)
    : m_record(record)
    , m_clipboard(clipboard)
{
}

void EditCommands::Copy(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    m_clipboard.clear();
    if (grid.EditMode()) {
        grid.hwndText()->copy();
        return;
    }
    m_clipboard.setText(grid.Clip());
    grid.setFocus();
}

void EditCommands::Cut(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    if (grid.EditMode()) {
        grid.hwndText()->cutText();
        m_record.overwritten = {};
    } else {
        recordCells(document, document.selection());
        m_clipboard.setText(grid.Clip());
        emptySelection(document);
        document.setDirty(true);
        grid.setFocus();
    }
    m_record.setKind(UndoKind::Cut, &document);
}

void EditCommands::Paste(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    grid.finishComposing();
    const QMimeData *offered = m_clipboard.mimeData();
    const std::vector<ClipText::Row> rows = ClipText::parse(m_clipboard.text());
    const bool untouched = grid.EditText() == grid.Text();
    if (grid.EditMode() && !(untouched && areSeveralCells(rows)))
        pasteInEditBox(document);
    else if (offered && offered->hasText())
        pasteCells(document, rows);
    else
        grid.setFocus();
}

void EditCommands::pasteInEditBox(frmDoc &document)
{
    document.Rutor()->hwndText()->pasteText();
    m_record.overwritten = {};
    m_record.setKind(UndoKind::Paste, &document);
}

void EditCommands::pasteCells(frmDoc &document, const std::vector<ClipText::Row> &rows)
{
    document.endEdit();
    document.Rutor()->setFocus();
    const int columns = columnsOf(rows);
    const GridSelection cells =
        GridRules::pastedCells(document.selection(), int(rows.size()), columns, document.Rutor()->Rows());
    fillCells(document, cells, rows);
    document.setDirty(true);
    m_record.setKind(UndoKind::Paste, &document, GridRules::pastedPart(cells, int(rows.size()), columns));
}

void EditCommands::fillCells(frmDoc &document, const GridSelection &cells, const std::vector<ClipText::Row> &rows)
{
    ctlGrid &grid = *document.Rutor();
    const int rowsBefore = grid.Rows();
    grid.setRedraw(false);
    grid.setRows(std::max(rowsBefore, cells.bottom() + 1));
    recordCells(document, cells);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        const ClipText::Row &fields = rows[size_t(row - cells.top())];
        for (int col = cells.left(); col <= cells.right() && col - cells.left() < int(fields.size()); ++col) {
            grid.setTextMatrix(row, col, fields[size_t(col - cells.left())]);
            document.growRow(row, col);
        }
    }
    keepLastRowEmpty(grid);
    m_record.addedRows = grid.Rows() - rowsBefore;
    grid.setRedraw(true);
}

void EditCommands::Clear(frmDoc &document)
{
    recordCells(document, document.selection());
    emptySelection(document);
    m_record.setKind(UndoKind::Clear, &document);
}

void EditCommands::Insert(frmDoc &document)
{
    const GridSelection selection = document.selection();
    if (document.Rutor()->Rows() + selection.rowCount() > Vocabulary::MostRows)
        return; // no file could be read again that holds so many
    m_record.selection = selection;
    document.Rutor()->insertRows(selection.top(), selection.rowCount());
    document.select(m_record.selection);
    m_record.setKind(UndoKind::Insert, &document);
}

void EditCommands::Import(frmDoc &document, const Vocabulary &words, const QString &note)
{
    ctlGrid &grid = *document.Rutor();
    document.endEdit();
    const int rows = int(words.rows()) - 1;
    const int top = document.selection().top();
    if (rows <= 0 || grid.Rows() + rows > Vocabulary::MostRows)
        return;
    m_record.selection = document.selection();
    m_record.overwritten = {{top, 1, top + rows - 1, Columns}, {}};
    grid.setRedraw(false);
    grid.insertRows(top, rows);
    for (int row = 0; row < rows; ++row) {
        grid.setTextMatrix(top + row, 1, words.first[size_t(row) + 1]);
        grid.setTextMatrix(top + row, 2, words.second[size_t(row) + 1]);
        document.growRow(top + row, 1);
        document.growRow(top + row, 2);
    }
    document.select({top, 1, top, 1});
    grid.setRedraw(true);
    grid.setFocus();
    document.setDirty(true);
    m_record.setKind(UndoKind::Import, &document, note);
}

void EditCommands::Delete(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    const GridSelection selection = document.selection();
    recordCells(document, selection);
    const int rowsBefore = grid.Rows();
    const bool everyRow = selection.rowCount() == rowsBefore - 1;
    m_record.removedRows = selection.rowCount() - (everyRow ? 1 : 0);
    grid.setRedraw(false);
    grid.removeRows(selection.top(), m_record.removedRows);
    if (everyRow) {
        for (int col = 1; col <= Columns; ++col)
            grid.setTextMatrix(1, col, QString());
    }
    keepLastRowEmpty(grid);
    m_record.addedRows = grid.Rows() - rowsBefore + m_record.removedRows;
    document.select(selection);
    grid.setRedraw(true);
    document.setDirty(true);
    m_record.setKind(UndoKind::Delete, &document);
}

void EditCommands::enter(frmDoc &document, int row, int col, const QString &text)
{
    document.endEdit();
    m_record.selection = {row, col, row, col};
    m_record.entryText = document.Rutor()->TextMatrix(row, col);
    document.Rutor()->setTextMatrix(row, col, text);
    document.makeRoomFor(row, col);
    document.setDirty(true);
    m_record.setKind(UndoKind::Entry, &document);
}

void EditCommands::Undo(frmDoc &document)
{
    if (m_record.belongsTo(&document) && !reverse(document))
        return;
    m_record.clear();
}

/// Whether Undo changes cells; otherwise there is nothing to undo but what was typed, cut or pasted in the edit box.
bool EditCommands::reversesCells() const
{
    switch (m_record.kind()) {
    case UndoKind::None:
    case UndoKind::Typing:
        return false;
    case UndoKind::Cut:
    case UndoKind::Paste:
        return !m_record.overwritten.words.empty();
    default:
        return true;
    }
}

/// False when the edit box reversed its typing: it can take that back, so the record stays.
bool EditCommands::reverse(frmDoc &document)
{
    // a search shows its match in the edit box, which must not write the present text over what comes back
    if (reversesCells())
        document.endEdit();
    switch (m_record.kind()) {
    case UndoKind::Insert:
        document.select(m_record.selection);
        document.Rutor()->removeRows(m_record.selection.top(), m_record.selection.rowCount());
        break;
    case UndoKind::Import:
        document.Rutor()->removeRows(m_record.overwritten.cells.top(), m_record.overwritten.cells.rowCount());
        document.select(m_record.selection);
        break;
    case UndoKind::Delete:
        undoDelete(document);
        break;
    case UndoKind::Clear:
        undoCells(document);
        break;
    case UndoKind::Cut:
    case UndoKind::Paste:
        if (reversesCells())
            undoCells(document);
        else
            return !undoInEditBox(document);
        break;
    case UndoKind::Entry:
        document.Rutor()->setRow(m_record.selection.Row);
        document.Rutor()->setCol(m_record.selection.Col);
        document.Rutor()->setText(m_record.entryText);
        break;
    case UndoKind::Typing:
        return !undoInEditBox(document);
    case UndoKind::Sort:
    case UndoKind::Replace:
        modUndo::UndoSnapshotRestore(document, m_record);
        break;
    case UndoKind::None:
        break;
    }
    return true;
}

void EditCommands::undoCells(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    grid.setRedraw(false);
    restoreCells(grid);
    grid.setRows(grid.Rows() - m_record.addedRows);
    document.select(m_record.selection);
    grid.setRedraw(true);
    grid.setFocus();
}

void EditCommands::undoDelete(frmDoc &document)
{
    ctlGrid &grid = *document.Rutor();
    grid.setRedraw(false);
    grid.setRows(grid.Rows() - m_record.addedRows);
    grid.insertRows(m_record.selection.top(), m_record.removedRows);
    restoreCells(grid);
    document.select(m_record.selection);
    grid.setRedraw(true);
    document.setDirty(true);
}

void EditCommands::recordCells(frmDoc &document, const GridSelection &cells)
{
    const ctlGrid &grid = *document.Rutor();
    m_record.selection = document.selection();
    m_record.overwritten = {cells, {}};
    m_record.overwritten.words.reserve(size_t(cells.rowCount()) * size_t(cells.colCount()));
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int col = cells.left(); col <= cells.right(); ++col)
            m_record.overwritten.words.push_back(grid.TextMatrix(row, col));
    }
    m_record.addedRows = m_record.removedRows = 0;
}

void EditCommands::restoreCells(ctlGrid &grid) const
{
    const GridSelection &cells = m_record.overwritten.cells;
    auto word = m_record.overwritten.words.cbegin();
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int col = cells.left(); col <= cells.right(); ++col)
            grid.setTextMatrix(row, col, *word++);
    }
}

void EditCommands::emptySelection(frmDoc &document)
{
    const GridSelection selection = document.selection();
    document.Rutor()->setClip(ClipText::emptyClip(selection.rowCount(), selection.colCount()));
}
