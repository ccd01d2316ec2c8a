// Setting up a Multiple Choice quiz: reading the words, drawing the questions, and for each of them two wrong options.

#include "support/SampleVocabulary.h"

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

void setUp(benchmark::State &state, int mode)
{
    const SampleWords words(state.range(0));
    SeededRandom random(1);
    for (auto _ : state) {
        QuestionTable table;
        if (!table.fByggMatriser(QuizKind::MultipleChoice, mode, words, random))
            state.SkipWithError("no quiz");
        benchmark::DoNotOptimize(table);
    }
}

} // namespace

BENCHMARK_CAPTURE(setUp, inOrder, 1)->Arg(1000)->Arg(QuestionTable::MostQuestions)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(setUp, randomly, 3)->Arg(1000)->Arg(QuestionTable::MostQuestions)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(setUp, bothWays, 5)->Arg(1000)->Arg(QuestionTable::MostQuestions / 2)->Unit(benchmark::kMillisecond);
