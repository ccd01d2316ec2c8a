#include "progress/rules/ProgressList.h"

TEST(ProgressListTest, KnowsHowWordsStandAndOrdersThemByEveryColumn)
{
    const ProgressList words(
        {{1, WordKey::of("overdue", "a"), {.stability = 3, .due = 993, .last = 990, .asked = 4, .missed = 1}},
         {1, WordKey::of("new", "neu"), {}},

         {1, WordKey::of("learned", "b"), {.stability = 20.9, .due = 1016, .last = 995, .asked = 2}},
         {1, WordKey::of("known", "c"), {.stability = 21, .due = 1016, .last = 995, .asked = 9, .missed = 3}},
         {1, WordKey::of("today", "d"), {.stability = 5, .due = 1000, .last = 995, .asked = 2, .missed = 2}},
         {1, WordKey::of("of tomorrow's clock", "e"), {.stability = 400, .due = 1400, .last = 1001, .asked = 1}}},
        1000);
    QStringList states;
    for (int i = 0; i < words.count(); ++i)
        states += QString("%1 %2").arg(words.state(i)).arg(words.strength(i));
    EXPECT_EQ(states.join(", ").toStdString(), "3 23, 0 0, 1 52, 2 52, 3 30, 3 100");
    EXPECT_EQ((std::array{1, 1, 1, 3}), words.byState());
    EXPECT_EQ((std::vector{3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}), words.dueByDay(17));
    using enum ProgressList::Number;
    EXPECT_EQ((std::vector{3, 0, 2, 4, 5, 1}), words.orderedBy(Asked, true));
    EXPECT_EQ((std::vector{4, 5, 2, 0, 3, 1}), words.orderedBy(Right, false));
    EXPECT_EQ((std::vector{0, 2, 3, 4, 5, 1}), words.orderedBy(Last, false));
    EXPECT_EQ((std::vector{0, 4, 5, 2, 3, 1}), words.orderedBy(NextDue, false));
    EXPECT_EQ((std::vector{5, 3, 2, 4, 0, 1}), words.orderedBy(Strength, true));
    EXPECT_EQ((std::vector{1, 5, 4, 3, 2, 0}), words.orderedBy(ProgressList::Answer, true));
}
