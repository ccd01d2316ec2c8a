#pragma once

#include "document/rules/UndoRecord.h"
#include "services/rules/ClipText.h"

class QClipboard;
class ctlGrid;
class frmDoc;
struct Vocabulary;

/// The commands of the Edit menu that change a document, and their undo. While the grid is browsing they act on its
/// selection, while a cell is being edited on the edit box. Each leaves a record of what it did, Copy excepted.
class EditCommands
{
public:
    /// Both outlive the object.
    EditCommands(UndoRecord &record, QClipboard &clipboard);

    void Copy(frmDoc &document);
    void Cut(frmDoc &document);
    /// A single selected cell, and a selection that reaches the last row, takes the whole clipboard text from there on;
    /// any other selection is filled and nothing beyond it, and the note of the undo record tells what did not fit.
    /// Without a text on the clipboard nothing happens. A text of several cells is pasted as cells also into an edit
    /// box in which nothing was typed yet.
    void Paste(frmDoc &document);
    void Clear(frmDoc &document);
    /// Inserts as many empty rows as are selected above them.
    void Insert(frmDoc &document);
    /// Inserts the rows of a list but its first, the names of the languages, above the current row. note is what the
    /// user is told of it. Nothing happens where a file could not hold them.
    void Import(frmDoc &document, const Vocabulary &words, const QString &note);
    /// Deletes the selected rows. When they are all rows, the last of them stays, emptied.
    void Delete(frmDoc &document);
    /// Gives a cell another text, as one that is edited there.
    void enter(frmDoc &document, int row, int col, const QString &text);
    /// Reverses what the record names, if it belongs to this document.
    void Undo(frmDoc &document);

private:
    void recordCells(frmDoc &document, const GridSelection &cells);
    void restoreCells(ctlGrid &grid) const;
    void emptySelection(frmDoc &document);
    void pasteInEditBox(frmDoc &document);
    void pasteCells(frmDoc &document, const std::vector<ClipText::Row> &rows);
    void fillCells(frmDoc &document, const GridSelection &cells, const std::vector<ClipText::Row> &rows);

    bool reversesCells() const;
    bool reverse(frmDoc &document);
    void undoCells(frmDoc &document);
    void undoDelete(frmDoc &document);

    UndoRecord &m_record;
    QClipboard &m_clipboard;
};
