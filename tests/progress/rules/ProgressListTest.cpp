#include "progress/rules/ProgressList.h"

namespace {

constexpr int Today = 1000;

ProgressWord word(const char *asked, const char *answer, double stability, int last, int due, int count, int missed)
{
    return {1,
            WordKey::of(QString::fromUtf8(asked), QString::fromUtf8(answer)),
            {.stability = stability, .difficulty = 5, .due = due, .last = last, .asked = count, .missed = missed}};
}

ProgressList list()
{
    return {{word("new", "neu", 0, 0, 0, 0, 0), word("overdue", "a", 3, 990, 993, 4, 1),
             word("learned", "b", 20.9, 995, 1016, 2, 0), word("known", "c", 21, 995, 1016, 9, 3),
             word("today", "d", 5, 995, 1000, 2, 2), word("of tomorrow's clock", "e", 400, 1001, 1400, 1, 0)},
            Today};
}

} // namespace

TEST(ProgressListTest, KnowsHowWordsStand)
{
    using enum ProgressList::State;
    const ProgressList words = list();
    const std::vector states = {New, Due, Learning, Known, Due, Due};
    for (int i = 0; i < words.count(); ++i)
        EXPECT_EQ(states[size_t(i)], words.state(i)) << i;
    EXPECT_EQ((std::array{1, 1, 1, 3}), words.byState());
    std::vector<int> due(17, 0);
    due[0] = 3;
    due[16] = 2;
    EXPECT_EQ(due, words.dueByDay(17));
    EXPECT_EQ(3, words.dueByDay(1)[0]);
    EXPECT_EQ(1, ProgressList({word("overdue", "a", 3, 990, 993, 4, 1)}, Today).dueByDay(1)[0]);
    EXPECT_EQ(0, words.strength(0));
    EXPECT_LT(words.strength(1), words.strength(2));
    EXPECT_EQ(100, words.strength(5));
}

TEST(ProgressListTest, OrdersByEveryColumn)
{
    using enum ProgressList::Number;
    const ProgressList words = list();
    EXPECT_EQ((std::vector{5, 2, 4, 1, 3, 0}), words.orderedBy(Asked, false));
    EXPECT_EQ((std::vector{3, 1, 2, 4, 5, 0}), words.orderedBy(Asked, true));
    EXPECT_EQ((std::vector{4, 5, 2, 1, 3, 0}), words.orderedBy(Right, false));
    EXPECT_EQ((std::vector{1, 2, 3, 4, 5, 0}), words.orderedBy(Last, false));
    EXPECT_EQ((std::vector{1, 4, 5, 2, 3, 0}), words.orderedBy(NextDue, false));
    EXPECT_EQ((std::vector{5, 3, 2, 4, 1, 0}), words.orderedBy(Strength, true));
    EXPECT_EQ((std::vector{3, 2, 0, 5, 1, 4}), words.orderedBy(ProgressList::Word, false));
    EXPECT_EQ((std::vector{0, 5, 4, 3, 2, 1}), words.orderedBy(ProgressList::Answer, true));
}

TEST(ProgressListTest, IsWrittenForSpreadsheets)
{
    const ProgressList words(
        {word("a, \"b\"", "\xC3\xA9", 21, 2461000, 2461021, 9, 3), word("new", "neu", 0, 0, 0, 0, 0)}, Today);
    EXPECT_EQ(QByteArray("\xEF\xBB\xBF\"x\",\"y\"\r\n\"new\",\"neu\",\"0\",\"0\",\"\",\"\",\"0\"\r\n"
                         "\"a, \"\"b\"\"\",\"\xC3\xA9\",\"9\",\"6\",\"2025-11-20\",\"2025-12-11\",\"52\"\r\n"),
              words.csv({QStringLiteral("x"), QStringLiteral("y")}, {1, 0}));
}
