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
    /// answer is judged, "=a_b" is the typed answer "a b", ".a_b" one that is not given yet.
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
            else if (act[0] == u'.')
                session.setAnswerText(act.mid(1).replace(u'_', u' '));
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
    int reveal = 0, autoReveal = 0;
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

/// In steps.txt a line "quiz KIND OPTIONS WORDS" begins a quiz (h: a hint is an error), every other tells what is done
/// and the state then.
TEST_F(QuizSessionTest, EveryStepIsShownTimedCountedAndToldWhenItsVerdictIsFinal)
{
    settings.setAutoTimerInterval(1500);
    std::unique_ptr<Quiz> quiz;
    const QString steps = readFile(SOURCE_FOLDER "/tests/quiz/rules/steps.txt");
    for (const QString &line : steps.split(u'\n').filter(QRegularExpression("^[^#]"))) {
        if (const QStringList parts = line.split(u' '); parts[0] == "quiz") {
            settings.setErrorHint(parts[2] == "h");
            ListWords::Pairs words;
            for (const QString &pair : parts[3].split(u','))
                words.emplace_back(pair.section(u'=', 0, 0), pair.section(u'=', 1));
            quiz = std::make_unique<Quiz>(settings, QuizKind(parts[1].toInt()), ListWords(words));
        } else {
            quiz->act(line.section(": ", 0, 0));
            EXPECT_EQ(line.section(": ", 1).toStdString(), quiz->state()) << line.toStdString();
        }
    }
}
