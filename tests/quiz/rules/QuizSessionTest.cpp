#include "quiz/rules/QuizSession.h"

#include "quiz/rules/MissedAnswers.h"
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
        session.setClock([this] { return now; });
        QObject::connect(&session, &QuizSession::settled, [this](const auto &word, bool right, bool hint, int ms) {
            told += word.askedWord() + (right ? " right" : " wrong") + (hint ? " hint " : " ") + QString::number(ms);
        });
        SeededRandom random(seed);
        EXPECT_TRUE(session.fByggMatriser(words, random));
        session.fShowQuestion();
    }

    /// Answers the question on view in the way of its kind.
    void answer(bool correctly)
    {
        const Question &question = session.question();
        if (session.kind() == QuizKind::QuestionAndAnswer)
            return type(correctly ? question.correctAnswer() : "?");
        session.choose((question.correctPosition() - Question::FirstOption + (correctly ? 0 : 1)) % 3);
        correctly || session.kind() == QuizKind::MultipleChoice ? session.check() : session.hint();
        act("run");
    }

    void type(const QString &text)
    {
        now += 50;
        session.setAnswerText(text);
        session.check();
    }

    /// What the user, the window and its timers do: "tick" and "auto" are one tick of these, "run" are ticks until the
    /// answer is judged, "=a_b" is the typed answer "a b".
    void act(const QString &acts)
    {
        static const QHash<QString, void (QuizSession::*)()> known{
            {"check", &QuizSession::check},          {"hint", &QuizSession::hint},
            {"tick", &QuizSession::revealTick},      {"auto", &QuizSession::autoTick},
            {"resume", &QuizSession::resume},        {"turn", &QuizSession::turnVerdict},
            {"repeat", &QuizSession::fRepeatErrors}, {"settle", &QuizSession::settle}};
        for (const QString &act : acts.split(u' ')) {
            if (known.contains(act))
                (session.*known[act])();
            else if (act == "on" || act == "off")
                session.setAutomatic(act == "on");
            else if (act[0] == u'=')
                type(act.mid(1).replace(u'_', u' '));
            for (int ticks = 0; act == "run" && reveal > 0 && ticks < 50; ++ticks)
                session.revealTick();
        }
    }

    /// The answer on view, the intervals of both timers, what was told of final verdicts since the last time, the
    /// counters, and what can be done.
    std::string state()
    {
        const QString all = QStringLiteral("%1|%2|%3|%4|%5/%6").arg(session.answerText()).arg(reveal).arg(autoReveal);
        const QString then = all.arg(told.join(", ")).arg(session.correctCount()).arg(session.errorCount());
        told.clear();
        return (then + (session.canTurn() ? " turn" : "") + (session.canRepeat() ? " repeat" : "")).toStdString();
    }

    QuizSession session;
    qint64 now = 1000;
    QStringList told;
    int reveal = 0;
    int autoReveal = 0;
};

struct QuizSessionTest : ::testing::Test, StoredSettings
{
};

TEST_F(QuizSessionTest, WholeQuizzesOfEachKindInEachModeUntilNoErrorIsLeft)
{
    for (int each = 0; each < 15; ++each) {
        settings.setQuizMode(1 + each / 3);
        Quiz quiz(settings, QuizKind(each % 3), ListWords::numbered(11), quint64(each));
        QuizSession &session = quiz.session;
        const MissedAnswers missedAnswers(session);
        std::vector<Question> expected;
        QSet<WordPair> words;
        for (int asked = each / 3 == 4 ? 22 : 11; asked > 0; asked /= 3) {
            ASSERT_EQ(asked, session.questionCount());
            std::vector<Question> missed;
            for (int k = 1; k <= asked; ++k) {
                ASSERT_TRUE(!session.done() && session.currentQuestion() == k);
                const Question question = session.question();
                EXPECT_TRUE(expected.empty() || expected[size_t(k - 1)] == question);
                const bool correctly = k % 3 != 0;
                quiz.answer(correctly);
                if (correctly)
                    continue;
                missed.push_back(question);
                const QString number = question.askedWord().mid(1);
                words.insert({u'e' + number, u'g' + number});
                EXPECT_EQ(question, missedAnswers.ofRound().back().question);
            }
            EXPECT_TRUE(session.done());
            quiz.answer(true);
            quiz.act("tick auto"); // the round is over
            EXPECT_EQ(std::pair(asked - asked / 3, asked / 3), std::pair(session.correctCount(), session.errorCount()));
            EXPECT_EQ(missed.size(), missedAnswers.ofRound().size());
            EXPECT_EQ(words, missedAnswers.words());
            EXPECT_EQ(asked >= 3, session.canRepeat());
            expected = std::exchange(missed, {});
            session.fRepeatErrors();
        }
        EXPECT_TRUE(session.done() && missedAnswers.hasBegun());
    }
}

TEST_F(QuizSessionTest, AHintKeepsWhatIsInPlaceAndAddsALetter)
{
    // the answer, what is typed, and what the hint makes of it
    for (const char *texts : {"cat||c", "cat|c|ca", "cat|xat|cat", "cat|cats|cat", "cat|xyz|c", "cat|Cat|cat",
                              "cat|cat|cat", "|abc|", "été||é", "Tee|Type your answer here|T", "e\u0301te\u0301||é",
                              "e\u0301te\u0301|ét|été", "q\u0303a||q\u0303", "\U0001F600!||\U0001F600"}) {
        const QStringList parts = QString(texts).split(u'|');
        Quiz quiz(settings, QuizKind::QuestionAndAnswer, {{"question", parts[0]}});
        quiz.session.setAnswerText(parts[1]);
        quiz.session.hint();
        EXPECT_EQ(parts[2], quiz.session.answerText()) << texts;
    }
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
    for (const char *name : {"de", "ar_EG", "fa", "bn", "mr", "my", "dz", "ff_Adlm"}) {
        QLocale::setDefault(QLocale(name));
        EXPECT_EQ(12340, Seconds::toMilliseconds(Seconds::fromMilliseconds(12340))) << name;
        EXPECT_EQ(QString(), Seconds::fromMilliseconds(12340).remove(Seconds::pattern())) << name;
    }
    QLocale::setDefault(QLocale::system());
}

TEST_F(QuizSessionTest, EveryStepIsShownTimedCountedAndToldWhenItsVerdictIsFinal)
{
    settings.setAutoTimerInterval(1500);
    // what is done, and the state then. In Practice a pause that is over stays over until the next letter: an empty
    // answer has none to wait for. What the user says is faster than the timer, and a second thought counts.
    const std::tuple<QuizKind, ListWords::Pairs, const char *> quizzes[] = {
        {QuizKind::Practice,
         {{"house", "Haus"}, {"a", ""}, {"b", "bb"}},
         "check: |200|0||0/0; tick: H|200|0||0/0; tick tick tick: Haus|200|0||0/0; tick tick tick: Haus|200|0||0/0; "
         "tick: |0|0|house right 0|1/0; hint: |200|0||1/0; tick: |0|0|a wrong 0|1/1; hint tick: b|200|0||1/1; "
         "resume tick: |200|0||1/1; hint tick tick tick tick tick: bb|200|0||1/1; "
         "tick: bb|0|0|b wrong 0|1/2 repeat; turn: bb|0|0||1/2 repeat"},
        {QuizKind::MultipleChoice, {{"a", "1"}, {"b", "2"}, {"c", "3"}}, "check: |0|0|a wrong 0|0/1"},
        {QuizKind::QuestionAndAnswer,
         {{"one", "1"}, {"none", ""}, {"two", "2"}, {"three", "3"}},
         "=1: |0|0|one right 50|1/0; turn =Type_your_answer_here: |0|0|none right 50|2/0; hint =x: |0|0||2/1 turn; "
         "turn: |0|0||3/0 turn; =x: |0|0|two right hint 50|3/1 turn repeat; turn: |0|0||4/0 turn; "
         "turn: |0|0||3/1 turn repeat; repeat: |0|0|three wrong 50|0/0; "
         "=x settle settle turn: |0|0|three wrong 50|0/1 repeat"},
        {QuizKind::Practice,
         {{"e1", "g"}, {"e2", "g"}, {"e3", "g"}, {"e4", "g"}},
         "on: |200|0||0/0; run: |0|1500|e1 right 0|1/0; auto: |200|0||1/0; hint: |200|0||1/0; "
         "check run: |0|1500|e2 right 0|2/0; hint run: |0|1500|e3 wrong 0|2/1; off: |0|0||2/1; on: |200|0||2/1; "
         "run off on: g|0|0|e4 right 0|3/1 repeat"}};
    for (const auto &[kind, words, steps] : quizzes) {
        Quiz quiz(settings, kind, ListWords(words));
        for (const QString &step : QString(steps).split("; ")) {
            quiz.act(step.section(": ", 0, 0));
            EXPECT_EQ(step.section(": ", 1).toStdString(), quiz.state()) << step.toStdString();
        }
    }
    settings.setErrorHint(true);
    Quiz quiz(settings, QuizKind::Practice, {{"e", "g"}});
    EXPECT_EQ("|0|1500||0/0", quiz.state());
    quiz.act("auto run");
    EXPECT_EQ("g|0|0|e wrong 0|0/1 repeat", quiz.state());
}
