#include "quiz/rules/QuizSession.h"

#include "quiz/rules/LetterRules.h"
#include "quiz/rules/Seconds.h"
#include "resources/StringTable.h"
#include "services/settings/clsAppProperties.h"

#include <QTextBoundaryFinder>

#include <chrono>

namespace {

constexpr int PromptId = 922;

/// How many characters of text stand where answer has the same.
qsizetype matchingPlaces(const QString &text, const QString &answer)
{
    qsizetype matches = 0;
    for (qsizetype i = 0; i < std::min(text.size(), answer.size()); ++i)
        matches += text[i] == answer[i] ? 1 : 0;
    return matches;
}

/// The first characters of text, count of them or a few more: a letter is never parted from its accents.
QString wholeLetters(const QString &text, qsizetype count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(std::min(count, text.size()));
    if (!finder.isAtBoundary())
        finder.toNextBoundary();
    return text.left(finder.position());
}

qint64 systemClock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

QuizSession::QuizSession(QuizKind kind, clsAppProperties &settings, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_settings(settings)
    , m_autoInterval(settings.AutoTimerInterval())
    , m_clock(systemClock)
{
    if (kind == QuizKind::QuestionAndAnswer)
        m_answerText = resText(PromptId);
}

bool QuizSession::fByggMatriser(const WordSource &words, RandomSource &random, const AskedRows &rows)
{
    if (m_kind == QuizKind::QuestionAndAnswer)
        m_judge.prepare(m_settings.quizOptions().tolerance);
    return m_table.fByggMatriser(m_kind, m_settings.QuizMode(), words, random, rows);
}

QString QuizSession::autoSeconds() const
{
    return Seconds::fromMilliseconds(m_autoInterval);
}

void QuizSession::setAutoSeconds(const QString &text)
{
    const std::optional<int> interval = Seconds::toMilliseconds(text);
    if (!interval)
        return;
    m_autoInterval = *interval;
    m_settings.setAutoTimerInterval(m_autoInterval);
}

bool QuizSession::automatic() const
{
    return m_settings.AutoCheck();
}

void QuizSession::setAutomatic(bool on)
{
    m_settings.setAutoCheck(on);
    if (m_kind != QuizKind::Practice || !asking())
        return;
    if (on)
        autoTick();
    else
        Q_EMIT autoIntervalChanged(0);
}

bool QuizSession::hintIsError() const
{
    return m_settings.ErrorHint();
}

void QuizSession::setHintIsError(bool on)
{
    m_settings.setErrorHint(on);
}

bool QuizSession::beepOnError() const
{
    return m_settings.ErrorBeep();
}

void QuizSession::setBeepOnError(bool on)
{
    m_settings.setErrorBeep(on);
}

void QuizSession::choose(int option)
{
    if (!asking())
        return;
    m_chosenOption = option;
    if (automatic())
        fCheckAnswer(Verdict::Undecided);
}

void QuizSession::check()
{
    if (!asking())
        return;
    if (m_kind == QuizKind::Practice)
        startReveal(Verdict::Correct);
    else
        fCheckAnswer(Verdict::Undecided);
}

void QuizSession::hint()
{
    if (!asking())
        return;
    if (m_kind == QuizKind::Practice)
        startReveal(Verdict::Wrong);
    else
        fGiveHint();
}

void QuizSession::fShowQuestion()
{
    if (m_current >= questionCount()) {
        endRound();
        return;
    }
    ++m_current;
    m_chosenOption = NothingChosen;
    if (m_kind == QuizKind::Practice)
        m_answerText.clear();
    m_shownAt = m_clock();
    Q_EMIT questionShown();
    if (m_kind == QuizKind::Practice && automatic())
        Q_EMIT autoIntervalChanged(m_autoInterval);
}

QuizSession::Verdict QuizSession::fCheckAnswer(Verdict verdict)
{
    settle();
    const bool hintUsed = m_kind == QuizKind::QuestionAndAnswer && std::exchange(m_hintUsed, false);
    if (verdict != Verdict::Undecided)
        m_givenAnswer = verdict == Verdict::Correct ? question().correctAnswer() : QString();
    else
        verdict = m_kind == QuizKind::MultipleChoice ? judgeOption() : judgeText(hintUsed);
    const bool right = verdict == Verdict::Correct;
    const Answer answer{question(), right, hintUsed, int(std::clamp<qint64>(m_clock() - m_shownAt, 0, INT_MAX))};
    count(answer);
    if (!right && m_kind == QuizKind::QuestionAndAnswer)
        m_open = answer;
    Q_EMIT judged(right);
    if (!m_open)
        tell(answer);
    fShowQuestion();
    return verdict;
}

void QuizSession::count(const Answer &answer)
{
    if (answer.right)
        ++m_correctCount;
    else
        m_errors.push_back(answer.question);
}

void QuizSession::turnVerdict()
{
    if (!canTurn())
        return;
    if (m_open->right)
        --m_correctCount;
    else
        m_errors.pop_back();
    m_open->right = !m_open->right;
    count(*m_open);
    Q_EMIT verdictTurned(m_open->right);
}

void QuizSession::settle()
{
    if (const std::optional<Answer> answer = std::exchange(m_open, std::nullopt))
        tell(*answer);
}

void QuizSession::tell(const Answer &answer)
{
    Q_EMIT settled(answer.question, answer.right, answer.hintUsed, answer.milliseconds);
}

QuizSession::Verdict QuizSession::judgeOption()
{
    m_givenAnswer.clear();
    if (m_chosenOption == NothingChosen)
        return Verdict::Wrong;
    const int field = m_chosenOption + Question::FirstOption;
    m_givenAnswer = question().field(field);
    return field == question().correctPosition() ? Verdict::Correct : Verdict::Wrong;
}

QuizSession::Verdict QuizSession::judgeText(bool hintUsed)
{
    m_givenAnswer = std::exchange(m_answerText, QString());
    if (m_givenAnswer == resText(PromptId))
        m_givenAnswer.clear();
    m_judgement = m_judge.judge(m_givenAnswer, question().correctAnswer(), m_settings.quizOptions().tolerance);
    const bool isCorrect = m_judgement.verdict != Judgement::Verdict::Wrong;
    return isCorrect && !(hintUsed && hintIsError()) ? Verdict::Correct : Verdict::Wrong;
}

void QuizSession::fGiveHint()
{
    if (m_kind == QuizKind::QuestionAndAnswer && m_answerText == resText(PromptId))
        m_answerText.clear();
    const QString answer = LetterRules::composed(question().correctAnswer());
    m_answerText = wholeLetters(answer, 1 + matchingPlaces(LetterRules::composed(m_answerText), answer));
    m_hintUsed = true;
    Q_EMIT answerRevealed();
}

void QuizSession::fRepeatErrors()
{
    if (!canRepeat())
        return;
    settle();
    m_table.replace(std::exchange(m_errors, {}));
    m_current = 0;
    m_correctCount = 0;
    m_done = false;
    Q_EMIT roundStarted();
    fShowQuestion();
}

void QuizSession::resume()
{
    m_revealReason = Verdict::Undecided;
    m_pauseTicks = 0;
    --m_current;
    fShowQuestion();
}

void QuizSession::startReveal(Verdict reason)
{
    m_revealReason = reason;
    Q_EMIT autoIntervalChanged(0);
    Q_EMIT revealIntervalChanged(RevealInterval);
}

void QuizSession::revealTick()
{
    if (!asking() || !revealing())
        return;
    if (m_answerText.size() < LetterRules::composed(question().correctAnswer()).size()) {
        fGiveHint();
        m_pauseTicks = 0;
    } else if (m_pauseTicks < PauseTicks) {
        ++m_pauseTicks;
    } else {
        Q_EMIT revealIntervalChanged(0);
        fCheckAnswer(std::exchange(m_revealReason, Verdict::Undecided));
    }
}

void QuizSession::autoTick()
{
    if (hintIsError())
        hint();
    else
        check();
}

void QuizSession::endRound()
{
    m_done = true;
    Q_EMIT roundEnded();
}
