#include "memory/StoredMemory.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

#include <future>

namespace {

std::vector<qint64> numbersOf(const std::vector<WordKey> &keys)
{
    std::vector<qint64> numbers;
    numbers.reserve(keys.size());
    for (const WordKey &key : keys)
        numbers.push_back(key.number());
    return numbers;
}

QSet<qint64> setOf(const std::vector<WordKey> &keys)
{
    const std::vector<qint64> numbers = numbersOf(keys);
    return {numbers.begin(), numbers.end()};
}

/// What is in it is nobody else's business.
void makeFolder(const QString &folder)
{
    QDir().mkpath(QFileInfo(folder).path());
    QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

StoredMemory::StoredMemory(const QString &path, Clock clock, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_clock(std::move(clock))
{
}

StoredMemory::~StoredMemory()
{
    m_ends = true;
    if (m_isUsed)
        start([this] { m_store.reset(); });
}

int StoredMemory::today() const
{
    return Day::of(m_clock());
}

void StoredMemory::start(JobThread::Job job)
{
    m_isUsed = true;
    m_thread.start(std::move(job));
}

void StoredMemory::remember(const Answer &answer)
{
    const QDateTime now = m_clock();
    start([this, stored = StoredAnswer{answer, now.toMSecsSinceEpoch(), Day::of(now)}] { add(stored); });
}

std::vector<Card> StoredMemory::cards(const std::vector<WordKey> &keys)
{
    const std::vector<qint64> numbers = numbersOf(keys);
    ask([this] { bringUpToDate(); });
    std::vector<Card> cards;
    cards.reserve(keys.size());
    const std::lock_guard lock(m_mutex);
    for (const qint64 number : numbers)
        cards.push_back(m_unstored.value(number, m_cards.value(number)));
    return cards;
}

std::vector<int> StoredMemory::answersByDay(const std::vector<WordKey> &keys, int first, int count)
{
    const auto counts = std::make_shared<QHash<int, int>>();
    const bool inTime = ask([this, counts, words = setOf(keys), first, last = first + count - 1] {
        if (isThere())
            attempt([&](MemoryStore &store) { *counts = store.answersByDay(words, first, last); });
    });
    std::vector<int> byDay(size_t(count), 0);
    for (int i = 0; inTime && i < count; ++i)
        byDay[size_t(i)] = counts->value(first + i);
    return byDay;
}

/// Does a job on the thread. False when it has not been done in time; changed() tells when it is done after all.
bool StoredMemory::ask(const JobThread::Job &job)
{
    enum { Running, Done, Late };
    const auto state = std::make_shared<std::atomic<int>>(Running);
    const auto done = std::make_shared<std::promise<void>>();
    std::future<void> ready = done->get_future();
    start([this, job, state, done] {
        job();
        const bool isLate = state->exchange(Done) == Late;
        done->set_value();
        if (isLate)
            Q_EMIT changed();
    });
    return ready.wait_for(std::chrono::milliseconds(Patience)) == std::future_status::ready ||
           state->exchange(Late) == Done;
}

void StoredMemory::forget(const std::vector<WordKey> &keys)
{
    forgetBy([words = setOf(keys)](MemoryStore &store) { store.forget(words); });
}

void StoredMemory::forgetAll()
{
    forgetBy([](MemoryStore &store) { store.forgetAll(); });
}

void StoredMemory::forgetBy(const Work &work)
{
    start([this, work] {
        if (isThere() && storeWaiting() && attempt(work))
            bringUpToDate();
        Q_EMIT changed();
    });
}

bool StoredMemory::isThere() const
{
    return m_store || QFile::exists(m_path);
}

void StoredMemory::add(const StoredAnswer &answer)
{
    m_waiting.push_back(answer);
    storeWaiting();
    if (m_waiting.size() > MostWaiting)
        m_waiting.pop_front();
    countWaiting();
}

/// What waits to be stored counts, on top of what is stored.
void StoredMemory::countWaiting()
{
    const std::lock_guard lock(m_mutex);
    m_unstored.clear();
    for (const StoredAnswer &waiting : m_waiting) {
        const qint64 word = waiting.answer.word.number();
        const Card before = m_unstored.value(word, m_cards.value(word));
        m_unstored.insert(word, Schedule::next(before, waiting.answer.grade(), waiting.day));
    }
}

bool StoredMemory::storeWaiting()
{
    if (!QFile::exists(m_path))
        m_store.reset(); // it was deleted meanwhile
    const auto work = [this](MemoryStore &store) {
        const Cards cards = store.append({m_waiting.begin(), m_waiting.end()});
        const std::lock_guard lock(m_mutex);
        m_cards.insert(cards);
    };
    if (!attempt(work))
        return false;
    m_waiting.clear();
    return true;
}

void StoredMemory::bringUpToDate()
{
    if (!isThere())
        return;
    attempt([this](MemoryStore &store) {
        MemoryStore::Changes changes = store.refresh(m_cards);
        const std::lock_guard lock(m_mutex);
        if (changes.all)
            m_cards.swap(changes.cards);
        else
            m_cards.insert(changes.cards);
    });
    countWaiting();
}

/// Works with the store, again and again while another program holds it. False when it could not be done.
bool StoredMemory::attempt(const Work &work)
{
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        try {
            work(store());
            m_isLockedOut = false;
            return true;
        } catch (const StoreError &error) {
            if (error.trouble == MemoryTrouble::Locked && waited.elapsed() < lockPatience())
                continue; // the database has waited a little
            m_isLockedOut = error.trouble == MemoryTrouble::Locked;
            if (error.trouble == MemoryTrouble::Damaged && !std::exchange(m_wasSetAside, true) && setAside())
                continue;
            tell(error.trouble);
            return false;
        }
    }
}

/// Milliseconds. Nobody is to wait for another program but the thread, and that only once when the program ends.
int StoredMemory::lockPatience() const
{
    if (QThread::currentThread() == thread())
        return 0;
    if (m_ends)
        return m_isLockedOut ? 0 : EndPatience;
    return LockPatience;
}

MemoryStore &StoredMemory::store()
{
    if (!m_store) {
        makeFolder(QFileInfo(m_path).path());
        m_store = std::make_unique<MemoryStore>(m_path);
    }
    return *m_store;
}

/// Puts a damaged store away. True when there is room for another one.
bool StoredMemory::setAside()
{
    m_store.reset();
    const QString name = MemoryStore::setAside(m_path);
    if (!name.isEmpty())
        tell(MemoryTrouble::Damaged, name);
    return !name.isEmpty();
}

void StoredMemory::tell(MemoryTrouble trouble, const QString &name)
{
    if (m_told.contains(int(trouble)))
        return;
    m_told.insert(int(trouble));
    Q_EMIT troubled(trouble, name);
}
