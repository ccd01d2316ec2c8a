#pragma once

#include "services/rules/GridSelection.h"

#include <QObject>
#include <QString>

#include <vector>

/// What the Undo command names and reverses. The values are the string ids of the Undo captions.
enum class UndoKind {
    None = 419,
    Insert = 800,
    Delete = 801,
    Clear = 802,
    Cut = 803,
    Paste = 804,
    Entry = 805,
    Typing = 806,
    Sort = 807,
    Replace = 808,
    Import = 14510
};

/// The program's one level of undo. Every recording command replaces the fields that it uses and names its kind; the
/// record belongs to the document it was taken from and is worthless for any other.
class UndoRecord : public QObject
{
    Q_OBJECT

public:
    /// Words of both languages of data row i + 1, for every data row.
    struct Pair
    {
        QString first;
        QString second;
        bool operator==(const Pair &) const = default;
    };
    using Snapshot = std::vector<Pair>;

    /// A rectangle of cells with its words, row by row.
    struct Block
    {
        GridSelection cells;
        std::vector<QString> words;
    };

    using QObject::QObject;

    GridSelection selection; ///< before the change
    Block overwritten;       ///< the cells that the change emptied, filled or took away, as they were before
    int removedRows = 0;     ///< rows that Delete took out of the grid
    int addedRows = 0;       ///< rows that the change appended, so that the last row is empty
    QString entryText;       ///< the cell's text before an edit
    Snapshot snapshot;       ///< every word before a sort, or when the find/replace dialog opened

    UndoKind kind() const { return m_kind; }
    /// Names what Undo reverses and the document it belongs to (its window; compared, never used).
    /// note is what the user is told of the change; empty when there is nothing to tell.
    void setKind(UndoKind kind, const void *document, const QString &note = {});
    QString note() const { return m_note; }
    /// Ends the record: nothing to undo.
    void clear();
    bool belongsTo(const void *document) const { return m_document == document; }

Q_SIGNALS:
    void kindChanged(UndoKind kind);

private:
    UndoKind m_kind = UndoKind::None;
    const void *m_document = nullptr;
    QString m_note;
};
