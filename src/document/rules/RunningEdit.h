#pragma once

#include <QString>

struct ProgramFlags;
class UndoRecord;

/// The edit of a cell from the first letter to the text that stays, in one document. It says what Undo is to bring back
/// and whether the document has changed by it. A search shows its match in an edit box: that alone is no edit.
class RunningEdit
{
public:
    enum class State {
        Browsing,
        Editing, ///< what is typed stands in the edit box only
        Stored,  ///< what was typed so far has been stored in the cell, as for a save, and the edit goes on
    };
    enum class End {
        Committed, ///< the grid has put what was typed into the cell
        Escaped,   ///< also when the key was pressed while browsing
        Closed     ///< the edit box closed with the cell's own text in it
    };

    /// Both outlive the object; document is whom the undo record is to belong to.
    RunningEdit(UndoRecord &undo, const ProgramFlags &flags, const void *document);

    State state() const { return m_state; }

    /// A cell with this text begins to be edited.
    void begin(int row, int col, const QString &text);
    /// A character is typed, into the edit box or, to open it, into the grid; text is what the cell holds.
    void type(const QString &text);
    /// Whether what was typed is to be stored in the cell, which holds text, while the edit goes on.
    bool isToStore(const QString &typed, const QString &text) const;
    /// It has been, and this is what the cell holds now.
    void store(const QString &text);
    /// The edit is over and the cell holds this text. Whether the document has changed since the last save.
    bool end(End how, int row, int col, const QString &text);

private:
    bool isEntry(End how, const QString &text) const;
    void noteEntry(int row, int col);

    UndoRecord &m_undo;
    const ProgramFlags &m_flags;
    const void *m_document;
    State m_state = State::Browsing;
    QString m_before; ///< what the cell held when the edit began
    QString m_stored; ///< what it was given in the state Stored
};
