#include "document/rules/UndoRecord.h"

void UndoRecord::setKind(UndoKind kind, const void *document, const QString &note)
{
    m_kind = kind;
    m_note = note;
    m_document = document;
    if (kind == UndoKind::None)
        m_document = nullptr;
    Q_EMIT kindChanged(kind);
}

void UndoRecord::clear()
{
    snapshot = {};
    overwritten = {};
    setKind(UndoKind::None, nullptr);
}
