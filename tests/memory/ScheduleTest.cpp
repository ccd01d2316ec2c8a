#include "memory/AnswerMemory.h"
#include "memory/Day.h"

namespace {

using enum Grade;

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
    const QString histories = readFile(SOURCE_FOLDER "/tests/memory/histories.txt");
    for (const QString &history : histories.split(u'\n').filter("|")) {
        Card now;
        for (const QString &step : history.split(u'|')) {
            const QStringList parts = step.split(u' ');
            const double stability = parts[2].toDouble();
            now = Schedule::next(now, Grade(parts[1].toInt()), parts[0].toInt());
            EXPECT_NEAR(stability, now.stability, 1e-6 * std::max(1.0, stability)) << step.toStdString();
            EXPECT_NEAR(parts[3].toDouble(), now.difficulty, 1e-6) << step.toStdString();
            EXPECT_EQ(parts[0].toInt() + parts[4].toInt(), now.due);
        }
    }
}

TEST(ScheduleTest, ADayBeginsAtFour)
{
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
    EXPECT_TRUE(memory.due({}) == (std::vector{false, false, true, true, false}) && memory.countDue({}) == 2);
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
