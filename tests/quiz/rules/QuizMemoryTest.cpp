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
    EXPECT_EQ("", memory.nextDue());
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
