#include "quiz/rules/WordsToAsk.h"

#include "memory/AnswerMemory.h"
#include "support/ListWords.h"

namespace {

/// Words in capital letters are due; a word was missed as often as it has letters beyond the first.
struct Spelled : AnswerMemory
{
    void remember(const Answer &) override {}
    int today() const override { return 10; }
    std::vector<Card> cards(const std::vector<WordKey> &keys) override
    {
        std::vector<Card> cards;
        for (const WordKey &key : keys) {
            const int due = key.asked[0].isUpper() ? 10 : 11;
            cards.push_back({.stability = 1, .due = due, .last = 9, .asked = 100, .missed = int(key.asked.size()) - 1});
        }
        return cards;
    }
};

} // namespace

TEST(WordsToAskTest, EachChoiceFindsItsRows)
{
    using enum WordsToAsk;
    const ListWords words{{"a", "A"}, {"", "B"}, {"Cc", "ccc"}, {"d", "D"}, {"Eeee", "e"}, {"a", "Aa"}};
    Spelled memory;
    using Rows = std::vector<int>;
    const std::tuple<WordsToAsk, int, Rows> cases[] = {
        {All, 1, {1, 3, 4, 5, 6}}, {SelectedRows, 1, {3, 4}}, {Missed, 1, {4, 6}},
        {Due, 1, {3, 5}},          {Due, 4, {1, 4, 6}},       {Due, 5, {1, 3, 4, 5, 6}},
        {Hardest, 3, {5, 3}},      {Hardest, 2, {3, 6}},      {Hardest, 5, {5, 3, 6}},
    };
    for (const auto &[choice, mode, expected] : cases) {
        const AskedWords::Facts facts{mode, 2, 4, {{"d", "D"}, {"a", "Aa"}, {"gone", ""}}, &memory};
        EXPECT_EQ(AskedWords::rows(choice, words, facts), expected) << int(choice) << " in mode " << mode;
    }
    for (const WordsToAsk choice : {SelectedRows, Missed, Due, Hardest})
        EXPECT_EQ(AskedWords::rows(choice, words, {}), Rows()) << int(choice);
    const ListWords many = ListWords::numbered(500);
    EXPECT_EQ(AskedWords::rows(Hardest, many, {.mode = 5, .memory = &memory}).size(), 20u);
}
