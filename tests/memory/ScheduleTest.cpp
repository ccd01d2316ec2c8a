#include "memory/AnswerMemory.h"
#include "memory/Day.h"

namespace {

using enum Grade;

/// What ts-fsrs 5.4.2 says of three histories, rounded to eight decimals: for each answer its day and grade, then the
/// card's stability, difficulty and interval.
const char *const Published[] = {
    "0 1 0.212 6.4133 1|0 3 0.24668919 6.40211507 1|1 3 2.02147724 6.39094132 2|4 2 5.53498925 7.58936704 6|"
    "20 3 20.36438381 7.57700604 20|120 1 2.39695551 9.18880673 2|120 2 2.39695551 9.44672048 2|"
    "121 3 3.27271047 9.43250213 3",
    "0 3 2.3065 2.11810397 2|2 3 10.96433194 2.11121424 11|13 3 46.28021494 2.1043314 46|"
    "60 3 164.66603334 2.09745544 165|250 3 537.83728561 2.09058635 538|1250 4 3095.10088368 1 3095|"
    "20000 1 16.51703639 7.02698957 17",
    "0 2 1.2931 5.11217071 1|0 2 1.2931 6.74045952 1|0 1 0.45140292 8.91383958 1|0 1 0.16887745 9.62821482 1|"
    "0 4 0.34315423 9.4892099 1|3 1 0.1692058 9.81733514 1"};

/// A memory of given cards.
struct Known : AnswerMemory
{
    std::vector<Card> all;
    void remember(const Answer &) override {}
    std::vector<Card> cards(const std::vector<WordKey> &) override { return all; }
    int today() const override { return 1000; }
};

} // namespace

TEST(ScheduleTest, AgreesWithAnotherImplementation)
{
    for (const char *history : Published) {
        Card now;
        for (const QString &step : QString(history).split(u'|')) {
            const QStringList parts = step.split(u' ');
            const double stability = parts[2].toDouble();
            now = Schedule::next(now, Grade(parts[1].toInt()), parts[0].toInt());
            EXPECT_NEAR(stability, now.stability, 1e-6 * std::max(1.0, stability)) << step.toStdString();
            EXPECT_NEAR(parts[3].toDouble(), now.difficulty, 1e-6) << step.toStdString();
            EXPECT_EQ(parts[0].toInt() + parts[4].toInt(), now.due);
        }
    }
}

TEST(ScheduleTest, KeepsWithinItsRangesUnderAnyClock)
{
    Card now;
    for (const int day : {2461000, 2461000 - 365, 2461000 + 3650, 0, 2461000, 5000000}) {
        for (const Grade grade : {Good, Easy, Again, Hard}) {
            now = Schedule::next(now, grade, day);
            EXPECT_TRUE(now.stability >= 0.001 && now.stability <= 36500 && now.difficulty >= 1 &&
                        now.difficulty <= 10 && now.due > day && now.due <= day + Schedule::LongestInterval);
        }
    }
    const QDate date(2026, 3, 1);
    EXPECT_EQ(date, Day::date(Day::of(QDateTime(date, QTime(4, 0)))));
    EXPECT_EQ(date, Day::date(Day::of(QDateTime(date.addDays(1), QTime(3, 59)))));
}

TEST(AnswerMemoryTest, GradesByVerdictHintAndKindAndKnowsDueAndHardWords)
{
    using enum Answer::Kind;
    for (const Answer::Kind kind : {Practice, MultipleChoice, QuestionAndAnswer}) {
        EXPECT_EQ(Again, (Answer{.kind = kind, .right = false, .hintUsed = true}).grade());
        EXPECT_EQ(Hard, (Answer{.kind = kind, .right = true, .hintUsed = true}).grade());
        EXPECT_EQ(kind == MultipleChoice ? Hard : Good, (Answer{.kind = kind, .right = true}).grade());
    }
    Known memory; // when they are due, were asked last and how often missed; the fourth on a day that has not come yet
    memory.all = {
        {}, {1, 5, 1001, 990, 9, 2}, {1, 5, 1000, 990, 9, 0}, {1, 5, 1100, 1001, 9, 5}, {1, 5, 1003, 999, 9, 2}};
    EXPECT_EQ((std::vector<bool>{false, false, true, true, false}), memory.due({}));
    EXPECT_EQ(2, memory.countDue({}));
    EXPECT_EQ((std::vector<size_t>{3, 1, 4}), memory.hardest({}));
    EXPECT_EQ((std::vector<size_t>{3}), memory.hardest({}, 1));
}

TEST(WordKeyTest, IsTheTwoWordsInTheirOrderAndNothingElse)
{
    const WordKey key = WordKey::of("caf\u00e9", "coffee");
    EXPECT_EQ(key, WordKey::of("cafe\u0301", "coffee"));
    EXPECT_EQ(3146713333146583802, key.number()) << "stands in every store: never change it";
    for (const WordKey &other : {WordKey::of(key.answer, key.asked), WordKey::of(key.asked + u'c', "offee"),
                                 WordKey::of(key.asked.toUpper(), key.answer), WordKey()})
        EXPECT_NE(key.number(), other.number());
}
