#include "quiz/rules/QuizSession.h"

#include "quiz/rules/Seconds.h"
#include "resources/StringTable.h"
#include "support/ListWords.h"
#include "support/StoredSettings.h"

/// A quiz that has begun, with its clock and its two timers: they hold their interval and tick when told to.
struct Quiz
{
    Quiz(clsAppProperties &settings, QuizKind kind, const ListWords &words, quint64 seed = 1)
        : session(kind, settings)
    {
        QObject::connect(&session, &QuizSession::revealIntervalChanged, [this](int ms) { reveal = ms; });
        QObject::connect(&session, &QuizSession::autoIntervalChanged, [this](int ms) { autoReveal = ms; });
        QObject::connect(&session, &QuizSession::judged, [this](bool correct) { verdicts.push_back(correct); });
        session.setClock([this] { return now; });
        QObject::connect(&session, &QuizSession::settled, [this](const auto &word, bool right, bool hint, int ms) {
            told += word.askedWord() + (right ? " right" : " wrong") + (hint ? " hint " : " ") + QString::number(ms);
        });
        SeededRandom random(seed);
        EXPECT_TRUE(session.fByggMatriser(words, random));
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
        if (session.kind() == QuizKind::QuestionAndAnswer) {
            type(correctly ? question.correctAnswer() : "?");
        } else if (session.kind() == QuizKind::MultipleChoice) {
            session.choose((question.correctPosition() - Question::FirstOption + (correctly ? 0 : 1)) % 3);
            session.check();
        } else {
            correctly ? session.check() : session.hint();
            runReveal();
        }
    }

    void type(const QString &text)
    {
        now += 50;
        session.setAnswerText(text);
        session.check();
    }

    /// What was told of final verdicts since the last time, and the counters.
    std::string news()
    {
        const QString counters = QStringLiteral("; %1/%2").arg(session.correctCount()).arg(session.errorCount());
        return (std::exchange(told, {}).join(", ") + counters).toStdString();
    }

    QuizSession session;
    qint64 now = 1000;
    QStringList told;
    int reveal = 0;
    int autoReveal = 0;
    std::vector<bool> verdicts;
};

struct QuizSessionTest : ::testing::Test, StoredSettings
{
};

TEST_F(QuizSessionTest, WholeQuizzesOfEachKindInEachModeUntilNoErrorIsLeft)
{
    for (QuizKind kind : {QuizKind::Practice, QuizKind::MultipleChoice, QuizKind::QuestionAndAnswer}) {
        for (int mode = 1; mode <= 5; ++mode) {
            SCOPED_TRACE(mode);
            settings.setQuizMode(mode);
            Quiz quiz(settings, kind, ListWords::numbered(11), quint64(mode));
            QuizSession &session = quiz.session;
            int asked = mode == 5 ? 22 : 11;
            std::vector<Question> expected;
            for (int round = 0; asked > 0; ++round) {
                ASSERT_EQ(asked, session.questionCount());
                std::vector<Question> missed;
                for (int k = 1; k <= asked; ++k) {
                    ASSERT_FALSE(session.done());
                    ASSERT_EQ(k, session.currentQuestion());
                    const Question question = session.question();
                    EXPECT_TRUE(round == 0 || expected[size_t(k - 1)] == question);
                    const bool correctly = k % 3 != 0;
                    quiz.answer(correctly);
                    EXPECT_EQ(correctly, quiz.verdicts.back());
                    EXPECT_EQ(correctly, session.givenAnswer() == question.correctAnswer());
                    if (!correctly)
                        missed.push_back(question);
                }
                const size_t judged = quiz.verdicts.size();
                quiz.answer(true);
                session.revealTick();
                session.autoTick();
                EXPECT_TRUE(session.done() && quiz.verdicts.size() == judged) << "the round is over";
                EXPECT_EQ(asked / 3, session.errorCount());
                EXPECT_EQ(asked - asked / 3, session.correctCount());
                asked = asked / 3;
                EXPECT_EQ(asked > 0, session.canRepeat());
                expected = std::exchange(missed, {});
                session.fRepeatErrors();
            }
            EXPECT_TRUE(session.done());
        }
    }
}

TEST_F(QuizSessionTest, TypedAnswersAreComparedExactly)
{
    // the answer and what is typed
    const QStringList right{"Haus|Haus", "|", "日本|日本", "|Type your answer here", "e\u0301|é", "ế|e\u0302\u0301"};
    const QStringList wrong{"Haus|haus", "Haus|Haus ", " Haus|Haus", "Haus|", "été|ete", "Haus|Type your answer here"};
    for (const QString &texts : right + wrong) {
        const QStringList parts = texts.split(u'|');
        Quiz quiz(settings, QuizKind::QuestionAndAnswer, {{"house", parts[0]}});
        quiz.type(parts[1]);
        EXPECT_EQ(right.contains(texts), quiz.verdicts.back()) << texts.toStdString();
        EXPECT_EQ(QString(), quiz.session.answerText());
        EXPECT_NE(resText(922), quiz.session.givenAnswer());
    }
}

TEST_F(QuizSessionTest, AHintKeepsWhatIsInPlaceAndAddsALetter)
{
    // the answer, what is typed, and what the hint makes of it
    for (const char *texts : {"cat||c", "cat|c|ca", "cat|xat|cat", "cat|cats|cat", "cat|xyz|c", "cat|Cat|cat",
                              "cat|cat|cat", "|abc|", "été||é", "cat|Type your answer here|c", "e\u0301te\u0301||é",
                              "e\u0301te\u0301|ét|été", "q\u0303a||q\u0303", "\U0001F600!||\U0001F600"}) {
        const QStringList parts = QString(texts).split(u'|');
        Quiz quiz(settings, QuizKind::QuestionAndAnswer, {{"question", parts[0]}});
        quiz.session.setAnswerText(parts[1]);
        quiz.session.hint();
        EXPECT_EQ(parts[2], quiz.session.answerText()) << texts;
    }
}

TEST_F(QuizSessionTest, PracticeSpellsTheAnswerOutAndWaitsBeforeItJudges)
{
    Quiz quiz(settings, QuizKind::Practice, {{"house", "Haus"}, {"a", ""}, {"b", "bb"}});
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
        Quiz quiz(settings, QuizKind::Practice, ListWords::numbered(2));
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
    Quiz quiz(settings, QuizKind::Practice, ListWords::numbered(1));
    quiz.session.setAutomatic(false);
    EXPECT_TRUE(!settings.AutoCheck() && quiz.autoReveal + quiz.reveal == 0);
    quiz.session.setAutomatic(true);
    EXPECT_TRUE(settings.AutoCheck() && quiz.reveal == 200);
    quiz.runReveal();
    quiz.session.setAutomatic(false);
    quiz.session.setAutomatic(true);
    EXPECT_EQ(0, quiz.reveal) << "the round is over";
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
    const QLocale before;
    for (const char *name : {"de", "ar_EG", "fa", "bn", "mr", "my", "dz", "ff_Adlm"}) {
        QLocale::setDefault(QLocale(name));
        EXPECT_EQ(12340, Seconds::toMilliseconds(Seconds::fromMilliseconds(12340))) << name;
        EXPECT_EQ(QString(), Seconds::fromMilliseconds(12340).remove(Seconds::pattern())) << name;
    }
    QLocale::setDefault(before);
}

TEST_F(QuizSessionTest, AnAnswerIsToldOnceWhenItsVerdictIsFinal)
{
    Quiz quiz(settings, QuizKind::QuestionAndAnswer, {{"one", "1"}, {"two", "2"}, {"three", "3"}});
    quiz.type("1");
    EXPECT_EQ("one right 50; 1/0", quiz.news());
    quiz.session.turnVerdict();
    EXPECT_EQ("; 1/0", quiz.news()) << "only what was wrong can be turned";
    quiz.session.hint();
    quiz.type("x");
    EXPECT_EQ("; 1/1", quiz.news());
    quiz.session.turnVerdict();
    EXPECT_EQ("; 2/0", quiz.news());
    quiz.type("x");
    EXPECT_EQ("two right hint 50; 2/1", quiz.news());
    EXPECT_TRUE(quiz.session.canRepeat());
    quiz.session.turnVerdict();
    EXPECT_FALSE(quiz.session.canRepeat());
    quiz.session.turnVerdict();
    EXPECT_EQ("; 2/1", quiz.news());
    quiz.session.fRepeatErrors();
    EXPECT_EQ("three wrong 50; 0/0", quiz.news());
    EXPECT_FALSE(quiz.session.canTurn());
    quiz.type("x");
    quiz.session.settle();
    quiz.session.settle();
    quiz.session.turnVerdict();
    EXPECT_EQ("three wrong 50; 0/1", quiz.news());
}

TEST_F(QuizSessionTest, WhatIsNotTypedIsFinalAtOnce)
{
    Quiz chosen(settings, QuizKind::MultipleChoice, ListWords::numbered(3));
    chosen.session.check();
    EXPECT_EQ("e1 wrong 0; 0/1", chosen.news());
    Quiz spelled(settings, QuizKind::Practice, ListWords::numbered(1));
    spelled.session.hint();
    spelled.runReveal();
    spelled.session.turnVerdict();
    EXPECT_EQ("e1 wrong 0; 0/1", spelled.news());
}
