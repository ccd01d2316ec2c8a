#pragma once

#include "document/rules/file/CodePage.h"
#include "document/rules/recovery/RecoveryFolder.h"
#include "document/rules/recovery/VocabularyDigest.h"
#include "platform/JobThread.h"

#include <atomic>
#include <memory>

/// Writes and removes copies on a thread of its own, one job after the other in the order in which they were given, so
/// that neither a long word list nor a slow disk holds the user up. Whoever gives the jobs must not use the folder
/// before finish() has returned.
class RecoveryWriter
{
public:
    /// The copy of one document.
    class Slot
    {
    public:
        /// path: of a copy that is there already.
        explicit Slot(const QString &path = {})
            : m_path(path)
        {
        }
        bool isBusy() const { return m_jobs > 0; }
        /// Whether the last job could not do what it should.
        bool failed() const { return m_failed; }

    private:
        friend class RecoveryWriter;
        std::atomic<int> m_jobs = 0;
        std::atomic<bool> m_failed = false;
        QString m_path;            ///< empty: there is no copy
        VocabularyDigest m_stored; ///< what the document's file holds; empty: none of it
        Vocabulary m_begun;        ///< what the document was made with that has no file
    };
    using SharedSlot = std::shared_ptr<Slot>;

    /// codePage is the character set of vocabulary files.
    RecoveryWriter(RecoveryFolder &folder, const CodePage &codePage);

    /// The document is as it was read or made: it needs no copy.
    void begin(const SharedSlot &slot, RecoveryCopy &&now);
    /// The document has changed. What holds no more than its file needs no copy.
    void keep(const SharedSlot &slot, RecoveryCopy &&now);
    /// Its file may not outlast what comes: the words are to be in a copy, changed or not.
    void secure(const SharedSlot &slot, RecoveryCopy &&now);
    /// The document has been saved. A copy stays if it has words that a file does not hold.
    void settle(const SharedSlot &slot, RecoveryCopy &&now);
    /// The document closes. If it was to be saved first (wanted), everything is worth a copy that its file does not
    /// hold, else only its words are.
    void leave(const SharedSlot &slot, RecoveryCopy &&now, bool wanted);
    /// The copy is not wanted any more.
    void discard(const SharedSlot &slot);

    /// Waits until all jobs are done.
    void finish();

private:
    void run(const SharedSlot &slot, std::function<bool(Slot &)> job);
    bool isWorthACopy(const Slot &slot, const RecoveryCopy &last, bool wanted) const;
    bool write(Slot &slot, const RecoveryCopy &copy);
    bool remove(Slot &slot);

    RecoveryFolder &m_folder;
    CodePage m_codePage;
    JobThread m_thread;
};
