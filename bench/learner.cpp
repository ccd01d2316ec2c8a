// A learner for whom words are forgotten as the schedule's model says, over many days with new words each: how many of
// them are known when the words that are due are asked, beside asking all of them in turn with the same number of
// answers a day.

#include "memory/Schedule.h"

#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int Days = 200;
constexpr int NewWordsADay = 20;
constexpr int Stage = 25; ///< days between two lines of the table

class Learner
{
public:
    explicit Learner(unsigned seed)
        : m_random(seed)
    {
    }

    const std::vector<Card> &words() const { return m_words; }
    int answersToday() const { return m_answers; }
    int rightToday() const { return m_right; }
    int repeatedToday() const { return m_repeated; }

    void beginDay(int day)
    {
        m_day = day;
        m_answers = m_right = m_repeated = 0;
    }
    /// A word that is seen for the first time is missed, and known when it is repeated in the same quiz.
    void meetWord()
    {
        m_words.emplace_back();
        answer(m_words.back(), Grade::Again);
        answer(m_words.back(), Grade::Good);
    }
    /// What is missed is repeated in the same quiz.
    void ask(size_t word)
    {
        Card &card = m_words[word];
        const bool isKnown = m_uniform(m_random) < chance(card);
        ++m_repeated;
        m_right += isKnown ? 1 : 0;
        answer(card, isKnown ? Grade::Good : Grade::Again);
        if (!isKnown)
            answer(card, Grade::Good);
    }
    /// The share of all words met that is known now.
    double known() const
    {
        double sum = 0;
        for (const Card &card : m_words)
            sum += chance(card);
        return sum / double(m_words.size());
    }

private:
    double chance(const Card &card) const { return Schedule::retrievability(card.stability, m_day - card.last); }
    void answer(Card &card, Grade grade)
    {
        card = Schedule::next(card, grade, m_day);
        ++m_answers;
    }

    std::mt19937 m_random;
    std::uniform_real_distribution<double> m_uniform{0, 1};
    std::vector<Card> m_words;
    int m_day = 0;
    int m_answers = 0;
    int m_right = 0;
    int m_repeated = 0;
};

void askDue(Learner &learner, int day)
{
    for (size_t word = 0; word < learner.words().size(); ++word) {
        if (Schedule::isDue(learner.words()[word], day))
            learner.ask(word);
    }
}

/// Goes on where it stopped the day before, until that many answers are given.
void askInTurn(Learner &learner, int answers, size_t &place)
{
    while (!learner.words().empty() && learner.answersToday() < answers)
        learner.ask(place++ % learner.words().size());
}

struct Sum
{
    double known = 0; ///< shares when the days began
    int mornings = 0;
    int answers = 0;
    int repeated = 0;
    int right = 0;

    void begin(const Learner &learner)
    {
        known += learner.known();
        ++mornings;
    }
    void count(const Learner &learner)
    {
        answers += learner.answersToday();
        repeated += learner.repeatedToday();
        right += learner.rightToday();
    }
};

void printLine(int day, const Sum &due, const Sum &inTurn)
{
    std::printf("%5d %7d %8.0f %9.1f %9.1f %9.1f %9.1f\n", day, day * NewWordsADay, double(due.answers) / Stage,
                100 * due.known / due.mornings, 100.0 * due.right / std::max(1, due.repeated),
                100 * inTurn.known / inTurn.mornings, 100.0 * inTurn.right / std::max(1, inTurn.repeated));
}

} // namespace

int main()
{
    std::printf("                       ---- due words ----  ---- in turn ----\n"
                "  day   words  answers   known, %%  right, %%  known, %%  right, %%\n");
    Learner byDue(1);
    Learner byTurn(1);
    size_t place = 0;
    Sum due;
    Sum inTurn;
    for (int day = 1; day <= Days; ++day) {
        byDue.beginDay(day);
        byTurn.beginDay(day);
        if (day > 1) {
            due.begin(byDue);
            inTurn.begin(byTurn);
        }
        askDue(byDue, day);
        for (int word = 0; word < NewWordsADay; ++word)
            byDue.meetWord();
        const int answers = byDue.answersToday();
        askInTurn(byTurn, answers - 2 * NewWordsADay, place);
        for (int word = 0; word < NewWordsADay; ++word)
            byTurn.meetWord();
        due.count(byDue);
        inTurn.count(byTurn);
        if (day % Stage == 0) {
            printLine(day, due, inTurn);
            due = inTurn = {};
        }
    }
    return 0;
}
