#include "quiz/rules/QuizMemory.h"
#include "quiz/rules/QuizSession.h"
#include "quiz/rules/WordsToAsk.h"
#include "support/ListWords.h"
#include "support/StoredSettings.h"

namespace {

struct Recording : AnswerMemory
{
    std::vector<Answer> answers;
    QHash<WordKey, Card> known;

    void remember(const Answer &answer) override
    {
        answers.push_back(answer);
        known[answer.word] = Schedule::next(known[answer.word], answer.grade(), today());
    }
    std::vector<Card> cards(const std::vector<WordKey> &keys) override
    {
        std::vector<Card> cards(keys.size());
        std::transform(keys.begin(), keys.end(), cards.begin(), [this](const auto &key) { return known.value(key); });
        return cards;
    }
    int today() const override { return 1000; }
};

} // namespace

TEST(QuizMemoryTest, RemembersWordsInTheDirectionInWhichTheyAreAskedAndSaysWhenTheyAreDue)
{
    const ListWords words{{"one", "eins"}, {"two", "zwei"}, {"three", "drei"}};
    StoredSettings stored;
    stored.settings.setQuizMode(2);
    QuizSession session(QuizKind::QuestionAndAnswer, stored.settings);
    SeededRandom random(1);
    session.fByggMatriser(words, random);
    session.fShowQuestion();
    Recording recording;
    const QuizMemory memory(session, recording, AskedWords::keys(words, 2));
    const auto type = [&session](const char *text) { session.setAnswerText(text), session.check(); };
    type("one");
    EXPECT_EQ("The next words of this list are due in 2 days (1).", memory.nextDue());
    session.hint();
    type("two");
    type("tree");
    ASSERT_EQ(2U, recording.answers.size()) << "the last verdict can still be turned";
    EXPECT_EQ("Words of this list are due tomorrow (2).", memory.nextDue());
    session.turnVerdict();
    EXPECT_EQ("Words of this list are due tomorrow (1).", memory.nextDue());
    session.turnVerdict();
    session.settle();
    QStringList told;
    for (const Answer &each : recording.answers)
        told += QStringLiteral("%1 %2 %3 %4").arg(each.word.asked, each.word.answer).arg(each.right).arg(each.hintUsed);
    EXPECT_EQ("eins one 1 0, zwei two 1 1, drei three 0 0", told.join(", "));
    EXPECT_EQ(Answer::Kind::QuestionAndAnswer, recording.answers[0].kind);
    recording.known[WordKey::of("zwei", "two")].due = recording.today();
    EXPECT_EQ("Words of this list are due now (1).", memory.nextDue());
}

TEST(WordsToAskTest, EachChoiceFindsItsRows)
{
    using enum WordsToAsk;
    const ListWords words{{"a", "A"}, {"", "B"}, {"Cc", "ccc"}, {"d", "D"}, {"Eeee", "e"}, {"a", "Aa"}};
    const ListWords many = ListWords::numbered(500);
    Recording memory; // words in capital letters are due; one was missed as often as it has letters beyond the first
    for (const ListWords &list : {words, many}) {
        for (const WordKey &key : AskedWords::keys(list, 5)) {
            const int due = memory.today() + (key.asked[0].isUpper() ? 0 : 1);
            memory.known[key] = {
                .stability = 1, .due = due, .last = 9, .asked = 100, .missed = int(key.asked.size()) - 1};
        }
    }
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
    EXPECT_EQ(AskedWords::rows(Hardest, many, {.mode = 5, .memory = &memory}).size(), 20u);
}
