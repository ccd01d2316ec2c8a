#include "quiz/rules/QuizSession.h"

#include "quiz/rules/Seconds.h"
#include "resources/StringTable.h"
#include "services/settings/clsAppProperties.h"

#include <QTextBoundaryFinder>

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

/// The text with every letter and its accents in one, where there is such a character: how an accented letter was typed
/// makes no difference.
QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
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

} // namespace

QuizSession::QuizSession(QuizKind kind, clsAppProperties &settings, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_settings(settings)
    , m_autoInterval(settings.AutoTimerInterval())
{
    if (kind == QuizKind::QuestionAndAnswer)
        m_answerText = resText(PromptId);
}

bool QuizSession::fByggMatriser(const WordSource &words, RandomSource &random, const AskedRows &rows)
{
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
    Q_EMIT questionShown();
    if (m_kind == QuizKind::Practice && automatic())
        Q_EMIT autoIntervalChanged(m_autoInterval);
}

QuizSession::Verdict QuizSession::fCheckAnswer(Verdict verdict)
{
    if (verdict != Verdict::Undecided)
        m_givenAnswer = verdict == Verdict::Correct ? question().correctAnswer() : QString();
    else
        verdict = m_kind == QuizKind::MultipleChoice ? judgeOption() : judgeText();
    if (verdict == Verdict::Correct)
        ++m_correctCount;
    else
        m_errors.push_back(question());
    Q_EMIT judged(verdict == Verdict::Correct);
    fShowQuestion();
    return verdict;
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

QuizSession::Verdict QuizSession::judgeText()
{
    const bool hintCounts = hintIsError() && m_hintUsed;
    m_hintUsed = false;
    m_givenAnswer = std::exchange(m_answerText, QString());
    if (m_givenAnswer == resText(PromptId))
        m_givenAnswer.clear();
    const bool isCorrect = composed(m_givenAnswer) == composed(question().correctAnswer());
    return isCorrect && !hintCounts ? Verdict::Correct : Verdict::Wrong;
}

void QuizSession::fGiveHint()
{
    if (m_kind == QuizKind::QuestionAndAnswer && m_answerText == resText(PromptId))
        m_answerText.clear();
    const QString answer = composed(question().correctAnswer());
    m_answerText = wholeLetters(answer, 1 + matchingPlaces(composed(m_answerText), answer));
    m_hintUsed = true;
    Q_EMIT answerRevealed();
}

void QuizSession::fRepeatErrors()
{
    if (!canRepeat())
        return;
    m_table.replace(std::exchange(m_errors, {}));
    m_current = 0;
    m_correctCount = 0;
    m_done = false;
    Q_EMIT roundStarted();
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
    if (m_answerText.size() < composed(question().correctAnswer()).size()) {
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
