#pragma once

#include "memory/Day.h"
#include "memory/MemoryStore.h"
#include "platform/JobThread.h"

#include <QDateTime>
#include <QObject>

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

/// The memory of the user's answers, kept in a store that is opened when it is first needed. It works on a thread of
/// its own, one job after the other. An answer that cannot be stored waits for the next one and is tried again with it;
/// until the program ends it counts all the same.
class StoredMemory : public QObject, public AnswerMemory
{
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    /// Milliseconds that a question to the memory waits for an answer before it goes without.
    static constexpr int Patience = 500;
    /// Milliseconds for which another program may hold the store, and for which the end of this one waits then.
    static constexpr int LockPatience = 30000;
    static constexpr int EndPatience = 2000;
    /// Answers that wait at most while they cannot be stored; the oldest are given up first.
    static constexpr size_t MostWaiting = 1000;

    /// path: of the store, which is made with the first answer. The clock gives the user's own time.
    StoredMemory(const QString &path, Clock clock, QObject *parent = nullptr);
    ~StoredMemory() override;

    void remember(const Answer &answer) override;
    std::vector<Card> cards(const std::vector<WordKey> &keys) override;
    int today() const override;

    /// Number of answers to the keys on each of count days from first on.
    std::vector<int> answersByDay(const std::vector<WordKey> &keys, int first, int count);
    /// Forgets all about the keys, or about everything. Told by changed() when it is done.
    void forget(const std::vector<WordKey> &keys);
    void forgetAll();

    /// Waits until all that was given to it is done.
    void finish() { m_thread.finish(); }
    QString path() const { return m_path; }

Q_SIGNALS:
    /// Told once for each trouble. setAside: the name that a damaged store was given.
    void troubled(MemoryTrouble trouble, const QString &setAside);
    /// What the memory knows has changed, otherwise than by an answer.
    void changed();

private:
    using Work = std::function<void(MemoryStore &)>;

    void start(JobThread::Job job);
    bool ask(const JobThread::Job &job);
    void forgetBy(const Work &work);

    // on the thread
    void add(const StoredAnswer &answer);
    bool storeWaiting();
    void countWaiting();
    void bringUpToDate();
    bool attempt(const Work &work);
    int lockPatience() const;
    bool isThere() const;
    MemoryStore &store();
    bool setAside();
    void tell(MemoryTrouble trouble, const QString &name = {});

    const QString m_path;
    const Clock m_clock;
    std::atomic<bool> m_ends = false;
    bool m_isUsed = false;

    std::unique_ptr<MemoryStore> m_store; ///< used on the thread
    std::deque<StoredAnswer> m_waiting;   ///< same
    QSet<int> m_told;                     ///< same
    bool m_wasSetAside = false;           ///< same
    bool m_isLockedOut = false;           ///< same; another program held the store for too long

    Cards m_cards;    ///< as stored; changed on the thread only, and guarded then
    Cards m_unstored; ///< same; those of them that waiting answers change
    std::mutex m_mutex;

    JobThread m_thread;
};
