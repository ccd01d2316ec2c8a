// Setting up a Multiple Choice quiz: reading the words, drawing the questions, and for each of them two wrong options.
// Judging a typed answer with every option on: a phrase with several answers, and one answer of so many letters.

#include "support/SampleVocabulary.h"

#include "quiz/rules/AnswerJudge.h"
#include "quiz/rules/QuestionTable.h"

namespace {

class SampleWords : public WordSource
{
public:
    explicit SampleWords(qsizetype pairs)
        : m_vocabulary(SampleVocabulary::make(pairs))
    {
    }

    int Rows() const override { return int(m_vocabulary.rows()); }
    QString TextMatrix(int row, int col) const override
    {
        return col == 1 ? m_vocabulary.first[size_t(row)] : m_vocabulary.second[size_t(row)];
    }

private:
    Vocabulary m_vocabulary;
};

std::vector<bool> spread(int rows, qint64 count)
{
    std::vector<bool> chosen(static_cast<size_t>(rows));
    for (qint64 i = 0; i < count; ++i)
        chosen[size_t(1 + i * (rows - 1) / count)] = true;
    return chosen;
}

/// Arguments: the words of the list, and how many of them are asked, spread over it.
void setUp(benchmark::State &state, int mode)
{
    const SampleWords words(state.range(0));
    SeededRandom random(1);
    const std::vector<bool> chosen = spread(words.Rows(), state.range(1));
    AskedRows rows;
    if (state.range(1) < state.range(0))
        rows.asks = [&chosen](int row) { return bool(chosen[size_t(row)]); };
    for (auto _ : state) {
        QuestionTable table;
        if (!table.fByggMatriser(QuizKind::MultipleChoice, mode, words, random, rows))
            state.SkipWithError("no quiz");
        benchmark::DoNotOptimize(table);
    }
}

constexpr AnswerTolerance Everything{true, true, true, true, true};

void judge(benchmark::State &state, const char *given, const char *expected)
{
    AnswerJudge judge;
    judge.prepare(Everything);
    const QString said = QString::fromUtf8(given);
    const QString wanted = QString::fromUtf8(expected);
    for (auto _ : state)
        benchmark::DoNotOptimize(judge.judge(said, wanted, Everything));
}

/// A phrase again and again, up to so many letters.
void judgeLong(benchmark::State &state, const char *given, const char *expected)
{
    AnswerJudge judge;
    judge.prepare(Everything);
    const QString wanted = QString::fromUtf8(expected);
    const QString said = QString::fromUtf8(given);
    const qsizetype times = state.range(0) / wanted.size();
    for (auto _ : state)
        benchmark::DoNotOptimize(judge.judge(said.repeated(times), wanted.repeated(times), Everything));
}

/// The same with letters that are all different.
void judgeManyLetters(benchmark::State &state)
{
    AnswerJudge judge;
    judge.prepare(Everything);
    QString wanted;
    for (qint64 i = 0; i < state.range(0); ++i)
        wanted += QChar(char16_t(0x4E00 + i));
    QString said = wanted;
    std::reverse(said.begin(), said.end());
    for (auto _ : state)
        benchmark::DoNotOptimize(judge.judge(said, wanted, Everything));
}

constexpr const char *Several = "die Bank (Geld), das Geldinstitut / Kreditinstitut; die Sparkasse (örtlich)";

} // namespace

BENCHMARK_CAPTURE(judge, forgiven, "sparkasse ortlich, die bank", Several)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(judge, wrong, "die Sparkase", Several)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(judge, wrongInArabic, "كتب المعلم", "كِتَابُ الْمُعَلِّمِ")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(judgeLong, withAnswers, "ete, ov (la) ", "été, où (là) ")
    ->Arg(130)
    ->Arg(400)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(judgeLong, plain, "der Baum ist grum ", "der Baum ist grün ")
    ->Arg(400)
    ->Arg(5000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(judgeManyLetters)->Arg(100)->Arg(400)->Arg(2000)->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(setUp, inOrder, 1)
    ->Args({1000, 1000})
    ->Args({QuestionTable::MostQuestions, QuestionTable::MostQuestions})
    ->Args({QuestionTable::MostQuestions, 5000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(setUp, randomly, 3)
    ->Args({1000, 1000})
    ->Args({QuestionTable::MostQuestions, QuestionTable::MostQuestions})
    ->Args({QuestionTable::MostQuestions, 5000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(setUp, bothWays, 5)
    ->Args({1000, 1000})
    ->Args({QuestionTable::MostQuestions / 2, QuestionTable::MostQuestions / 2})
    ->Args({QuestionTable::MostQuestions, 5000})
    ->Unit(benchmark::kMillisecond);
