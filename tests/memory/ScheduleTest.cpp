#include "memory/AnswerMemory.h"
#include "memory/Day.h"

namespace {

struct Step
{
    int day;
    Grade grade;
    double stability;
    double difficulty;
    int interval;
};

/// What ts-fsrs 5.4.2 says of three histories; it rounds to eight decimals.
const std::vector<std::vector<Step>> Published = {
    {
        {0, Grade::Again, 0.212, 6.4133, 1},
        {0, Grade::Good, 0.24668919, 6.40211507, 1},
        {1, Grade::Good, 2.02147724, 6.39094132, 2},
        {4, Grade::Hard, 5.53498925, 7.58936704, 6},
        {20, Grade::Good, 20.36438381, 7.57700604, 20},
        {120, Grade::Again, 2.39695551, 9.18880673, 2},
        {120, Grade::Hard, 2.39695551, 9.44672048, 2},
        {121, Grade::Good, 3.27271047, 9.43250213, 3},
    },
    {
        {0, Grade::Good, 2.3065, 2.11810397, 2},
        {2, Grade::Good, 10.96433194, 2.11121424, 11},
        {13, Grade::Good, 46.28021494, 2.1043314, 46},
        {60, Grade::Good, 164.66603334, 2.09745544, 165},
        {250, Grade::Good, 537.83728561, 2.09058635, 538},
        {1250, Grade::Easy, 3095.10088368, 1, 3095},
        {20000, Grade::Again, 16.51703639, 7.02698957, 17},
    },
    {
        {0, Grade::Hard, 1.2931, 5.11217071, 1},
        {0, Grade::Hard, 1.2931, 6.74045952, 1},
        {0, Grade::Again, 0.45140292, 8.91383958, 1},
        {0, Grade::Again, 0.16887745, 9.62821482, 1},
        {0, Grade::Easy, 0.34315423, 9.4892099, 1},
        {3, Grade::Again, 0.1692058, 9.81733514, 1},
    },
};

/// A memory of given cards.
struct Known : AnswerMemory
{
    std::vector<Card> all;
    void remember(const Answer &) override {}
    std::vector<Card> cards(const std::vector<WordKey> &) override { return all; }
    int today() const override { return 1000; }
};

Card card(int last, int due, int missed)
{
    return {.stability = 1, .difficulty = 5, .due = due, .last = last, .asked = 9, .missed = missed};
}

} // namespace

TEST(ScheduleTest, AgreesWithAnotherImplementation)
{
    for (const std::vector<Step> &history : Published) {
        Card now;
        for (const Step &step : history) {
            now = Schedule::next(now, step.grade, step.day);
            EXPECT_NEAR(step.stability, now.stability, 1e-6 * std::max(1.0, step.stability)) << "day " << step.day;
            EXPECT_NEAR(step.difficulty, now.difficulty, 1e-6) << "day " << step.day;
            EXPECT_EQ(step.day + step.interval, now.due);
        }
        EXPECT_EQ(int(history.size()), now.asked);
    }
}

TEST(ScheduleTest, KeepsWithinItsRangesUnderAnyClock)
{
    Card now;
    for (const int day : {2461000, 2461000 - 365, 2461000 + 3650, 0, 2461000, 5000000}) {
        for (const Grade grade : {Grade::Good, Grade::Easy, Grade::Again, Grade::Hard}) {
            now = Schedule::next(now, grade, day);
            EXPECT_TRUE(now.stability >= 0.001 && now.stability <= 36500) << day;
            EXPECT_TRUE(now.difficulty >= 1 && now.difficulty <= 10) << day;
            EXPECT_TRUE(now.due > day && now.due <= day + Schedule::LongestInterval) << day;
        }
    }
    EXPECT_EQ(6, now.missed);
    EXPECT_TRUE(Schedule::isDue(now, now.due));
    EXPECT_FALSE(Schedule::isDue(now, now.last));
    EXPECT_TRUE(Schedule::isDue(now, now.last - 1)) << "asked on a day that has not come yet";
}

TEST(ScheduleTest, ADayTurnsAtFour)
{
    const QDate date(2026, 3, 1);
    EXPECT_EQ(date, Day::date(Day::of(QDateTime(date, QTime(4, 0)))));
    EXPECT_EQ(date, Day::date(Day::of(QDateTime(date.addDays(1), QTime(3, 59)))));
}

TEST(AnswerMemoryTest, GradesByVerdictHintAndKind)
{
    using enum Answer::Kind;
    for (const Answer::Kind kind : {Practice, MultipleChoice, QuestionAndAnswer}) {
        EXPECT_EQ(Grade::Again, (Answer{.kind = kind, .right = false, .hintUsed = true}).grade());
        EXPECT_EQ(Grade::Hard, (Answer{.kind = kind, .right = true, .hintUsed = true}).grade());
        EXPECT_EQ(kind == MultipleChoice ? Grade::Hard : Grade::Good, (Answer{.kind = kind, .right = true}).grade());
    }
}

TEST(AnswerMemoryTest, KnowsDueAndHardWords)
{
    Known memory;
    memory.all = {Card(), card(990, 1001, 2), card(990, 1000, 0), card(1001, 1100, 5), card(999, 1003, 2)};
    EXPECT_EQ((std::vector<bool>{false, false, true, true, false}), memory.due({}));
    EXPECT_EQ(2, memory.countDue({}));
    EXPECT_EQ((std::vector<size_t>{3, 1, 4}), memory.hardest({}));
    EXPECT_EQ((std::vector<size_t>{3}), memory.hardest({}, 1));
    EXPECT_EQ(0, memory.daysUntilDue({}));
    memory.all = {Card(), card(999, 1003, 2), card(990, 1001, 2)};
    EXPECT_EQ(1, memory.daysUntilDue({}));
    memory.all = {Card()};
    EXPECT_EQ(std::nullopt, memory.daysUntilDue({}));
}

TEST(WordKeyTest, IsTheTwoWordsInTheirOrderAndNothingElse)
{
    const WordKey key = WordKey::of(QStringLiteral("caf\u00e9"), QStringLiteral("coffee"));
    EXPECT_EQ(key, WordKey::of(QStringLiteral("cafe\u0301"), QStringLiteral("coffee")));
    EXPECT_EQ(3146713333146583802, key.number()) << "stands in every store: never change it";
    for (const WordKey &other :
         {WordKey::of(key.answer, key.asked), WordKey::of(key.asked + u'c', QStringLiteral("offee")),
          WordKey::of(key.asked.toUpper(), key.answer), WordKey()})
        EXPECT_NE(key.number(), other.number());
}
