#include "document/rules/RunningEdit.h"

#include "document/rules/UndoRecord.h"
#include "services/rules/ProgramFlags.h"

RunningEdit::RunningEdit(UndoRecord &undo, const ProgramFlags &flags, const void *document)
    : m_undo(undo)
    , m_flags(flags)
    , m_document(document)
{
}

void RunningEdit::begin(int row, int col, const QString &text)
{
    m_state = State::Editing;
    m_before = text;
    if (m_flags.searching())
        return;
    m_undo.selection.Row = row;
    m_undo.selection.Col = col;
    type(text);
}

void RunningEdit::type(const QString &text)
{
    m_undo.entryText = text;
    m_undo.setKind(UndoKind::Typing, m_document);
}

bool RunningEdit::isToStore(const QString &typed, const QString &text) const
{
    return !m_flags.searching() || typed != text;
}

void RunningEdit::store(const QString &text)
{
    m_state = State::Stored;
    m_stored = text;
}

bool RunningEdit::end(End how, int row, int col, const QString &text)
{
    const bool entry = isEntry(how, text);
    const bool known = m_state == State::Stored && text == m_stored; // it may have been saved since
    if (entry)
        noteEntry(row, col);
    m_state = State::Browsing;
    m_before.clear();
    m_stored.clear();
    return entry && !known;
}

bool RunningEdit::isEntry(End how, const QString &text) const
{
    switch (how) {
    case End::Committed:
        return !m_flags.searching() || text != m_before;
    case End::Escaped:
        return !m_flags.searching();
    case End::Closed: // a search that found the same cell again has stored what was typed there before
        return m_undo.kind() == UndoKind::Typing && m_undo.entryText != text;
    }
    return false;
}

void RunningEdit::noteEntry(int row, int col)
{
    if (m_undo.kind() == UndoKind::Replace)
        return;
    m_undo.selection.Row = row;
    m_undo.selection.Col = col;
    if (m_undo.kind() != UndoKind::Typing) // else the keys have recorded it
        m_undo.entryText = m_before;
    m_undo.setKind(UndoKind::Entry, m_document);
}
