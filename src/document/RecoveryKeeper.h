#pragma once

#include "document/DocumentCopies.h"
#include "document/RecoveryWriter.h"
#include "document/rules/file/CodePage.h"

#include <QFont>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <optional>

class DocumentList;
class FileCommands;
class frmDoc;

/// Keeps a copy of every changed document in the recovery folder, brought up to date shortly after a change. A copy
/// goes when its document has been saved or closed by the user; one that closes with words that its file does not hold
/// leaves a copy for the next start, unless the user has let the changes go.
class RecoveryKeeper : public QObject, public DocumentCopies
{
    Q_OBJECT

public:
    /// How often changed documents are looked for, in milliseconds.
    static constexpr int Interval = 2000;

    /// codePage is the character set of vocabulary files.
    RecoveryKeeper(const CodePage &codePage, const QString &folder);

    /// Keeps copies of these documents from now on.
    void follow(DocumentList &documents, FileCommands &files);

    bool secure(frmDoc &document) override;
    /// Brings every copy up to date and returns when all are on the disk.
    void flush();

    /// The copies that were left behind, newest first. One that holds nothing but what its file holds is removed.
    std::vector<RecoveryFolder::Orphan> orphans();
    /// Opens a copy as a changed document under its old name. Its file stays until that document is saved or given up.
    void recover(const RecoveryFolder::Orphan &orphan);
    /// Deletes a copy for good.
    void discard(const RecoveryFolder::Orphan &orphan);

Q_SIGNALS:
    /// A copy could not be written; sent again and again until it can.
    void cannotKeep();

private:
    /// What tells whether a document may have changed.
    struct State
    {
        quint64 revision = 0; ///< of its grid
        QFont font;
        int color = 0;
        std::optional<QString> edit; ///< in the open edit box, if it differs from the cell
        bool operator==(const State &) const = default;
    };
    struct Kept
    {
        State seen; ///< as it was given to the writer last
        RecoveryWriter::SharedSlot slot;
    };

    static State stateOf(const frmDoc &document);
    void lookForChanges();
    void keep(frmDoc &document, Kept &kept);
    void watch(frmDoc *document);
    /// The document is as its file is.
    void settle(frmDoc *document);
    /// The user wants the changes no more.
    void giveUp(frmDoc *document);
    /// The document closes; words that have neither been saved nor given up stay in its copy.
    void release(frmDoc *document);
    void closeUnchanged(const QString &path);
    bool holdsOnlyItsFile(const RecoveryCopy &copy) const;

    DocumentList *m_documents = nullptr;
    CodePage m_codePage;
    RecoveryFolder m_folder;
    RecoveryWriter m_writer;
    QHash<frmDoc *, Kept> m_kept;
    QTimer m_timer;
};
