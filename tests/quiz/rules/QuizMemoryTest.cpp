#include "quiz/rules/QuizMemory.h"
#include "platform/registry/RegistryTree.h"
#include "quiz/rules/QuizSession.h"
#include "quiz/rules/WordsToAsk.h"
#include "services/settings/clsAppProperties.h"
#include "support/ListWords.h"

namespace {

constexpr int Today = 1000;

struct Recording : AnswerMemory
{
    std::vector<Answer> answers;
    QHash<WordKey, Card> known;

    void remember(const Answer &answer) override
    {
        answers.push_back(answer);
        known[answer.word] = Schedule::next(known[answer.word], answer.grade(), Today);
    }
    std::vector<Card> cards(const std::vector<WordKey> &keys) override
    {
        std::vector<Card> cards;
        for (const WordKey &key : keys)
            cards.push_back(known.value(key));
        return cards;
    }
    int today() const override { return Today; }
};

struct QuizMemoryTest : ::testing::Test
{
    QuizMemoryTest()
    {
        settings.setQuizMode(2);
        SeededRandom random(1);
        session.fByggMatriser(words, random);
        session.fShowQuestion();
    }
    void type(const QString &text)
    {
        session.setAnswerText(text);
        session.check();
    }

    ListWords words{{"one", "eins"}, {"two", "zwei"}, {"three", "drei"}};
    RegistryTree store;
    clsAppProperties settings{store, "glosaria"};
    QuizSession session{QuizKind::QuestionAndAnswer, settings};
    Recording recording;
    QuizMemory memory{session, recording, AskedWords::keys(words, 2)};
};

} // namespace

TEST_F(QuizMemoryTest, RemembersWordsInTheDirectionInWhichTheyAreAsked)
{
    type("one");
    session.hint();
    type("two");
    type("tree");
    ASSERT_EQ(2U, recording.answers.size()) << "the last verdict can still be turned";
    session.settle();
    const std::tuple<const char *, const char *, bool, bool> expected[] = {
        {"eins", "one", true, false}, {"zwei", "two", true, true}, {"drei", "three", false, false}};
    ASSERT_EQ(3U, recording.answers.size());
    for (size_t i = 0; i < 3; ++i) {
        const auto &[asked, right, isRight, hint] = expected[i];
        const Answer &answer = recording.answers[i];
        EXPECT_EQ(WordKey::of(asked, right), answer.word);
        EXPECT_EQ(Answer::Kind::QuestionAndAnswer, answer.kind);
        EXPECT_EQ(isRight, answer.right);
        EXPECT_EQ(hint, answer.hintUsed);
    }
}

TEST_F(QuizMemoryTest, SaysWhenWordsOfTheListAreDueNext)
{
    EXPECT_EQ("", memory.nextDue());
    type("one");
    EXPECT_EQ("The next words of this list are due in 2 days (1).", memory.nextDue());
    type("two");
    type("tree");
    EXPECT_EQ("Words of this list are due tomorrow (1).", memory.nextDue());
    session.turnVerdict();
    EXPECT_EQ("The next words of this list are due in 2 days (3).", memory.nextDue());
    recording.known[WordKey::of("zwei", "two")].due = Today;
    EXPECT_EQ("Words of this list are due now (1).", memory.nextDue());
}
