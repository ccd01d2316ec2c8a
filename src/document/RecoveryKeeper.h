#pragma once

#include "document/rules/RecoveryFolder.h"

#include <QHash>
#include <QObject>
#include <QTimer>

class DocumentList;
class FileCommands;
class frmDoc;

/// Keeps a copy of every changed document in the recovery folder, brought up to date shortly after a change. A copy
/// goes when its document has been saved or the user let the changes go; a document that closes otherwise leaves its
/// copy for the next start.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// How often changed documents are looked for, in milliseconds.
    static constexpr int Interval = 2000;

    RecoveryKeeper(DocumentList &documents, FileCommands &files, const QString &folder, QObject *parent = nullptr);

    /// Brings every copy up to date now.
    void flush();

    /// The copies that a crash left behind, newest first.
    std::vector<RecoveryFolder::Orphan> orphans() const { return m_folder.orphans(); }
    /// Opens a copy as a changed document under its old name. Its file stays until that document is saved or given up.
    void recover(const RecoveryFolder::Orphan &orphan);
    /// Deletes a copy for good.
    void discard(const RecoveryFolder::Orphan &orphan) { m_folder.remove(orphan.path); }

private:
    /// The state of a document's words: its grid's revision, and what stands in the open edit box.
    struct State
    {
        quint64 revision = 0;
        QString edit;
        bool operator==(const State &) const = default;
    };
    struct Kept
    {
        State unchanged; ///< as in the file, or as the document was made
        State copied;    ///< as in the copy
        QString path;    ///< of the copy; empty: none
    };

    static State stateOf(const frmDoc &document);
    void watch(frmDoc *document);
    void keep(frmDoc &document, Kept &kept);
    /// The document is as its file is: no copy is needed until it changes again.
    void settle(frmDoc *document);
    /// The user wants the changes no more.
    void giveUp(frmDoc *document);
    /// The document closes; what has neither been saved nor given up stays in its copy.
    void release(frmDoc *document);

    DocumentList &m_documents;
    RecoveryFolder m_folder;
    QHash<frmDoc *, Kept> m_kept;
    QTimer m_timer;
};
