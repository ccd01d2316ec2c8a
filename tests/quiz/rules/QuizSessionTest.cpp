#include "quiz/rules/QuizSession.h"

#include "platform/RegistryTree.h"
#include "resources/StringTable.h"
#include "services/rules/clsAppProperties.h"
#include "support/ListWords.h"

namespace {

using Verdict = QuizSession::Verdict;

/// A session with its two timers: they hold their interval and tick when told to.
class Quiz
{
public:
    explicit Quiz(clsAppProperties &settings, QuizKind kind)
        : session(kind, settings)
    {
        QObject::connect(&session, &QuizSession::revealIntervalChanged, [this](int ms) { reveal = ms; });
        QObject::connect(&session, &QuizSession::autoIntervalChanged, [this](int ms) { autoReveal = ms; });
        QObject::connect(&session, &QuizSession::judged, [this](bool correct) { verdicts.push_back(correct); });
        QObject::connect(&session, &QuizSession::answerRevealed, [this] { ++reveals; });
        QObject::connect(&session, &QuizSession::roundEnded, [this] { ++ends; });
    }

    void start(const ListWords &words, quint64 seed = 1)
    {
        SeededRandom random(seed);
        ASSERT_TRUE(session.fByggMatriser(words, random));
        session.fShowQuestion();
    }

    /// Ticks the reveal timer until it stops; how often it ticked.
    int runReveal()
    {
        int ticks = 0;
        for (; reveal > 0; ++ticks)
            session.revealTick();
        return ticks;
    }

    /// Answers the question on view in the way of its kind.
    void answer(bool correctly)
    {
        const Question &question = session.question();
        switch (session.kind()) {
        case QuizKind::Practice:
            correctly ? session.check() : session.hint();
            runReveal();
            break;
        case QuizKind::MultipleChoice:
            session.choose((question.correctPosition() - Question::FirstOption + (correctly ? 0 : 1)) % 3);
            session.check();
            break;
        case QuizKind::QuestionAndAnswer:
            type(correctly ? question.correctAnswer() : QStringLiteral("?"));
        }
    }

    void type(const QString &text)
    {
        session.setAnswerText(text);
        session.check();
    }

    QuizSession session;
    int reveal = 0;
    int autoReveal = 0;
    int reveals = 0;
    int ends = 0;
    std::vector<bool> verdicts;
};

class QuizSessionTest : public testing::Test
{
protected:
    RegistryTree m_store;
    clsAppProperties settings{m_store, QStringLiteral("glosaria")};
};

struct Typed
{
    const char16_t *answer;
    const char16_t *typed;
    bool correct;
};

struct Hinted
{
    const char16_t *answer;
    const char16_t *typed;
    const char16_t *shown;
};

} // namespace

TEST_F(QuizSessionTest, WholeQuizzesOfEachKindInEachModeUntilNoErrorIsLeft)
{
    for (QuizKind kind : {QuizKind::Practice, QuizKind::MultipleChoice, QuizKind::QuestionAndAnswer}) {
        for (int mode = 1; mode <= 5; ++mode) {
            SCOPED_TRACE(mode);
            settings.setQuizMode(mode);
            Quiz quiz(settings, kind);
            quiz.start(ListWords::numbered(11), quint64(mode));
            int asked = mode == 5 ? 22 : 11;
            std::vector<Question> expected;
            for (int round = 0; asked > 0; ++round) {
                ASSERT_EQ(asked, quiz.session.questionCount());
                std::vector<Question> missed;
                for (int k = 1; k <= asked; ++k) {
                    ASSERT_FALSE(quiz.session.done());
                    ASSERT_EQ(k, quiz.session.currentQuestion());
                    const Question question = quiz.session.question();
                    EXPECT_TRUE(round == 0 || expected[size_t(k - 1)] == question);
                    const bool correctly = k % 3 != 0;
                    quiz.answer(correctly);
                    EXPECT_EQ(correctly, quiz.verdicts.back());
                    EXPECT_EQ(correctly, quiz.session.givenAnswer() == question.correctAnswer());
                    if (!correctly)
                        missed.push_back(question);
                }
                EXPECT_TRUE(quiz.session.done());
                EXPECT_EQ(asked / 3, quiz.session.errorCount());
                EXPECT_EQ(asked - asked / 3, quiz.session.correctCount());
                asked = asked / 3;
                EXPECT_EQ(asked > 0, quiz.session.canRepeat());
                expected = std::exchange(missed, {});
                quiz.session.fRepeatErrors();
            }
            EXPECT_TRUE(quiz.session.done());
        }
    }
}

TEST_F(QuizSessionTest, TypedAnswersAreComparedExactly)
{
    for (const Typed &typed :
         {Typed{u"Haus", u"Haus", true}, Typed{u"Haus", u"haus", false}, Typed{u"Haus", u"Haus ", false},
          Typed{u" Haus", u"Haus", false}, Typed{u"", u"", true}, Typed{u"Haus", u"", false},
          Typed{u"été", u"ete", false}, Typed{u"日本", u"日本", true}, Typed{u"", u"Type your answer here", true},
          Typed{u"Haus", u"Type your answer here", false}}) {
        Quiz quiz(settings, QuizKind::QuestionAndAnswer);
        quiz.start(ListWords{{u"house", typed.answer}});
        quiz.type(QString::fromUtf16(typed.typed));
        EXPECT_EQ(typed.correct, quiz.verdicts.back()) << QString::fromUtf16(typed.typed).toStdString();
        EXPECT_EQ(QString(), quiz.session.answerText());
        EXPECT_NE(resText(922), quiz.session.givenAnswer());
    }
}

TEST_F(QuizSessionTest, AHintKeepsWhatIsInPlaceAndAddsALetter)
{
    for (const Hinted &hint :
         {Hinted{u"cat", u"", u"c"}, Hinted{u"cat", u"c", u"ca"}, Hinted{u"cat", u"xat", u"cat"},
          Hinted{u"cat", u"cats", u"cat"}, Hinted{u"cat", u"xyz", u"c"}, Hinted{u"cat", u"Cat", u"cat"},
          Hinted{u"cat", u"cat", u"cat"}, Hinted{u"", u"abc", u""}, Hinted{u"été", u"", u"é"},
          Hinted{u"cat", u"Type your answer here", u"c"}, Hinted{u"e\u0301te\u0301", u"", u"e\u0301"},
          Hinted{u"e\u0301te\u0301", u"e\u0301t", u"e\u0301te\u0301"}, Hinted{u"\U0001F600!", u"", u"\U0001F600"}}) {
        Quiz quiz(settings, QuizKind::QuestionAndAnswer);
        quiz.start(ListWords{{u"question", hint.answer}});
        quiz.session.setAnswerText(QString::fromUtf16(hint.typed));
        quiz.session.hint();
        EXPECT_EQ(hint.shown, quiz.session.answerText()) << QString::fromUtf16(hint.typed).toStdString();
        EXPECT_EQ(1, quiz.reveals);
    }
}

TEST_F(QuizSessionTest, AHintCountsAsErrorOnlyWhenTheSettingSaysSoAndOnlyOnce)
{
    for (bool isError : {true, false}) {
        Quiz quiz(settings, QuizKind::QuestionAndAnswer);
        quiz.start(ListWords::numbered(2));
        quiz.session.setHintIsError(isError);
        EXPECT_EQ(isError, settings.ErrorHint());
        quiz.session.hint();
        quiz.type(quiz.session.question().correctAnswer());
        quiz.type(quiz.session.question().correctAnswer());
        EXPECT_THAT(quiz.verdicts, testing::ElementsAre(!isError, true));
        EXPECT_EQ(isError, quiz.session.canRepeat());
    }
}

TEST_F(QuizSessionTest, PracticeSpellsTheAnswerOutAndWaitsBeforeItJudges)
{
    Quiz quiz(settings, QuizKind::Practice);
    quiz.start(ListWords{{u"house", u"Haus"}, {u"a", u""}, {u"b", u"bb"}});
    quiz.session.check();
    EXPECT_EQ(200, quiz.reveal);
    for (const char16_t *shown : {u"H", u"Ha", u"Hau", u"Haus", u"Haus", u"Haus", u"Haus"}) {
        quiz.session.revealTick();
        EXPECT_EQ(shown, quiz.session.answerText());
        EXPECT_TRUE(quiz.verdicts.empty());
    }
    quiz.session.revealTick();
    EXPECT_EQ(0, quiz.reveal);
    EXPECT_THAT(quiz.verdicts, testing::ElementsAre(true));
    EXPECT_EQ(u"Haus", quiz.session.givenAnswer());
    EXPECT_EQ(QString(), quiz.session.answerText());

    // The pause that is over stays over until the next letter: an empty answer has none to wait for.
    quiz.session.hint();
    EXPECT_EQ(1, quiz.runReveal());
    EXPECT_EQ(QString(), quiz.session.givenAnswer());
    quiz.session.hint();
    EXPECT_EQ(2 + 4, quiz.runReveal());
    EXPECT_THAT(quiz.verdicts, testing::ElementsAre(true, false, false));
}

TEST_F(QuizSessionTest, TheAutomaticRevealRunsUntilTheUserAnswers)
{
    for (bool isError : {false, true}) {
        settings.setAutoCheck(true);
        settings.setAutoTimerInterval(1500);
        settings.setErrorHint(isError);
        Quiz quiz(settings, QuizKind::Practice);
        quiz.start(ListWords::numbered(2));
        EXPECT_EQ(1500, quiz.autoReveal);
        quiz.session.autoTick();
        EXPECT_EQ(0, quiz.autoReveal);
        quiz.runReveal();
        EXPECT_EQ(1500, quiz.autoReveal);
        // The user's own answer is faster: nothing is pending any more, and a second thought counts.
        quiz.session.hint();
        EXPECT_EQ(0, quiz.autoReveal);
        quiz.session.check();
        quiz.runReveal();
        EXPECT_THAT(quiz.verdicts, testing::ElementsAre(!isError, true));
        EXPECT_EQ(0, quiz.autoReveal);
    }
}

TEST_F(QuizSessionTest, TheAutomaticRevealIsSwitchedOffAndOnWhileAQuestionIsOpen)
{
    settings.setAutoCheck(true);
    settings.setAutoTimerInterval(1500);
    Quiz quiz(settings, QuizKind::Practice);
    quiz.start(ListWords::numbered(1));
    quiz.session.setAutomatic(false);
    EXPECT_FALSE(settings.AutoCheck());
    EXPECT_EQ(0, quiz.autoReveal + quiz.reveal);
    quiz.session.setAutomatic(true);
    EXPECT_TRUE(settings.AutoCheck());
    EXPECT_EQ(200, quiz.reveal);
    quiz.runReveal();
    EXPECT_TRUE(quiz.session.done());

    quiz.session.setAutomatic(false);
    quiz.session.setAutomatic(true);
    EXPECT_EQ(0, quiz.reveal);
    EXPECT_EQ(1u, quiz.verdicts.size());
}

TEST_F(QuizSessionTest, TheDelayIsReadInSecondsAndKeptInMilliseconds)
{
    settings.setAutoTimerInterval(2500);
    QuizSession session(QuizKind::Practice, settings);
    EXPECT_EQ(u"2.5", session.autoSeconds());
    const std::pair<const char *, int> cases[] = {{"4", 4000},          {"0.75", 750}, {"0,5", 500},  {"1.0006", 1001},
                                                  {"", 1001},           {"0", 1001},   {"-3", 1001},  {"three", 1001},
                                                  {"9e99", 2147483647}, {"12", 12000}, {"nan", 12000}};
    for (const auto &[text, milliseconds] : cases) {
        session.setAutoSeconds(QLatin1String(text));
        EXPECT_EQ(milliseconds, settings.AutoTimerInterval()) << text;
    }
    EXPECT_EQ(u"12", session.autoSeconds());
}

TEST_F(QuizSessionTest, AfterTheRoundNothingIsJudgedAnyMore)
{
    for (QuizKind kind : {QuizKind::Practice, QuizKind::MultipleChoice, QuizKind::QuestionAndAnswer}) {
        Quiz quiz(settings, kind);
        quiz.start(ListWords::numbered(3));
        for (int i = 0; i < 3; ++i)
            quiz.answer(true);
        quiz.session.check();
        quiz.session.hint();
        quiz.session.choose(1);
        quiz.session.revealTick();
        quiz.session.autoTick();
        quiz.session.fRepeatErrors();
        EXPECT_EQ(3u, quiz.verdicts.size());
        EXPECT_EQ(1, quiz.ends);
        EXPECT_EQ(3, quiz.session.questionCount());
    }
}
