// The memory of the user's answers: which words of a list are due with a million answers stored, from a store that is
// opened for the question and from one that is open; what an answer costs the user, and what it costs the thread.

#include "support/SampleVocabulary.h"

#include "memory/Day.h"
#include "memory/StoredMemory.h"

#include <QTemporaryDir>

namespace {

constexpr int Words = 32767;
constexpr int StoredAnswers = 1000000;
const QDateTime Now(QDate(2026, 11, 25), QTime(12, 0));

std::vector<WordKey> keysOfAList()
{
    const Vocabulary words = SampleVocabulary::make(Words);
    std::vector<WordKey> keys;
    for (size_t row = 1; row <= Words; ++row)
        keys.push_back(WordKey::of(words.first[row], words.second[row]));
    return keys;
}

/// A store with a million answers of 100 days to the words of the list and their counterparts.
class FullStore
{
public:
    FullStore()
    {
        constexpr int Batch = 10000;
        constexpr int Days = 100;
        MemoryStore store(path());
        std::vector<StoredAnswer> answers;
        const int today = Day::of(Now);
        for (int i = 0; i < StoredAnswers; ++i) {
            const WordKey &key = m_keys[size_t(i % Words)];
            const bool isBack = i / Words % 2;
            const int day = today - Days + qint64(i) * Days / StoredAnswers;
            answers.push_back({{isBack ? WordKey{key.answer, key.asked} : key, Answer::Kind::QuestionAndAnswer,
                                i % 7 != 0, false, 2000},
                               Now.addDays(day - today).toMSecsSinceEpoch(),
                               day});
            if (answers.size() == Batch) {
                store.append(answers);
                answers.clear();
            }
        }
        store.append(answers);
    }
    QString path() const { return m_folder.path() + QStringLiteral("/memory.sqlite"); }
    const std::vector<WordKey> &keys() const { return m_keys; }

private:
    QTemporaryDir m_folder;
    std::vector<WordKey> m_keys = keysOfAList();
};

FullStore &fullStore()
{
    static FullStore store;
    return store;
}

QDateTime clockOfBench()
{
    return Now;
}

void dueFromClosedStore(benchmark::State &state)
{
    FullStore &full = fullStore();
    for (auto _ : state) {
        StoredMemory memory(full.path(), clockOfBench);
        state.counters["due"] = memory.countDue(full.keys());
    }
}

void dueFromOpenStore(benchmark::State &state)
{
    FullStore &full = fullStore();
    StoredMemory memory(full.path(), clockOfBench);
    memory.countDue(full.keys());
    for (auto _ : state)
        state.counters["due"] = memory.countDue(full.keys());
}

void answersOfTwelveWeeks(benchmark::State &state)
{
    constexpr int Days = 84;
    FullStore &full = fullStore();
    StoredMemory memory(full.path(), clockOfBench);
    for (auto _ : state)
        benchmark::DoNotOptimize(memory.answersByDay(full.keys(), Day::of(Now) - Days, Days));
}

/// What the user waits for: the key is made and the answer handed over. letters: of each of the two words.
void remember(benchmark::State &state)
{
    FullStore &full = fullStore();
    StoredMemory memory(full.path(), clockOfBench);
    const QString word(state.range(0), QChar(0xE9));
    for (auto _ : state)
        memory.remember({WordKey::of(word, word), Answer::Kind::Practice, true, false, 2000});
    memory.forget({WordKey::of(word, word)});
}

/// What the thread does for one answer, from the first to the last write.
void store(benchmark::State &state)
{
    FullStore &full = fullStore();
    StoredMemory memory(full.path(), clockOfBench);
    const WordKey key = WordKey::of(QStringLiteral("one"), QStringLiteral("uno"));
    for (auto _ : state) {
        memory.remember({key, Answer::Kind::Practice, true, false, 2000});
        memory.finish();
    }
    memory.forget({key});
}

void rebuild(benchmark::State &state)
{
    MemoryStore store(fullStore().path());
    for (auto _ : state)
        store.rebuild();
}

} // namespace

BENCHMARK(dueFromClosedStore)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(dueFromOpenStore)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(answersOfTwelveWeeks)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(remember)->Arg(10)->Arg(100000)->Iterations(500)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(store)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(rebuild)->UseRealTime()->Iterations(2)->Unit(benchmark::kMillisecond);
